// The wallpaper: platform/wallpaper.h over Win32. The system call tells all top-level windows of the change
// and waits for them: a hung one among them holds it for seconds (four under Wine). So it has a thread of its
// own, and the calendar goes on.
#include "platform/wallpaper.h"

#include "win32/handles.h"
#include "win32/wide_text.h"

namespace platform {

namespace {

/// Takes the orders for the one thread, of which there is at most one at a time, so that none overtakes
/// another.
class Wallpaper_Hanger {
public:
    Wallpaper_Hanger() { InitializeCriticalSection(&section_); }

    void Order(std::wstring path) {
        EnterCriticalSection(&section_);
        ordered_.swap(path);
        is_ordered_ = true;
        if (!at_work_) {
            const win32::Unique_Kernel_Handle thread(CreateThread(nullptr, 0, Work, this, 0, nullptr));
            at_work_ = static_cast<bool>(thread);
        }
        const bool alone = !at_work_;
        LeaveCriticalSection(&section_);
        if (alone)
            Work(this);
    }

private:
    static DWORD WINAPI Work(void *self) {
        auto &hanger = *static_cast<Wallpaper_Hanger *>(self);
        std::wstring path;
        while (hanger.Take(path))
            SystemParametersInfoW(SPI_SETDESKWALLPAPER, 0, path.data(),
                                  SPIF_UPDATEINIFILE | SPIF_SENDWININICHANGE);
        return 0;
    }

    bool Take(std::wstring &path) {
        EnterCriticalSection(&section_);
        path.swap(ordered_);
        at_work_ = is_ordered_;
        is_ordered_ = false;
        const bool taken = at_work_;
        LeaveCriticalSection(&section_);
        return taken;
    }

    CRITICAL_SECTION section_;
    std::wstring ordered_;
    bool is_ordered_ = false;
    bool at_work_ = false;
};

} // namespace

void Set_Wallpaper(const std::string &path) {
    // Never destroyed: the thread may outlive the program's last line.
    static Wallpaper_Hanger &hanger = *new Wallpaper_Hanger;
    hanger.Order(win32::To_Wide(path));
}

} // namespace platform
