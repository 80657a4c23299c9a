// Checks that the fast path for plain digits of a date key gives the same result as converting each part, and
// fails for the same keys.
#include "core/convert.h"
#include "core/date.h"

#include <cstdint>
#include <cstdlib>
#include <optional>

namespace {

std::optional<Date> By_Parts(std::string_view key) {
    const std::size_t first = key.find('/');
    const std::size_t second = first == std::string_view::npos ? first : key.find('/', first + 1);
    if (second == std::string_view::npos)
        return std::nullopt;
    try {
        return Date{To_Int16(key.substr(second + 1)), To_Int16(key.substr(first + 1, second - first - 1)),
                    To_Int16(key.substr(0, first))};
    } catch (const Conversion_Error &) {
        return std::nullopt;
    }
}

std::optional<Date> At_Once(std::string_view key) {
    try {
        return Parse_Date_Key(key);
    } catch (const Conversion_Error &) {
        return std::nullopt;
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const std::string_view key(reinterpret_cast<const char *>(data), size);
    if (At_Once(key) != By_Parts(key))
        std::abort();
    return 0;
}
