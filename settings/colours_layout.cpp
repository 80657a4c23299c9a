// Places the controls of the "Colours" page.
#include "calendar/box_layout.h"
#include "settings/colours_page.h"
#include "settings/palette.h"
#include "toolkit/units.h"

#include <algorithm>

using namespace layout;

namespace {

constexpr int left_width = 2400; ///< width of the column with the swatches
constexpr int swatch_row = 19 * 15;
constexpr int swatch_height = 17 * 15;
constexpr int swatch_width = 36 * 15;
constexpr int group_margin = 7 * 15;
constexpr int value_label_width = 41 * 15;
constexpr int gradient_width = 16 * 15;
constexpr int value_rows = 3;
constexpr int around_text = 8; ///< pixels between a field's edges and its text, above and below together

} // namespace

void Colours_Page::Lay_Out() {
    Lay_Out_Left();
    Lay_Out_Palette();
    Lay_Out_Preview();
}

void Colours_Page::Lay_Out_Swatches(int first, int last, int top) {
    constexpr int label_left = margin + swatch_width + gap;
    for (int i = first; i <= last; ++i) {
        const Swatch &swatch = swatches_[static_cast<std::size_t>(i)];
        swatch.picture->Move({margin, top, swatch_width, swatch_height});
        swatch.label->Move({label_left, top, left_width - label_left - small_gap, swatch_height});
        top += swatch_row;
    }
}

void Colours_Page::Lay_Out_Left() {
    constexpr int boxes_height = group_top + 4 * swatch_row + group_margin;
    Boxes_Fra.Move({0, 0, left_width, boxes_height});
    Lay_Out_Swatches(0, 3, group_top);

    constexpr int options_height = 2 * check_height + small_gap;
    constexpr int menu_height = group_top + options_height + 2 * swatch_row + group_margin;
    Menu_Fra.Move({0, boxes_height + group_gap, left_width, menu_height});
    constexpr int option_width = left_width - margin - small_gap;
    Col_Sys_Opt.Move({margin, group_top, option_width, check_height});
    Col_Other_Opt.Move({margin, group_top + check_height, option_width, check_height});
    Lay_Out_Swatches(4, 5, group_top + options_height);
    Default_Cols_Btn.Move({0, Menu_Fra.Bounds().Bottom() + gap, left_width, button_height});
}

void Colours_Page::Lay_Out_Palette() {
    const int left = left_width + gap;
    const int width = page_width - left;
    const int height = Default_Cols_Btn.Bounds().Bottom();
    Palette_Fra.Move({left, 0, width, height});

    // The palette gets the height that the values leave free.
    constexpr int values_height = (value_rows + 1) * (row_height + small_gap);
    const int values_top = height - margin + small_gap - values_height;
    Rows values{margin, values_top, width - 2 * margin};
    for (int i = 0; i < value_rows; ++i) {
        values.Add_Pair(txCol_Lbl[i], value_label_width, txCol[i], small_gap);
        // Fit the height of the field to its text, because at any DPI a field draws its text a fixed number
        // of pixels below its top edge.
        Rect place = txCol[i].Bounds();
        const int text_height = platform::Line_Height(txCol[i].Font()) + Pixels_To_Twips(around_text);
        const int spare = std::max(0, place.height - text_height);
        place.top += spare / 2;
        place.height -= spare;
        txCol[i].Move(place);
    }
    values.Add_Pair(Names_Lbl, value_label_width, Names_Cbo);
    const int pal_height = Snap(values_top - 2 * small_gap - group_top);
    const int pal_width = Snap(width - 2 * margin - gradient_width - small_gap);
    Pal.Move({margin, group_top, pal_width, pal_height});
    Gradient_Pic.Move({width - margin - gradient_width, group_top, gradient_width, pal_height});

    const Size size{Twips_To_Pixels(pal_width), Twips_To_Pixels(pal_height)};
    if (palette_.width == size.width && palette_.height == size.height)
        return;
    palette_ = Palette_Picture(size);
    Move_Cross({size.width / 2, size.height / 2});
}

void Colours_Page::Lay_Out_Preview() {
    const int top = Default_Cols_Btn.Bounds().Bottom() + group_gap;
    const Box_Layout thin(0);
    const Box_Layout square(1);
    const int height = Pixels_To_Twips(square.Box(0).height);
    Preview_Fra.Move({0, top, page_width, group_top + height + 2 * backdrop + group_margin});

    // Place the title, today's box and a thin box as in the calendar, and the square box at the right edge.
    const Rect origin = thin.Previous_Arrow();
    const int first_left = margin + backdrop;
    const int first_top = group_top + backdrop;
    Preview_Prev_Lbl.Move(Translate_Rect(origin, origin, first_left, first_top));
    Rect month = thin.Month();
    month.width = thin.Box(1).Right() - month.left;
    Preview_Month_Lbl.Move(Translate_Rect(month, origin, first_left, first_top));
    const int boxes_top = first_top + Pixels_To_Twips(origin.Bottom() + thin.Gap());
    const int second_left = first_left + Pixels_To_Twips(thin.Box(1).left);
    const int third_left = margin + inner_width - backdrop - Pixels_To_Twips(square.Box(0).width);
    Preview_Back_Pic.Move({margin, group_top, inner_width, height + 2 * backdrop});
    Place_Example(thin, Preview_Today_Lbl, Preview_Caption_Today_Lbl, first_left, boxes_top);
    Place_Example(thin, Preview_Style0_Lbl, Preview_Caption0_Lbl, second_left, boxes_top);
    Place_Example(square, Preview_Style1_Lbl, Preview_Caption1_Lbl, third_left, first_top);
    for (Label *heading : {&Preview_Prev_Lbl, &Preview_Month_Lbl}) {
        Style_Heading(*heading, Box_Layout::title_font);
        heading->Set_Transparent(false);
    }
}
