#include "calendar/box_layout.h"

#include "toolkit/units.h"

#include <algorithm>

namespace {

// In pixels at 96 DPI.
constexpr int gap_length = 3;
constexpr int title_height = 26;
constexpr int header_height = 20;
constexpr int text_inset = 5;    ///< from a box's sides to its text
constexpr int number_inset = 2;  ///< less than text_inset: the number's caption begins with a space
constexpr int title_padding = 6; ///< space above plus below the title's text; headers have half
constexpr int text_below = 2;    ///< from the lowest line of text to the box's lower edge

struct Style_Lengths {
    int box_width;
    int box_height; ///< minimum: larger fonts make the box taller
    int lines;      ///< lines of text that always fit below the number
};

constexpr Style_Lengths thin_box{96, 34, 1};
constexpr Style_Lengths square_box{96, 76, 4};

/// Minimum difference in brightness (0 to 255) between today's box and its frame.
constexpr int frame_contrast = 90;

struct Channels {
    int red;
    int green;
    int blue;

    int Brightness() const { return (30 * red + 59 * green + 11 * blue) / 100; }
    template <typename Change>
    Channels Each(Change change) const {
        return {change(red), change(green), change(blue)};
    }
};

/// Converts a length in pixels at 96 DPI to screen pixels, at least one.
int Pixels(int at_96) {
    constexpr int twips_at_96 = 15;
    return std::max(Twips_To_Pixels(at_96 * twips_at_96), 1);
}

void Set_Bold(Label &label, bool bold) {
    platform::Font font = label.Font();
    font.bold = bold;
    label.Set_Font(font);
}

} // namespace

int Line_Pixels(const platform::Font &font) {
    return std::max(Twips_To_Pixels(platform::Line_Height(font)), 1);
}

Box_Layout::Box_Layout(std::int16_t style) : one_line_(style == 0), gap_(Pixels(gap_length)) {
    const Style_Lengths &lengths = style == 0 ? thin_box : square_box;
    number_bottom_ = Pixels(number_inset) + Line_Pixels(number_font);
    const int text_lines = number_bottom_ + lengths.lines * Line_Pixels(text_font) + Pixels(text_below);
    box_ = {Pixels(lengths.box_width), std::max(Pixels(lengths.box_height), text_lines)};
    const int padding = Pixels(title_padding);
    title_ = std::max(Pixels(title_height), Line_Pixels(title_font) + padding);
    header_ = std::max(Pixels(header_height), Line_Pixels(header_font) + padding / 2);
}

Rect Box_Layout::Header(int column) const {
    return {column * (box_.width + gap_), title_ + gap_, box_.width, header_};
}

Rect Box_Layout::Box(int index) const {
    const int top = title_ + gap_ + header_ + gap_;
    return {index % columns * (box_.width + gap_), top + index / columns * (box_.height + gap_), box_.width,
            box_.height};
}

Rect Box_Layout::Text(int index) const {
    const Rect box = Box(index);
    const int inset = Pixels(text_inset);
    const int bottom = box.Bottom() - Pixels(text_below);
    // A single line is at the lower edge. Several lines begin below the number.
    const int top = one_line_ ? bottom - Line_Pixels(text_font) : box.top + number_bottom_;
    return {box.left + inset, top, box.width - 2 * inset, bottom - top};
}

void Style_Heading(Label &label, const platform::Font &font) {
    label.Set_Font(font);
    label.Set_Align(platform::Text_Align::Centre, true);
    label.Set_Transparent(true);
}

void Style_Number(Label &label) {
    const bool bold = label.Font().bold;
    label.Set_Font({Box_Layout::number_font.tenth_points, bold});
    label.Set_Padding(Pixels_To_Twips(Pixels(number_inset)));
    label.Set_Hairline(true);
}

void Style_Text(Label &label) {
    label.Set_Font(Box_Layout::text_font);
    label.Set_Transparent(true);
}

void Style_Today(Label &label, Colour colour) {
    label.Set_Back_Colour(colour);
    label.Set_Frame_Colour(Strong_Shade(colour));
    Set_Bold(label, true);
}

void Clear_Today_Style(Label &label) {
    label.Set_Frame_Colour(-1);
    Set_Bold(label, false);
}

Colour Strong_Shade(Colour colour) {
    const auto value = static_cast<std::uint32_t>(platform::Resolve_Colour(colour));
    const Channels base{static_cast<int>(value & 0xFFU), static_cast<int>((value >> 8U) & 0xFFU),
                        static_cast<int>((value >> 16U) & 0xFFU)};
    const int brightness = base.Brightness();
    // Double the saturation. Then darken the colour, or lighten it on a dark box, until it stands out.
    const int top = std::max({base.red, base.green, base.blue});
    Channels shade = base.Each([top](int channel) { return std::max(top - 2 * (top - channel), 0); });
    if (brightness >= frame_contrast + 10) {
        while (shade.Brightness() > brightness - frame_contrast)
            shade = shade.Each([](int channel) { return channel * 4 / 5; });
    } else {
        while (shade.Brightness() < brightness + frame_contrast)
            shade = shade.Each([](int channel) { return 255 - (255 - channel) * 4 / 5; });
    }
    return Rgb(shade.red, shade.green, shade.blue);
}
