#include "settings/wallpaper_page.h"

#include "base/joined.h"
#include "core/convert.h"
#include "core/date.h"
#include "core/settings.h"
#include "desktop/position.h"
#include "platform/files.h"
#include "platform/locale.h"
#include "platform/message_box.h"
#include "settings/page.h"
#include "settings/theme_names.h"
#include "settings/thumbnail.h"
#include "themes/theme_pack.h"
#include "toolkit/units.h"
#include "ui/wrap_text.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace {

constexpr int months_a_year = 12;
/// The picture has the proportions of a wide screen, 16 to 9.
constexpr int picture_height = 108 * 15;
constexpr int picture_width = 192 * 15;
constexpr int slider_height = 30 * 15;

std::string Picture_File(const std::string &pack, int month) {
    return Pack_File(pack, std::to_string(month) + ".jpg");
}

/// Returns a space and the name for `number`, or only the space if there is no such name.
std::string Display_Name(const char *(*name)(std::int16_t), const std::string &number) {
    return std::string(" ") + name(Parse_Int16(number).value_or(-1));
}

} // namespace

Wallpaper_Page::Wallpaper_Page(Frame &frame, Main_Frm &calendar, Style_Page &style_page)
    : Page(frame), style_page_(style_page), preview_(calendar) {
    choices_ = {{&Theme_Use_Chk, &Settings::Use_Themes},
                {&Theme_Style_Chk, &Settings::Use_Theme_Style},
                {&Theme_Pos_Chk, &Settings::Use_Theme_Pos},
                {&Other_Display_Chk, &Settings::Use_Other_Display_Mode},
                {&Display_Cbo, &Settings::Other_Display_Mode}};
    Display_Cbo.Set_Items({Display_Mode_Name(0), Display_Mode_Name(1), Display_Mode_Name(2)});
    Theme_Preview_Img.Set_Frame_Colour(shadow_colour);
    Set_Access_Name(Theme_Preview_Img, "Wallpaper of the month");
    Set_Access_Name(Preview_Sli, "Month");
    Loading_Lbl.Set_Visible(false);
    Preview_Lbl.Set_Visible(false);
    Lay_Out();
    Wire_Events();
    Clear_Details();
    Show_Month_Name();
}

void Wallpaper_Page::Wire_Events() {
    Theme_Use_Chk.On_Click = [this] { Theme_Use_Chk_Click(); };
    Packs_Cbo.On_Click = [this] { Packs_Cbo_Click(); };
    Preview_Sli.On_Change = [this] { Preview_Sli_Change(); };
    Preview_Sli.On_Scroll = [this] { Preview_Sli_Scroll(); };
    Theme_Style_Chk.On_Click = [this] { Theme_Style_Chk_Click(); };
    Theme_Pos_Chk.On_Click = [this] { Theme_Pos_Chk_Click(); };
    Other_Display_Chk.On_Click = [this] { Other_Display_Chk_Click(); };
    Preview_Btn.On_Click = [this] { Preview_Btn_Click(); };
    preview_.On_End = [this](bool pack_failed) { Preview_Ended(pack_failed); };
    Load_Timer.On_Timer = [this] { Load_Pictures(); };
    // Load the picture only once it is visible, so that the dialog opens faster on another page.
    Theme_Preview_Img.On_Paint = [this](platform::Canvas &canvas) {
        Paint_Failure(canvas);
        if (shown_.pending)
            Load_Timer.Set_Enabled(true);
    };
}

