// Checks that any pattern gives a text of at most 510 bytes. Text after an open quote stays as it is.
#include "core/title.h"

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const std::string pattern(reinterpret_cast<const char *>(data), size);
    for (const platform::Date_Time &time :
         {platform::Date_Time{100, 1, 1, 0, 0, 0, 0}, platform::Date_Time{9998, 12, 31, 23, 59, 59, 999}})
        if (Format_Pattern(pattern, time).size() > 510)
            std::abort();
    // The dash keeps a combining mark from joining the quote.
    if (pattern.find('"') == std::string::npos && size < 250 &&
        Format_Pattern("\"-" + pattern, {2002, 3, 5, 1, 2, 3, 4}) != "-" + pattern)
        std::abort();
    return 0;
}
