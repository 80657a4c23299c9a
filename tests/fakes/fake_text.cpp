// Characters of UTF-8, whatever the building machine's own encoding is.
#include "platform/characters.h"
#include "platform/text.h"

std::size_t platform::Previous_Character(std::string_view text, std::size_t end) {
    return Character_Begin(text, end, Step_Back_Utf8);
}
