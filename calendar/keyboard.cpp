// The keyboard: the keys that act on the month, and those that move the mark over the days (day_mark.h) or
// act on the marked day.
#include "calendar/main_frm.h"
#include "toolkit/keys.h"

#include <algorithm>
#include <utility>

void Main_Frm::Form_KeyDown(const platform::Input_Event &event) {
    // Only a window that has the focus gets keys.
    mark_.Set_Focus(true);
    stray_key_ = false;
    if (event.alt)
        return;
    if (event.control_key && (event.key == Key_Page_Up || event.key == Key_Page_Down))
        return Step_Year(event.key == Key_Page_Up ? -1 : 1);
    if (event.control_key && event.key == Key_Z) {
        if (!event.repeated && !event.shift)
            Undo();
        return;
    }
    if (event.control_key) {
        if (drag_.Nudge(event.key, event.shift))
            Hide_Balloon();
        return;
    }
    const bool menu = event.key == Key_Menu || (event.key == Key_F10 && event.shift);
    if (menu || event.key == Key_Return || event.key == Key_Delete) {
        // These keys act on release, and only if the user pressed them here. A key that closed a message box,
        // or that repeats, does not act on the day.
        if (!event.repeated)
            pending_key_ = event.key;
    } else if (Handle_Day_Key(event.key)) {
        Restart_Countdown();
    }
}

void Main_Frm::Form_KeyUp(const platform::Input_Event &event) {
    if (!event.control_key)
        drag_.End_Nudge();
    const bool pending = std::exchange(pending_key_, 0) == event.key;
    // Alt+F4 closes this window or another one. The release of its F4 must not show the next month.
    if (event.alt || std::exchange(stray_key_, false))
        return;
    Handle_Function_Key(event.key);
    if (pending)
        Act_On_Marked_Day(event.key);
    Restart_Countdown();
}

void Main_Frm::Handle_Function_Key(int key) {
    switch (key) {
    case Key_F1:
        return Show_Today_Event();
    case Key_F2:
        return Previous_Month();
    case Key_F4:
        return Next_Month();
    case Key_F3:
    case Key_F5:
        return Redraw();
    case Key_F8:
        return Change_Style(1);
    case Key_F9:
        return Change_Style(-1);
    case Key_F12:
        return Which_Month_Lbl_DblClick();
    default:
        return;
    }
}

bool Main_Frm::Handle_Day_Key(int key) {
    if (const Point step = Arrow_Step(key); step != Point{}) {
        Move_Mark(step.x + days_a_week * step.y);
        return true;
    }
    switch (key) {
    case Key_Page_Up:
        Previous_Month();
        return true;
    case Key_Page_Down:
        Next_Month();
        return true;
    case Key_Home:
        mark_.Activate();
        mark_.Set_Day(Select_Current_Month().day);
        Redraw();
        return true;
    case Key_M:
    case Key_Y:
        Popup_Below_Title(key == Key_M && !Compacted);
        return true;
    default:
        return false;
    }
}

/// Opens the menu of months or years below the title, in response to a key.
void Main_Frm::Popup_Below_Title(bool months) {
    const Point below{Which_Month_Lbl.Left() + Which_Month_Lbl.Width() / 2,
                      Which_Month_Lbl.Top() + Which_Month_Lbl.Height()};
    if (months)
        Popup_Months(&below);
    else
        Popup_Years(&below);
}

void Main_Frm::Act_On_Marked_Day(int key) {
    const bool menu = key == Key_Menu || key == Key_F10;
    if (Compacted) {
        if (menu)
            Popup_Below_Title(false);
        return;
    }
    // If the mark was not visible before, only the menu key acts: the menu opens at the marked day and does
    // no harm by itself.
    const bool seen_before = !Show_Mark();
    const int box = Marked_Box();
    if (menu) {
        const Point middle{Box_Lbl[box].Left() + Box_Lbl[box].Width() / 2,
                           Box_Lbl[box].Top() + Box_Lbl[box].Height() / 2};
        Popup_Menu(box, &middle);
    } else if (seen_before && key == Key_Return) {
        Edit_Box(box);
    } else if (seen_before && key == Key_Delete) {
        Clear_Box(box);
    }
}

/// Makes the mark visible. Returns false if it already was.
bool Main_Frm::Show_Mark() {
    if (!mark_.Activate())
        return false;
    if (mark_.Day() == 0) {
        const Date today = Today();
        mark_.Set_Day(today.month == Cur_Month && today.year == Cur_Year ? today.day : std::int16_t{1});
    }
    Update_Mark();
    return true;
}

void Main_Frm::Move_Mark(int days) {
    // The first key only shows the mark. Later keys move it.
    if (Compacted || Show_Mark())
        return;
    const int length = DaysInMonth({Cur_Year, Cur_Month, 1});
    const int day = mark_.Day() + days;
    if (day < 1) {
        if (Cur_Month == 1 && Cur_Year <= first_year)
            return;
        const Date before = Cur_Month == 1 ? Date{static_cast<std::int16_t>(Cur_Year - 1), 12, 1}
                                           : Date{Cur_Year, static_cast<std::int16_t>(Cur_Month - 1), 1};
        mark_.Set_Day(static_cast<std::int16_t>(day + DaysInMonth(before)));
        Previous_Month();
    } else if (day > length) {
        if (Cur_Month == 12 && Cur_Year >= last_year)
            return;
        mark_.Set_Day(static_cast<std::int16_t>(day - length));
        Next_Month();
    } else {
        mark_.Set_Day(static_cast<std::int16_t>(day));
        Update_Mark();
    }
}

void Main_Frm::Update_Focus(bool has_focus) {
    mark_.Set_Focus(has_focus);
    pending_key_ = 0;
    stray_key_ = has_focus;
    Update_Mark();
}

void Main_Frm::Update_Mark() {
    if (mark_.Day() == 0)
        return;
    // In a shorter month, the mark moves to the last day.
    const std::int32_t length = DaysInMonth({Cur_Year, Cur_Month, 1});
    mark_.Set_Day(static_cast<std::int16_t>(std::min<std::int32_t>(mark_.Day(), length)));
    const int box = Marked_Box();
    mark_.Move_To(Compacted ? nullptr : &Box_Lbl[box], Date_Of_Box(box), Which_Month_Lbl);
}
