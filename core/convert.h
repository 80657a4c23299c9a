// Conversion of stored texts to the program's types and back. What does not fit is an error, never a wrap.
#pragma once

#include "base/error.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// A text is no value of the wanted type. what() says what was expected.
class Conversion_Error : public Error {
public:
    using Error::Error;
};

/// Decimal text, with a sign and blanks around it allowed, as a 16-bit or 32-bit integer. Throws
/// Conversion_Error.
std::int16_t To_Int16(std::string_view text);
std::int32_t To_Int32(std::string_view text);

/// The same, or nothing.
std::optional<std::int16_t> Int16_Of(std::string_view text);

/// The words True and False in any letter case, or a number, of which 0 alone is false. Throws
/// Conversion_Error.
bool To_Flag(std::string_view text);

/// "True" or "False".
std::string Flag_Text(bool flag);

/// Narrows to 16 bits. Throws Conversion_Error when the value does not fit.
std::int16_t Fit_Int16(std::int64_t value);

/// Returns the 16-bit integer that is nearest to a value.
std::int16_t Nearest_Int16(int value);

/// Returns `text` where it is UTF-8. Where it is not, returns what it is in the system's ANSI code page, as a
/// view into `room`.
std::string_view As_Utf8(std::string_view text, std::string &room);
