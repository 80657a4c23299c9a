#include "ui/wrap_text.h"

#include "base/cut_text.h"
#include "base/line_ends.h"

#include <algorithm>

namespace {

/// The maximum number of bytes that Wrap_Text lays out. No screen shows more.
constexpr std::size_t longest_text = std::size_t{16} * 1024;

/// The maximum number of bytes in a line. Without it, Fits would measure all of a long word repeatedly.
constexpr std::size_t longest_line = 512;

class Line_Breaker {
public:
    Line_Breaker(const platform::Font &font, int width) : font_(font), width_(width) {}

    bool Fits(std::string_view line) const { return platform::Text_Width(line, font_) <= width_; }

    /// Returns the length of the longest prefix of whole characters that fits.
    std::size_t Fitting_Length(std::string_view word) const {
        std::size_t least = 0;
        for (std::size_t most = std::min(word.size(), longest_line); least < most;) {
            const std::size_t middle = (least + most + 1) / 2;
            if (Fits(word.substr(0, Whole_Characters(word, middle))))
                least = middle;
            else
                most = middle - 1;
        }
        return Whole_Characters(word, least);
    }

    /// Returns the next position after `from` where a line may end, or a position past the longest line.
    static std::size_t Next_End(std::string_view text, std::size_t from) {
        std::size_t at = from + 1;
        while (at <= longest_line && (at >= text.size() || !Line_May_End(text, at)))
            ++at;
        return at;
    }

    /// Returns the end of the first line of `rest`, which has no line breaks: a position where a line may
    /// end, or one inside the first word. A line has at least one character, even if the character is too
    /// wide.
    std::size_t Line_End(std::string_view rest) const {
        if (rest.size() <= longest_line && Fits(rest))
            return rest.size();
        std::size_t end = 0;
        for (std::size_t at = Next_End(rest, 0); at <= longest_line && Fits(rest.substr(0, at));
             at = Next_End(rest, at))
            end = at;
        if (end == 0)
            end = Fitting_Length(rest);
        if (end != 0)
            return end;
        for (end = 1; end < rest.size() && Previous_Character(rest, end + 1) != end; ++end) {
        }
        return end;
    }

    /// Shortens the line until the ellipsis fits, and appends it.
    void Cut(std::string &line) const {
        while (!line.empty() && !Fits(line + std::string(Ellipsis)))
            line.resize(Previous_Character(line, line.size()));
        line.append(Ellipsis);
    }

private:
    platform::Font font_;
    int width_;
};

/// Returns the text with "\n" for each line break, with blanks for other control characters, and without
/// blanks and line breaks at its end.
std::string With_Plain_Breaks(std::string_view text) {
    std::string plain = Without_Line_Breaks(std::string(text), '\n');
    const auto control = [](char c) { return static_cast<unsigned char>(c) < ' ' && c != '\n'; };
    std::replace_if(plain.begin(), plain.end(), control, ' ');
    plain.erase(plain.find_last_not_of(" \n") + 1);
    return plain;
}

} // namespace

std::vector<std::string> Extract_Lines(std::string_view &rest, const platform::Font &font, int width,
                                       std::size_t max_lines) {
    const Line_Breaker breaker(font, width);
    std::vector<std::string> lines;
    while (!rest.empty() && lines.size() < max_lines) {
        const std::string_view paragraph = rest.substr(0, rest.find('\n'));
        const std::size_t end = breaker.Line_End(paragraph);
        lines.emplace_back(paragraph.substr(0, end));
        rest.remove_prefix(end);
        if (end == paragraph.size()) {
            rest.remove_prefix(rest.empty() ? 0 : 1); // the line break
            continue;
        }
        while (rest.starts_with(' '))
            rest.remove_prefix(1);
    }
    return lines;
}

std::vector<std::string> Wrap_Text(std::string_view text, const platform::Font &font, int width,
                                   std::size_t max_lines) {
    const std::string plain = With_Plain_Breaks(text.substr(0, longest_text));
    std::string_view rest = plain;
    std::vector<std::string> lines = Extract_Lines(rest, font, width, max_lines);
    if ((text.size() > longest_text || !rest.empty()) && !lines.empty())
        Line_Breaker(font, width).Cut(lines.back());
    return lines;
}
