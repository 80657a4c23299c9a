#include "settings/about_page.h"

#include "platform/screen.h"
#include "platform/shell.h"

using namespace layout;

namespace {

/// A placeholder for the address of the author's page. Its domain is reserved for examples.
constexpr const char *web_page = "https://vellatro.example/";

/// Readable on light and on dark backgrounds, unlike the link colour of some systems.
constexpr Colour link_colour = Rgb(0x00, 0x66, 0xCC);
constexpr Colour contrast_link = System_Colour(26);
constexpr platform::Font name_font{200, true};
constexpr int logo_width = 48 * 15;
constexpr int link_margin = 3 * 15; ///< room for the mark of the keyboard focus

} // namespace

About_Page::About_Page(Frame &frame) : Page(frame) {
    Logo_Pic.Set_Transparent(true);
    Logo_Pic.On_Paint = [](platform::Canvas &canvas) {
        platform::Draw_Program_Icon(canvas, {0, 0, logo_width, logo_width});
    };
    Name_Lbl.Set_Font(name_font);
    for (Label *label : {&Name_Lbl, &Version_Lbl, &Designed_Lbl})
        label->Set_Align(platform::Text_Align::Centre, false);
    Link_Lbl.Set_Caption(web_page);
    Link_Lbl.Set_Visible(false); // the address is a placeholder
    Link_Lbl.Set_Fore_Colour(platform::High_Contrast() ? contrast_link : link_colour);
    Link_Lbl.Set_Transparent(true);
    Link_Lbl.Set_Align(platform::Text_Align::Centre, false);
    Link_Lbl.Set_Tab_Stop();
    Link_Lbl.Set_Link();
    platform::Access_State access;
    access.role = platform::Access_Role::Link;
    access.name = web_page;
    access.default_action = "Open";
    Link_Lbl.Set_Access(std::move(access));
    Link_Lbl.On_Paint = [this](platform::Canvas &canvas) {
        const int line = platform::Line_Height(Link_Lbl.Font());
        platform::Fill_Rect(canvas, {link_margin, line - 15, Link_Lbl.Width() - 2 * link_margin, 15},
                            Link_Lbl.Fore_Colour());
    };
    Link_Lbl.On_Click = [] { gotoweb(); };
    Link_Lbl.On_Double_Click = [] {}; // the first click has opened the page
    Link_Lbl.On_Default_Action = [] { gotoweb(); };
    Lay_Out();
}

void About_Page::gotoweb() {
    platform::Open_Web_Page(web_page);
}

void About_Page::Lay_Out() {
    constexpr int logo_top = 40 * 15;
    Logo_Pic.Move({(page_width - logo_width) / 2, logo_top, logo_width, logo_width});
    Rows rows{0, logo_top + logo_width + 2 * margin, page_width};
    rows.Add(Name_Lbl);
    rows.Add(Version_Lbl, 2 * margin);
    rows.Add(Designed_Lbl, margin);
    // Make the link only a little wider than its text, so that a click beside the text does nothing.
    const int width = platform::Text_Width(web_page, Link_Lbl.Font()) + 2 * link_margin;
    Link_Lbl.Move({(page_width - width) / 2, rows.Top(), width, Designed_Lbl.Height() + small_gap});
}
