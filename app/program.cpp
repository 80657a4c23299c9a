// Wires the windows to each other and keeps the program alive.
#include "app/program.h"

#include "calendar/main_frm.h"
#include "platform/message_loop.h"
#include "toolkit/guard.h"

int Run_Program() {
    int exit_code = 1;
    Run_Guarded([&exit_code] {
        Main_Frm main_frm;
        if (!main_frm.Form_Load())
            return;
        platform::Run_Message_Loop();
        exit_code = 0;
    });
    return exit_code;
}
