#include "settings/wallpaper_preview.h"

#include "base/letters.h"
#include "platform/locale.h"
#include "platform/wallpaper.h"
#include "themes/theme_pack.h"
#include "toolkit/guard.h"
#include "toolkit/handler.h"

#include <utility>

namespace {

constexpr std::int16_t last_month = 12;

/// Deletes the bitmaps that the preview left in the pack. If the wallpaper `path` is one of them, in any
/// letter case, makes that bitmap again.
void Delete_Other_Bitmaps(const std::string &path, const std::string &pack) {
    // The system may still have the preview's last bitmap open, and such a file cannot be deleted.
    platform::Wait_For_Wallpaper();
    Delete_Old_Bmps(pack);
    for (std::int16_t month = 1; month <= last_month; ++month)
        if (To_Upper(path) == To_Upper(Pack_File(pack, std::to_string(month) + ".bmp")))
            Get_Paper_Path(month, pack);
}

void Restore_Desktop(User_Wallpaper wallpaper, const std::string &pack) {
    // Leave the path empty if the bitmap has been deleted and cannot be made again.
    Run_Guarded([&] {
        const std::string path = std::exchange(wallpaper.path, std::string());
        Delete_Other_Bitmaps(path, pack);
        wallpaper.path = path;
    });
    Restore_User_Wallpaper(wallpaper);
}

} // namespace

Wallpaper_Preview::Wallpaper_Preview(Main_Frm &calendar) : calendar_(calendar) {
    Month_Timer.On_Timer = [this] { Next_Month(); };
}

Wallpaper_Preview::~Wallpaper_Preview() {
    On_End = nullptr;
    End();
}

void Wallpaper_Preview::Begin(const std::string &pack, const Settings &choices) {
    End();
    before_ = Before{calendar_.Which_Month_Lbl.Caption(), calendar_.Theme_BoxStyle, calendar_.Theme_Pos,
                     Find_User_Wallpaper()};
    Save_User_Wallpaper(before_->wallpaper, pack);
    choices_ = choices;
    calendar_.Shown_Settings = &choices_;
    pack_ = pack;
    pack_failed_ = false;
    month_ = 1;
    Show_Month();
}

void Wallpaper_Preview::Show_Month() {
    // The next month must not follow while a message about this one is open.
    Month_Timer.Set_Enabled(false);
    try {
        calendar_.Which_Month_Lbl.Set_Caption("Preview Mode - " + platform::Month_Name(month_));
        // Check the pack here first, so that an unreadable pack causes one message, not one for every month.
        pack_failed_ = Main_Frm::Get_Paper_Details(month_, pack_) == Theme_Error;
        if (pack_failed_)
            return End();
        calendar_.Preview_Wallpaper_Stuff(pack_, month_);
        calendar_.Follow(choices_);
    } catch (...) {
        End();
        throw;
    }
    // While a message box was open, the user may have ended the preview or the program.
    if (Running())
        Month_Timer.Set_Enabled(true);
}

void Wallpaper_Preview::Next_Month() {
    if (month_ == last_month)
        return End();
    ++month_;
    Show_Month();
}

void Wallpaper_Preview::End() noexcept {
    if (!Running())
        return;
    const Before before = *std::exchange(before_, std::nullopt);
    Month_Timer.Set_Enabled(false);
    calendar_.Shown_Settings = &Cur_Settings;
    calendar_.Theme_BoxStyle = before.theme_style;
    calendar_.Theme_Pos = before.theme_position;
    // Guard each step by itself: Run_Guarded reports a failure, and the other steps still run.
    Run_Guarded([&] { Restore_Desktop(before.wallpaper, pack_); });
    Run_Guarded([&] {
        if (Cur_Settings.Use_Themes == 1)
            calendar_.Get_Wallpaper_Stuff(Cur_Settings.Pack_Name);
    });
    Run_Guarded([&] { calendar_.Follow(Cur_Settings); });
    Run_Guarded([&] { calendar_.Which_Month_Lbl.Set_Caption(before.caption); });
    // Wait until the wallpaper is set, and only then discard the stored copy. The program may be about to
    // end, and the next preview reads the current wallpaper.
    if (platform::Wait_For_Wallpaper())
        Save_User_Wallpaper({}, {});
    Run_Guarded([&] { Fire(On_End, bool{pack_failed_}); });
}

void Wallpaper_Preview::Recover() {
    const auto [wallpaper, pack] = Load_User_Wallpaper();
    if (pack.empty())
        return;
    if (Cur_Settings.Use_Themes != 1)
        Restore_Desktop(wallpaper, pack);
    Save_User_Wallpaper({}, {});
}
