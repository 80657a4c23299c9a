// Where the controls of the Events page are.
#include "platform/drawing.h"
#include "settings/events_page.h"

using namespace layout;

namespace {

constexpr int combo_width = 140 * 15;
constexpr int option_mark = 22 * 15; ///< with its distances from the caption
constexpr int month_columns = 3;

/// Room for a text, also where another number of dots per inch makes it a little wider.
int Room(const Control &control) {
    return platform::Text_Width(control.Caption(), control.Font()) + small_gap;
}

} // namespace

void Events_Page::Lay_Out() {
    int left = 0;
    for (Option_Button *option : {&Overview_Opt, &Stats_Opt}) {
        option->Move({left, 0, Room(*option) + option_mark, check_height});
        left = option->Bounds().Right() + margin;
    }
    Lay_Out_Overview();
    Lay_Out_Statistics();
}

void Events_Page::Lay_Out_Overview() {
    const int line = platform::Line_Height(Sort_Lbl.Font());
    const int below_options = Overview_Opt.Bounds().Bottom() + gap;
    const int group_height = page_height - below_options;
    Overview_Fra.Move({0, below_options, page_width, group_height});

    const int sort_width = Room(Sort_Lbl);
    Sort_Lbl.Move({margin, group_top + (row_height - line) / 2, sort_width, line});
    Sort_Cbo.Move({margin + sort_width + gap, group_top, combo_width, row_height});
    Events_Lst_Lbl.Move({margin, group_top + row_height + gap, inner_width, line});

    const int last_row = group_height - margin - line;
    const int list_top = Events_Lst_Lbl.Bounds().Bottom() + small_gap;
    Events_Lst.Move({margin, list_top, inner_width, last_row - gap - list_top});
    const int name_width = Room(Countdown_Name_Lbl);
    Countdown_Name_Lbl.Move({margin, last_row, name_width, line});
    const int countdown_left = margin + name_width + gap;
    Countdown_Lbl.Move({countdown_left, last_row, inner_width + margin - countdown_left, line});
}

void Events_Page::Lay_Out_Statistics() {
    const int line = platform::Line_Height(Total_All_Lbl.Font());
    const int row = line + gap;
    const auto place = [line, row](Control &label, int index, int columns) {
        const int width = inner_width / columns;
        label.Move({margin + index % columns * width, group_top + index / columns * row, width, line});
    };
    int index = 0;
    for (Label *label : {&Total_All_Lbl, &Total_Year_Lbl, &Before_Lbl, &After_Lbl})
        place(*label, index++, 2);
    const auto height = [row](int rows) { return group_top + rows * row - gap + margin; };
    Events_Fra.Move({0, Overview_Fra.Top(), page_width, height(2)});
    for (int i = 0; i < 12; ++i)
        place(Month_Count_Lbl[i], i, month_columns);
    Yearview_Fra.Move({0, Events_Fra.Bounds().Bottom() + gap, page_width, height(12 / month_columns)});
}
