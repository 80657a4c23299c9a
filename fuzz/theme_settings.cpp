// Checks that any bytes either give each month a value text or are refused. The parts of a value text make up
// the whole.
#include "base/characters.h"
#include "core/sequential.h"
#include "themes/theme_pack.h"

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char *>(data), size);
    for (std::int16_t month = 0; month <= 13; ++month) {
        std::string details;
        try {
            details = Month_Details(bytes, month);
        } catch (const Sequential_Error &) {
            return 0;
        }
        if (Is_Utf8(bytes) && bytes.find(details) == std::string_view::npos)
            std::abort();
        const std::string parts[] = {Get_Paper_BoxStyle(details), Get_Paper_Pos(details),
                                     Get_Paper_DisplayMode(details)};
        const std::string whole = parts[0] + "-" + parts[1] + "-" + parts[2];
        if (!whole.starts_with(details) || parts[0].find('-') != std::string::npos ||
            parts[1].find('-') != std::string::npos)
            std::abort();
        // The value text reads back the same from a file of its own, unless it ends in blanks, which the
        // reader drops.
        if (details.find_first_of(std::string_view(",\r\n\"\x1A\0", 6)) == std::string::npos &&
            !details.ends_with(' ') && !details.ends_with('\t') &&
            Month_Details(std::to_string(month) + "=" + details, month) != details)
            std::abort();
    }
    const std::string name(bytes);
    if (Is_Pack_Name(name) && name.find_first_of("\\/:") != std::string::npos)
        std::abort();
    return 0;
}
