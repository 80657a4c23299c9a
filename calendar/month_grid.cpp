// The month in the day boxes: numbers, hidden boxes, today, events, the alert, and what assistive technology
// is told of the boxes.
#include "base/joined.h"
#include "calendar/box_layout.h"
#include "calendar/main_frm.h"
#include "core/convert.h"
#include "core/settings.h"
#include "core/title.h"
#include "platform/files.h"
#include "platform/locale.h"
#include "platform/message_box.h"

#include <utility>

namespace {

constexpr Colour white = Rgb(255, 255, 255);

} // namespace

std::int16_t Main_Frm::Start_Box(std::int16_t month, std::int16_t year) {
    const int weekday = Weekday({year, month, 1});
    return static_cast<std::int16_t>((weekday - platform::First_Weekday() + days_a_week) % days_a_week);
}

Date Main_Frm::Date_Of_Box(int index) const {
    return {Cur_Year, Cur_Month, Fit_Int16(index - Start_Box(Cur_Month, Cur_Year) + 1)};
}

void Main_Frm::Set_Day_Headers() {
    const int first = platform::First_Weekday();
    for (int i = 0; i < days_a_week; ++i) {
        const int weekday = (first + i) % days_a_week;
        Day_Lbl[i].Set_Caption(platform::Short_Weekday_Name(weekday));
        platform::Access_State access;
        access.role = platform::Access_Role::Header;
        access.name = platform::Weekday_Name(weekday);
        Day_Lbl[i].Set_Access(std::move(access));
    }
}

void Main_Frm::Reset_Boxes() {
    for (int i = 0; i < box_count; ++i) {
        Box_Lbl[i].Set_Visible(true);
        Box_Caption_Lbl[i].Set_Visible(true);
        // In high contrast the texts that are there until Set_Colours comes may be white.
        if (!contrast_)
            Box_Lbl[i].Set_Back_Colour(white);
        Box_Lbl[i].Set_Caption({});
        Box_Caption_Lbl[i].Set_Caption({});
        Set_Event_Value(i, {});
        Undress_Today(Box_Lbl[i]);
    }
}

void Main_Frm::Setup_Boxes(std::int16_t month, std::int16_t year) {
    Hide_Balloon();
    Reset_Boxes();
    const std::int32_t days = DaysInMonth({year, month, 1});
    const int start = Start_Box(month, year);
    for (int day = 1; day <= days; ++day)
        Box_Lbl[start + day - 1].Set_Caption(" " + std::to_string(day));
    Hide_Misc_Boxes();
    Describe_Boxes();
    Update_Mark();
    Position_Form(Effective_Position());
    TransparentForm();
}

void Main_Frm::Hide_Misc_Boxes() {
    for (int i = 0; i < box_count; ++i) {
        if (!Box_Lbl[i].Caption().empty())
            continue;
        Box_Lbl[i].Set_Visible(false);
        Box_Caption_Lbl[i].Set_Visible(false);
    }
}

void Main_Frm::Mark_Today() {
    // The boxes are those of another month until compact mode ends.
    if (stale_)
        return;
    const Date today = Today();
    Describe_Boxes();
    if (today.month != Cur_Month || today.year != Cur_Year)
        return;
    Colour_Today(Start_Box(Cur_Month, Cur_Year) + today.day - 1);
}

void Main_Frm::Load_Dates() {
    Clear_Tooltips();
    const Date today = Today();
    const unsigned fill = ++fills_;
    entered_ = {};
    const bool complete = Events.Load_Dates(
        [&](std::string_view record) {
            if (fill == fills_)
                Enter_Date(record, today);
        },
        [&] {
            if (fill == fills_)
                Show_Entered();
        });
    if (fill == fills_)
        broken_off_ = !complete;
    Describe_First_Steps();
}

/// Puts the texts that were entered since the last call into their boxes.
void Main_Frm::Show_Entered() {
    for (int i = 0; i < box_count; ++i) {
        std::optional<std::string> &text = entered_[static_cast<std::size_t>(i)];
        if (text)
            Fill_Box(i, *std::exchange(text, {}));
    }
}

