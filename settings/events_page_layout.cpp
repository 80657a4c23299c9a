// Where the controls of the Events page are.
#include "platform/drawing.h"
#include "settings/events_page.h"

#include <algorithm>

namespace {

// Twips: 15 are a pixel at 96 dots per inch.
constexpr int page_width = 5280;
constexpr int page_height = 5400;
constexpr int edge = 4 * 15; ///< between the page and what is on it
constexpr int margin = 11 * 15;
constexpr int gap = 7 * 15;
constexpr int small_gap = 3 * 15;
constexpr int frame_top = 20 * 15; ///< from a frame's top to its first row
constexpr int combo_width = 140 * 15;
constexpr int combo_height = 21 * 15;
constexpr int option_mark = 22 * 15; ///< with its distances from the caption
constexpr int group_width = page_width - 2 * edge;
constexpr int inner_width = group_width - 2 * margin;
constexpr int month_columns = 3;

} // namespace

void Events_Page::Lay_Out() {
    const platform::Font &font = Overview_Opt.Font();
    const int line = std::max(platform::Line_Height(font), 17 * 15);
    int left = edge;
    for (Option_Button *option : {&Overview_Opt, &Stats_Opt}) {
        const int width = platform::Text_Width(option->Caption(), font) + option_mark;
        option->Move({left, edge, width, line});
        left += width + 2 * margin;
    }
    Lay_Out_Overview();
    Lay_Out_Statistics();
}

void Events_Page::Lay_Out_Overview() {
    const platform::Font &font = Sort_Lbl.Font();
    const int line = platform::Line_Height(font);
    const int group_top = Overview_Opt.Bounds().Bottom() + gap;
    const int group_height = page_height - edge - group_top;
    Overview_Fra.Move({edge, group_top, group_width, group_height});

    const int sort_width = platform::Text_Width(Sort_Lbl.Caption(), font);
    Sort_Lbl.Move({margin, frame_top + (combo_height - line) / 2, sort_width, line});
    Sort_Cbo.Move({margin + sort_width + gap, frame_top, combo_width, combo_height});
    Events_Lst_Lbl.Move({margin, frame_top + combo_height + gap, inner_width, line});

    const int last_row = group_height - margin - line;
    const int list_top = Events_Lst_Lbl.Bounds().Bottom() + small_gap;
    Events_Lst.Move({margin, list_top, inner_width, last_row - gap - list_top});
    const int name_width = platform::Text_Width(Countdown_Name_Lbl.Caption(), font);
    Countdown_Name_Lbl.Move({margin, last_row, name_width, line});
    const int countdown_left = margin + name_width + gap;
    Countdown_Lbl.Move({countdown_left, last_row, inner_width + margin - countdown_left, line});
}

void Events_Page::Lay_Out_Statistics() {
    const int line = platform::Line_Height(Total_All_Lbl.Font());
    const int row = line + gap;
    const auto place = [line, row](Control &label, int index, int columns) {
        const int width = inner_width / columns;
        label.Move({margin + index % columns * width, frame_top + index / columns * row, width, line});
    };
    int index = 0;
    for (Label *label : {&Total_All_Lbl, &Total_Year_Lbl, &Before_Lbl, &After_Lbl})
        place(*label, index++, 2);
    const auto height = [row](int rows) { return frame_top + rows * row - gap + margin; };
    Events_Fra.Move({edge, Overview_Fra.Top(), group_width, height(2)});
    for (int i = 0; i < 12; ++i)
        place(Month_Count_Lbl[i], i, month_columns);
    Yearview_Fra.Move({edge, Events_Fra.Bounds().Bottom() + gap, group_width, height(12 / month_columns)});
}
