#include "calendar/day_mark.h"

void Day_Mark::Move_To(Label *box, const Date &date, const Label &title) {
    if (box_ != nullptr && box_ != box)
        box_->Set_Marked(false);
    box_ = box;
    if (box != nullptr)
        box->Set_Marked(active_ && has_focus_);
    if (!active_)
        return;
    // Announce the day to assistive technology, but only if it is a different day.
    std::optional<Date> focused;
    if (box != nullptr)
        focused = date;
    if (announced_ == focused)
        return;
    announced_ = focused;
    form_.Set_Focus(box != nullptr ? *box : title);
}
