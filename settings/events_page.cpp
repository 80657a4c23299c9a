#include "settings/events_page.h"

#include "platform/files.h"
#include "platform/message_box.h"
#include "toolkit/keys.h"
#include "transfer/merging.h"

#include <algorithm>
#include <string>
#include <utility>

using namespace layout;

namespace {

/// Shows in the frame's title whether its list or counts are incomplete. A message box would appear again and
/// again, because most clicks on the page read the file.
void Title_Frame(Frame &frame, Read_Result result) {
    frame.Set_Caption(result == Read_Result::Incomplete ? "Error loading in data file." : "Events");
}

/// Places a label in a grid of `columns` columns.
void Place(Label &label, int index, int columns) {
    const int line = platform::Line_Height(label.Font());
    const int width = inner_width / columns;
    label.Move({margin + index % columns * width, group_top + index / columns * (line + gap), width, line});
}

} // namespace

Events_Page::Events_Page(Frame &frame, Main_Frm &calendar) : Page(frame), calendar_(calendar) {
    Sort_Cbo.Set_Items({"Ascending Date", "Descending Date", "Date Added"});
    Sort_Cbo.Select(0);
    Set_Access_Name(Events_Lst, "Events");
    Write_Labels();
    Wire_Events();
    Lay_Out();
}

void Events_Page::Wire_Events() {
    Overview_Opt.On_Click = [this] { Overview_Opt_Click(); };
    Stats_Opt.On_Click = [this] { Stats_Opt_Click(); };
    Sort_Cbo.On_Click = [this] { Sort_Cbo_Click(); };
    Events_Lst.On_Click = [this] { Events_Lst_Click(); };
    Events_Lst.On_Double_Click = [this] { Events_Lst_DblClick(); };
    Events_Lst.On_Key_Down = [this](const platform::Input_Event &event) { Events_Lst_KeyDown(event); };
}

void Events_Page::Write_Month_Titles() {
    constexpr const char *titles[] = {"Jan: ",  "Feb: ", "Mar: ", "Apr: ", "May: ", "Jun: ",
                                      "July: ", "Aug: ", "Sep: ", "Oct: ", "Nov: ", "Dec: "};
    for (int i = 0; i < 12; ++i)
        Month_Count_Lbl[i].Set_Caption(titles[i] +
                                       std::to_string(statistics_.months[static_cast<std::size_t>(i)]));
}

void Events_Page::Get_Stats() {
    Reset_Vars();
    Title_Frame(Events_Fra, Load_Dates());
}

void Events_Page::Reset_Vars() {
    statistics_ = {};
}

Read_Result Events_Page::Load_Dates() {
    const Date today = Today();
    const Read_Result result =
        Read_Events(today.year, [&](const Event &event) { Workout_Stats(statistics_, event, today); });
    if (result != Read_Result::No_File)
        Write_Labels();
    return result;
}

void Events_Page::Write_Labels() {
    // The captions take the events' point of view: "Before Today" counts the future events, because today
    // comes before them.
    Total_All_Lbl.Set_Caption("Total Events: " + std::to_string(statistics_.total));
    Total_Year_Lbl.Set_Caption("Events This Year: " + std::to_string(statistics_.this_year));
    Before_Lbl.Set_Caption("No. Before Today: " + std::to_string(statistics_.future));
    After_Lbl.Set_Caption("No. After Today: " + std::to_string(statistics_.past));
    Write_Month_Titles();
}

void Events_Page::Open_Overview() {
    Sort_Cbo.Set_Text("Ascending Date");
    Overview_Opt.Set_Checked(true);
    Overview_Opt_Click();
}

void Events_Page::Reload() {
    List_Events();
    Get_Stats();
}

void Events_Page::Refresh_From_File() {
    if (showing_imported_)
        Get_Stats();
    else
        Reload();
}

void Events_Page::Show_Imported(std::vector<Event> staged) {
    Dates_Lst = std::move(staged);
    showing_imported_ = true;
    Sort_List(Read_Result::Complete);
    Get_Stats();
}

void Events_Page::Show_View(bool overview) {
    Overview_Fra.Set_Visible(overview);
    Yearview_Fra.Set_Visible(!overview);
    Events_Fra.Set_Visible(!overview);
}

void Events_Page::Overview_Opt_Click() {
    Show_View(true);
    List_Events();
}

void Events_Page::Stats_Opt_Click() {
    Show_View(false);
}

void Events_Page::Sort_Cbo_Click() {
    List_Events();
}

void Events_Page::List_Events() {
    showing_imported_ = false;
    Sort_List(Loadin_Data());
}

Read_Result Events_Page::Loadin_Data() {
    const auto order = static_cast<Sort_Order>(std::max(Sort_Cbo.Selected(), 0));
    return Load_Events(Dates_Lst, order, Today());
}

