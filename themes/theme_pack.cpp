#include "themes/theme_pack.h"

#include "base/joined.h"
#include "base/letters.h"
#include "core/convert.h"
#include "core/sequential.h"
#include "platform/files.h"
#include "platform/locale.h"
#include "platform/pictures.h"
#include "themes/bitmap.h"

#include <algorithm>
#include <array>

namespace {

constexpr const char *settings_file = "settings.ini";
constexpr std::string_view bitmap_extension = ".bmp";

/// Returns whether Windows treats the name as a device. It does so in every folder and with any extension.
bool Is_Device(std::string_view name) {
    std::string base = To_Upper(name.substr(0, name.find('.')));
    base.erase(base.find_last_not_of(' ') + 1);
    if (base.starts_with("COM") || base.starts_with("LPT")) {
        // Windows also accepts the superscript digits 1 to 3.
        constexpr std::array<std::string_view, 13> numbers{
            "0", "1", "2", "3", "4", "5", "6", "7", "8", "9", "\xC2\xB9", "\xC2\xB2", "\xC2\xB3"};
        return std::find(numbers.begin(), numbers.end(), std::string_view(base).substr(3)) != numbers.end();
    }
    constexpr std::array<std::string_view, 6> devices{"CON", "PRN", "AUX", "NUL", "CONIN$", "CONOUT$"};
    return std::find(devices.begin(), devices.end(), base) != devices.end();
}

std::string Pack_Folder(const std::string &pack) {
    return Joined({platform::Program_Folder(), "\\", pack});
}

} // namespace

bool Is_Pack_Name(std::string_view name) {
    const auto is_edge = [](char c) { return c == ' ' || c == '.'; };
    const auto is_bad = [](char c) {
        return (c >= 0 && c < ' ') || c == '\x7F' ||
               std::string_view("\\/:*?\"<>|").find(c) != std::string_view::npos;
    };
    return !name.empty() && !is_edge(name.front()) && !is_edge(name.back()) &&
           std::none_of(name.begin(), name.end(), is_bad) && !Is_Device(name);
}

bool Same_Pack(std::string_view a, std::string_view b) {
    return To_Upper(a) == To_Upper(b);
}

std::vector<std::string> Find_Packs() {
    const auto comes_before = [](const std::string &a, const std::string &b) {
        const int order = To_Upper(a).compare(To_Upper(b));
        return order < 0 || (order == 0 && a < b);
    };
    std::vector<std::string> packs;
    for (const std::string &name :
         platform::Names_In_Folder(platform::Program_Folder(), platform::Entry_Kind::Folders))
        if (Is_Pack_Name(name) && platform::File_Exists(Pack_File(name, settings_file)))
            packs.insert(std::upper_bound(packs.begin(), packs.end(), name, comes_before), name);
    return packs;
}

std::string Pack_File(const std::string &pack, const std::string &name) {
    return Joined({Pack_Folder(pack), "\\", name});
}

std::string Month_Details(std::string_view bytes, std::int16_t month) {
    std::string details;
    Sequential_Reader reader(bytes);
    for (std::string_view item; reader.Next(item);) {
        const std::size_t equals = item.find('=');
        if (equals == std::string_view::npos)
            break;
        if (Parse_Int16(item.substr(0, equals)) == month)
            details = item.substr(equals + 1);
    }
    return details;
}

std::variant<std::string, Pack_Fault> Find_Paper_Details(std::int16_t month, const std::string &pack) {
    if (!Is_Pack_Name(pack) || !platform::Folder_Exists(Pack_Folder(pack)))
        return Pack_Fault::Missing;
    const std::string path = Pack_File(pack, settings_file);
    try {
        if (platform::File_Exists(path))
            return Month_Details(platform::Read_File(path), month);
    } catch (const platform::File_Error &) {
        // An unreadable or malformed file is the same fault as a missing one.
    } catch (const Sequential_Error &) {
    }
    return Pack_Fault::Unreadable;
}

std::string Get_Paper_BoxStyle(std::string_view details) {
    return std::string(details.substr(0, details.find('-')));
}

std::string Get_Paper_Pos(std::string_view details) {
    const std::size_t first = details.find('-');
    return first == std::string_view::npos ? std::string() : Get_Paper_BoxStyle(details.substr(first + 1));
}

std::string Get_Paper_DisplayMode(std::string_view details) {
    const std::size_t first = details.find('-');
    const std::size_t second = first == std::string_view::npos ? first : details.find('-', first + 1);
    return second == std::string_view::npos ? std::string() : std::string(details.substr(second + 1));
}

std::string Get_Paper_Path(std::int16_t month, const std::string &pack) {
    if (!Is_Pack_Name(pack))
        return Theme_Error;
    const std::string number = std::to_string(month);
    std::string path = Pack_File(pack, number + std::string(bitmap_extension));
    if (platform::File_Exists(path))
        return path;
    Delete_Old_Bmps(pack);
    platform::Replace_File(path, Bitmap_Bytes(platform::Load_Picture(Pack_File(pack, number + ".jpg"))));
    return path;
}

std::string Picture_Error_Text(std::int16_t month) {
    return Joined({"The wallpaper of ", platform::Month_Name(month), " cannot be shown."});
}

void Delete_Old_Bmps(const std::string &pack) {
    if (!Is_Pack_Name(pack))
        return;
    for (const std::string &name :
         platform::Names_In_Folder(Pack_Folder(pack), platform::Entry_Kind::Files)) {
        if (!name.ends_with(bitmap_extension))
            continue;
        try {
            platform::Delete_File(Pack_File(pack, name));
        } catch (const platform::File_Error &) {
            // Another program has the file open. A later call deletes it.
        }
    }
}
