// Very small JPEG pictures for tests.
#pragma once

#include <string>
#include <string_view>

/// Returns a grey picture of 10 by 6 pixels. `step`, 1 to 12, scales its only coefficient, so every pixel has
/// the brightness 128 + 8 * step.
inline std::string Small_Jpeg(int step) {
    using namespace std::string_view_literals;
    constexpr std::string_view frame = "\xFF\xC0\0\x0B\x08\0\x06\0\x0A\x01\x01\x11\0"sv;
    constexpr std::string_view codes = "\xFF\xC4\0\x15\0\x01\x01\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\x07"
                                       "\xFF\xC4\0\x14\x10\x01\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0"
                                       "\xFF\xDA\0\x08\x01\x01\0\0\x3F\0\xA0\x0F\xFF\xD9"sv;
    std::string bytes("\xFF\xD8\xFF\xDB\0C\0"sv);
    bytes += static_cast<char>(step);
    bytes.append(63, '\1');
    return bytes.append(frame).append(codes);
}
