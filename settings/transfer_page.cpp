#include "settings/transfer_page.h"

#include "platform/message_loop.h"

#include <algorithm>

using namespace layout;

namespace {

struct Button_Text {
    const char *caption;
    const char *explanation;
};

constexpr Button_Text export_texts[] = {
    {"&Data File...", "A copy of the data file calendar.dat with all events."},
    {"&Configuration...", "The settings as this dialog shows them."},
    {"Te&xt File...", "All events by date, one on each line, to read or print."},
    {"CS&V File...", "All events as a table, for other calendars and for spreadsheets."}};

constexpr Button_Text import_texts[] = {
    {"Da&ta File...", "Replaces all events with those of another data file."},
    {"Confi&guration...", "Loads all settings from a file and closes this dialog."},
    {"CSV Fi&le...", "Adds the events of a table to your events."}};

constexpr int wide_button = 115 * 15;
constexpr int bar_height = 16 * 15;
constexpr int explanation_lines = 2;

} // namespace

Transfer_Page::Transfer_Page(Frame &frame, Main_Frm &calendar) : Page(frame), Import(calendar, Dialog1) {
    for (int i = 0; i < 4; ++i) {
        Export_Btn[i].Set_Caption(export_texts[i].caption);
        Export_Lbl[i].Set_Caption(export_texts[i].explanation);
        Export_Btn[i].On_Click = [this, i] { Export_Btn_Click(i); };
    }
    for (int i = 0; i < 3; ++i) {
        Import_Btn[i].Set_Caption(import_texts[i].caption);
        Import_Lbl[i].Set_Caption(import_texts[i].explanation);
        Import_Btn[i].On_Click = [this, i] { Import_Btn_Click(i); };
    }
    Export_ICalendar_Btn.On_Click = [this] { Export(Export_Kind::ICalendar); };
    Import_ICalendar_Btn.On_Click = [this] { Import.Import_ICalendar(); };
    Import.Show_Hourglass = [this] { dialog_.Set_Pointer(platform::Pointer_Shape::Hourglass); };
    for (Progress *progress : {&Import.Import_Progress, &progress_}) {
        progress->On_Show = [this](int percent) { Show_Progress(percent); };
        progress->On_End = [this] { End_Progress(); };
    }
    End_Progress();
    Lay_Out();
}

void Transfer_Page::Export_Btn_Click(int index) {
    if (index >= 0 && index <= 3)
        Export(static_cast<Export_Kind>(index));
}

void Transfer_Page::Export(Export_Kind kind) {
    try {
        Export_File(kind, Dialog1, Shown_Configuration, progress_);
    } catch (...) {
        progress_.End();
        throw;
    }
}

void Transfer_Page::Import_Btn_Click(int index) {
    switch (index) {
    case 0:
        return Import.Import_Data_File();
    case 1:
        return Import.Import_Config();
    case 2:
        return Import.Import_CSV();
    default:
        return;
    }
}

void Transfer_Page::Show_Progress(int percent) {
    dialog_.Set_Pointer(platform::Pointer_Shape::Hourglass);
    Progress_Bar1.Set_Value(percent);
    Progress_Lbl.Set_Visible(true);
    Progress_Bar1.Set_Visible(true);
    platform::Paint_Waiting();
}

void Transfer_Page::End_Progress() {
    Progress_Lbl.Set_Visible(false);
    Progress_Bar1.Set_Visible(false);
    dialog_.Set_Pointer(platform::Pointer_Shape::Arrow);
}

void Transfer_Page::Lay_Out() {
    const int line = platform::Line_Height(Progress_Lbl.Font());
    const int height = std::max(explanation_lines * line, button_height);
    const auto add = [height, line](Rows &rows, Button &button, Label &label) {
        rows.Add_Pair(button, wide_button, label, small_gap, height);
        // If the text fits on one line, centre it beside the button.
        if (Rect place = label.Bounds(); platform::Text_Width(label.Caption(), label.Font()) <= place.width) {
            place.top += (height - line) / 2;
            place.height = line;
            label.Move(place);
        }
    };
    Rows exports = Group_Rows();
    for (int i = 0; i < 4; ++i)
        add(exports, Export_Btn[i], Export_Lbl[i]);
    add(exports, Export_ICalendar_Btn, Export_ICalendar_Lbl);
    Rows imports = Group_Rows();
    for (int i = 0; i < 3; ++i)
        add(imports, Import_Btn[i], Import_Lbl[i]);
    add(imports, Import_ICalendar_Btn, Import_ICalendar_Lbl);
    Rows page = Page_Rows();
    page.Add(Export_Fra, group_gap, exports.Bottom() + gap);
    page.Add(Import_Fra, small_gap, imports.Bottom() + gap);
    page.Add_Pair(Progress_Lbl, Usual_Width(Progress_Lbl), Progress_Bar1, 0, bar_height);
}
