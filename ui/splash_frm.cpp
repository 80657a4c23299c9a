#include "ui/splash_frm.h"

#include "base/joined.h"
#include "core/date.h"
#include "platform/locale.h"

namespace {

constexpr Colour deep_blue = Rgb(31, 8, 128);
constexpr Colour violet = Rgb(192, 192, 255);
constexpr Colour white = Rgb(255, 255, 255);

// In twips. Multiples of 60, four pixels at 96 dots per inch, are also whole pixels at 120, 144 and 192.
constexpr int splash_width = 4800;
constexpr int splash_height = 1440;
constexpr Rect ring_place{480, 180, 120, 120};
constexpr int ring_distance = 480;
constexpr Rect leaf_head{300, 240, 960, 300};
constexpr Rect leaf_page{300, 540, 960, 660};
constexpr Rect name_place{1500, 180, 3180, 720};
constexpr Rect line_place{1500, 900, 3180, 300};
// The places of the name and of the line when the line holds the two first steps: both start higher up.
constexpr Rect high_name_place{1500, 60, 3180, 720};
constexpr Rect lines_place{1500, 750, 3180, 510};

constexpr platform::Font head_font{80, true};
constexpr platform::Font page_font{220, true};
constexpr platform::Font name_font{260, true};
constexpr platform::Font line_font{90, false};

void Style_Label(Label &label, const Rect &place, Colour back, Colour fore, const platform::Font &font,
                 platform::Text_Align align) {
    label.Move(place);
    label.Set_Back_Colour(back);
    label.Set_Fore_Colour(fore);
    label.Set_Font(font);
    label.Set_Align(align, true);
}

} // namespace

Splash_Frm::Splash_Frm() : Form(platform::Form_Kind::Floating, "Splash") {
    using platform::Text_Align;
    Set_Title("Welcome to Vellatro");
    Set_Back_Colour(deep_blue);
    Resize(splash_width, splash_height);
    Frame_Lbl.Move({0, 0, splash_width, splash_height});
    Frame_Lbl.Set_Transparent(true);
    Frame_Lbl.Set_Frame_Colour(violet);
    Style_Label(Weekday_Lbl, leaf_head, violet, deep_blue, head_font, Text_Align::Centre);
    Style_Label(Day_Lbl, leaf_page, white, deep_blue, page_font, Text_Align::Centre);
    for (int i = 0; i < 2; ++i) {
        Rect place = ring_place;
        place.left += i * ring_distance;
        Ring_Lbl[i].Move(place);
        Ring_Lbl[i].Set_Back_Colour(white);
    }
    Style_Label(Name_Lbl, name_place, deep_blue, white, name_font, Text_Align::Left);
    Name_Lbl.Set_Caption("Vellatro");
    platform::Access_State access;
    access.role = platform::Access_Role::Text;
    access.name = "Vellatro";
    Name_Lbl.Set_Access(std::move(access));
    Style_Label(Line_Lbl, line_place, deep_blue, violet, line_font, Text_Align::Left);
    Line_Lbl.Set_Caption("Your month on the desktop");
    Start_Timer.On_Timer = [this] { Start_Timer_Timer(); };
}

void Splash_Frm::Show_Over(const Rect &calendar, int box_36_top, bool new_here) {
    if (new_here) {
        Line_Lbl.Set_Caption(Joined({First_Steps[0], "\n", First_Steps[1]}));
        Name_Lbl.Move(high_name_place);
        Line_Lbl.Move(lines_place);
    }
    const Date today = Today();
    Weekday_Lbl.Set_Caption(platform::Short_Weekday_Name(Weekday(today)));
    Day_Lbl.Set_Caption(std::to_string(today.day));
    // Centre the splash horizontally over the calendar. Put its top edge one splash height below the midpoint
    // between the top edges of the calendar and of its last day box.
    Move(calendar.left + (calendar.width - Width()) / 2, calendar.top + box_36_top / 2 + Height());
    Start_Timer.Set_Enabled(true);
    Show();
}

void Splash_Frm::Start_Timer_Timer() {
    Start_Timer.Set_Enabled(false);
    Close();
}