void Main_Frm::Enter_Date(std::string_view record, const Date &today) {
    Event_Record parts;
    if (!Part_Record(record, parts))
        throw Conversion_Error("a record without \"=\"");
    const Date date = Parse_Date_Key(parts.key);
    if ((date.year == every_year || date.year == Cur_Year) && date.month == Cur_Month) {
        // Fitting a text into its box takes longer than reading a hundred records, and of several texts of a
        // day only the last one stays.
        const int index = Start_Box(Cur_Month, Cur_Year) + date.day - 1;
        entered_.at(static_cast<std::size_t>(index)) = parts.text;
    }
    // A day that the date watch has not seen yet gets its alert from there, and not two.
    if (Cur_Settings.Show_Alerts == 1 && !Alert_Done && date.day == today.day && date.month == today.month &&
        (date.year == today.year || date.year == every_year) && Date_Stamp(today) == date_stamp_)
        Alert(today, parts.text);
}

void Main_Frm::Show_Saved(const Date &date, std::string_view text) {
    if (Event_Saved)
        Event_Saved();
    Describe_First_Steps();
    if (date.month != Cur_Month)
        return;
    const int index = Start_Box(Cur_Month, Cur_Year) + date.day - 1;
    if (date.year == Cur_Year)
        return Fill_Box(index, text);
    // In another year the day has another event, or the same one when it is or was a yearly one.
    const Stored_Message message = Events.Get_Message(Date_Key({Cur_Year, date.month, date.day}));
    if (!message.incomplete)
        Fill_Box(index, message.text);
}

void Main_Frm::Fill_Box(int index, std::string_view text) {
    if (Cur_Settings.Tooltips == 1) {
        Box_Caption_Lbl[index].Set_Tooltip(text);
        Box_Lbl[index].Set_Tooltip(text);
    }
    DotDotDot(Box_Caption_Lbl[index], text);
    Set_Event_Value(index, text);
}

void Main_Frm::Alert(const Date &today, std::string_view text) {
    // Done before the user has answered: the month may be drawn again meanwhile, which must not show the
    // alert once more, and at midnight the next day gets one of its own.
    Alert_Done = true;
    Show_Entered();
    platform::Message_Box(Today_Text(today, text), "Vellatro", platform::Box_Icon::Information);
}

void Main_Frm::Update_Title() {
    Which_Month_Lbl.Set_Caption(Bar_Date_Text(Cur_Settings.Bar_Time, Cur_Settings.Bar_Time_Format,
                                              Cur_Settings.Bar_Date_Format, Cur_Month, Cur_Year,
                                              platform::Now()));
}

void Main_Frm::Set_Event_Value(int index, std::string_view text) {
    if (Box_Lbl[index].Access().value == text)
        return;
    platform::Access_State access = Box_Lbl[index].Access();
    access.value = text;
    Box_Lbl[index].Set_Access(std::move(access));
}

void Main_Frm::Describe_Boxes() {
    const Date today = Today();
    const bool shows_today = today.month == Cur_Month && today.year == Cur_Year;
    const Described_Month wanted{Cur_Year, Cur_Month, Start_Box(Cur_Month, Cur_Year),
                                 shows_today ? today.day : 0};
    if (described_ == wanted)
        return;
    for (int i = 0; i < box_count; ++i) {
        // By the number and not by what is seen: in compact mode nothing is.
        if (Box_Lbl[i].Caption().empty())
            continue;
        const Date date = Date_Of_Box(i);
        platform::Access_State access = Box_Lbl[i].Access();
        access.role = platform::Access_Role::Cell;
        access.current = date.day == wanted.today;
        access.name = Full_Date(date) + (access.current ? ", today" : "");
        access.default_action = "Edit";
        Box_Lbl[i].Set_Access(std::move(access));
    }
    described_ = wanted;
}

void Main_Frm::Describe_Heading() {
    platform::Access_State access;
    access.role = platform::Access_Role::Title;
    access.default_action = Compacted ? "Expand" : "Compact";
    Which_Month_Lbl.Set_Access(access);
    access.role = platform::Access_Role::Button;
    access.default_action = "Press";
    access.name = "Previous month";
    Prev_Month_Lbl.Set_Access(access);
    access.name = "Next month";
    Next_Month_Lbl.Set_Access(access);
}

void Main_Frm::Describe_First_Steps() {
    const bool new_here = !platform::Path_Exists(Event_Store::Data_File());
    Set_Description(new_here ? Joined({First_Steps[0], " ", First_Steps[1]}) : std::string());
}

std::string Full_Date(const Date &date) {
    return Joined({platform::Weekday_Name(Weekday(date)), " ", std::to_string(date.day),
                   Ordinal_Suffix(date.day), " ", platform::Month_Name(date.month), " ",
                   std::to_string(date.year)});
}

std::string Today_Text(const Date &today, std::string_view text) {
    return Joined({"Today: ", platform::Short_Date(today.year, today.month, today.day), "\r\n", text});
}
