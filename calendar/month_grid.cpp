// The month in the day boxes: numbers, hidden boxes, today, texts, and the boxes' descriptions for assistive
// technology.
#include "calendar/month_grid.h"

#include "base/joined.h"
#include "calendar/box_layout.h"
#include "core/convert.h"
#include "core/settings.h"
#include "core/title.h"
#include "desktop/region.h"
#include "platform/locale.h"

#include <utility>

namespace {

constexpr Colour white = Rgb(255, 255, 255);

} // namespace

Month_Grid::Month_Grid() : Form(platform::Form_Kind::Painted, "Calendar") {
    Set_Title("Vellatro");
    DotDotDot_Lbl.Set_Visible(false);
    Describe_Heading();
}

std::int16_t Month_Grid::Start_Box(std::int16_t month, std::int16_t year) {
    const int weekday = Weekday({year, month, 1});
    return static_cast<std::int16_t>((weekday - platform::First_Weekday() + days_a_week) % days_a_week);
}

Date Month_Grid::Date_Of_Box(int index) const {
    return {Cur_Year, Cur_Month, Fit_Int16(index - Start_Box(Cur_Month, Cur_Year) + 1)};
}

void Month_Grid::Set_Day_Headers() {
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

void Month_Grid::Reset_Boxes() {
    for (int i = 0; i < box_count; ++i) {
        Box_Lbl[i].Set_Visible(true);
        Box_Caption_Lbl[i].Set_Visible(true);
        // In high contrast, texts may be white until Set_Colours runs, and a white box would hide them.
        if (!high_contrast_)
            Box_Lbl[i].Set_Back_Colour(white);
        Box_Lbl[i].Set_Caption({});
        Fill_Box(i, {});
        Clear_Today_Style(Box_Lbl[i]);
    }
}

void Month_Grid::Number_Boxes(Date date) {
    const Date today = Today();
    const std::string month = platform::Month_Name(date.month);
    const std::int32_t days = DaysInMonth(date);
    for (int box = Start_Box(date.month, date.year); date.day <= days; ++date.day, ++box) {
        Box_Lbl[box].Set_Caption(" " + std::to_string(date.day));
        platform::Access_State access = Box_Lbl[box].Access();
        access.role = platform::Access_Role::Cell;
        access.current = date == today;
        access.name = Full_Date(date, month) + (access.current ? ", today" : "");
        access.default_action = "Edit";
        Box_Lbl[box].Set_Access(std::move(access));
    }
}

void Month_Grid::Hide_Misc_Boxes() {
    for (int i = 0; i < box_count; ++i) {
        if (!Box_Lbl[i].Caption().empty())
            continue;
        Box_Lbl[i].Set_Visible(false);
        Box_Caption_Lbl[i].Set_Visible(false);
    }
}

void Month_Grid::Mark_Today() {
    // The boxes are out of date until compact mode ends.
    if (layout_outdated_)
        return;
    const Date today = Today();
    if (today.month != Cur_Month || today.year != Cur_Year)
        return;
    Colour_Today(Start_Box(Cur_Month, Cur_Year) + today.day - 1);
}

void Month_Grid::Clear_Tooltips() {
    for (int i = 0; i < box_count; ++i) {
        Box_Caption_Lbl[i].Set_Tooltip({});
        Box_Lbl[i].Set_Tooltip({});
    }
}

void Month_Grid::Fill_Box(int index, std::string_view text) {
    if (Cur_Settings.Tooltips == 1) {
        Box_Caption_Lbl[index].Set_Tooltip(text);
        Box_Lbl[index].Set_Tooltip(text);
    }
    DotDotDot(Box_Caption_Lbl[index], text);
    platform::Access_State access = Box_Lbl[index].Access();
    access.value = text;
    Box_Lbl[index].Set_Access(std::move(access));
}

void Month_Grid::Update_Title() {
    Which_Month_Lbl.Set_Caption(Bar_Date_Text(Cur_Settings.Bar_Time, Cur_Settings.Bar_Time_Format,
                                              Cur_Settings.Bar_Date_Format, Cur_Month, Cur_Year,
                                              platform::Now()));
}

void Month_Grid::Describe_Heading() {
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

std::string Full_Date(const Date &date, std::string_view month) {
    return Joined({platform::Weekday_Name(Weekday(date)), " ", std::to_string(date.day),
                   Ordinal_Suffix(date.day), " ", month, " ", std::to_string(date.year)});
}

void Month_Grid::TransparentForm() {
    Clip_To_Controls(*this);
}
