// The wall clock: platform/clock.h over Win32.
#include "platform/clock.h"

#include "win32/handles.h"

namespace platform {

Date_Time Now() {
    SYSTEMTIME time{};
    GetLocalTime(&time);
    return {time.wYear, time.wMonth, time.wDay, time.wHour, time.wMinute, time.wSecond, time.wMilliseconds};
}

unsigned Milliseconds() {
    return static_cast<unsigned>(GetTickCount());
}

} // namespace platform
