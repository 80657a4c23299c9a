// The program from its start to its end.
#pragma once

class Edit_Frm;
class Main_Frm;

/// Starts the calendar and runs until the user ends it. Returns the process's exit code: 1 when the calendar
/// could not start, which the user has been told.
int Run_Program();

/// Gives the calendar its editor, which must be there as long as the calendar asks for it.
void Connect_Editor(Main_Frm &calendar, Edit_Frm &editor);
