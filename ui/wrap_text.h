// Breaking a text into lines of a given width. What a day box shows of a text is not here.
#pragma once

#include "platform/drawing.h"

#include <string>
#include <string_view>
#include <vector>

/// Takes lines off the beginning of `rest`, at most `max_lines` of them, as Wrap_Text breaks them; each ends
/// at a "\n" or where no more fits into `width` twips.
std::vector<std::string> Extract_Lines(std::string_view &rest, const platform::Font &font, int width,
                                       std::size_t max_lines);

/// The lines of `text`, broken at blanks, between characters of texts that have none, and inside a word that
/// is wider than a line. `width` is in twips. Line breaks of the text stay; other control characters are
/// blanks. Of more than `max_lines` lines (1 or more) the last one ends with "..."; so does a text beyond 16
/// KB, which is not laid out any further.
std::vector<std::string> Wrap_Text(std::string_view text, const platform::Font &font, int width,
                                   std::size_t max_lines);
