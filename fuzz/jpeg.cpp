// Checks that any bytes are taken as a JPEG file with a valid size or refused, and that bytes after the end
// of a file change nothing.
#include "base/jpeg.h"

#include <cstdint>
#include <cstdlib>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char *>(data), size);
    const auto found = Jpeg_Size(bytes);
    if (found && (found->width <= 0 || found->height <= 0 || found->width > 0xFFFF || found->height > 0xFFFF))
        std::abort();
    if (found && Jpeg_Size(std::string(bytes) + "x") != found)
        std::abort();
    return 0;
}
