// The preview of a theme pack, which shows all its months on the desktop. wallpaper_page.h has its controls.
#pragma once

#include "calendar/main_frm.h"
#include "core/settings.h"
#include "desktop/wallpaper.h"
#include "toolkit/timer.h"

#include <cstdint>
#include <optional>
#include <string>

/// Shows each month for 3 seconds, then restores the wallpaper and the calendar from before. Between the
/// months, the program runs as usual.
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
    /// options of `choices`. Throws the errors of Main_Frm::Preview_Wallpaper_Stuff for the first month; the
    /// preview has then ended.
    void Begin(const std::string &pack, const Settings &choices);
    /// Restores the settings, the wallpaper and the calendar at once. Does nothing if no preview is running.
    void End() noexcept;

    /// If the program was killed during a preview, restores the wallpaper from before it, unless themes are
    /// in use.
    static void Recover();

    /// Called when the preview has ended and everything is restored. `pack_failed`: the pack could not be
    /// read.
    Handler<bool> On_End;

private:
    /// The values from before the preview, which its end restores.
    struct Before {
        std::string caption;
        std::optional<std::int16_t> theme_style;
        std::optional<std::int16_t> theme_position;
        User_Wallpaper wallpaper;
    };
    void Show_Month();
    void Next_Month();

    Main_Frm &calendar_;
    Settings choices_; ///< the settings that the calendar shows meanwhile
    std::string pack_;
    std::int16_t month_ = 0;
    bool pack_failed_ = false;
    std::optional<Before> before_; ///< empty: not running
    Timer Month_Timer{3000};
};
