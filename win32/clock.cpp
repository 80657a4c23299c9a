#include "platform/clock.h"

#include "win32/handles.h"
#include "win32/system_library.h"

namespace platform {

namespace {

Date_Time From_System(const SYSTEMTIME &time) {
    return {time.wYear, time.wMonth, time.wDay, time.wHour, time.wMinute, time.wSecond, time.wMilliseconds};
}

} // namespace

Date_Time Now() {
    SYSTEMTIME time{};
    GetLocalTime(&time);
    return From_System(time);
}

Date_Time Now_In_Utc() {
    SYSTEMTIME time{};
    GetSystemTime(&time);
    return From_System(time);
}

Date_Time Local_Time(const Date_Time &utc) {
    const auto word = [](int number) { return static_cast<WORD>(number); };
    const SYSTEMTIME time{word(utc.year), word(utc.month),  word(0),          word(utc.day),
                          word(utc.hour), word(utc.minute), word(utc.second), word(utc.millisecond)};
    // Use the time zone's rules for that year. Systems before Windows Vista SP1 know only the current rules.
    using Zone_Of_Year = BOOL WINAPI(USHORT, void *, TIME_ZONE_INFORMATION *);
    static auto *const zone_of_year =
        win32::Look_Up<Zone_Of_Year>(L"kernel32.dll", "GetTimeZoneInformationForYear");
    TIME_ZONE_INFORMATION zone{};
    const bool known = zone_of_year != nullptr && zone_of_year(time.wYear, nullptr, &zone);
    SYSTEMTIME local{};
    return SystemTimeToTzSpecificLocalTime(known ? &zone : nullptr, &time, &local) ? From_System(local) : utc;
}

unsigned Milliseconds() {
    return static_cast<unsigned>(GetTickCount());
}

} // namespace platform
