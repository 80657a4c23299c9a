// The preview of a theme pack: all its months, one after another, on the desktop itself. The page's controls
// are not here.
#pragma once

#include "calendar/main_frm.h"
#include "core/settings.h"
#include "desktop/wallpaper.h"
#include "toolkit/timer.h"

#include <cstdint>
#include <optional>
#include <string>

/// Shows each month for 3 seconds and then puts back what was there before. Between the months the program
/// goes on as usual.
class Wallpaper_Preview {
public:
    /// `calendar` must outlive the preview.
    explicit Wallpaper_Preview(Main_Frm &calendar);
    Wallpaper_Preview(const Wallpaper_Preview &) = delete;
    Wallpaper_Preview &operator=(const Wallpaper_Preview &) = delete;
    /// Ends it.
    ~Wallpaper_Preview();

    bool Running() const { return before_.has_value(); }
    /// Begins with January. Of `choices` the style, the alignment and what they say about themes are taken
    /// for the length of the preview. Throws what the first month's picture does, and then it has ended.
    void Begin(const std::string &pack, const Settings &choices);
    /// Puts the settings, the wallpaper and the calendar back at once. Does nothing when none is running.
    void End() noexcept;

    /// Puts the wallpaper back that a preview has left behind which was ended by force, unless themes are in
    /// use.
    static void Recover();

    /// It has ended, and all is put back; `pack_failed`: because the pack could not be read.
    Handler<bool> On_End;

private:
    /// What the preview changes.
    struct Before {
        std::string caption;
        std::optional<std::int16_t> theme_style;
        std::optional<std::int16_t> theme_position;
        User_Wallpaper wallpaper;
    };
    void Show_Month();
    void Next_Month();

    Main_Frm &calendar_;
    Settings choices_; ///< that the calendar shows meanwhile
    std::string pack_;
    std::int16_t month_ = 0;
    bool pack_failed_ = false;
    std::optional<Before> before_; ///< nothing: not running
    Timer Month_Timer{3000};
};