void Wallpaper_Page::Lay_Out() {
    using namespace layout;
    const int label_width = std::max(Usual_Width(Packs_Lbl), Usual_Width(Display_Lbl));
    Rows page = Page_Rows();
    page.Add(Theme_Use_Chk);
    page.Add_Note(Theme_Use_Lbl);
    page.Add_Pair(Packs_Lbl, label_width, Packs_Cbo);

    Theme_Preview_Img.Move({0, page.Top(), picture_width, picture_height});
    const int right = picture_width + margin;
    Rows details{right, page.Top(), page_width - right};
    for (Label *label : {&Theme_Display_Lbl, &Theme_Style_Lbl, &Theme_Pos_Lbl})
        details.Add(*label, small_gap);
    details.Add(Loading_Lbl);
    const int bottom = page.Top() + picture_height;
    Preview_Btn.Move({right, bottom - button_height, page_width - right, button_height});
    Preview_Sli.Move({0, bottom + gap, picture_width, slider_height});
    Month_Lbl.Move({right, bottom + 2 * gap, page_width - right, Loading_Lbl.Height()});
    Rows below{0, Preview_Sli.Bounds().Bottom() + gap, page_width};

    Rows theme = Group_Rows();
    for (Check_Box *box : {&Theme_Style_Chk, &Theme_Pos_Chk, &Other_Display_Chk})
        theme.Add(*box, small_gap);
    Rows display{margin + check_mark, theme.Top(), inner_width - check_mark};
    display.Add_Pair(Display_Lbl, label_width, Display_Cbo, margin);
    below.Add(Theme_Fra, gap, display.Top());
    below.Add(Preview_Lbl);
}

void Wallpaper_Page::Show(const Settings &settings) {
    Page::Show(settings);
    Get_Papers();
    Get_Themes();
    Get_Wallpaper();
}

void Wallpaper_Page::Write_To(Settings &settings) const {
    Page::Write_To(settings);
    // If nothing is selected, the settings keep their pack, which may be missing only temporarily.
    if (!Packs_Cbo.Text().empty())
        settings.Pack_Name = Packs_Cbo.Text();
}

void Wallpaper_Page::Get_Papers() {
    Packs_Cbo.Set_Items(Find_Packs());
}

void Wallpaper_Page::Get_Themes() {
    Theme_Use_Chk.Set_Checked(Cur_Settings.Use_Themes != 0);
    Enable_Choices(Theme_Use_Chk.Checked());
    Update_Style_Page();
    Other_Display_Chk_Click();
}

void Wallpaper_Page::Get_Wallpaper() {
    Select_Stored_Pack();
    Preview_Sli.Set_Value(Today().month);
    Preview_Sli_Change();
}

/// Selects the pack of the settings. Keeps the selection if that pack is missing.
void Wallpaper_Page::Select_Stored_Pack() {
    for (const std::string &pack : Packs_Cbo.Items())
        if (Same_Pack(pack, Cur_Settings.Pack_Name))
            return Packs_Cbo.Set_Text(pack);
}

void Wallpaper_Page::Enable_Choices(bool enabled) {
    const std::initializer_list<Control *> choices = {&Packs_Lbl, &Packs_Cbo, &Month_Lbl, &Preview_Sli,
                                                      &Preview_Btn};
    for (Control *control : choices)
        control->Set_Enabled(enabled);
}

void Wallpaper_Page::Clear_Details() {
    details_.clear();
    todays_details_.clear();
    Theme_Style_Lbl.Set_Caption("Box Style:");
    Theme_Pos_Lbl.Set_Caption("Position:");
    Theme_Display_Lbl.Set_Caption("Display:");
}

void Wallpaper_Page::Packs_Cbo_Click() {
    Forget_Pictures(); // so that the pictures load again, even for the same pack
    Clear_Details();
    Check_Vaild();
    Preview_Sli.Set_Value(Today().month);
    Preview_Sli_Change();
}

void Wallpaper_Page::Check_Vaild() {
    const std::string pack = Packs_Cbo.Text();
    bool complete = platform::File_Exists(Pack_File(pack, "settings.ini"));
    for (int month = 1; month <= months_a_year && complete; ++month)
        complete = platform::File_Exists(Picture_File(pack, month));
    if (complete)
        return;
    platform::Message_Box("Error Loading Theme.", platform::Box_Icon::Stop);
    // Deselect a refused pack first, because Select_Stored_Pack keeps the selection if the stored pack is
    // missing.
    if (!Same_Pack(pack, Cur_Settings.Pack_Name))
        Packs_Cbo.Select(-1);
    Select_Stored_Pack();
}

void Wallpaper_Page::Show_Month_Name() {
    const std::string name = platform::Month_Name(Month());
    Preview_Sli.Set_Text(name);
    Month_Lbl.Set_Caption("&Month: " + name);
}

