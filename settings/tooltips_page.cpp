#include "settings/tooltips_page.h"

#include "calendar/box_layout.h"
#include "core/settings.h"

#include <array>

using namespace layout;
using platform::Mouse_Button;

namespace {

constexpr int balloons = 2;
constexpr const char *example = "This is an example.";

// The page's offset in twips from the dialog's corner, including the dialog's frame and title bar.
constexpr int example_left = 315;
constexpr int example_top = 1050;

struct Kind {
    const char *caption, *trigger, *tooltip, *notes;
};

constexpr std::array<Kind, 3> kinds{{
    {"&Don't use Tooltips", "", "", "Neither of the two Tooltip styles will be used."},
    {"Use '&Standard' Tooltips", "Hover Over...", example,
     "The standard Tooltips appear when you hover your mouse over it for a short length of time. The problem "
     "with the standard Tooltips is that they are only one line high. This means if the event is too long "
     "then it might get cut off."},
    {"Use '&Balloon' Tooltips", "Hold Left Mouse Button", "",
     "These balloon Tooltips don't pop up when you hover over them like the standard tooltips do. For these "
     "to appear you have to hold down the left mouse button for about half a second over the the box."},
}};

} // namespace

Tooltips_Page::Tooltips_Page(Frame &frame, Held_Balloon &balloon) : Page(frame), balloon_(balloon) {
    for (int i = 0; i < static_cast<int>(kinds.size()); ++i) {
        Tips_Opt[i].Set_Caption(kinds[static_cast<std::size_t>(i)].caption);
        Tips_Opt[i].On_Click = [this, i] { Tips_Opt_Click(i); };
    }
    for (Label *label : {&TipExample_Lbl, &TipBoxExample_Lbl}) {
        label->Set_Painted();
        label->On_Mouse_Down = [this](Mouse_Button button, Point) {
            if (button == Mouse_Button::Left && Tips_Opt[balloons].Checked())
                Example_Tooltip();
        };
        label->On_Mouse_Up = [this](Mouse_Button, Point) { Release(); };
    }
    TipExample_Lbl.Set_Transparent(true);
    TipExample_Lbl.Set_Align(platform::Text_Align::Centre, true);
    TipBoxExample_Lbl.Set_Padding(small_gap);
    Style_Examples();
    Lay_Out();
}

void Tooltips_Page::Style_Examples() {
    TipBoxExample_Lbl.Set_Caption(std::to_string(Today().day));
    TipBoxExample_Lbl.Set_Fore_Colour(Cur_Settings.Col_Num);
    Style_Today(TipBoxExample_Lbl, Cur_Settings.Col_Today);
}

void Tooltips_Page::Show(const Settings &settings) {
    const int index = settings.Tooltips >= 0 && settings.Tooltips <= balloons ? settings.Tooltips : 1;
    Tips_Opt[index].Set_Checked(true);
    Tips_Opt_Click(index);
}

void Tooltips_Page::Write_To(Settings &settings) const {
    settings.Tooltips = 0;
    for (std::int16_t i = 0; i <= balloons; ++i)
        if (Tips_Opt[i].Checked())
            settings.Tooltips = i;
}

void Tooltips_Page::Tips_Opt_Click(int index) {
    const Kind &kind = kinds[static_cast<std::size_t>(index)];
    TipsTrigger_Lbl.Set_Caption(kind.trigger);
    TipExample_Lbl.Set_Tooltip(kind.tooltip);
    TipBoxExample_Lbl.Set_Tooltip(kind.tooltip);
    TipsNotes_Lbl.Set_Caption(kind.notes);
}

void Tooltips_Page::Example_Tooltip() {
    // The balloon's tail points to the middle of the example's lower edge.
    const Point place{dialog_.Left() + example_left + Preview_Fra.Left() + TipExample_Lbl.Left() +
                          TipExample_Lbl.Width() / 2,
                      dialog_.Top() + example_top + Preview_Fra.Top() + TipExample_Lbl.Top() +
                          TipExample_Lbl.Height()};
    balloon_.Hold(place, [this] { balloon_.Show(Today(), example); });
}

void Tooltips_Page::Lay_Out() {
    constexpr int notes_lines = 5;
    constexpr int example_width = 100 * 15;
    constexpr int box_size = 60 * 15;
    Rows page = Page_Rows();
    for (Option_Button &option : Tips_Opt)
        page.Add(option, small_gap);
    page.Add(TipsNotes_Lbl, gap, notes_lines * platform::Line_Height(TipsNotes_Lbl.Font()));
    Rows preview = Group_Rows();
    preview.Add(TipsTrigger_Lbl);
    const int top = preview.Top();
    const int left = (page_width - example_width - margin - box_size) / 2;
    TipExample_Lbl.Move({left, top + (box_size - row_height) / 2, example_width, row_height});
    TipBoxExample_Lbl.Move({left + example_width + margin, top, box_size, box_size});
    page.Add(Preview_Fra, gap, top + box_size + margin);
}
