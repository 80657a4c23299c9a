#include "ui/balloon.h"

#include "platform/screen.h"
#include "toolkit/painter.h"
#include "toolkit/units.h"
#include "ui/wrap_text.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int margin = 165;
constexpr int icon_size = 270;
constexpr int gap = 90;
constexpr platform::Font title_font{90, true};
constexpr platform::Font text_font{90, false};

constexpr Colour text_colour = System_Colour(23);
constexpr Colour back_colour = System_Colour(24);
constexpr Colour border_colour = System_Colour(21);
constexpr Colour icon_colour = Rgb(0x1F, 0x5F, 0xBF);

void Prepare(Label &label, const platform::Font &font) {
    label.Set_Transparent(true);
    label.Set_Font(font);
    label.Set_Fore_Colour(text_colour);
    platform::Access_State access;
    access.role = platform::Access_Role::Text;
    label.Set_Access(std::move(access));
}

/// Returns the text in at most `most_lines` lines. If the text does not fit, widens the balloon's `width` up
/// to `widest`, and then narrows it to the width that the lines need, but not below its initial value.
std::vector<std::string> Lines_Of(std::string_view text, int &width, int widest, std::size_t most_lines) {
    const int narrowest = width;
    const auto wrapped = [&](std::size_t most) {
        return Wrap_Text(text, text_font, width - 2 * margin, most);
    };
    // One line too many shows that the text does not fit.
    while (width < widest && wrapped(most_lines + 1).size() > most_lines)
        width = std::min(width + width / 2, widest);
    std::vector<std::string> lines = wrapped(most_lines);
    int needed = narrowest;
    for (const std::string &line : lines)
        needed = std::max(needed, platform::Text_Width(line, text_font) + 2 * margin);
    width = std::min(width, needed);
    return lines;
}

} // namespace

frmBalloon::frmBalloon() : Form(platform::Form_Kind::Floating, "Balloon") {
    Set_Back_Colour(back_colour);
    Icon_Lbl.Set_Transparent(true);
    Icon_Lbl.Set_Fore_Colour(icon_colour);
    Icon_Lbl.Set_Glyph(platform::Glyph::Information);
    Prepare(Title_Lbl, title_font);
    Title_Lbl.Set_Align(platform::Text_Align::Left, true);
    Prepare(Message_Lbl, text_font);
}

void frmBalloon::SetBalloon(const std::string &title, std::string_view text, std::string_view icon,
                            std::string_view, int width, int height, Point at) {
    const Rect work =
        Pixels_To_Twips(platform::Work_Area_Around({Twips_To_Pixels(at.x), Twips_To_Pixels(at.y)}));
    const int line = std::max(platform::Line_Height(text_font), 1);
    const int heading = std::max(icon_size, platform::Line_Height(title_font));
    const int around = 2 * margin + heading + gap;
    const auto most_lines = static_cast<std::size_t>(std::max((work.height - around) / line, 1));
    const std::vector<std::string> lines = Lines_Of(text, width, work.width, most_lines);
    std::string caption;
    for (const std::string &each : lines)
        caption += (caption.empty() ? "" : "\n") + each;
    const int text_height = static_cast<int>(lines.size()) * line;
    const Size size{Snap(width), Snap(std::max(height - tail_length, around + text_height))};

    place_ = Place_Balloon(at, work, size);
    const Rect window = Window_Of(place_);
    place_.tip = {place_.tip.x - window.left, place_.tip.y - window.top};
    place_.body.left -= window.left;
    place_.body.top -= window.top;

    const Rect &body = place_.body;
    const bool has_icon = icon == "i";
    const int title_left = body.left + margin + (has_icon ? icon_size + gap : 0);
    Set_Title(title);
    Title_Lbl.Set_Caption(title);
    Title_Lbl.Move({title_left, body.top + margin, body.Right() - margin - title_left, heading});
    Icon_Lbl.Set_Visible(has_icon);
    Icon_Lbl.Move({body.left + margin, body.top + margin + (heading - icon_size) / 2, icon_size, icon_size});
    Message_Lbl.Set_Caption(caption);
    Message_Lbl.Move(
        {body.left + margin, body.top + margin + heading + gap, body.width - 2 * margin, text_height});
    Move(window.left, window.top);
    Resize(window.width, window.height);
    Shape(Balloon_Outline(place_));
}

void frmBalloon::Paint(platform::Canvas &canvas, const Rect &clip) const {
    // Fill everything with the border's colour first: the window's edge follows whole pixels, and the pixels
    // on the outline are only partly inside the balloon.
    platform::Fill_Rect(canvas, clip, border_colour);
    const std::vector<Point> outline = Balloon_Outline(place_);
    platform::Fill_Polygon(canvas, outline, back_colour);
    // Draw the border as a strip along each side of the outline, so that it is equally thick along the
    // slanted tail. Each strip extends one pixel outwards.
    const int pixel = Pixels_To_Twips(1);
    const double inside = 1.4 * pixel;
    for (std::size_t i = 0; i < outline.size(); ++i) {
        const Point from = outline[i];
        const Point to = outline[(i + 1) % outline.size()];
        const double across = to.x - from.x;
        const double down = to.y - from.y;
        const double length = std::sqrt(across * across + down * down);
        if (length < 1)
            continue;
        const auto aside = [&](Point point, double distance) -> Point {
            return {point.x + static_cast<int>(std::lround(-down / length * distance)),
                    point.y + static_cast<int>(std::lround(across / length * distance))};
        };
        platform::Fill_Polygon(
            canvas, {aside(from, -pixel), aside(to, -pixel), aside(to, inside), aside(from, inside)},
            border_colour);
    }
    Paint_Controls(Model(), canvas, clip);
}
