// A picture as pixels in memory. platform/pictures.h reads and draws pictures.
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

/// Three bytes a pixel (blue, green, red), rows from top to bottom without padding. Copies share the pixels.
struct Picture {
    int width = 0; ///< in pixels; 0: no picture
    int height = 0;
    std::shared_ptr<const std::vector<std::uint8_t>> pixels;
    friend bool operator==(const Picture &, const Picture &) = default;
};
