// Wires the windows to each other and keeps the program alive.
#include "app/program.h"

#include "calendar/main_frm.h"
#include "editor/edit_frm.h"
#include "platform/message_loop.h"
#include "platform/wallpaper.h"
#include "settings/settings_frm.h"
#include "toolkit/guard.h"

int Run_Program() {
    int exit_code = 1;
    Run_Guarded([&exit_code] {
        // The forms are too large for the stack, whose frames stay below a page.
        const auto main_frm = std::make_unique<Main_Frm>();
        const auto edit_frm = std::make_unique<Edit_Frm>(*main_frm);
        Connect_Editor(*main_frm, *edit_frm);
        std::unique_ptr<Settings_Frm> settings_frm;
        Connect_Settings(*main_frm, settings_frm);
        if (!main_frm->Form_Load())
            return;
        Run_Guarded([] { Wallpaper_Preview::Mend(); });
        platform::Run_Message_Loop();
        main_frm->Close_Settings();
        // When the desktop is lost nobody has been asked yet, or the loop has ended under an open question.
        // Who answers Cancel, or whose text is refused, gets the editor back; it alone keeps the program
        // then.
        edit_frm->On_Unload = [] { platform::End_Message_Loop(); };
        while (!edit_frm->Ask_Unsaved() && edit_frm->Visible())
            platform::Run_Message_Loop();
        edit_frm->On_Unload = nullptr;
        exit_code = 0;
    });
    platform::Finish_Wallpaper();
    return exit_code;
}

void Connect_Editor(Main_Frm &calendar, Edit_Frm &editor) {
    calendar.Open_Editor = [&editor](int index) { editor.Edit_Box(index); };
    calendar.Ask_Unsaved = [&editor] { return editor.Ask_Unsaved(); };
    calendar.Editor_Visible = [&editor] { return editor.Visible(); };
    calendar.Block_Editor = [&editor](Form *modal) { editor.Set_Blocked_By(modal); };
}

void Connect_Settings(Main_Frm &calendar, std::unique_ptr<Settings_Frm> &settings) {
    calendar.Open_Settings = [&calendar, &settings] {
        if (settings && settings->Visible())
            return settings->Bring_To_Front();
        // A former dialog whose last event still waits for something must not go from under it.
        if (settings && settings->Busy())
            return;
        settings = std::make_unique<Settings_Frm>(calendar);
        settings->Form_Load();
    };
    calendar.Close_Settings = [&settings] {
        if (settings)
            settings->Form_Unload();
    };
    calendar.Settings_Visible = [&settings] { return settings && settings->Visible(); };
    calendar.Event_Saved = [&settings] {
        if (settings && settings->Visible())
            settings->Events.Follow_File();
    };
}
