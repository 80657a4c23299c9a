// The colours of boxes, numbers, texts, title and headers.
#include "calendar/main_frm.h"
#include "core/settings.h"

#include <algorithm>

namespace {

/// Background behind the title where the desktop draws its labels without one.
constexpr platform::Colour dark_grey = 4934475;

/// Least difference in brightness, of 255, between today's box and its frame.
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

} // namespace

platform::Colour Strong_Shade(platform::Colour colour) {
    const auto value = static_cast<std::uint32_t>(platform::Resolve_Colour(colour));
    const Channels base{static_cast<int>(value & 0xFFU), static_cast<int>((value >> 8U) & 0xFFU),
                        static_cast<int>((value >> 16U) & 0xFFU)};
    const int brightness = base.Brightness();
    // The same hue with twice the colour in it, then darker, or lighter on a dark box, until it stands out.
    const int top = std::max({base.red, base.green, base.blue});
    Channels shade = base.Each([top](int channel) { return std::max(top - 2 * (top - channel), 0); });
    if (brightness >= frame_contrast + 10) {
        while (shade.Brightness() > brightness - frame_contrast)
            shade = shade.Each([](int channel) { return channel * 4 / 5; });
    } else {
        while (shade.Brightness() < brightness + frame_contrast)
            shade = shade.Each([](int channel) { return 255 - (255 - channel) * 4 / 5; });
    }
    return platform::Rgb(shade.red, shade.green, shade.blue);
}

void Main_Frm::Set_Colours() {
    Colour_Boxes();
    Colour_Nums();
    Colour_Texts();
    Colour_Menus();
}

void Main_Frm::Colour_Boxes() {
    for (int i = 0; i < box_count; ++i) {
        Box_Lbl[i].Set_Back_Colour(Cur_Settings.Col_Normal);
        Unmark(i);
    }
}

void Main_Frm::Colour_Nums() {
    for (Label &box : Box_Lbl)
        box.Set_Fore_Colour(Cur_Settings.Col_Num);
}

void Main_Frm::Colour_Texts() {
    for (Label &caption : Box_Caption_Lbl)
        caption.Set_Fore_Colour(Cur_Settings.Col_Text);
}

void Main_Frm::Colour_Menus() {
    platform::Colour text = Cur_Settings.Col_Fore;
    if (Cur_Settings.Menu_Col_Sorce != 0) {
        Set_Back_Colour(Cur_Settings.Col_Back);
    } else if (Icon_BackColour != -1) {
        // Assigned twice, here and below; the second time changes nothing.
        Set_Back_Colour(Icon_BackColour);
        Set_Back_Colour(Icon_BackColour);
        text = Icon_TextColour;
    } else {
        Set_Back_Colour(dark_grey);
        Set_Back_Colour(dark_grey);
        text = Icon_TextColour;
    }
    Prev_Month_Lbl.Set_Fore_Colour(text);
    Which_Month_Lbl.Set_Fore_Colour(text);
    Next_Month_Lbl.Set_Fore_Colour(text);
    for (Label &header : Day_Lbl)
        header.Set_Fore_Colour(text);
}
