// Walks over the segments of a JPEG file, to check that the file is complete and to find the picture's size.
// Decodes nothing.
#pragma once

#include "base/geometry.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

/// Returns the size in pixels from the file's frame header. Returns nullopt if the bytes are not a JPEG file,
/// end before the end marker, or hold no frame header, more than one, or one without a size.
inline std::optional<Size> Jpeg_Size(std::string_view bytes) {
    const auto byte = [bytes](std::size_t at) { return static_cast<std::uint8_t>(bytes[at]); };
    const auto pair = [&byte](std::size_t at) { return byte(at) * 256 + byte(at + 1); };
    const auto restarts = [](int code) { return code >= 0xD0 && code <= 0xD7; };
    if (!bytes.starts_with("\xFF\xD8"))
        return std::nullopt;
    std::optional<Size> size;
    for (std::size_t at = 2;;) {
        // A marker is one or more bytes 0xFF, followed by a code other than 0.
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
        // 0xC0 to 0xCF are frame headers, except for these three.
        if (code >= 0xC0 && code <= 0xCF && code != 0xC4 && code != 0xC8 && code != 0xCC) {
            if (size || length < 8 || pair(at + 3) == 0 || pair(at + 5) == 0)
                return std::nullopt;
            size = Size{pair(at + 5), pair(at + 3)};
        }
        at += length;
        if (code != 0xDA)
            continue;
        // The data of a scan follows. Continue at the next marker that is not part of it.
        for (at = bytes.find('\xFF', at);; at = bytes.find('\xFF', at + 2)) {
            if (at == std::string_view::npos || bytes.size() - at < 2)
                return std::nullopt;
            if (byte(at + 1) != 0 && !restarts(byte(at + 1)))
                break;
        }
    }
}
