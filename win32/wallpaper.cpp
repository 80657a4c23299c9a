// Sets the wallpaper on a thread of its own, so that the calendar stays responsive. The system call sends
// the change to all top-level windows and waits for them. A hung window delays the call for seconds (four on
// Wine).
#include "platform/wallpaper.h"

#include "win32/desktop_wallpaper.h"
#include "win32/handles.h"
#include "win32/wide_text.h"

#include <utility>

namespace platform {

namespace {

/// Runs the wallpaper jobs on a single thread, so that no job overtakes another.
class Wallpaper_Worker {
public:
    Wallpaper_Worker() { InitializeCriticalSection(&section_); }

    struct Job {
        std::wstring path;
        std::string monitors;
        bool is_query = false; ///< looks up the current wallpapers instead of setting any
    };

    void Enqueue(Job job) {
        EnterCriticalSection(&section_);
        std::swap(queued_job_, job);
        has_job_ = true;
        if (!running_) {
            thread_.reset(CreateThread(nullptr, 0, Run_Jobs, this, 0, nullptr));
            running_ = static_cast<bool>(thread_);
        }
        const bool no_thread = !running_;
        LeaveCriticalSection(&section_);
        if (no_thread)
            Run_Jobs(this);
    }

    /// Returns the current wallpapers. Returns an empty text if an earlier job or the query does not finish
    /// within five seconds.
    std::string Query_Monitors() {
        if (!Wait())
            return {};
        monitors_.clear();
        Enqueue({{}, {}, true});
        return Wait() ? monitors_ : std::string();
    }

    /// Waits for the last job. Only the thread that enqueues jobs may call this. Returns false if the job
    /// does not finish within five seconds.
    bool Wait() const {
        constexpr DWORD most = 5000; // milliseconds
        const DWORD begin = GetTickCount();
        for (DWORD spent = 0; thread_ && spent < most; spent = GetTickCount() - begin) {
            const HANDLE thread = thread_.get();
            // The system also sends the change to the program's own windows, which must answer.
            const DWORD result = MsgWaitForMultipleObjects(1, &thread, FALSE, most - spent, QS_SENDMESSAGE);
            if (result != WAIT_OBJECT_0 + 1)
                return result == WAIT_OBJECT_0;
            MSG none;
            PeekMessageW(&none, nullptr, 0, 0, PM_NOREMOVE | PM_QS_SENDMESSAGE);
        }
        return !thread_;
    }

private:
    static DWORD WINAPI Run_Jobs(void *self) {
        auto &worker = *static_cast<Wallpaper_Worker *>(self);
        for (Job job; worker.Dequeue(job);)
            try {
                worker.Run(job);
            } catch (...) {
                // Out of memory: keep the current wallpaper.
            }
        return 0;
    }

    void Run(Job &job) {
        if (job.is_query) {
            monitors_ = win32::Get_Monitor_Wallpapers();
        } else if (job.monitors.empty() || !win32::Set_Monitor_Wallpapers(job.monitors)) {
            SystemParametersInfoW(SPI_SETDESKWALLPAPER, 0, job.path.data(),
                                  SPIF_UPDATEINIFILE | SPIF_SENDWININICHANGE);
        }
    }

    bool Dequeue(Job &job) {
        EnterCriticalSection(&section_);
        std::swap(job, queued_job_);
        running_ = has_job_;
        has_job_ = false;
        const bool taken = running_;
        LeaveCriticalSection(&section_);
        return taken;
    }

    CRITICAL_SECTION section_;
    win32::Unique_Kernel_Handle thread_; ///< the last thread, which may have ended
    Job queued_job_;
    std::string monitors_; ///< written by the worker thread, read by the thread that waited for it
    bool has_job_ = false;
    bool running_ = false;
};

Wallpaper_Worker &The_Worker() {
    // Never destroy the worker, because its thread may outlive main.
    static Wallpaper_Worker &worker = *new Wallpaper_Worker;
    return worker;
}

} // namespace

void Set_Wallpaper(const std::string &path, const std::string &monitors) {
    The_Worker().Enqueue({win32::To_Wide(path), monitors});
}

std::string Wallpaper_Of_Monitors() {
    return The_Worker().Query_Monitors();
}

std::string Persistent_Wallpaper(const std::string &path) {
    return win32::From_Wide(win32::Persistent_Picture(win32::To_Wide(path)));
}

bool Wait_For_Wallpaper() {
    return The_Worker().Wait();
}

} // namespace platform
