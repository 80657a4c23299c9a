// Stepping through texts in the process's own code page, which is UTF-8 where the system can do that.
#pragma once

#include <cstddef>
#include <string_view>

namespace platform {

/// Where the character that ends just before byte `end` of `text` begins. `end` is 1 to text.size(). Bytes
/// that are no valid character count as one character each. Marks that combine with the
/// character before them, parts of a joined picture and the two letters of a flag are one character with it.
std::size_t Previous_Character(std::string_view text, std::size_t end);

} // namespace platform