void Wallpaper_Page::Preview_Sli_Scroll() {
    Show_Month_Name();
}

void Wallpaper_Page::Preview_Sli_Change() {
    Show_Month_Name();
    Get_Theme_Picture();
    const std::string pack = Packs_Cbo.Text();
    if (pack.empty()) {
        Clear_Details();
        return Update_Style_Page();
    }
    // Read the details once for all three labels, so that a deleted pack causes only one message.
    details_ = Main_Frm::Get_Paper_Details(Month(), pack);
    const std::int16_t today = Today().month;
    todays_details_ =
        details_ == Theme_Error || Month() == today ? details_ : Main_Frm::Get_Paper_Details(today, pack);
    if (todays_details_ == Theme_Error)
        return Drop_Pack(pack);
    Get_Theme_Display();
    Get_Theme_Style();
    Get_Theme_Pos();
    Update_Style_Page();
}

void Wallpaper_Page::Get_Theme_Display() {
    Theme_Display_Lbl.Set_Caption("Display:" +
                                  Display_Name(Display_Mode_Name, Get_Paper_DisplayMode(details_)));
}

void Wallpaper_Page::Get_Theme_Style() {
    Theme_Style_Lbl.Set_Caption("Box Style:" + Display_Name(Box_Style_Name, Get_Paper_BoxStyle(details_)));
}

void Wallpaper_Page::Get_Theme_Pos() {
    const auto name = [](std::int16_t code) { return Is_Place(code) ? Positions[code].name : ""; };
    Theme_Pos_Lbl.Set_Caption("Position:" + Display_Name(name, Get_Paper_Pos(details_)));
}

/// Updates the page after a message that the pack cannot be read. Removes a deleted pack from the list.
void Wallpaper_Page::Drop_Pack(const std::string &pack) {
    Get_Papers();
    if (!Same_Pack(pack, Cur_Settings.Pack_Name))
        Select_Stored_Pack();
    // If the pack is missing, Get_Paper_Details has turned themes off.
    if (Cur_Settings.Use_Themes == 0)
        Theme_Use_Chk.Set_Checked(false);
    Enable_Choices(Theme_Use_Chk.Checked());
    Preview_Sli_Change();
}

void Wallpaper_Page::Get_Theme_Picture() {
    const std::string pack = Packs_Cbo.Text();
    if (pack.empty())
        return Forget_Pictures();
    const auto want = [&pack](Month_Picture &picture, int month) {
        if (std::string path = Picture_File(pack, month); picture.path != path)
            picture = {std::move(path), true, std::move(picture.picture), {}};
    };
    want(shown_, Month());
    want(todays_, Today().month);
    Loading_Lbl.Set_Visible(shown_.pending);
    Load_Timer.Set_Enabled(shown_.pending || todays_.pending);
}

void Wallpaper_Page::Forget_Pictures() {
    shown_ = {};
    todays_ = {};
    Show_Picture();
}

void Wallpaper_Page::Show_Picture() {
    Loading_Lbl.Set_Visible(shown_.pending);
    Theme_Preview_Img.Set_Picture(shown_.picture);
    Theme_Preview_Img.Repaint();
    Set_Access_Name(Theme_Preview_Img,
                    shown_.failure.empty() ? "Wallpaper of the month" : shown_.failure.c_str());
    Update_Style_Page();
}

void Wallpaper_Page::Paint_Failure(platform::Canvas &canvas) const {
    const platform::Font &font = Theme_Preview_Img.Font();
    const int line = platform::Line_Height(font);
    const int width = picture_width - 2 * layout::gap;
    const auto most = static_cast<std::size_t>((picture_height - 2 * layout::small_gap) / line);
    int top = layout::small_gap;
    for (const std::string &text : Wrap_Text(shown_.failure, font, width, most)) {
        platform::Draw_Text(canvas, text, {layout::gap, top, width, line}, font, text_colour,
                            platform::Text_Align::Left, false);
        top += line;
    }
}

