#include "core/title.h"

#include "base/cut_text.h"
#include "base/joined.h"
#include "base/letters.h"
#include "core/date.h"
#include "core/settings.h"
#include "platform/locale.h"
#include "platform/registry.h"

#include <algorithm>
#include <vector>

namespace {

constexpr std::size_t longest_pattern = 255;

enum class Field : std::uint8_t { Literal, Hour, Month_Or_Minute, Second, Half_Day, Day, Year };

struct Token {
    Field field;
    std::size_t length;    ///< number of letters, up to the longest form of the field
    std::string_view text; ///< as typed
};

using Characters = std::vector<std::string_view>;

/// Returns the characters of the pattern as the user sees them, within its first `longest_pattern` bytes. A
/// letter with a combining mark is therefore not a pattern letter.
Characters Split(std::string_view pattern) {
    std::size_t end = Whole_Characters(pattern, longest_pattern);
    Characters characters;
    while (end > 0) {
        const std::size_t begin = Previous_Character(pattern, end);
        characters.push_back(pattern.substr(begin, end - begin));
        end = begin;
    }
    std::reverse(characters.begin(), characters.end());
    return characters;
}

/// Returns whether `word` begins at `at` in any letter case. `word` must be in capitals.
bool Stands_At(const Characters &characters, std::size_t at, std::string_view word) {
    if (characters.size() - at < word.size())
        return false;
    for (std::size_t i = 0; i < word.size(); ++i) {
        const std::string_view character = characters[at + i];
        if (character.size() != 1 || To_Upper(character[0]) != word[i])
            return false;
    }
    return true;
}

Field Field_Of(std::string_view character) {
    if (character.size() != 1)
        return Field::Literal;
    switch (character[0]) {
    case 'H':
    case 'h':
        return Field::Hour;
    case 'm':
        return Field::Month_Or_Minute;
    case 's':
        return Field::Second;
    case 'd':
        return Field::Day;
    case 'y':
        return Field::Year;
    default:
        return Field::Literal;
    }
}

/// Reads a run of one field's letter, or one literal character, and moves `at` past it.
Token Read_Token(const Characters &characters, std::size_t &at) {
    const std::string_view character = characters[at];
    const Field field = Field_Of(character);
    std::size_t length = 1;
    while (field != Field::Literal && at + length < characters.size() && characters[at + length] == character)
        ++length;
    at += length;
    if (field != Field::Year)
        return {field, std::min(length, std::size_t{2}), character};
    if (length == 1)
        return {Field::Literal, 1, character};
    return {field, length == 2 ? std::size_t{2} : std::size_t{4}, character};
}

std::vector<Token> Read_Pattern(const Characters &characters) {
    std::vector<Token> tokens;
    bool quoted = false;
    for (std::size_t at = 0; at < characters.size();) {
        if (characters[at] == "\"") {
            quoted = !quoted;
            ++at;
        } else if (quoted) {
            tokens.push_back({Field::Literal, 1, characters[at++]});
        } else if (characters[at] == "\\" && at + 1 < characters.size()) {
            tokens.push_back({Field::Literal, 1, characters[at + 1]});
            at += 2;
        } else if (Stands_At(characters, at, "AM/PM")) {
            tokens.push_back({Field::Half_Day, 2, std::string_view(characters[at].data(), 5)});
            at += 5;
        } else if (Stands_At(characters, at, "A/P")) {
            tokens.push_back({Field::Half_Day, 1, std::string_view(characters[at].data(), 3)});
            at += 3;
        } else {
            tokens.push_back(Read_Token(characters, at));
        }
    }
    return tokens;
}

/// Returns whether the "m" at `at` means minutes: the field before it is an hour, or the field after it is
/// seconds. Literal text and AM/PM fields in between do not matter.
bool Is_Minute(const std::vector<Token> &tokens, std::size_t at) {
    const auto is_number = [](const Token &token) {
        return token.field != Field::Literal && token.field != Field::Half_Day;
    };
    const auto place = tokens.begin() + static_cast<std::ptrdiff_t>(at);
    const auto before = std::find_if(std::make_reverse_iterator(place), tokens.rend(), is_number);
    if (before != tokens.rend() && before->field == Field::Hour)
        return true;
    const auto after = std::find_if(place + 1, tokens.end(), is_number);
    return after != tokens.end() && after->field == Field::Second;
}

void Append_Number(std::string &text, int number, std::size_t digits) {
    const std::string decimal = std::to_string(number);
    if (decimal.size() < digits)
        text.append(digits - decimal.size(), '0');
    text += decimal;
}

} // namespace

