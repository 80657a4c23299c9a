// Conversions between stored texts and the program's types. Regional settings have no effect. A value that
// does not fit is an error; it never wraps.
#pragma once

#include "base/error.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// Thrown if a text or a number does not fit the expected type. For a text, what() names the expected form.
class Conversion_Error : public Error {
public:
    using Error::Error;
};

/// Returns a decimal text as a 16-bit or 32-bit integer. The text may have a sign, and blanks around it.
/// Throws Conversion_Error for any other text and for a number out of range.
std::int16_t To_Int16(std::string_view text);
std::int32_t To_Int32(std::string_view text);

/// Returns the text as To_Int16 does, or nullopt if it does not convert.
std::optional<std::int16_t> Parse_Int16(std::string_view text);

/// Returns a flag from True or False in any letter case, or from a number: 0 is false, any other is true.
/// Blanks around the text are allowed. Throws Conversion_Error for any other text.
bool To_Flag(std::string_view text);

/// Returns "True" or "False".
std::string Flag_Text(bool flag);

/// Returns the value as a 16-bit integer. Throws Conversion_Error if it does not fit.
std::int16_t Fit_Int16(std::int64_t value);

/// Returns the 16-bit integer nearest to the value.
std::int16_t Nearest_Int16(int value);

/// Returns `text` unchanged if it is UTF-8. Otherwise converts it from the system's ANSI code page into
/// `room` and returns a view of `room`.
std::string_view As_Utf8(std::string_view text, std::string &room);
