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
            thread_.reset(CreateThread(nullptr, 0, Work, this, 0, nullptr));
            at_work_ = static_cast<bool>(thread_);
        }
        const bool alone = !at_work_;
        LeaveCriticalSection(&section_);
        if (alone)
            Work(this);
    }

    /// For the thread that orders.
    void Finish() const {
        constexpr DWORD most = 5000; // milliseconds
        const DWORD begin = GetTickCount();
        for (DWORD spent = 0; thread_ && spent < most; spent = GetTickCount() - begin) {
            const HANDLE thread = thread_.get();
            // The program's own windows are told of the change, too, and have to answer.
            if (MsgWaitForMultipleObjects(1, &thread, FALSE, most - spent, QS_SENDMESSAGE) !=
                WAIT_OBJECT_0 + 1)
                return;
            MSG none;
            PeekMessageW(&none, nullptr, 0, 0, PM_NOREMOVE | PM_QS_SENDMESSAGE);
        }
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
    win32::Unique_Kernel_Handle thread_; ///< the last one, which may have ended
    std::wstring ordered_;
    bool is_ordered_ = false;
    bool at_work_ = false;
};

Wallpaper_Hanger &The_Hanger() {
    // Never destroyed: the thread may outlive the program's last line.
    static Wallpaper_Hanger &hanger = *new Wallpaper_Hanger;
    return hanger;
}

} // namespace

void Set_Wallpaper(const std::string &path) {
    The_Hanger().Order(win32::To_Wide(path));
}

void Finish_Wallpaper() {
    The_Hanger().Finish();
}

} // namespace platform
