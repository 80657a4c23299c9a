// The two box styles: sizes and places of boxes, headers and title, and the fitting of event texts into the
// boxes. Lengths are worked out in pixels, so that all columns are equally wide at any dots per inch.
#include "calendar/main_frm.h"
#include "platform/drawing.h"
#include "platform/text.h"
#include "toolkit/units.h"
#include "ui/wrap_text.h"

#include <algorithm>

using platform::Rect;

namespace {

// Lengths in pixels at 96 dots per inch.
constexpr int gap = 3;
constexpr int title_height = 26;
constexpr int header_height = 20;
constexpr int text_inset = 5;    ///< between a box's sides and its text
constexpr int number_inset = 2;  ///< less than that: the number's caption begins with a blank
constexpr int title_padding = 6; ///< above and below the line of title and headers, together
constexpr int text_below = 2;    ///< between the text's line and the lower edge

struct Style_Lengths {
    int box_width;
    int box_height; ///< more where the fonts need it for the lines
    int lines;      ///< of text that surely fit below the number
};

// "Thin Box" and "Square Box".
constexpr Style_Lengths thin_box{96, 34, 1};
constexpr Style_Lengths square_box{96, 76, 4};

constexpr platform::Font title_font{105, true};
constexpr platform::Font header_font{85, false};
constexpr std::int16_t number_points = 90;
constexpr platform::Font text_font{80, false};

/// No box shows more of a text than this, in bytes, so that a text of any length costs the same.
constexpr std::size_t longest_shown = 1024;

constexpr std::string_view more_sign = "...";

const Style_Lengths &Lengths_Of(std::int16_t style) {
    return style == 0 ? thin_box : square_box;
}

/// Whole pixels, at least one, for a length in pixels at 96 dots per inch.
int Pixels(int at_96) {
    constexpr int twips_at_96 = 15;
    return std::max(Twips_To_Pixels(at_96 * twips_at_96), 1);
}

int Line_Pixels(const platform::Font &font) {
    return std::max(Twips_To_Pixels(platform::Line_Height(font)), 1);
}

void Place_Heading(Label &label, const Rect &pixels, const platform::Font &font) {
    label.Move(Pixels_To_Twips(pixels));
    label.Set_Font(font);
    label.Set_Align(platform::Text_Align::Centre, true);
    label.Set_Transparent(true);
}

/// Length of the longest beginning of `text` that ends with a whole character and has at most `limit` bytes.
std::size_t Whole_Prefix(std::string_view text, std::size_t limit) {
    // Steps back from behind the limit: the limit itself may lie inside a character, which from there cannot
    // be told.
    constexpr std::size_t run_up = 16;
    std::size_t end = std::min(text.size(), limit + run_up);
    while (end > limit)
        end = platform::Previous_Character(text, end);
    return end;
}

/// The beginning of an event text as the boxes show it: runs of blanks, tabs, line breaks and other control
/// characters are one blank each, and there are none at its ends. `more` is set when text is left over.
std::string Blanks_Made_One(std::string_view text, bool &more) {
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
        shown.resize(Whole_Prefix(shown, longest_shown));
        more = true;
    }
    return shown;
}

} // namespace

void Main_Frm::Which_Style(std::int16_t style) {
    const Style_Lengths &lengths = Lengths_Of(style);
    platform::Font number_font{number_points, false};
    const int space = Pixels(gap);
    const int width = Pixels(lengths.box_width);
    const int text_lines = Pixels(number_inset) + Line_Pixels(number_font) +
                           lengths.lines * Line_Pixels(text_font) + Pixels(text_below);
    const int height = std::max(Pixels(lengths.box_height), text_lines);
    const int padding = Pixels(title_padding);
    const int title = std::max(Pixels(title_height), Line_Pixels(title_font) + padding);
    const int header = std::max(Pixels(header_height), Line_Pixels(header_font) + padding / 2);
    const int full_width = days_a_week * width + (days_a_week - 1) * space;

    Place_Heading(Prev_Month_Lbl, {0, 0, title, title}, title_font);
    Prev_Month_Lbl.Set_Glyph(platform::Glyph::Arrow_Left);
    Place_Heading(Which_Month_Lbl, {title + space, 0, full_width - 2 * (title + space), title}, title_font);
    Place_Heading(Next_Month_Lbl, {full_width - title, 0, title, title}, title_font);
    Next_Month_Lbl.Set_Glyph(platform::Glyph::Arrow_Right);
    const int headers_top = title + space;
    for (int i = 0; i < days_a_week; ++i)
        Place_Heading(Day_Lbl[i], {i * (width + space), headers_top, width, header}, header_font);

    const int boxes_top = headers_top + header + space;
    for (int i = 0; i < box_count; ++i) {
        const int row = i / days_a_week;
        const int column = i % days_a_week;
        Label &box = Box_Lbl[i];
        box.Move(Pixels_To_Twips(
            Rect{column * (width + space), boxes_top + row * (height + space), width, height}));
        number_font.bold = box.Font().bold; // today's stays bold
        box.Set_Font(number_font);
        box.Set_Padding(Pixels_To_Twips(Pixels(number_inset)));
    }
    DDD_Style(style);
    const Rect last = Twips_To_Pixels(Box_Lbl[box_count - 1].Bounds());
    const Rect whole = Pixels_To_Twips(Rect{0, 0, full_width, last.Bottom()});
    Resize(whole.width, whole.height);
}

