// The popup menus of a day, of the months and of the years. Assistive technology can operate the calendar
// while a menu is open, so the user may choose an item for a day or a month that the calendar no longer
// shows.
#include "calendar/main_frm.h"
#include "platform/menu.h"

#include <array>

using platform::Menu_Image;
using platform::Menu_Item;

namespace {

enum Day_Item { clear_item = 1, edit_item, settings_item, exit_item, undo_item };

constexpr std::array<const char *, 12> month_items{"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                                   "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
constexpr int years_around = 2;

} // namespace

void Main_Frm::Popup_Menu(int index, const Point *at) {
    if (!Box_Lbl[index].Visible())
        return;
    const Date date = Date_Of_Box(index);
    std::vector<Menu_Item> items{
        {clear_item, "Clear", Menu_Image::Clear},
        {edit_item, "Edit", Menu_Image::Edit},
        {settings_item, "Settings", Menu_Image::Settings, static_cast<bool>(Open_Settings)},
        {exit_item, "Exit", Menu_Image::Exit}};
    const std::string change(Events.Changes.Name());
    if (!change.empty())
        items.push_back({undo_item, "Undo: " + change, Menu_Image::Undo, true, true});
    const int chosen = platform::Track_Popup_Menu(Model(), items, at);
    // Clear and Edit do nothing if the box belongs to another day by now. Compact mode does not change the
    // day of a box.
    const bool same_day = Date_Of_Box(index) == date;
    if (chosen == clear_item && same_day)
        Clear_Box(index);
    else if (chosen == edit_item && same_day)
        Edit_Box(index);
    else if (chosen == settings_item && Open_Settings)
        Open_Settings();
    else if (chosen == exit_item)
        End_Program();
    else if (chosen == undo_item && Events.Changes.Name() == change)
        Undo();
}

void Main_Frm::Clear_Box(int index) {
    // Clear the day of the box, even if the editor is open for another day.
    const Date date = Date_Of_Box(index);
    // After a failed Load_Dates, an empty box may hide an event that the user has not seen.
    if (load_incomplete_ && Box_Lbl[index].Access().value.empty())
        return;
    const Undo_Log::Change change(Events.Changes, Change_Name("Clear", date));
    Events.Load_File();
    if (!Events.Check_For_Pre(Date_Key(date), "", false))
        return;
    Fill_Box(index, {});
}

void Main_Frm::Undo() {
    // Compact mode shows no events, and Expand fills the boxes.
    if (!Events.Undo() || Compacted)
        return;
    // Refill only the texts, because a redraw would move a dragged calendar back.
    for (int i = 0; i < box_count; ++i)
        Fill_Box(i, {});
    Load_Dates();
}

void Main_Frm::Popup_Title_Menu(Point mouse) {
    if (Compacted || mouse.x >= Which_Month_Lbl.Width() / 2)
        Popup_Years();
    else
        Popup_Months();
}

void Main_Frm::Popup_Months(const Point *at) {
    const std::int16_t year = Cur_Year;
    std::vector<Menu_Item> items;
    for (const char *month : month_items) {
        const int id = static_cast<int>(items.size()) + 1;
        items.push_back({id, (id == Cur_Month ? "- " : "") + std::string(month)});
    }
    const int chosen = platform::Track_Popup_Menu(Model(), items, at);
    if (chosen == 0)
        return;
    Cur_Month = static_cast<std::int16_t>(chosen);
    Cur_Year = year; // the year may have changed while the menu was open
    Redraw();
}

void Main_Frm::Popup_Years(const Point *at) {
    if (Compacted) {
        if (platform::Track_Popup_Menu(Model(), {{1, "Expand"}}, at) != 0 && Compacted)
            Which_Month_Lbl_DblClick();
        return;
    }
    const std::int16_t month = Cur_Month;
    const int middle = Cur_Year;
    std::vector<Menu_Item> items;
    for (int position = 0; position <= 2 * years_around; ++position) {
        const int year = middle + position - years_around;
        if (position == years_around)
            items.push_back({position + 1, "Current Month\\Year"});
        else if (year >= first_year && year <= last_year)
            items.push_back({position + 1, std::to_string(year)});
    }
    const int chosen = platform::Track_Popup_Menu(Model(), items, at);
    if (chosen == 0)
        return;
    if (chosen == years_around + 1) {
        Select_Current_Month();
    } else {
        Cur_Month = month; // the month may have changed while the menu was open
        Cur_Year = static_cast<std::int16_t>(middle + chosen - 1 - years_around);
    }
    Redraw();
}
