// The wall clock.
#pragma once

namespace platform {

/// A local date and time of day. Months and days count from 1.
struct Date_Time {
    int year = 0;
    int month = 0;
    int day = 0;
    int hour = 0;
    int minute = 0;
    int second = 0;
    int millisecond = 0;
};

/// Returns the current local time.
Date_Time Now();

/// Returns the current time in Coordinated Universal Time (UTC).
Date_Time Now_In_Utc();

/// Converts a UTC time to the user's time zone, by the zone's rules for that year if the system knows them,
/// else by the current rules. Returns `utc` unchanged if the system cannot convert it.
Date_Time Local_Time(const Date_Time &utc);

/// Returns a counter of milliseconds for measuring elapsed time. The counter wraps around to 0 after 49.7
/// days.
unsigned Milliseconds();

} // namespace platform
