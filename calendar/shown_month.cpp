// Lays out the shown month, loads its events into the boxes and shows the alert.
#include "base/joined.h"
#include "calendar/main_frm.h"
#include "core/convert.h"
#include "core/settings.h"
#include "platform/files.h"
#include "platform/locale.h"
#include "platform/message_box.h"

#include <utility>

void Main_Frm::Setup_Boxes(std::int16_t month, std::int16_t year) {
    Hide_Balloon();
    Repaint(); // once, instead of each changed box by itself
    Reset_Boxes();
    Number_Boxes({year, month, 1});
    Hide_Misc_Boxes();
    Update_Mark();
    Position_Form(Effective_Position());
    TransparentForm();
}

void Main_Frm::Load_Dates() {
    Clear_Tooltips();
    const Date today = Today();
    const unsigned generation = ++load_generation_;
    pending_texts_ = {};
    const bool complete = Events.Load_Dates(
        [&](std::string_view record) {
            if (generation == load_generation_)
                Enter_Date(record, today);
        },
        [&] {
            if (generation == load_generation_)
                Show_Pending_Texts();
        });
    if (generation == load_generation_)
        load_incomplete_ = !complete;
    Describe_First_Steps();
}

/// Sets the form's description: the splash window's first steps while there is no data file, else none.
void Main_Frm::Describe_First_Steps() {
    const bool new_here = !platform::Path_Exists(Event_Store::Data_File());
    Set_Description(new_here ? Joined({First_Steps[0], " ", First_Steps[1]}) : std::string());
}

/// Puts the texts that Enter_Date has stored since the last call into their boxes.
void Main_Frm::Show_Pending_Texts() {
    for (int i = 0; i < box_count; ++i) {
        std::optional<std::string> &text = pending_texts_[static_cast<std::size_t>(i)];
        if (text)
            Fill_Box(i, *std::exchange(text, {}));
    }
}

void Main_Frm::Enter_Date(std::string_view record, const Date &today) {
    Event_Record parts;
    if (!Parse_Record(record, parts))
        throw Conversion_Error("a record without \"=\"");
    const Date date = Parse_Date_Key(parts.key);
    if ((date.year == every_year || date.year == Cur_Year) && date.month == Cur_Month) {
        // Only store the text. Fitting a text into its box takes longer than reading a hundred records, and a
        // later record of the same day replaces the text.
        const int index = Start_Box(Cur_Month, Cur_Year) + date.day - 1;
        pending_texts_.at(static_cast<std::size_t>(index)) = parts.text;
    }
    // If the date timer has not noticed the new day yet, the timer will alert. An alert here would be a
    // second one.
    if (Cur_Settings.Show_Alerts == 1 && !Alert_Done && date.day == today.day && date.month == today.month &&
        (date.year == today.year || date.year == every_year) && Date_Stamp(today) == date_stamp_)
        Show_Alert(today, parts.text);
}

void Main_Frm::Show_Saved_Event(const Date &date, std::string_view text) {
    if (On_Event_Saved)
        On_Event_Saved();
    Describe_First_Steps();
    if (date.month != Cur_Month)
        return;
    const int index = Start_Box(Cur_Month, Cur_Year) + date.day - 1;
    if (date.year == Cur_Year)
        return Fill_Box(index, text);
    // In the shown year, the day may have a different event, or the same one if that event is or was yearly.
    const Stored_Message message = Events.Get_Message(Date_Key({Cur_Year, date.month, date.day}));
    if (!message.incomplete)
        Fill_Box(index, message.text);
}

void Main_Frm::Show_Alert(const Date &today, std::string_view text) {
    // Set the flag before the message box: a redraw while the box is open must not alert again, and a flag
    // set after midnight would prevent the next day's alert.
    Alert_Done = true;
    Show_Pending_Texts();
    platform::Message_Box(Today_Text(today, text), platform::Box_Icon::Information);
}

std::string Today_Text(const Date &today, std::string_view text) {
    return Joined({"Today: ", platform::Short_Date(today.year, today.month, today.day), "\r\n", text});
}
