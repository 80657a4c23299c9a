// The wall clock.
#pragma once

namespace platform {

/// A local date and time of day. The month and day count from 1, the weekday from Sunday = 0.
struct Date_Time {
    int year = 0;
    int month = 0;
    int day = 0;
    int hour = 0;
    int minute = 0;
    int second = 0;
    int millisecond = 0;
};

/// The local time now.
Date_Time Now();

/// The same in Coordinated Universal Time.
Date_Time Now_In_Utc();

/// The time in the user's zone, by the zone's rules for that day, at a time of Coordinated Universal Time.
/// The time itself where the system does not know.
Date_Time Local_Time(const Date_Time &utc);

/// Milliseconds since some moment, which only tell how much time passes. They begin anew after 49 days.
unsigned Milliseconds();

} // namespace platform