std::string Format_Pattern(std::string_view pattern, const platform::Date_Time &time) {
    const std::vector<Token> tokens = Read_Pattern(Split(pattern));
    const bool half_days = std::any_of(tokens.begin(), tokens.end(),
                                       [](const Token &token) { return token.field == Field::Half_Day; });
    std::string text;
    for (std::size_t i = 0; i < tokens.size(); ++i) {
        const Token &token = tokens[i];
        switch (token.field) {
        case Field::Literal:
            text += token.text;
            break;
        case Field::Hour:
            Append_Number(text, half_days ? (time.hour + 11) % 12 + 1 : time.hour, token.length);
            break;
        case Field::Month_Or_Minute:
            Append_Number(text, Is_Minute(tokens, i) ? time.minute : time.month, token.length);
            break;
        case Field::Second:
            Append_Number(text, time.second, token.length);
            break;
        case Field::Half_Day:
            text += token.text.substr(time.hour < 12 ? 0 : token.length + 1, token.length);
            break;
        case Field::Day:
            Append_Number(text, time.day, token.length);
            break;
        case Field::Year:
            Append_Number(text, token.length == 2 ? time.year % 100 : time.year, token.length);
            break;
        }
    }
    return text;
}

namespace {

constexpr const char *weekday_form = "Weekday - d month - yyyy";

std::string Date_Text(const std::string &date_format, const platform::Date_Time &now) {
    if (date_format == "mm/yyyy" || date_format == "dd/mm/yyyy")
        return Format_Pattern(date_format, now);
    std::string month_and_year = Joined({platform::Month_Name(now.month), " - ", std::to_string(now.year)});
    if (date_format == "Month - yyyy")
        return month_and_year;
    std::string day = Joined({std::to_string(now.day), Ordinal_Suffix(now.day), " ", month_and_year});
    if (date_format == "d Month - yyyy")
        return day;
    const Date today{static_cast<std::int16_t>(now.year), static_cast<std::int16_t>(now.month),
                     static_cast<std::int16_t>(now.day)};
    return Joined({platform::Weekday_Name(Weekday(today)), " ", day});
}

} // namespace

const std::vector<std::string> &Bar_Date_Formats() {
    static const std::vector<std::string> formats{"mm/yyyy", "dd/mm/yyyy", "Month - yyyy", "d Month - yyyy",
                                                  weekday_form};
    return formats;
}

std::string Title_Of_Today(bool show_time, const std::string &time_format, const std::string &date_format,
                           const platform::Date_Time &now) {
    const std::string time = show_time ? Format_Pattern(time_format, now) + " - " : std::string();
    return time + Date_Text(date_format, now);
}

std::string Bar_Date_Text(bool show_time, const std::string &time_format, const std::string &date_format,
                          std::int16_t month, std::int16_t year, const platform::Date_Time &now) {
    if (month != now.month || year != now.year)
        return Joined({platform::Month_Name(month), " - ", std::to_string(year)});
    std::string title = Title_Of_Today(show_time, time_format, date_format, now);
    const auto &formats = Bar_Date_Formats();
    if (std::find(formats.begin(), formats.end(), date_format) == formats.end()) {
        // Set the variable first: if the store refuses, the next title must not try again.
        Cur_Settings.Bar_Date_Format = weekday_form;
        Store_Setting(&Settings::Bar_Date_Format);
    }
    return title;
}
