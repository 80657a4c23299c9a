// Drawing on a canvas, and measuring text. Positions and sizes are in twips; positions count from the top
// left corner of the painted form or control. The platform converts them to pixels and rounds each edge to
// the nearest pixel.
#pragma once

#include "base/colour.h"
#include "base/geometry.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace platform {

/// The buffer for one painting. The platform passes a canvas to a paint callback, and the canvas is valid
/// only during that call.
struct Canvas;

/// A font in the system's message-box face.
struct Font {
    std::int16_t tenth_points = 90; ///< size in tenths of a point
    bool bold = false;
    friend bool operator==(const Font &, const Font &) = default;
};

enum class Text_Align : std::uint8_t { Left, Centre, Right };

/// Returns the plain 0x00BBGGRR value of `colour`. Looks up a system colour on each call.
Colour Resolve_Colour(Colour colour);

void Fill_Rect(Canvas &canvas, const Rect &rect, Colour colour);

/// Draws a frame of `thickness` twips (at least one pixel) inside the edges of `rect`.
void Frame_Rect(Canvas &canvas, const Rect &rect, Colour colour, int thickness);

/// Fills a polygon with smooth edges.
void Fill_Polygon(Canvas &canvas, const std::vector<Point> &corners, Colour colour);

/// Draws the program's icon, scaled to `rect`.
void Draw_Program_Icon(Canvas &canvas, const Rect &rect);

/// Draws one line of text on a transparent background, clipped to `rect`. The line box (Line_Height high)
/// starts at the top of `rect`. No character has a special meaning, not even "&". With `right_to_left`, the
/// text reads from right to left, so a full stop at its end appears on its left.
void Draw_Text(Canvas &canvas, std::string_view text, const Rect &rect, const Font &font, Colour colour,
               Text_Align align, bool right_to_left);

/// Returns the width of one line of text in twips.
int Text_Width(std::string_view text, const Font &font);

/// Returns the height of one line in twips: the font's ascent plus its descent.
int Line_Height(const Font &font);

} // namespace platform
