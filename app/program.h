// The program from its start to its end.
#pragma once

/// Starts the calendar and runs until the user ends it. Returns the process's exit code: 1 when the calendar
/// could not start, which the user has been told.
int Run_Program();
