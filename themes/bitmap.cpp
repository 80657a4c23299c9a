// The format: two headers, then the rows from bottom to top, each padded to a multiple of four bytes.
#include "themes/bitmap.h"

#include <cstddef>

namespace {

constexpr std::size_t headers_size = 14 + 40;
constexpr std::size_t bytes_per_pixel = 3;

void Append(std::string &bytes, std::size_t value, int count) {
    for (int i = 0; i < count; ++i, value >>= 8U)
        bytes += static_cast<char>(value & 0xFFU);
}

} // namespace

std::string Bitmap_Bytes(const Picture &picture) {
    const auto width = static_cast<std::size_t>(picture.width);
    const auto height = static_cast<std::size_t>(picture.height);
    const std::size_t row = width * bytes_per_pixel;
    const std::size_t padding = (4 - row % 4) % 4;
    const std::size_t pixels_size = (row + padding) * height;
    std::string bytes;
    bytes.reserve(headers_size + pixels_size);
    bytes += "BM";
    Append(bytes, headers_size + pixels_size, 4);
    Append(bytes, 0, 4); // reserved
    Append(bytes, headers_size, 4);
    Append(bytes, 40, 4); // the second header's size
    Append(bytes, width, 4);
    Append(bytes, height, 4);
    Append(bytes, 1, 2); // planes
    Append(bytes, 8 * bytes_per_pixel, 2);
    Append(bytes, 0, 4); // not compressed
    Append(bytes, pixels_size, 4);
    for (int i = 0; i < 2; ++i)
        Append(bytes, 3780, 4); // pixels per metre: 96 per inch
    Append(bytes, 0, 8);        // no palette
    for (std::size_t y = height; y-- > 0;) {
        bytes.append(reinterpret_cast<const char *>(picture.pixels->data()) + y * row, row);
        bytes.append(padding, '\0');
    }
    return bytes;
}
