// The desktop's wallpapers as the shell keeps them. The text that describes them has one line per item. The
// first line is the position. Then come either the slide show's options, its interval and its folder or
// pictures, or each monitor with its picture.

// The system's headers declare IDesktopWallpaper only for Windows 8 and newer.
#undef _WIN32_WINNT
#undef WINVER
#define _WIN32_WINNT 0x0602
#define WINVER 0x0602

#include "win32/desktop_wallpaper.h"

#include "win32/components.h"
#include "win32/wide_text.h"

#include <shlobj.h>

#include <algorithm>
#include <charconv>
#include <shobjidl.h>
#include <string_view>
#include <vector>

namespace win32 {

namespace {

constexpr char Position_Line = 'P', Options_Line = 'O', Tick_Line = 'T', Slide_Line = 'S', Monitor_Line = 'M';

struct Task_Freer {
    void operator()(void *memory) const {
        if (auto *const free = Look_Up<void WINAPI(void *)>(L"ole32.dll", "CoTaskMemFree"))
            free(memory);
    }
};
using Task_Text = std::unique_ptr<wchar_t, Task_Freer>;
using Id_List = std::unique_ptr<ITEMIDLIST, Task_Freer>;

/// Returns the shell's wallpaper object, null before Windows 8.
Unique_Interface<IDesktopWallpaper> Desktop_Wallpaper() {
    auto *const create = Look_Up<HRESULT WINAPI(REFCLSID, IUnknown *, DWORD, REFIID, void **)>(
        L"ole32.dll", "CoCreateInstance");
    void *made = nullptr;
    if (create == nullptr ||
        FAILED(create(CLSID_DesktopWallpaper, nullptr, CLSCTX_ALL, IID_IDesktopWallpaper, &made)))
        made = nullptr;
    return Unique_Interface<IDesktopWallpaper>(static_cast<IDesktopWallpaper *>(made));
}

int Number(std::string_view text) {
    int number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

/// Adds lines for the slide show's options, its interval and its folder or pictures. Returns whether that
/// succeeded.
bool Add_Slides(IDesktopWallpaper &wallpaper, std::string &lines) {
    DESKTOP_SLIDESHOW_OPTIONS options{};
    UINT tick = 0;
    IShellItemArray *taken = nullptr;
    if (FAILED(wallpaper.GetSlideshowOptions(&options, &tick)) || FAILED(wallpaper.GetSlideshow(&taken)))
        return false;
    const Unique_Interface<IShellItemArray> items(taken);
    DWORD count = 0;
    if (FAILED(items->GetCount(&count)) || count == 0)
        return false;
    lines += Options_Line + std::to_string(static_cast<int>(options)) + "\n";
    lines += Tick_Line + std::to_string(tick) + "\n";
    for (DWORD i = 0; i < count; ++i) {
        IShellItem *item = nullptr;
        if (FAILED(items->GetItemAt(i, &item)))
            return false;
        const Unique_Interface<IShellItem> owner(item);
        wchar_t *path = nullptr;
        if (FAILED(item->GetDisplayName(SIGDN_FILESYSPATH, &path)))
            return false;
        lines += Slide_Line + From_Wide(Task_Text(path).get()) + "\n";
    }
    return true;
}

/// Adds a line for each connected monitor and its picture. Returns false if that fails or a monitor has no
/// picture.
bool Add_Pictures(IDesktopWallpaper &wallpaper, std::string &lines) {
    UINT count = 0;
    if (FAILED(wallpaper.GetMonitorDevicePathCount(&count)))
        return false;
    for (UINT i = 0; i < count; ++i) {
        wchar_t *text = nullptr;
        if (FAILED(wallpaper.GetMonitorDevicePathAt(i, &text)))
            return false;
        const Task_Text monitor(text);
        RECT place{};
        if (wallpaper.GetMonitorRECT(monitor.get(), &place) != S_OK)
            continue; // a monitor that is no longer connected
        if (FAILED(wallpaper.GetWallpaper(monitor.get(), &text)))
            return false;
        const Task_Text picture(text);
        if (*picture == L'\0')
            return false;
        lines += Monitor_Line + From_Wide(monitor.get()) + "\t" +
                 From_Wide(Persistent_Picture(picture.get())) + "\n";
    }
    return true;
}

bool Show_Slides(IDesktopWallpaper &wallpaper, const std::vector<std::string> &paths) {
    auto *const list_of = Look_Up<ITEMIDLIST * WINAPI(const wchar_t *)>(L"shell32.dll", "ILCreateFromPathW");
    auto *const array_of = Look_Up<HRESULT WINAPI(UINT, const ITEMIDLIST **, IShellItemArray **)>(
        L"shell32.dll", "SHCreateShellItemArrayFromIDLists");
    if (list_of == nullptr || array_of == nullptr)
        return false;
    std::vector<Id_List> owners;
    std::vector<const ITEMIDLIST *> lists;
    for (const std::string &path : paths) {
        owners.emplace_back(list_of(To_Wide(path).c_str()));
        if (!owners.back())
            return false;
        lists.push_back(owners.back().get());
    }
    IShellItemArray *items = nullptr;
    if (FAILED(array_of(static_cast<UINT>(lists.size()), lists.data(), &items)))
        return false;
    return SUCCEEDED(wallpaper.SetSlideshow(Unique_Interface<IShellItemArray>(items).get()));
}

} // namespace

std::string Get_Monitor_Wallpapers() {
    const Component_Session session;
    const Unique_Interface<IDesktopWallpaper> wallpaper = Desktop_Wallpaper();
    DESKTOP_WALLPAPER_POSITION position{};
    DESKTOP_SLIDESHOW_STATE state{};
    if (!wallpaper || FAILED(wallpaper->GetPosition(&position)) || FAILED(wallpaper->GetStatus(&state)))
        return {};
    std::string lines = Position_Line + std::to_string(static_cast<int>(position)) + "\n";
    const bool slides = (static_cast<int>(state) & static_cast<int>(DSS_SLIDESHOW)) != 0;
    return (slides ? Add_Slides(*wallpaper, lines) : Add_Pictures(*wallpaper, lines)) ? lines : std::string();
}

bool Set_Monitor_Wallpapers(const std::string &monitors) {
    const Component_Session session;
    const Unique_Interface<IDesktopWallpaper> wallpaper = Desktop_Wallpaper();
    if (!wallpaper)
        return false;
    bool all = true;
    std::vector<std::string> slides;
    int options = 0, tick = 0;
    for (std::size_t at = 0, end = 0; at < monitors.size() && all; at = end + 1) {
        end = std::min(monitors.find('\n', at), monitors.size());
        const std::string line = monitors.substr(at + 1, end - std::min(at + 1, end));
        if (monitors[at] == Position_Line) {
            all = SUCCEEDED(wallpaper->SetPosition(static_cast<DESKTOP_WALLPAPER_POSITION>(Number(line))));
        } else if (monitors[at] == Options_Line) {
            options = Number(line);
        } else if (monitors[at] == Tick_Line) {
            tick = Number(line);
        } else if (monitors[at] == Slide_Line) {
            slides.push_back(line);
        } else if (const std::size_t tab = line.find('\t'); tab != std::string::npos) {
            all = SUCCEEDED(wallpaper->SetWallpaper(To_Wide(line.substr(0, tab)).c_str(),
                                                    To_Wide(line.substr(tab + 1)).c_str()));
        }
    }
    if (slides.empty() || !all)
        return all;
    return Show_Slides(*wallpaper, slides) &&
           SUCCEEDED(wallpaper->SetSlideshowOptions(static_cast<DESKTOP_SLIDESHOW_OPTIONS>(options),
                                                    static_cast<UINT>(tick)));
}

std::wstring Persistent_Picture(const std::wstring &path) {
    // Windows overwrites two kinds of files in C:\Users\NAME\AppData\Roaming\Microsoft\Windows\Themes:
    // TranscodedWallpaper, with an extension on Windows 7 or a number for each monitor, and
    // CachedFiles\CachedImage_1920_1080_POS4.jpg.
    const std::size_t cut = path.rfind(L'\\');
    if (cut == std::wstring::npos)
        return path;
    std::wstring folder = path.substr(0, cut + 1);
    const std::wstring name = path.substr(cut + 1);
    constexpr std::wstring_view transcoded = L"TranscodedWallpaper", cached = L"\\CachedFiles\\";
    const auto same = [](std::wstring_view text, std::wstring_view other) {
        return lstrcmpiW(std::wstring(text).c_str(), std::wstring(other).c_str()) == 0;
    };
    if (folder.size() > cached.size() &&
        same(std::wstring_view(folder).substr(folder.size() - cached.size()), cached))
        folder.resize(folder.size() - cached.size() + 1);
    else if (!same(std::wstring_view(name).substr(0, transcoded.size()), transcoded))
        return path;
    std::wstring copy = folder + L"Vellatro_" + name;
    if (name.find(L'.') == std::wstring::npos)
        copy += L".jpg";
    return CopyFileW(path.c_str(), copy.c_str(), FALSE) ? copy : path;
}

} // namespace win32
