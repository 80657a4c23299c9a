// Checks that the reader of sequential files takes any bytes as UTF-8 items or refuses them. The items read
// back the same after writing.
#include "core/sequential.h"

#include "base/characters.h"

#include <cstdint>
#include <cstdlib>
#include <vector>

namespace {

/// Returns the items up to the end or the first error.
std::vector<std::string> Read(std::string_view bytes) {
    std::vector<std::string> items;
    try {
        Sequential_Reader reader(bytes);
        for (std::string_view item; reader.Next(item);)
            items.emplace_back(item);
    } catch (const Sequential_Error &) {
    }
    return items;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char *>(data), size);
    const std::vector<std::string> items = Read(bytes);
    std::string written;
    for (const std::string &item : items) {
        if (!Is_Utf8(item))
            std::abort();
        Append_Item(written, item);
    }
    if (Read(written) != items)
        std::abort();

    // The whole input as one item reads back as the only item of the file, or is refused because of its
    // quotes.
    if (!Is_Utf8(bytes))
        return 0;
    std::string alone;
    try {
        Append_Item(alone, bytes);
        if (Read(alone) != std::vector<std::string>{std::string(bytes)})
            std::abort();
    } catch (const Sequential_Error &) {
        if (bytes.find('"') == std::string_view::npos || !alone.empty())
            std::abort();
    }
    return 0;
}
