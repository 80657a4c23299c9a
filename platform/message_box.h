// Message boxes.
#pragma once

#include <string_view>

namespace platform {

enum class Box_Icon { None, Information, Question, Exclamation, Stop };
enum class Box_Buttons { Ok, Yes_No, Yes_No_Cancel };
enum class Box_Answer { Ok, Yes, No, Cancel };

/// Shows a message box in front of the program's windows and waits for the answer. Meanwhile timers run, and
/// the forms take no user input. A box that a timer or a broadcast shows also stays above the windows of all
/// other programs. Cuts a text of more than 1000 UTF-16 units or 30 lines. The close box and Esc answer Ok in
/// an Ok box and Cancel in a Yes_No_Cancel box; a Yes_No box ignores them.
Box_Answer Message_Box(std::string_view text, Box_Icon icon, Box_Buttons buttons = Box_Buttons::Ok,
                       std::string_view title = "Vellatro");

/// Returns whether a message box or a file dialog of the program is open.
bool Modal_Box_Is_Open();

} // namespace platform
