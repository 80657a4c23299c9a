// The "Events" page of the settings dialog: an overview of all events, from which the user can remove events,
// and their statistics. core/events.h reads and sorts the events, event_statistics.h counts them, and
// event_overview.h words their lines.
#pragma once

#include "settings/event_overview.h"
#include "settings/event_statistics.h"
#include "settings/page.h"
#include "toolkit/control_array.h"

#include <vector>

class Events_Page final : public Page {
public:
    Events_Page(Frame &frame, Main_Frm &calendar);
    void Lay_Out() override;

    // The dialog calls these three, in this order, when it opens.
    void Write_Month_Titles();
    /// Counts the events. Without a data file, the labels stay as they are.
    void Get_Stats();
    /// Shows the overview, sorted by ascending date, whatever the user chose before.
    void Open_Overview();

    /// Lists and counts the events of the data file again.
    void Reload();

    /// Acts like Reload after a change outside the page, but keeps a list of imported events.
    void Refresh_From_File();

    /// Lists the imported events in their order. The next click on the overview option or the sort box lists
    /// the events of the data file again.
    void Show_Imported(std::vector<Event> staged);

    void Overview_Opt_Click();
    void Stats_Opt_Click();
    void Sort_Cbo_Click();
    void Events_Lst_Click();
    /// Offers to remove the selected event.
    void Events_Lst_DblClick();

    /// The events, in the order of the lines in Events_Lst.
    std::vector<Event> Dates_Lst;

    Option_Button Overview_Opt{frame_, "Overview_Opt", "Events &Overview"};
    Option_Button Stats_Opt{frame_, "Stats_Opt", "General &Statstics"};

    Frame Overview_Fra{frame_, "Overview_Fra", "Events"};
    Label Sort_Lbl{Overview_Fra, "Sort_Lbl", "Sort &by:"};
    Combo_Box Sort_Cbo{Overview_Fra, "Sort_Cbo"};
    Label Events_Lst_Lbl{Overview_Fra, "Events_Lst_Lbl"}; ///< says how to add or remove an event
    List_Box Events_Lst{Overview_Fra, "Events_Lst"};
    Label Countdown_Name_Lbl{Overview_Fra, "Countdown_Name_Lbl", "Countdown:"};
    Label Countdown_Lbl{Overview_Fra, "Countdown_Lbl"};

    Frame Events_Fra{frame_, "Events_Fra", "Events"};
    Label Total_All_Lbl{Events_Fra, "Total_All_Lbl"};
    Label Total_Year_Lbl{Events_Fra, "Total_Year_Lbl"};
    Label Before_Lbl{Events_Fra, "Before_Lbl"};
    Label After_Lbl{Events_Fra, "After_Lbl"};

    Frame Yearview_Fra{frame_, "Yearview_Fra", "This Year"};
    Control_Array<Label, 12> Month_Count_Lbl{Yearview_Fra, "Month_Count_Lbl"};

private:
    void Wire_Events();
    void Show_View(bool overview);
    void Reset_Vars();
    Read_Result Load_Dates();
    void Write_Labels();
    Read_Result Loadin_Data();
    void Sort_List(Read_Result result);
    void List_Events();
    void Events_Lst_KeyDown(const platform::Input_Event &event);
    bool Remove_Event(std::size_t line);

    Main_Frm &calendar_;
    Event_Statistics statistics_;
    bool showing_imported_ = false; ///< the list shows imported events instead of those in the data file
};
