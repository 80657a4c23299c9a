// Names and dates of the user's regional settings: platform/locale.h over Win32.
#include "platform/locale.h"

#include "win32/handles.h"
#include "win32/wide_text.h"

#include <algorithm>
#include <string_view>

namespace platform {

namespace {

/// The system counts its dates from here; earlier ones it does not format.
constexpr int First_System_Year = 1601;

/// One entry of the regional settings, empty where there is none.
std::wstring Locale_Text(LCTYPE entry) {
    std::wstring text(80, L'\0');
    int length = GetLocaleInfoW(LOCALE_USER_DEFAULT, entry, text.data(), static_cast<int>(text.size()));
    if (length == 0 && GetLastError() == ERROR_INSUFFICIENT_BUFFER) {
        length = GetLocaleInfoW(LOCALE_USER_DEFAULT, entry, nullptr, 0);
        text.resize(static_cast<std::size_t>(std::max(length, 0)));
        length = GetLocaleInfoW(LOCALE_USER_DEFAULT, entry, text.data(), length);
    }
    text.resize(length > 0 ? static_cast<std::size_t>(length - 1) : 0);
    return text;
}

/// The entry `number` steps after `first`.
LCTYPE Entry(LCTYPE first, int number) {
    return first + static_cast<LCTYPE>(number);
}

/// The settings' weeks begin with Monday.
int Days_From_Monday(int weekday) {
    return (weekday + 6) % 7;
}

/// Weekday of a date of the Gregorian calendar, Sunday = 0.
int Weekday_Of(int year, int month, int day) {
    constexpr int month_shift[12] = {0, 3, 2, 5, 0, 3, 5, 1, 4, 6, 2, 4};
    const int y = month < 3 ? year - 1 : year;
    return (y + y / 4 - y / 100 + y / 400 + month_shift[month - 1] + day) % 7;
}

void Append_Number(std::wstring &out, int number, std::size_t digits) {
    const std::wstring text = std::to_wstring(number);
    if (text.size() < digits)
        out.append(digits - text.size(), L'0');
    out += text;
}

/// One field of a date pattern: `letter` repeated `count` times.
void Append_Field(std::wstring &out, wchar_t letter, std::size_t count, int year, int month, int day) {
    const int monday_based = Days_From_Monday(Weekday_Of(year, month, day));
    if (letter == L'y') {
        if (count <= 2)
            Append_Number(out, year % 100, count);
        else
            Append_Number(out, year, 4);
    } else if (count <= 2) {
        Append_Number(out, letter == L'd' ? day : month, count);
    } else if (letter == L'd') {
        out += Locale_Text(Entry(count == 3 ? LOCALE_SABBREVDAYNAME1 : LOCALE_SDAYNAME1, monday_based));
    } else {
        out += Locale_Text(Entry(count == 3 ? LOCALE_SABBREVMONTHNAME1 : LOCALE_SMONTHNAME1, month - 1));
    }
}

/// The date in `pattern`, as the system formats the dates that it knows.
std::wstring Format_Date(std::wstring_view pattern, int year, int month, int day) {
    std::wstring out;
    for (std::size_t i = 0; i < pattern.size();) {
        const wchar_t letter = pattern[i];
        if (letter == L'\'') {
            // A literal; two quotes in it are one.
            for (++i; i < pattern.size(); ++i) {
                if (pattern[i] == L'\'' && (++i >= pattern.size() || pattern[i] != L'\''))
                    break;
                out += pattern[i];
            }
            continue;
        }
        const std::size_t end = std::min(pattern.find_first_not_of(letter, i), pattern.size());
        if (letter == L'd' || letter == L'M' || letter == L'y')
            Append_Field(out, letter, end - i, year, month, day);
        else if (letter != L'g') // eras are not written
            out += pattern.substr(i, end - i);
        i = end;
    }
    return out;
}

/// The date as the system writes it, empty when it cannot.
std::wstring System_Date(int year, int month, int day) {
    SYSTEMTIME date{};
    date.wYear = static_cast<WORD>(year);
    date.wMonth = static_cast<WORD>(month);
    date.wDay = static_cast<WORD>(day);
    std::wstring text(128, L'\0');
    const int length = GetDateFormatW(LOCALE_USER_DEFAULT, DATE_SHORTDATE, &date, nullptr, text.data(),
                                      static_cast<int>(text.size()));
    text.resize(length > 0 ? static_cast<std::size_t>(length - 1) : 0);
    return text;
}

} // namespace

std::string Month_Name(int month) {
    return win32::From_Wide(Locale_Text(Entry(LOCALE_SMONTHNAME1, month - 1)));
}

std::string Weekday_Name(int weekday) {
    return win32::From_Wide(Locale_Text(Entry(LOCALE_SDAYNAME1, Days_From_Monday(weekday))));
}

std::string Short_Weekday_Name(int weekday) {
    return win32::From_Wide(Locale_Text(Entry(LOCALE_SABBREVDAYNAME1, Days_From_Monday(weekday))));
}

int First_Weekday() {
    const std::wstring digit = Locale_Text(LOCALE_IFIRSTDAYOFWEEK);
    if (digit.empty() || digit[0] < L'0' || digit[0] > L'6')
        return 0;
    return (digit[0] - L'0' + 1) % 7;
}

std::string Short_Date(int year, int month, int day) {
    std::wstring text = year >= First_System_Year ? System_Date(year, month, day) : std::wstring();
    if (text.empty())
        text = Format_Date(Locale_Text(LOCALE_SSHORTDATE), year, month, day);
    return win32::From_Wide(text);
}

} // namespace platform
