// The program's run from start to exit, and the connections between its windows.
#pragma once

#include <memory>

class Edit_Frm;
class Main_Frm;
class Settings_Frm;

/// Starts the calendar and runs it to its end. Returns the process's exit code, which is 1 if the calendar
/// could not start.
int Run_Program();

/// Connects the calendar to its editor. `editor` must outlive the calendar's calls.
void Connect_Editor(Main_Frm &calendar, Edit_Frm &editor);

/// Connects the calendar to its settings dialog. Each opening puts a new dialog into `settings`, which must
/// outlive the calendar's calls.
void Connect_Settings(Main_Frm &calendar, std::unique_ptr<Settings_Frm> &settings);
