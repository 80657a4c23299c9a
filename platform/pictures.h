// Pictures as pixels: reading one from a file, and drawing one. Writing them is the business of who keeps
// them.
#pragma once

#include "base/error.h"
#include "base/geometry.h"
#include "base/picture.h"
#include "platform/drawing.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace platform {

/// A picture could not be read. what() names the file and the reason.
class Picture_Error : public Error {
public:
    using Error::Error;
};

/// The largest picture that is read, in pixels: as large as any screen that a wallpaper can fill.
constexpr std::int64_t most_picture_pixels = 64LL * 1024 * 1024;

/// Reads a JPEG picture. Throws Picture_Error when there is none, it is damaged, or larger than
/// most_picture_pixels; the size is known before memory is taken for the pixels.
Picture Load_Picture(const std::string &path);

/// Draws the picture scaled to `rect` (twips), smoothly.
void Draw_Picture(Canvas &canvas, const Picture &picture, const Rect &rect);

} // namespace platform
