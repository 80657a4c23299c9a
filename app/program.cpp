#include "app/program.h"

#include "app/desktop_return.h"
#include "calendar/main_frm.h"
#include "editor/edit_frm.h"
#include "platform/clock.h"
#include "platform/message_box.h"
#include "platform/message_loop.h"
#include "platform/process.h"
#include "platform/wallpaper.h"
#include "settings/settings_frm.h"
#include "toolkit/guard.h"

namespace {

enum class Calendar_End { Not_Started, Wanted, Lost_With_Shell };

/// Warns the user about a start from a temporary folder, such as inside an archive. Repeats the warning at
/// each such start: the program cannot remember it, because the next temporary folder is a different one.
/// Does not warn if the program has restarted itself.
void Warn_Of_Temporary_Folder() {
    if (platform::Restart_Count() == 0 && platform::Started_From_Temporary_Folder())
        platform::Message_Box("Vellatro was started from a temporary folder, as happens inside an archive. "
                              "Events that you enter will be lost when that folder is deleted.\r\n\r\n"
                              "Copy all of the program's files into a folder of your own and start it there.",
                              platform::Box_Icon::Exclamation);
}

/// Runs the calendar and its dialogs until all of them are closed.
Calendar_End Run_Calendar() {
    // On the heap, because the forms are large.
    const auto main_frm = std::make_unique<Main_Frm>();
    const auto edit_frm = std::make_unique<Edit_Frm>(*main_frm);
    Connect_Editor(*main_frm, *edit_frm);
    std::unique_ptr<Settings_Frm> settings_frm;
    Connect_Settings(*main_frm, settings_frm);
    if (!main_frm->Form_Load())
        return Calendar_End::Not_Started;
    Run_Guarded([] { Wallpaper_Preview::Recover(); });
    Warn_Of_Temporary_Folder();
    platform::Run_Message_Loop();
    main_frm->Close_Settings();
    // Ask about unsaved text: nothing has asked yet if the shell destroyed the calendar, or if the loop ended
    // while a question was open. If the user cancels, or the editor cannot save the text, the open editor
    // alone keeps the program running.
    edit_frm->On_Unload = [] { platform::End_Message_Loop(); };
    while (!edit_frm->Offer_To_Save() && edit_frm->Visible())
        platform::Run_Message_Loop();
    edit_frm->On_Unload = nullptr;
    return main_frm->Lost_With_Shell() ? Calendar_End::Lost_With_Shell : Calendar_End::Wanted;
}

/// Returns the restart count for the successor of this process, or 0 to start none. `lived` is the run time
/// of this process in milliseconds. Limits the restarts, because a shell may destroy each new calendar at
/// once.
int Next_Restart(unsigned lived) {
    constexpr unsigned short_life = 60000;
    constexpr int most_restarts = 3;
    if (lived >= short_life)
        return 1;
    const int restarts = platform::Restart_Count();
    return restarts < most_restarts ? restarts + 1 : 0;
}

} // namespace

int Run_Program() {
    auto end = Calendar_End::Not_Started;
    int restart = 0;
    Run_Guarded([&] {
        const unsigned begin = platform::Milliseconds();
        end = Run_Calendar();
        if (end == Calendar_End::Lost_With_Shell)
            restart = Next_Restart(platform::Milliseconds() - begin);
        // From here on, the user can start the program again.
        platform::Release_Single_Instance();
        if (restart > 0 && !Desktop_Return().Wait())
            restart = 0;
    });
    platform::Wait_For_Wallpaper();
    if (restart > 0)
        platform::Start_Again(restart);
    return end == Calendar_End::Not_Started ? 1 : 0;
}

void Connect_Editor(Main_Frm &calendar, Edit_Frm &editor) {
    calendar.Open_Editor = [&editor](int index) { editor.Edit_Box(index); };
    calendar.Offer_To_Save = [&editor] { return editor.Offer_To_Save(); };
    calendar.Save_Without_Asking = [&editor] { editor.Save_Without_Asking(); };
    calendar.Editor_Visible = [&editor] { return editor.Visible(); };
    calendar.Block_Editor = [&editor](Form *modal) { editor.Set_Blocked_By(modal); };
}

void Connect_Settings(Main_Frm &calendar, std::unique_ptr<Settings_Frm> &settings) {
    calendar.Open_Settings = [&calendar, &settings] {
        if (settings && settings->Visible())
            return settings->Bring_To_Front();
        // Do not destroy the former dialog while one of its events is still running.
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
    calendar.On_Event_Saved = [&settings] {
        if (settings && settings->Visible())
            settings->Events.Refresh_From_File();
    };
}
