// The page "Import\Export": its buttons, its sign of progress, and where its controls are.
#include "settings/transfer_page.h"

#include "platform/message_loop.h"

#include <algorithm>
#include <utility>

using namespace layout;

namespace {

struct Button_Text {
    const char *caption;
    const char *explanation;
};

constexpr Button_Text export_texts[] = {
    {"&Data File...", "A copy of the data file calendar.dat with all events."},
    {"&Configuration...", "The settings as this dialog shows them."},
    {"Te&xt File...", "All events by date, one on each line, to read or to print."},
    {"CS&V File...", "All events as a table, for other calendars and for spreadsheets."}};

constexpr Button_Text import_texts[] = {
    {"Da&ta File...", "Replaces all events by those of another data file."},
    {"Confi&guration...", "Loads all settings from a file and closes this dialog."},
    {"CSV Fi&le...", "Adds the events of a table to those that are there."}};

constexpr int button_width = 115 * 15;
constexpr int bar_height = 16 * 15;
constexpr int explanation_lines = 2;

} // namespace

Transfer_Page::Transfer_Page(Form &dialog, Frame &frame, Main_Frm &calendar)
    : Export_Fra(dialog, "Export_Fra", "Export"), Export_Btn(dialog, "Export_Btn"),
      Export_Lbl(dialog, "Export_Lbl"), Export_ICalendar_Btn(dialog, "Export_ICalendar_Btn", "&iCalendar..."),
      Export_ICalendar_Lbl(dialog, "Export_ICalendar_Lbl",
                           "All events, for calendars on the web and in phones."),
      Import_Fra(dialog, "Import_Fra", "Import"), Import_Btn(dialog, "Import_Btn"),
      Import_Lbl(dialog, "Import_Lbl"), Import_ICalendar_Btn(dialog, "Import_ICalendar_Btn", "iCal&endar..."),
      Import_ICalendar_Lbl(dialog, "Import_ICalendar_Lbl",
                           "Adds the events of another calendar to those that are there."),
      Progress_Lbl(dialog, "Progress_Lbl", "Progress:"), Progress_Bar1(dialog, "Progress_Bar1"),
      Dialog1(&dialog.Model()), dialog_(dialog), importer_(calendar, Dialog1) {
    frame.Hold(Export_Fra, Progress_Bar1);
    Export_Fra.Hold(Export_Btn[0], Export_ICalendar_Lbl);
    Import_Fra.Hold(Import_Btn[0], Import_ICalendar_Lbl);
    for (std::int16_t i = 0; i < 4; ++i) {
        Export_Btn[i].Set_Caption(export_texts[i].caption);
        Export_Lbl[i].Set_Caption(export_texts[i].explanation);
        Export_Btn[i].On_Click = [this, i] { Export_Btn_Click(i); };
    }
    for (std::int16_t i = 0; i < 3; ++i) {
        Import_Btn[i].Set_Caption(import_texts[i].caption);
        Import_Lbl[i].Set_Caption(import_texts[i].explanation);
        Import_Btn[i].On_Click = [this, i] { Import_Btn_Click(i); };
    }
    Export_ICalendar_Btn.On_Click = [this] { Export(Export_Kind::ICalendar); };
    Import_ICalendar_Btn.On_Click = [this] { importer_.Import_ICalendar(); };
    importer_.Show_Staged = [this](std::vector<Sort_Entry> staged) { Show_Staged(std::move(staged)); };
    importer_.Data_File_Replaced = [this] { Data_File_Replaced(); };
    importer_.Show_Hourglass = [this] { dialog_.Set_Pointer(platform::Pointer_Shape::Hourglass); };
    importer_.Configuration_Changed = [this] { Configuration_Imported(); };
    importer_.Configuration_Partly_Changed = [this] { Configuration_Partly_Imported(); };
    for (Progress *progress : {&importer_.Work, &progress_}) {
        progress->On_Show = [this](int percent) { Show_Progress(percent); };
        progress->On_End = [this] { End_Progress(); };
    }
    End_Progress();
    Lay_Out();
}

void Transfer_Page::Export_Btn_Click(std::int16_t index) {
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

void Transfer_Page::Import_Btn_Click(std::int16_t index) {
    switch (index) {
    case 0:
        return importer_.Import_Data_File();
    case 1:
        return importer_.Import_Config();
    case 2:
        return importer_.Import_CSV();
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
    const int line = platform::Line_Height(Export_Lbl[0].Font());
    const int row = std::max(explanation_lines * line, button_height);
    const auto place = [row](Button &button, Label &label, int &top) {
        constexpr int label_left = margin + button_width + gap;
        button.Move({margin, top + (row - button_height) / 2, button_width, button_height});
        label.Move({label_left, top, page_width - label_left - margin, row});
        top += row + small_gap;
    };
    int top = group_top;
    for (int i = 0; i < 4; ++i)
        place(Export_Btn[i], Export_Lbl[i], top);
    place(Export_ICalendar_Btn, Export_ICalendar_Lbl, top);
    Export_Fra.Move({0, 0, page_width, top - small_gap + gap});
    top = group_top;
    for (int i = 0; i < 3; ++i)
        place(Import_Btn[i], Import_Lbl[i], top);
    place(Import_ICalendar_Btn, Import_ICalendar_Lbl, top);
    Import_Fra.Move({0, Export_Fra.Height() + group_gap, page_width, top - small_gap + gap});
    top = Import_Fra.Bounds().Bottom() + small_gap;
    constexpr int bar_left = 60 * 15;
    Progress_Lbl.Move({0, top + (bar_height - line) / 2, bar_left, line});
    Progress_Bar1.Move({bar_left, top, page_width - bar_left, bar_height});
}
