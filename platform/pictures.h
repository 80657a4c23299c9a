// Pictures as pixels: reading them from files and drawing them. Nothing here writes a picture.
#pragma once

#include "base/error.h"
#include "base/geometry.h"
#include "base/picture.h"
#include "platform/drawing.h"

#include <cstdint>
#include <string>

namespace platform {

/// Thrown if a picture cannot be read. what() names the file and the reason.
class Picture_Error : public Error {
public:
    using Error::Error;
};

/// The most pixels that Load_Picture accepts in a picture: enough for a wallpaper on any screen.
constexpr std::int64_t most_picture_pixels = 64LL * 1024 * 1024;

/// Reads a JPEG picture. Throws Picture_Error if the file cannot be read, is not a JPEG picture, is damaged,
/// has more than most_picture_pixels or does not fit into memory. Checks the size before allocating memory
/// for the pixels.
Picture Load_Picture(const std::string &path);

/// Draws the picture, smoothly scaled to `rect` (twips).
void Draw_Picture(Canvas &canvas, const Picture &picture, const Rect &rect);

} // namespace platform
