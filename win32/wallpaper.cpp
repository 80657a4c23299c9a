// The wallpaper: platform/wallpaper.h over Win32. The system call tells all top-level windows of the change
// and waits for them: a hung one among them holds it for seconds (four under Wine). So it has a thread of its
// own, and the calendar goes on.
#include "platform/wallpaper.h"

#include "win32/desktop_wallpaper.h"
#include "win32/handles.h"
#include "win32/wide_text.h"

#include <utility>

namespace platform {

namespace {

/// Takes the orders for the one thread, of which there is at most one at a time, so that none overtakes
/// another.
class Wallpaper_Hanger {
public:
    Wallpaper_Hanger() { InitializeCriticalSection(&section_); }

    struct Job {
        std::wstring path;
        std::string monitors;
        bool looks = false; ///< what hangs is to be told, and nothing to be hung up
    };

    void Order(Job job) {
        EnterCriticalSection(&section_);
        std::swap(ordered_, job);
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

    /// Empty while another order is not done.
    std::string Look() {
        if (!Finish())
            return {};
        seen_.clear();
        Order({{}, {}, true});
        return Finish() ? seen_ : std::string();
    }

    /// For the thread that orders. Returns false if the last order is not done.
    bool Finish() const {
        constexpr DWORD most = 5000; // milliseconds
        const DWORD begin = GetTickCount();
        for (DWORD spent = 0; thread_ && spent < most; spent = GetTickCount() - begin) {
            const HANDLE thread = thread_.get();
            // The program's own windows are told of the change, too, and have to answer.
            const DWORD result = MsgWaitForMultipleObjects(1, &thread, FALSE, most - spent, QS_SENDMESSAGE);
            if (result != WAIT_OBJECT_0 + 1)
                return result == WAIT_OBJECT_0;
            MSG none;
            PeekMessageW(&none, nullptr, 0, 0, PM_NOREMOVE | PM_QS_SENDMESSAGE);
        }
        return !thread_;
    }

private:
    static DWORD WINAPI Work(void *self) {
        auto &hanger = *static_cast<Wallpaper_Hanger *>(self);
        for (Job job; hanger.Take(job);)
            try {
                hanger.Do(job);
            } catch (...) {
                // Want of memory: the wallpaper stays.
            }
        return 0;
    }

    void Do(Job &job) {
        if (job.looks) {
            seen_ = win32::Monitors_Now();
        } else if (job.monitors.empty() || !win32::Hang_On_Monitors(job.monitors)) {
            SystemParametersInfoW(SPI_SETDESKWALLPAPER, 0, job.path.data(),
                                  SPIF_UPDATEINIFILE | SPIF_SENDWININICHANGE);
        }
    }

    bool Take(Job &job) {
        EnterCriticalSection(&section_);
        std::swap(job, ordered_);
        at_work_ = is_ordered_;
        is_ordered_ = false;
        const bool taken = at_work_;
        LeaveCriticalSection(&section_);
        return taken;
    }

    CRITICAL_SECTION section_;
    win32::Unique_Kernel_Handle thread_; ///< the last one, which may have ended
    Job ordered_;
    std::string seen_; ///< touched by the thread while it works, and after that by who waited for it
    bool is_ordered_ = false;
    bool at_work_ = false;
};

Wallpaper_Hanger &The_Hanger() {
    // Never destroyed: the thread may outlive the program's last line.
    static Wallpaper_Hanger &hanger = *new Wallpaper_Hanger;
    return hanger;
}

} // namespace

void Set_Wallpaper(const std::string &path, const std::string &monitors) {
    The_Hanger().Order({win32::To_Wide(path), monitors});
}

std::string Wallpaper_Of_Monitors() {
    return The_Hanger().Look();
}

std::string Lasting_Wallpaper(const std::string &path) {
    return win32::From_Wide(win32::Lasting_Picture(win32::To_Wide(path)));
}

bool Finish_Wallpaper() {
    return The_Hanger().Finish();
}

} // namespace platform
