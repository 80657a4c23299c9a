// The faked shell: which of its windows there are, what its icon list answers, and what was attached to it.
#pragma once

#include "platform/shell.h"

struct Fake_Shell {
    platform::Shell_Window desktop = 0; ///< none of them is there unless a test says so
    platform::Shell_Window view = 0;
    platform::Shell_Window list = 0;
    std::optional<platform::Label_Colours> colours; ///< nothing: the shell hangs
    int dots_inside = 0; ///< dots per inch that a window has inside the desktop; 0: the same as outside

    const platform::Form_Model *attached = nullptr;
    bool attached_hidden = false; ///< it was not to be seen when it was attached
};

/// The one faked shell; Reset_Shell makes it new.
Fake_Shell &Shell();
void Reset_Shell();
