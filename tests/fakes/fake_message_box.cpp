// Message boxes answered by the test's script. One that no test expects is a failure, never a wait.
#include "platform/message_box.h"
#include "tests/fakes/fakes.h"

namespace platform {

namespace {

/// The answer with the least consequences.
Box_Answer Safest(Box_Buttons buttons) {
    return buttons == Box_Buttons::Ok       ? Box_Answer::Ok
           : buttons == Box_Buttons::Yes_No ? Box_Answer::No
                                            : Box_Answer::Cancel;
}

bool Offered(Box_Buttons buttons, Box_Answer answer) {
    if (buttons == Box_Buttons::Ok)
        return answer == Box_Answer::Ok;
    return answer == Box_Answer::Yes || answer == Box_Answer::No ||
           (answer == Box_Answer::Cancel && buttons == Box_Buttons::Yes_No_Cancel);
}

} // namespace

Box_Answer Message_Box(const std::string &text, const std::string &title, Box_Icon icon,
                       Box_Buttons buttons) {
    Fake_System &system = Fakes();
    system.boxes.push_back({text, title, icon, buttons});
    if (system.expected_boxes.empty() || system.expected_boxes.front().text != text) {
        if (!system.any_box)
            Fail("unexpected message box: " + text +
                 (system.expected_boxes.empty() ? std::string()
                                                : "\nexpected: " + system.expected_boxes.front().text));
        return Safest(buttons);
    }
    const Expected_Box expected = system.expected_boxes.front();
    system.expected_boxes.pop_front();
    if (!Offered(buttons, expected.answer)) {
        Fail("the expected answer is no button of this message box: " + text);
        return Safest(buttons);
    }
    if (expected.meanwhile)
        expected.meanwhile();
    return expected.answer;
}

} // namespace platform
