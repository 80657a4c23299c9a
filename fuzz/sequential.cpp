// Any bytes are read as items or refused; the items, written again, read back the same.
#include "core/sequential.h"

#include <cstdint>
#include <cstdlib>
#include <vector>

namespace {

/// The items up to the end or the first error.
std::vector<std::string_view> Read(std::string_view bytes) {
    std::vector<std::string_view> items;
    try {
        Sequential_Reader reader(bytes);
        for (std::string_view item; reader.Next(item);)
            items.push_back(item);
    } catch (const Sequential_Error &) {
    }
    return items;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char *>(data), size);
    const std::vector<std::string_view> items = Read(bytes);
    std::string written;
    for (const std::string_view item : items)
        Append_Item(written, item);
    if (Read(written) != items)
        std::abort();

    // The input as one item: written so that it is the one item of the file, or refused for its quotes.
    std::string alone;
    try {
        Append_Item(alone, bytes);
        if (Read(alone) != std::vector<std::string_view>{bytes})
            std::abort();
    } catch (const Sequential_Error &) {
        if (bytes.find('"') == std::string_view::npos || !alone.empty())
            std::abort();
    }
    return 0;
}