void Main_Frm::DDD_Style(std::int16_t style) {
    const int inset = Pixels(text_inset);
    const int below = Pixels(text_below);
    const int line = Line_Pixels(text_font);
    for (int i = 0; i < box_count; ++i) {
        const Rect box = Twips_To_Pixels(Box_Lbl[i].Bounds());
        const int number_bottom = box.top + Pixels(number_inset) + Line_Pixels(Box_Lbl[i].Font());
        Rect text{box.left + inset, number_bottom, box.width - 2 * inset, 0};
        // One line stands at the lower edge; several begin below the number.
        if (Lengths_Of(style).lines == 1)
            text.top = box.Bottom() - below - line;
        text.height = box.Bottom() - below - text.top;
        Box_Caption_Lbl[i].Move(Pixels_To_Twips(text));
        Box_Caption_Lbl[i].Set_Font(text_font);
        Box_Caption_Lbl[i].Set_Transparent(true);
    }
    // The measuring label is as wide as a line that is followed by "...".
    const int room = Box_Caption_Lbl[0].Width() - platform::Text_Width(more_sign, text_font);
    DotDotDot_Lbl.Set_Font(text_font);
    DotDotDot_Lbl.Move({0, 0, std::max(room, 0), Box_Caption_Lbl[0].Height()});
}

bool Main_Frm::Fits(const Label &label, std::string_view text) {
    return platform::Text_Width(text, DotDotDot_Lbl.Font()) < label.Width();
}

void Main_Frm::Get_Line(const Label &label) {
    while (!DotDotDot_Lbl.Caption().empty() && !Fits(label, DotDotDot_Lbl.Caption())) {
        std::string caption = DotDotDot_Lbl.Caption();
        caption.resize(platform::Previous_Character(caption, caption.size()));
        DotDotDot_Lbl.Set_Caption(std::move(caption));
    }
}

/// A beginning of `text` that is too wide for the label by a few characters at most, or all of it. It only
/// spares Get_Line steps.
std::string_view Main_Frm::Measurable(const Label &label, std::string_view text) {
    while (text.size() > 1) {
        const std::size_t half = Whole_Prefix(text, text.size() / 2);
        if (half == 0 || Fits(label, text.substr(0, half)))
            break;
        text = text.substr(0, half);
    }
    return text;
}

void Main_Frm::DotDotDot(Label &label, std::string_view text) {
    bool more = false;
    const std::string all = Blanks_Made_One(text, more);
    std::string_view rest = all;
    const int lines = std::max(Twips_To_Pixels(label.Bounds()).height / Line_Pixels(label.Font()), 1);
    std::string shown;
    // All lines but the last one, in which "..." may have to stand. Where not one character fits there are
    // none.
    if (more || !Fits(label, rest)) {
        const std::vector<std::string> taken =
            Take_Lines(rest, DotDotDot_Lbl.Font(), label.Width() - 1, static_cast<std::size_t>(lines - 1));
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
        DotDotDot_Lbl.Set_Caption(std::string(Measurable(DotDotDot_Lbl, rest)));
        Get_Line(DotDotDot_Lbl);
        std::string_view line = DotDotDot_Lbl.Caption();
        while (line.ends_with(' '))
            line.remove_suffix(1);
        shown.append(line).append(more_sign);
    }
    label.Set_Caption(std::move(shown));
}
