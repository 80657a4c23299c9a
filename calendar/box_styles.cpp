// Applies the two box styles to the calendar and fits event texts into the boxes. box_layout.h has the
// measures.
#include "base/cut_text.h"
#include "calendar/box_layout.h"
#include "calendar/month_grid.h"
#include "platform/drawing.h"
#include "toolkit/units.h"
#include "ui/wrap_text.h"

#include <algorithm>

namespace {

/// The maximum number of bytes of a text that a box shows. Limits the work for long texts.
constexpr std::size_t longest_shown = 1024;

void Place(Label &label, const Rect &pixels) {
    label.Move(Pixels_To_Twips(pixels));
}

/// Returns the beginning of an event text as the boxes show it. Turns each run of spaces, tabs, line breaks
/// and other control characters into one space, and drops the runs at the ends. Sets `more` if text is left
/// over.
std::string Collapse_Blanks(std::string_view text, bool &more) {
    std::string shown;
    bool blank = false;
    more = false;
    for (const char c : text) {
        if (static_cast<unsigned char>(c) <= ' ') {
            blank = !shown.empty();
            continue;
        }
        if (shown.size() >= 2 * longest_shown) {
            more = true;
            break;
        }
        if (blank)
            shown += ' ';
        blank = false;
        shown += c;
    }
    if (shown.size() > longest_shown) {
        shown.resize(Whole_Characters(shown, longest_shown));
        more = true;
    }
    return shown;
}

bool Fits(const Label &label, std::string_view text) {
    return platform::Text_Width(text, Box_Layout::text_font) < label.Width();
}

/// Returns all of `text`, or a prefix that is wider than the label but whose first half fits. This only saves
/// steps of Get_Line.
std::string_view Measurable_Prefix(const Label &label, std::string_view text) {
    while (text.size() > 1) {
        const std::size_t half = Whole_Characters(text, text.size() / 2);
        if (half == 0 || Fits(label, text.substr(0, half)))
            break;
        text = text.substr(0, half);
    }
    return text;
}

} // namespace

void Month_Grid::Which_Style(std::int16_t style) {
    style_ = style;
    const Box_Layout layout(style);
    Place(Prev_Month_Lbl, layout.Previous_Arrow());
    Place(Which_Month_Lbl, layout.Month());
    Place(Next_Month_Lbl, layout.Next_Arrow());
    for (Label *label : {&Prev_Month_Lbl, &Which_Month_Lbl, &Next_Month_Lbl})
        Style_Heading(*label, Box_Layout::title_font);
    Prev_Month_Lbl.Set_Glyph(platform::Glyph::Arrow_Left);
    Next_Month_Lbl.Set_Glyph(platform::Glyph::Arrow_Right);
    for (int i = 0; i < days_a_week; ++i) {
        Place(Day_Lbl[i], layout.Header(i));
        Style_Heading(Day_Lbl[i], Box_Layout::header_font);
    }
    for (int i = 0; i < box_count; ++i) {
        Place(Box_Lbl[i], layout.Box(i));
        Style_Number(Box_Lbl[i]);
    }
    DDD_Style(style);
    const Rect whole = Pixels_To_Twips(Rect{0, 0, layout.Full_Size().width, layout.Full_Size().height});
    Resize(whole.width, whole.height);
}

void Month_Grid::DDD_Style(std::int16_t style) {
    const Box_Layout layout(style);
    for (int i = 0; i < box_count; ++i) {
        Place(Box_Caption_Lbl[i], layout.Text(i));
        Style_Text(Box_Caption_Lbl[i]);
    }
    // The measuring label is as wide as the room for text before "...".
    const int room = Box_Caption_Lbl[0].Width() - platform::Text_Width(Ellipsis, Box_Layout::text_font);
    DotDotDot_Lbl.Set_Font(Box_Layout::text_font);
    DotDotDot_Lbl.Move({0, 0, std::max(room, 0), Box_Caption_Lbl[0].Height()});
}

void Month_Grid::Get_Line(const Label &label) {
    while (!DotDotDot_Lbl.Caption().empty() && !Fits(label, DotDotDot_Lbl.Caption())) {
        std::string caption = DotDotDot_Lbl.Caption();
        caption.resize(Previous_Character(caption, caption.size()));
        DotDotDot_Lbl.Set_Caption(caption);
    }
}

void Month_Grid::DotDotDot(Label &label, std::string_view text) {
    // A shortcut: every box of a new month begins empty.
    if (text.empty())
        return label.Set_Caption({});
    bool more = false;
    const std::string all = Collapse_Blanks(text, more);
    std::string_view rest = all;
    const int lines = std::max(Twips_To_Pixels(label.Bounds()).height / Line_Pixels(label.Font()), 1);
    std::string shown;
    // Take all lines but the last, which may need "...". Take none if not even one character of the first
    // line fits.
    if (more || !Fits(label, rest)) {
        const std::vector<std::string> taken =
            Extract_Lines(rest, DotDotDot_Lbl.Font(), label.Width() - 1, static_cast<std::size_t>(lines - 1));
        if (!taken.empty() && !Fits(label, taken.front()))
            rest = all;
        else
            for (const std::string &line : taken)
                shown.append(shown.empty() ? "" : "\n").append(line);
        if (!shown.empty() && (more || !rest.empty()))
            shown += '\n';
    }
    if (!more && Fits(label, rest)) {
        shown.append(rest);
    } else {
        DotDotDot_Lbl.Set_Caption(Measurable_Prefix(DotDotDot_Lbl, rest));
        Get_Line(DotDotDot_Lbl);
        std::string_view line = DotDotDot_Lbl.Caption();
        while (line.ends_with(' '))
            line.remove_suffix(1);
        shown.append(line).append(Ellipsis);
    }
    label.Set_Caption(shown);
}
