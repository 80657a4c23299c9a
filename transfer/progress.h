// When a long piece of work tells how far it has come. What it looks like is the business of who fills the
// slots.
#pragma once

#include "base/callback.h"

#include <cstddef>

/// Nothing is told in the first second, afterwards something twice a second.
class Progress {
public:
    Callback<void(int percent)> On_Show; ///< may let windows be painted, but nothing else happen
    Callback<void()> On_End;             ///< after On_Show: nothing more is to be told

    void Begin();
    /// Whether it is time to tell. To be asked after every small step.
    bool Due();
    /// Tells that `done` of `total` steps are done.
    void Show(std::size_t done, std::size_t total);
    /// The same after a small step, when it is time to tell.
    void Step(std::size_t done, std::size_t total) {
        if (Due())
            Show(done, total);
    }
    /// The work is done, or given up; may be called without any.
    void End();

private:
    unsigned start_time_ = 0;
    unsigned wait_ = 0; ///< milliseconds after start_time_ until the next telling
    unsigned steps_ = 0;
};
