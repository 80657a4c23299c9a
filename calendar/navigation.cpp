// Steps through the months and the box styles, and shows today's event.
#include "calendar/main_frm.h"
#include "core/settings.h"
#include "platform/message_box.h"

namespace {

constexpr int style_count = 2;

constexpr const char *style_question =
    "You can't change the box style because Use Theme Style is selected. Do you want to turn off Use Theme "
    "Style?";

} // namespace

void Main_Frm::Next_Month() {
    if (Cur_Year > last_year || (Cur_Year == last_year && Cur_Month == 12))
        return;
    if (++Cur_Month == 13) {
        Cur_Month = 1;
        ++Cur_Year;
    }
    Redraw();
}

void Main_Frm::Previous_Month() {
    if (Cur_Year <= first_year && Cur_Month == 1)
        return;
    if (--Cur_Month == 0) {
        Cur_Month = 12;
        --Cur_Year;
    }
    Redraw();
}

void Main_Frm::Step_Year(int years) {
    const int year = Cur_Year + years;
    if (year < first_year || year > last_year)
        return;
    Cur_Year = static_cast<std::int16_t>(year);
    Redraw();
}

void Main_Frm::Redraw() {
    Update_Title();
    // In compact mode no box may appear. Expand lays out the month later.
    layout_outdated_ = Compacted;
    if (Compacted)
        return;
    Set_Day_Headers();
    Setup_Boxes(Cur_Month, Cur_Year);
    Load_Dates();
    Set_Colours();
    Mark_Today();
}

void Main_Frm::Edit_Box(int index) {
    if (Open_Editor)
        Open_Editor(index);
}

void Main_Frm::Change_Style(int step) {
    // No and Cancel both change nothing: while the theme sets the style, no step is possible.
    const bool theme_rules = Cur_Settings.Use_Theme_Style == 1;
    if (theme_rules &&
        platform::Message_Box(style_question, platform::Box_Icon::Question,
                              platform::Box_Buttons::Yes_No_Cancel) != platform::Box_Answer::Yes)
        return;
    // Step from the visible style, which may be the theme's. All numbers but 0 mean the same style.
    const int style = ((Effective_Style() == 0 ? 0 : 1) + step + style_count) % style_count;
    const Settings before = Cur_Settings;
    if (theme_rules)
        Change_Setting(&Settings::Use_Theme_Style, 0);
    Change_Setting(&Settings::Style, static_cast<std::int16_t>(style));
    Hide_Balloon();
    Follow(before, true);
}

void Main_Frm::Show_Today_Event() {
    const Date today = Today();
    const Stored_Message message = Events.Get_Message(Date_Key(today));
    // A message has already told the user that the file is unreadable. Today may have an event, so "No
    // event." could be wrong.
    if (message.incomplete && message.text.empty())
        return;
    platform::Message_Box(Today_Text(today, message.text.empty() ? "No event." : message.text),
                          platform::Box_Icon::Information);
}
