#include "desktop/region.h"

#include <utility>

void Clip_To_Controls(Form &form) {
    std::vector<Rect> seen;
    for (const platform::Control_State *control : form.Model().controls)
        if (control->visible)
            seen.push_back(control->bounds);
    form.Clip(std::move(seen));
}
