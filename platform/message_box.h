// Message boxes.
#pragma once

#include <string_view>

namespace platform {

enum class Box_Icon { None, Information, Question, Exclamation, Stop };
enum class Box_Buttons { Ok, Yes_No, Yes_No_Cancel };
enum class Box_Answer { Ok, Yes, No, Cancel };

/// Shows a message box in front of the program's windows and waits for the answer. A box that comes by
/// itself, of a timer or a broadcast, lies above all other programs' windows too. Meanwhile timers go on, and
/// the forms take nothing that the user does. The close box and Esc answer Cancel where there is that button,
/// else Ok.
Box_Answer Message_Box(std::string_view text, Box_Icon icon, Box_Buttons buttons = Box_Buttons::Ok,
                       std::string_view title = "Vellatro");

/// Returns whether a message box or a file dialog of the program is open.
bool Box_Is_Open();

} // namespace platform
