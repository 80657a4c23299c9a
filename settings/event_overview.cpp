#include "settings/event_overview.h"

#include "base/cut_text.h"

#include <algorithm>

std::string Overview_Line(const Event &event) {
    std::string line = Without_Line_Breaks(Date_Prefix(event) + event.text);
    const auto control = [](char c) { return static_cast<unsigned char>(c) < ' '; };
    std::replace_if(line.begin(), line.end(), control, ' ');
    return line;
}

std::string Countdown_Text(const Event &event, const Date &today) {
    return std::to_string(Day_Number(event.date) - Day_Number(today)) + " days";
}
