// The shell's windows as numbers.
#include "tests/fakes/fake_shell.h"

#include "tests/fakes/fake_forms.h"
#include "tests/fakes/fakes.h"

Fake_Shell &Shell() {
    static Fake_Shell shell;
    return shell;
}

void Reset_Shell() {
    Shell() = Fake_Shell{};
}

namespace platform {

Shell_Window Find_Desktop_Window() {
    return Shell().desktop;
}

Shell_Window Find_Shell_View(Shell_Window desktop) {
    if (desktop == 0 || desktop != Shell().desktop)
        Fail("a view in no desktop window");
    return Shell().view;
}

Shell_Window Find_Icon_List(Shell_Window view) {
    if (view == 0 || view != Shell().view)
        Fail("an icon list in no view");
    return Shell().list;
}

std::optional<Label_Colours> Icon_Label_Colours(Shell_Window list, unsigned) {
    if (list == 0 || list != Shell().list)
        Fail("no icon list asked for its colours");
    return Shell().colours;
}

void Attach_To_Desktop(Form_Model &model, Shell_Window desktop) {
    const auto mirror = Desktop().mirrors.find(&model);
    if (mirror == Desktop().mirrors.end() || desktop == 0 || desktop != Shell().desktop)
        return Fail("no window, or one attached to something else than the desktop window");
    Shell().attached = &model;
    Shell().attached_hidden = !mirror->second.shown;
    if (Shell().dots_inside == 0 || Shell().dots_inside == Desktop().dots_per_inch)
        return;
    Desktop().dots_per_inch = Shell().dots_inside;
    Input_Event event{};
    event.kind = Input_Kind::Dots_Changed;
    model.input(event);
}

} // namespace platform
