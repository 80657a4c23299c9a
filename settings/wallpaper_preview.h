// The preview of a theme pack: it shows all the pack's months on the desktop. wallpaper_page.h has the
// controls of the preview.
#pragma once

#include "calendar/main_frm.h"
#include "core/settings.h"
#include "desktop/wallpaper.h"
#include "toolkit/timer.h"

#include <cstdint>
#include <optional>
#include <string>

/// Shows each month for 3 seconds, then restores the earlier wallpaper and calendar. Between the months,
/// the program runs as usual.
class Wallpaper_Preview {
public:
    /// `calendar` must outlive the preview.
    explicit Wallpaper_Preview(Main_Frm &calendar);
    Wallpaper_Preview(const Wallpaper_Preview &) = delete;
    Wallpaper_Preview &operator=(const Wallpaper_Preview &) = delete;
    /// Ends a running preview.
    ~Wallpaper_Preview();

    bool Running() const { return before_.has_value(); }
    /// Begins with January. Until the preview ends, the calendar uses the style, the position and the theme
    /// options of `choices`. If showing January fails, ends the preview and throws the errors of
    /// Main_Frm::Preview_Wallpaper_Stuff.
    void Begin(const std::string &pack, const Settings &choices);
    /// Restores the settings, the wallpaper and the calendar at once. Does nothing if no preview is running.
    void End() noexcept;

    /// Restores the earlier wallpaper if the program was killed during a preview, unless themes are in use.
    static void Recover();

    /// The preview has ended and has restored everything. The argument: whether the pack could not be read.
    Handler<bool> On_End;

private:
    /// The values from before the preview, which End restores.
    struct Before {
        std::string caption;
        std::optional<std::int16_t> theme_style;
        std::optional<std::int16_t> theme_position;
        User_Wallpaper wallpaper;
    };
    void Show_Month();
    void Next_Month();

    Main_Frm &calendar_;
    Settings choices_; ///< the settings that the calendar uses during the preview
    std::string pack_;
    std::int16_t month_ = 0;
    bool pack_failed_ = false;
    std::optional<Before> before_; ///< empty: not running
    Timer Month_Timer{3000};
};
