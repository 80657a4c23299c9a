// Walking over the segments of a JPEG file: is it whole, and how large is its picture? Nothing is decoded
// here.
#pragma once

#include "base/geometry.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

/// The size in pixels that the file's only frame header tells. Nothing when the bytes are no JPEG file, break
/// off before its end marker, or tell no size or two.
inline std::optional<Size> Jpeg_Size(std::string_view bytes) {
    const auto byte = [bytes](std::size_t at) { return static_cast<std::uint8_t>(bytes[at]); };
    const auto pair = [&byte](std::size_t at) { return byte(at) * 256 + byte(at + 1); };
    const auto restarts = [](int code) { return code >= 0xD0 && code <= 0xD7; };
    if (!bytes.starts_with("\xFF\xD8"))
        return std::nullopt;
    std::optional<Size> size;
    for (std::size_t at = 2;;) {
        // A marker is a code other than 0 after one 0xFF or several.
        const std::size_t code_at = bytes.find_first_not_of('\xFF', at);
        if (code_at == at || code_at == std::string_view::npos)
            return std::nullopt;
        const int code = byte(code_at);
        at = code_at + 1;
        if (code == 0xD9)
            return size;
        if (restarts(code) || code == 0x01)
            continue;
        if (code == 0 || code == 0xD8 || bytes.size() - at < 2)
            return std::nullopt;
        const auto length = static_cast<std::size_t>(pair(at));
        if (length < 2 || length > bytes.size() - at)
            return std::nullopt;
        // Of this row of codes three are tables.
        if (code >= 0xC0 && code <= 0xCF && code != 0xC4 && code != 0xC8 && code != 0xCC) {
            if (size || length < 8 || pair(at + 3) == 0 || pair(at + 5) == 0)
                return std::nullopt;
            size = Size{pair(at + 5), pair(at + 3)};
        }
        at += length;
        if (code != 0xDA)
            continue;
        // A scan follows, up to the next marker that is no part of it.
        for (at = bytes.find('\xFF', at);; at = bytes.find('\xFF', at + 2)) {
            if (at == std::string_view::npos || bytes.size() - at < 2)
                return std::nullopt;
            if (byte(at + 1) != 0 && !restarts(byte(at + 1)))
                break;
        }
    }
}
