// The program from its start to its end.
#pragma once

#include <memory>

class Edit_Frm;
class Main_Frm;
class Settings_Frm;

/// Starts the calendar and runs until the user ends it. Returns the process's exit code: 1 when the calendar
/// could not start, which the user has been told.
int Run_Program();

/// Gives the calendar its editor, which must be there as long as the calendar asks for it.
void Connect_Editor(Main_Frm &calendar, Edit_Frm &editor);

/// Gives the calendar its settings dialog: each opening puts a new one into `settings`, which must be there
/// as long as the calendar asks for it.
void Connect_Settings(Main_Frm &calendar, std::unique_ptr<Settings_Frm> &settings);
