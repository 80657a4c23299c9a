#include "toolkit/guard.h"

#include "platform/message_box.h"

#include <exception>
#include <new>

namespace {

/// Returns the message for the current exception.
std::string Failure_Text() {
    try {
        throw;
    } catch (const std::bad_alloc &) {
        return "There is not enough memory for this.";
    } catch (const std::exception &error) {
        if (*error.what() != '\0')
            return error.what();
    } catch (...) {
    }
    return "Something went wrong, and the last action was not completed.";
}

void Show_Error(const std::string &text) {
    platform::Message_Box(text, platform::Box_Icon::Stop);
}

} // namespace

void Run_Guarded(Callback_Ref<void()> action) noexcept {
    try {
        action();
    } catch (...) {
        try {
            Show_Error(Failure_Text());
        } catch (...) {
            // Even the message failed. Continue without it.
        }
    }
}

void Repeated_Guard::Run(Callback_Ref<void()> action) noexcept {
    try {
        action();
        last_failure_.clear();
    } catch (...) {
        try {
            const std::string text = Failure_Text();
            if (text == last_failure_)
                return;
            // Remember the text before showing it, because the action may run again while the box is open.
            last_failure_ = text;
            Show_Error(text);
        } catch (...) {
        }
    }
}