void Events_Page::Sort_List(Read_Result result) {
    Title_Frame(Overview_Fra, result);
    const bool none = Dates_Lst.empty() && !showing_imported_ && result != Read_Result::Incomplete;
    Events_Lst_Lbl.Set_Caption(none ? "No &events yet: double-click a day of the calendar."
                                    : "&Events (double-click or Delete removes one):");
    std::vector<std::string> lines;
    lines.reserve(Dates_Lst.size());
    for (const Event &event : Dates_Lst)
        lines.push_back(Overview_Line(event));
    Events_Lst.Set_Items(std::move(lines));
    Events_Lst_Click();
}

void Events_Page::Events_Lst_Click() {
    // Use the event's date, because the date in the line's text may have spaces and a two-digit year.
    const int index = Events_Lst.Selected();
    Countdown_Lbl.Set_Caption(
        index == -1 ? std::string() : Countdown_Text(Dates_Lst[static_cast<std::size_t>(index)], Today()));
}

void Events_Page::Events_Lst_KeyDown(const platform::Input_Event &event) {
    if ((event.key == Key_Delete || event.key == Key_Return) && !event.repeated)
        Events_Lst_DblClick();
}

void Events_Page::Events_Lst_DblClick() {
    if (Events_Lst.Selected() == -1)
        return;
    auto line = static_cast<std::size_t>(Events_Lst.Selected());
    const std::string asked = Events_Lst.Items()[line];
    const platform::Box_Answer answer =
        platform::Message_Box("Do you really want to remove the event..\r\n\r\n" + asked,
                              platform::Box_Icon::Question, platform::Box_Buttons::Yes_No_Cancel);
    // The page may have filled the list again while the question was open.
    const std::vector<std::string> &lines = Events_Lst.Items();
    if (line >= lines.size() || lines[line] != asked)
        line = static_cast<std::size_t>(std::ranges::find(lines, asked) - lines.begin());
    if (answer != platform::Box_Answer::Yes || line == lines.size() || !Remove_Event(line))
        return;
    // Select the next line, so that the user can continue with the keyboard.
    Events_Lst.Select(std::min(static_cast<int>(line), static_cast<int>(lines.size()) - 1));
    Events_Lst_Click();
    // A compact calendar shows no events. It lays out its month when it expands.
    if (!calendar_.Compacted)
        calendar_.Redraw();
}

/// Removes one event from the list and from the data file. If that fails and both still have the event, shows
/// a message and returns false.
bool Events_Page::Remove_Event(std::size_t line) {
    Event_Store &events = calendar_.Events;
    const Undo_Log::Change change(events.Changes, Change_Name("Remove", Dates_Lst[line].date));
    if (!events.Load_File())
        return false;
    std::vector<Event> rest = Dates_Lst;
    // Without a file, Temp_Lst is out of date.
    const bool there = platform::File_Exists(Event_Store::Data_File()) &&
                       (showing_imported_ ? Unmerge(events.Temp_Lst, rest, line)
                                          : Remove_Record(events.Temp_Lst, rest[line]));
    if (!there)
        platform::Message_Box("This event is no longer in the data file.", platform::Box_Icon::Exclamation);
    else if (!events.Write_ALL())
        return false;
    if (showing_imported_) {
        Dates_Lst = std::move(rest);
        Events_Lst.Remove_Item(static_cast<int>(line));
        Get_Stats();
    } else {
        Reload();
    }
    return true;
}

void Events_Page::Lay_Out() {
    int left = 0;
    for (Option_Button *option : {&Overview_Opt, &Stats_Opt}) {
        option->Move({left, 0, Usual_Width(*option), check_height});
        left = option->Bounds().Right() + margin;
    }
    const int top = check_height + gap;
    Overview_Fra.Move({0, top, page_width, page_height - top});
    Rows rows = Group_Rows();
    rows.Add_Pair(Sort_Lbl, Usual_Width(Sort_Lbl), Sort_Cbo);
    rows.Add(Events_Lst_Lbl, small_gap);
    const int below = Sort_Lbl.Height() + margin; // room for the countdown
    rows.Add(Events_Lst, gap, Overview_Fra.Height() - rows.Top() - gap - below);
    rows.Add_Pair(Countdown_Name_Lbl, Usual_Width(Countdown_Name_Lbl), Countdown_Lbl, margin);

    int index = 0;
    for (Label *label : {&Total_All_Lbl, &Total_Year_Lbl, &Before_Lbl, &After_Lbl})
        Place(*label, index++, 2);
    index = 0;
    for (Label &label : Month_Count_Lbl)
        Place(label, index++, 3);
    Rows page{0, top, page_width};
    page.Add(Events_Fra, gap, After_Lbl.Bounds().Bottom() + margin);
    page.Add(Yearview_Fra, gap, Month_Count_Lbl[11].Bounds().Bottom() + margin);
}
