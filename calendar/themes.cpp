// Applies a theme pack to the calendar: the wallpaper of the month, the box style and the position.
#include "base/cut_text.h"
#include "base/joined.h"
#include "calendar/main_frm.h"
#include "core/convert.h"
#include "core/settings.h"
#include "desktop/position.h"
#include "desktop/wallpaper.h"
#include "platform/message_box.h"
#include "themes/theme_pack.h"

#include <optional>
#include <string>
#include <variant>

namespace {

constexpr std::int16_t stretched = 2; ///< a display mode

} // namespace

std::string Main_Frm::Get_Paper_Details(std::int16_t month, const std::string &pack) {
    const std::variant<std::string, Pack_Fault> details = Find_Paper_Details(month, pack);
    if (const auto *const text = std::get_if<std::string>(&details))
        return *text;
    const auto tell = [](const std::string &text) { platform::Message_Box(text, platform::Box_Icon::Stop); };
    if (*std::get_if<Pack_Fault>(&details) == Pack_Fault::Unreadable) {
        tell("Error loading in Settings file...\r\n\r\n" + Pack_File(pack, "settings.ini"));
        return Theme_Error;
    }
    tell(Joined({"Missing Theme ", pack, ". Themes will now be disabled."}));
    // If the store refuses the change, the message appears again, but only at the next start.
    Cur_Settings.Use_Themes = 0;
    Store_Setting(&Settings::Use_Themes);
    Set_Word_Wallpaper("", "");
    return Theme_Error;
}

void Main_Frm::Get_Wallpaper_Stuff(const std::string &pack) {
    if (Shown_Settings->Use_Themes != 0)
        Preview_Wallpaper_Stuff(pack, Today().month);
}

void Main_Frm::Preview_Wallpaper_Stuff(const std::string &pack, std::int16_t month) {
    const std::string details = Get_Paper_Details(month, pack);
    if (details == Theme_Error)
        return;
    // In place of a missing or bad number, use the user's own choice, not the number of the previous month or
    // pack. Report the first bad number after applying everything else.
    std::string fault;
    const auto number = [&](const std::string &text, const char *what,
                            const char *meanwhile = "Your own is used.") -> std::optional<std::int16_t> {
        try {
            return To_Int16(text);
        } catch (const Conversion_Error &expected) {
            if (fault.empty())
                fault = Joined({"In ", Pack_File(pack, "settings.ini"), " the ", what, " of month ",
                                std::to_string(month), " is \"", Shorten(text), "\", but must be ",
                                expected.what(), ". ", meanwhile});
            return std::nullopt;
        }
    };
    const Settings &shown = *Shown_Settings;
    Theme_BoxStyle.reset();
    Theme_Pos.reset();
    if (shown.Use_Theme_Style == 1)
        Theme_BoxStyle = number(Get_Paper_BoxStyle(details), "box style");
    if (shown.Use_Theme_Pos == 1)
        Theme_Pos = number(Get_Paper_Pos(details), "position");
    // An invalid code would leave the calendar where the previous month or pack put it.
    if (Theme_Pos && !Is_Position(*Theme_Pos))
        Theme_Pos.reset();
    std::string path;
    try {
        path = Get_Paper_Path(month, pack);
    } catch (const Error &error) { // its text names the file
        throw Error(Joined(
            {Picture_Error_Text(month), "\r\n\r\n", error.what(), "\r\n\r\nThe desktop stays as it is."}));
    }
    if (path == Theme_Error)
        return;
    // Stretch the picture for a bad number, as for any number that is not a display mode.
    const std::optional<std::int16_t> mode =
        shown.Use_Other_Display_Mode
            ? shown.Other_Display_Mode
            : number(Get_Paper_DisplayMode(details), "display mode", "The picture is stretched.");
    Set_Display_Mode_Wallpaper(path, mode.value_or(stretched));
    if (!fault.empty())
        throw Conversion_Error(fault);
}

// Both functions below return the user's own choice until a pack has set the value.

std::int16_t Main_Frm::Effective_Style() const {
    const Settings &shown = *Shown_Settings;
    const bool by_theme = shown.Use_Themes == 1 && shown.Use_Theme_Style == 1;
    return by_theme ? Theme_BoxStyle.value_or(shown.Style) : shown.Style;
}

std::int16_t Main_Frm::Effective_Position() const {
    const Settings &shown = *Shown_Settings;
    const bool by_theme = shown.Use_Themes == 1 && shown.Use_Theme_Pos == 1;
    return by_theme ? Theme_Pos.value_or(shown.Alignment) : shown.Alignment;
}
