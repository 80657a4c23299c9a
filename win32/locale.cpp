#include "platform/locale.h"

#include "base/joined.h"
#include "win32/handles.h"
#include "win32/system_library.h"
#include "win32/wide_text.h"

#include <algorithm>
#include <iterator>
#include <oleauto.h>

namespace platform {

namespace {

/// The first year with dates that the system can calculate and format.
constexpr int First_System_Year = 1601;

/// Returns an entry of the user's regional settings or of another locale, empty if there is none.
std::wstring Locale_Text(LCTYPE entry, LCID locale = LOCALE_USER_DEFAULT) {
    std::wstring text(80, L'\0');
    int length = GetLocaleInfoW(locale, entry, text.data(), static_cast<int>(text.size()));
    if (length == 0 && GetLastError() == ERROR_INSUFFICIENT_BUFFER) {
        length = GetLocaleInfoW(locale, entry, nullptr, 0);
        text.resize(static_cast<std::size_t>(std::max(length, 0)));
        length = GetLocaleInfoW(locale, entry, text.data(), length);
    }
    text.resize(length > 0 ? static_cast<std::size_t>(length - 1) : 0);
    return text;
}

constexpr LCID American = MAKELCID(MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_US), SORT_DEFAULT);
constexpr LCID British = MAKELCID(MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_UK), SORT_DEFAULT);

/// Returns the user's calendar if it is Gregorian, in any of its language variants. Returns nothing for
/// another calendar, such as many users in Thailand, the Arab countries and Iran have.
std::optional<CALID> Gregorian_Calendar() {
    CALID type = 0;
    GetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_ICALENDARTYPE | LOCALE_RETURN_NUMBER,
                   reinterpret_cast<wchar_t *>(&type), sizeof type / sizeof(wchar_t));
    constexpr CALID kinds[] = {CAL_GREGORIAN,        CAL_GREGORIAN_US,           CAL_GREGORIAN_ME_FRENCH,
                               CAL_GREGORIAN_ARABIC, CAL_GREGORIAN_XLIT_ENGLISH, CAL_GREGORIAN_XLIT_FRENCH};
    if (type == 0) // not available
        return CAL_GREGORIAN;
    return std::find(std::begin(kinds), std::end(kinds), type) == std::end(kinds) ? std::nullopt
                                                                                  : std::optional(type);
}

/// Returns the locale for writing and reading dates: the user's, or an English one if the user's calendar is
/// not Gregorian. The user's locale would then bring that calendar's years, months and days. The English
/// locales are Gregorian on every system. The choice between them keeps the user's order of day and month.
LCID Date_Locale() {
    if (Gregorian_Calendar())
        return LOCALE_USER_DEFAULT;
    return Locale_Text(LOCALE_IDATE) == L"1" ? British : American;
}

/// Returns the entry `number` steps after `first`.
LCTYPE Entry_After(LCTYPE first, int number) {
    return first + static_cast<LCTYPE>(number);
}

/// Returns the weekday's number in the regional settings, Monday = 0 to Sunday = 6.
int Days_From_Monday(int weekday) {
    return (weekday + 6) % 7;
}

/// Returns whether a character is an invisible mark of the writing direction. Dates in some languages have
/// such marks between their parts.
bool Is_Direction_Mark(wchar_t character) {
    return character == 0x200E || character == 0x200F;
}

/// Returns the user's short date format with the year's digits in place of its letters: "yyyy" becomes
/// '0950', and "y" or "yy" the last two digits. If the format belongs to `another` calendar, leaves out the
/// era and the direction marks. The year then always has four digits, so that no reader takes it for a year
/// of that calendar.
std::wstring Format_With_Year(int year, bool another) {
    const std::wstring format = Locale_Text(LOCALE_SSHORTDATE);
    const std::wstring digits = win32::To_Wide(std::to_string(10000 + year).substr(1));
    std::wstring out;
    bool literal = false;
    for (std::size_t i = 0; i < format.size();) {
        literal = literal != (format[i] == L'\'');
        const std::size_t end = std::min(format.find_first_not_of(format[i], i), format.size());
        if (another && !literal && (format[i] == L'g' || Is_Direction_Mark(format[i]))) {
            i = end;
            continue;
        }
        if (format[i] != L'y' || literal) {
            out += format[i++];
            continue;
        }
        out += L'\'' + (another || end - i > 2 ? digits : digits.substr(2)) + L'\'';
        i = end;
    }
    out.erase(0, out.find_first_not_of(L' '));
    return out;
}

