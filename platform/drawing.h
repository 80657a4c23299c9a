// Drawing on the buffer of a painted form, and measuring text. All positions and sizes are twips on the form;
// the platform turns them into pixels, each edge rounded to the nearest one.
#pragma once

#include "base/colour.h"
#include "base/geometry.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace platform {

/// The buffer that one painting goes to. Made by the platform, valid during the call that passes it.
struct Canvas;

/// A font of the system's message-box face.
struct Font {
    std::int16_t tenth_points = 90; ///< size in tenths of a point
    bool bold = false;
    friend bool operator==(const Font &, const Font &) = default;
};

enum class Text_Align : std::uint8_t { Left, Centre, Right };

/// Returns the plain 0x00BBGGRR value behind `colour`: a system colour is looked up now.
Colour Resolve_Colour(Colour colour);

void Fill_Rect(Canvas &canvas, const Rect &rect, Colour colour);

/// Draws a frame of `thickness` twips (at least one pixel) inside the edges of `rect`.
void Frame_Rect(Canvas &canvas, const Rect &rect, Colour colour, int thickness);

/// Fills the polygon with smooth edges.
void Fill_Polygon(Canvas &canvas, const std::vector<Point> &corners, Colour colour);

/// Draws the program's icon over the whole of `rect`.
void Draw_Program_Icon(Canvas &canvas, const Rect &rect);

/// Draws one line of text, its line box (Line_Height) beginning at the top of `rect`, clipped to `rect`, with
/// a transparent background. No character in it has a special meaning. With `right_to_left` it is read from
/// the right, and what has no direction at its end stands at its left.
void Draw_Text(Canvas &canvas, std::string_view text, const Rect &rect, const Font &font, Colour colour,
               Text_Align align, bool right_to_left);

/// Width of one line of text in twips.
int Text_Width(std::string_view text, const Font &font);

/// Height of one line in twips, from the top of the tallest letter to the bottom of the deepest.
int Line_Height(const Font &font);

} // namespace platform
