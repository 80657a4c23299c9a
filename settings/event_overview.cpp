// The wording of the overview's lines.
#include "settings/event_overview.h"

std::string Overview_Line(const Sort_Entry &entry) {
    std::string line = Line_Head(entry);
    line.reserve(line.size() + entry.text.size());
    char before = '\0';
    for (const char character : entry.text) {
        const bool second_of_line_end = before == '\r' && character == '\n';
        before = character;
        if (static_cast<unsigned char>(character) >= ' ')
            line += character;
        else if (!second_of_line_end)
            line += ' ';
    }
    return line;
}

std::string Countdown_Text(const Sort_Entry &entry, const Date &today) {
    return std::to_string(entry.number - Day_Number(today)) + " days";
}
