// The timing of progress reports for a long piece of work. The callbacks display the reports.
#pragma once

#include "base/callback.h"

#include <cstddef>

/// Reports progress after one second, and then twice a second.
class Progress {
public:
    Callback<void(int percent)> On_Show; ///< may paint windows, but must not handle other events
    Callback<void()> On_End;             ///< called when the work ends

    void Begin();
    /// Returns whether a report is due. Call it after every small step.
    bool Due();
    /// Reports that `done` of `total` steps are complete.
    void Show(std::size_t done, std::size_t total);
    /// Reports as Show does, but only if a report is due. Call it after every small step.
    void Step(std::size_t done, std::size_t total) {
        if (Due())
            Show(done, total);
    }
    /// Reports the end of the work after success or failure, even if there was no report before.
    void End();

private:
    unsigned start_time_ = 0;
    unsigned wait_ = 0; ///< milliseconds from start_time_ to the next report
    unsigned steps_ = 0;
};