/// Returns the date in the short format. The system formats no date before 1601, so an earlier date takes
/// its weekday and month from the same day 1600 years later: the calendar repeats every 400 years.
std::wstring Formatted_Date(int year, int month, int day) {
    const bool early = year < First_System_Year;
    const LCID locale = Date_Locale();
    const bool another = locale != LOCALE_USER_DEFAULT;
    const std::wstring format = early || another ? Format_With_Year(year, another) : std::wstring();
    SYSTEMTIME date{};
    date.wYear = static_cast<WORD>(early ? year + 1600 : year);
    date.wMonth = static_cast<WORD>(month);
    date.wDay = static_cast<WORD>(day);
    std::wstring text(128, L'\0');
    const int length =
        GetDateFormatW(locale, format.empty() ? DATE_SHORTDATE : 0, &date,
                       format.empty() ? nullptr : format.c_str(), text.data(), static_cast<int>(text.size()));
    text.resize(length > 0 ? static_cast<std::size_t>(length - 1) : 0);
    return text;
}

} // namespace

std::string Month_Name(int month) {
    // The locale's own month names may be those of another calendar.
    const std::optional<CALID> calendar = Gregorian_Calendar();
    wchar_t name[80] = {};
    if (GetCalendarInfoW(LOCALE_USER_DEFAULT, calendar.value_or(CAL_GREGORIAN),
                         Entry_After(CAL_SMONTHNAME1, month - 1), name, static_cast<int>(std::size(name)),
                         nullptr) > 1)
        return win32::From_Wide(name);
    return win32::From_Wide(
        Locale_Text(Entry_After(LOCALE_SMONTHNAME1, month - 1), calendar ? LOCALE_USER_DEFAULT : American));
}

std::string Weekday_Name(int weekday) {
    return win32::From_Wide(Locale_Text(Entry_After(LOCALE_SDAYNAME1, Days_From_Monday(weekday))));
}

std::string Short_Weekday_Name(int weekday) {
    return win32::From_Wide(Locale_Text(Entry_After(LOCALE_SABBREVDAYNAME1, Days_From_Monday(weekday))));
}

int First_Weekday() {
    const std::wstring digit = Locale_Text(LOCALE_IFIRSTDAYOFWEEK);
    if (digit.empty() || digit[0] < L'0' || digit[0] > L'6')
        return 0;
    return (digit[0] - L'0' + 1) % 7;
}

std::string Short_Date(int year, int month, int day) {
    return win32::From_Wide(Formatted_Date(year, month, day));
}

std::string Date_Time_Text(const Date_Time &time) {
    SYSTEMTIME system{};
    system.wHour = static_cast<WORD>(time.hour);
    system.wMinute = static_cast<WORD>(time.minute);
    system.wSecond = static_cast<WORD>(time.second);
    std::wstring text(128, L'\0');
    const int length =
        GetTimeFormatW(LOCALE_USER_DEFAULT, 0, &system, nullptr, text.data(), static_cast<int>(text.size()));
    text.resize(length > 0 ? static_cast<std::size_t>(length - 1) : 0);
    return Joined({Short_Date(time.year, time.month, time.day), " ", win32::From_Wide(text)});
}

std::optional<Date_Time> Read_Date(std::string_view text) {
    static const auto parse = win32::Look_Up<decltype(VarDateFromStr)>(L"oleaut32.dll", "VarDateFromStr");
    static const auto to_time =
        win32::Look_Up<decltype(VariantTimeToSystemTime)>(L"oleaut32.dll", "VariantTimeToSystemTime");
    std::wstring wide = win32::To_Wide(text); // VarDateFromStr takes a non-const text
    std::erase_if(wide, Is_Direction_Mark);
    // A short format may end in a dot, as the Hungarian one does. Not every system can read that dot.
    if (wide.ends_with(L'.'))
        wide.pop_back();
    DATE date = 0;
    SYSTEMTIME time{};
    // The system would ignore the text behind a NUL.
    if (parse == nullptr || to_time == nullptr || wide.find(L'\0') != std::wstring::npos ||
        FAILED(parse(wide.data(), Date_Locale(), 0, &date)) || !to_time(date, &time))
        return std::nullopt;
    Date_Time day;
    day.year = time.wYear;
    day.month = time.wMonth;
    day.day = time.wDay;
    return day;
}

} // namespace platform