/// Loads a pending picture, or copies the other one if both have the same path. If the picture cannot be
/// loaded, leaves it empty and sets `failure`.
void Wallpaper_Page::Load(Month_Picture &wanted) const {
    wanted.pending = false;
    for (const Month_Picture *other : {&shown_, &todays_}) {
        if (other->path != wanted.path || other->pending || other->picture.width == 0 || other == &wanted)
            continue;
        wanted.picture = other->picture;
        return;
    }
    try {
        const Rect box = Twips_To_Pixels(Theme_Preview_Img.Bounds());
        wanted.picture = Thumbnail(platform::Load_Picture(wanted.path), box.width, box.height);
    } catch (const platform::Picture_Error &error) {
        wanted.picture = {};
        // Omit the program's folder from the reason: the frame is small, and all packs are in that folder.
        std::string reason = error.what();
        if (const std::string folder = platform::Program_Folder() + "\\"; reason.starts_with(folder))
            reason.erase(0, folder.size());
        wanted.failure = Joined({Picture_Error_Text(Month()), "\n", reason});
    }
}

void Wallpaper_Page::Load_Pictures() {
    Load_Timer.Set_Enabled(false);
    const bool seen = dialog_.Visible() && platform::Is_Shown(dialog_.Model(), Theme_Preview_Img.State());
    if (shown_.pending && seen)
        Load(shown_);
    // Do not show a failure of today's picture now. The page shows it when the slider is on that month.
    if (todays_.pending && Theme_Use_Chk.Checked())
        Load(todays_);
    Show_Picture();
}

// On a first run, "Use Theme Style" and "Use Theme Position" are ticked. While themes are off, these boxes
// decide nothing, so that the user can choose style and position.
Theme_Look Wallpaper_Page::Current_Look() const {
    Theme_Look look;
    if (!Theme_Use_Chk.Checked())
        return look;
    look.decides_style = Theme_Style_Chk.Checked();
    look.decides_position = Theme_Pos_Chk.Checked();
    if (look.decides_style)
        look.style = Parse_Int16(Get_Paper_BoxStyle(todays_details_));
    if (look.decides_position)
        look.position = Parse_Int16(Get_Paper_Pos(todays_details_));
    if (look.position && !Is_Position(*look.position))
        look.position.reset();
    look.picture = todays_.picture;
    return look;
}

void Wallpaper_Page::Update_Style_Page() {
    style_page_.Set_Theme(Current_Look());
}

void Wallpaper_Page::Theme_Use_Chk_Click() {
    End_Preview();
    if (Theme_Use_Chk.Checked() && Packs_Cbo.Items().empty()) {
        platform::Message_Box("No Themes Available!", platform::Box_Icon::Exclamation);
        Theme_Use_Chk.Set_Checked(false);
    }
    if (!Packs_Cbo.Items().empty() && Packs_Cbo.Selected() == -1) {
        Packs_Cbo.Select(0);
        Packs_Cbo_Click();
    }
    Enable_Choices(Theme_Use_Chk.Checked());
    Preview_Sli_Change();
}

void Wallpaper_Page::Theme_Style_Chk_Click() {
    Update_Style_Page();
}

void Wallpaper_Page::Theme_Pos_Chk_Click() {
    Update_Style_Page();
}

void Wallpaper_Page::Other_Display_Chk_Click() {
    Display_Lbl.Set_Enabled(Other_Display_Chk.Checked());
    Display_Cbo.Set_Enabled(Other_Display_Chk.Checked());
}

void Wallpaper_Page::Preview_Btn_Click() {
    if (Packs_Cbo.Text().empty())
        return;
    // A disabled control would keep the focus, and Esc would not reach the dialog.
    dialog_.Set_Focus(Theme_Style_Chk);
    Enable_Choices(false);
    Preview_Lbl.Set_Visible(true);
    Settings shown = Cur_Settings;
    style_page_.Write_To(shown);
    Write_To(shown);
    preview_.Begin(Packs_Cbo.Text(), shown);
}

bool Wallpaper_Page::End_Preview() {
    const bool running = preview_.Running();
    preview_.End();
    return running;
}

void Wallpaper_Page::Preview_Ended(bool pack_failed) {
    Preview_Lbl.Set_Visible(false);
    if (pack_failed)
        return Drop_Pack(Packs_Cbo.Text());
    Enable_Choices(Theme_Use_Chk.Checked());
    Preview_Sli_Change();
}
