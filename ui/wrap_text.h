// Line breaking: splits a text into lines of at most a given width.
#pragma once

#include "platform/drawing.h"

#include <string>
#include <string_view>
#include <vector>

/// Removes at most `max_lines` lines from the beginning of `rest` and returns them. A line ends at "\n" or,
/// by the rules of Wrap_Text, before the text that no longer fits into `width` twips.
std::vector<std::string> Extract_Lines(std::string_view &rest, const platform::Font &font, int width,
                                       std::size_t max_lines);

/// Returns the lines of `text`, broken at blanks, between characters of scripts without blanks, and inside a
/// word wider than a line. `width` is in twips. Line breaks stay, except at the end of the text; other
/// control characters become blanks. If there are more than `max_lines` lines (1 or more), the last one ends
/// with "...". Lays out only the first 16 KB of a text; a longer text also ends with "...".
std::vector<std::string> Wrap_Text(std::string_view text, const platform::Font &font, int width,
                                   std::size_t max_lines);
