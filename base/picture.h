// A picture as a value: its pixels in memory. Reading and drawing one is in platform/pictures.h.
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

/// Pixels of three bytes (blue, green, red), rows from top to bottom without a gap. Copies share the pixels.
struct Picture {
    int width = 0; ///< pixels; 0: there is no picture
    int height = 0;
    std::shared_ptr<const std::vector<std::uint8_t>> pixels;
    friend bool operator==(const Picture &, const Picture &) = default;
};
