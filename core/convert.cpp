#include "core/convert.h"

#include "base/cut_text.h"
#include "base/joined.h"
#include "base/letters.h"
#include "platform/text.h"

#include <algorithm>
#include <charconv>
#include <limits>

namespace {

template <class Integer>
bool Read_Integer(std::string_view text, Integer &value) {
    std::string_view digits = Trim(text, " \t");
    // from_chars does not accept a plus sign. No second sign may follow the plus.
    if (digits.size() > 1 && digits[0] == '+' && digits[1] != '-')
        digits.remove_prefix(1);
    const char *end = digits.data() + digits.size();
    const std::from_chars_result result = std::from_chars(digits.data(), end, value);
    return result.ec == std::errc() && result.ptr == end && !digits.empty();
}

template <class Integer>
Integer To_Integer(std::string_view text) {
    Integer value{};
    if (!Read_Integer(text, value)) {
        using Limits = std::numeric_limits<Integer>;
        throw Conversion_Error(Joined(
            {"a whole number from ", std::to_string(Limits::min()), " to ", std::to_string(Limits::max())}));
    }
    return value;
}

/// Returns whether the text is an optional sign and any number of digits with at most one decimal point.
bool Is_Number(std::string_view text) {
    if (!text.empty() && (text[0] == '+' || text[0] == '-'))
        text.remove_prefix(1);
    return text.find_first_of("0123456789") != std::string_view::npos &&
           text.find_first_not_of("0123456789.") == std::string_view::npos &&
           std::count(text.begin(), text.end(), '.') <= 1;
}

} // namespace

std::int16_t To_Int16(std::string_view text) {
    return To_Integer<std::int16_t>(text);
}

std::int32_t To_Int32(std::string_view text) {
    return To_Integer<std::int32_t>(text);
}

std::optional<std::int16_t> Parse_Int16(std::string_view text) {
    std::int16_t value{};
    return Read_Integer(text, value) ? std::optional(value) : std::nullopt;
}

bool To_Flag(std::string_view text) {
    const std::string word = To_Upper(Trim(text, " \t"));
    if (word == "TRUE")
        return true;
    if (word == "FALSE")
        return false;
    if (!Is_Number(word))
        throw Conversion_Error("True or False");
    return word.find_first_of("123456789") != std::string_view::npos;
}

std::string Flag_Text(bool flag) {
    return flag ? "True" : "False";
}

std::int16_t Fit_Int16(std::int64_t value) {
    using Limits = std::numeric_limits<std::int16_t>;
    if (value < Limits::min() || value > Limits::max())
        throw Conversion_Error(std::to_string(value) + " is not a whole number from -32768 to 32767");
    return static_cast<std::int16_t>(value);
}

std::int16_t Nearest_Int16(int value) {
    using Limits = std::numeric_limits<std::int16_t>;
    return static_cast<std::int16_t>(std::clamp<int>(value, Limits::min(), Limits::max()));
}

std::string_view As_Utf8(std::string_view text, std::string &room) {
    return Is_Utf8(text) ? text : std::string_view(room = platform::Ansi_To_Utf8(text));
}
