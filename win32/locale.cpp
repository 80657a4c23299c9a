// Names and dates of the user's regional settings: platform/locale.h over Win32.
#include "platform/locale.h"

#include "base/joined.h"
#include "win32/handles.h"
#include "win32/system_library.h"
#include "win32/wide_text.h"

#include <algorithm>
#include <oleauto.h>

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

/// The user's short date form with the year in it written out: "yyyy" becomes '0950', two letters or one the
/// last two digits.
std::wstring Form_With_Year(int year) {
    const std::wstring form = Locale_Text(LOCALE_SSHORTDATE);
    const std::wstring digits = win32::To_Wide(std::to_string(10000 + year).substr(1));
    std::wstring out;
    bool literal = false;
    for (std::size_t i = 0; i < form.size();) {
        literal = literal != (form[i] == L'\'');
        const std::size_t end = std::min(form.find_first_not_of(form[i], i), form.size());
        if (form[i] != L'y' || literal) {
            out += form[i++];
            continue;
        }
        out += L'\'' + (end - i > 2 ? digits : digits.substr(2)) + L'\'';
        i = end;
    }
    return out;
}

/// The date in the short form. The system formats no date before 1601: an earlier one borrows weekday and
/// month from the same day of a later year, which the calendar repeats every 400 years.
std::wstring Formatted_Date(int year, int month, int day) {
    const bool early = year < First_System_Year;
    const std::wstring form = early ? Form_With_Year(year) : std::wstring();
    SYSTEMTIME date{};
    date.wYear = static_cast<WORD>(early ? year + 1600 : year);
    date.wMonth = static_cast<WORD>(month);
    date.wDay = static_cast<WORD>(day);
    std::wstring text(128, L'\0');
    const int length =
        GetDateFormatW(LOCALE_USER_DEFAULT, early ? 0 : DATE_SHORTDATE, &date, early ? form.c_str() : nullptr,
                       text.data(), static_cast<int>(text.size()));
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
    std::wstring wide = win32::To_Wide(text); // the call wants it changeable
    // A short form may end in a dot, as the Hungarian one does, which not every system reads.
    if (wide.ends_with(L'.'))
        wide.pop_back();
    DATE date = 0;
    SYSTEMTIME time{};
    // What is behind a NUL would not be read.
    if (parse == nullptr || to_time == nullptr || wide.find(L'\0') != std::wstring::npos ||
        FAILED(parse(wide.data(), LOCALE_USER_DEFAULT, 0, &date)) || !to_time(date, &time))
        return std::nullopt;
    Date_Time day;
    day.year = time.wYear;
    day.month = time.wMonth;
    day.day = time.wDay;
    return day;
}

} // namespace platform
