// The settings dialog: its tabs, its opening and closing beside the calendar, and its smaller pages.
#include "tests/settings/settings_test.h"
#include "toolkit/keys.h"

using platform::Broadcast;
using platform::Input_Kind;
using platform::Mouse_Button;

namespace {

class Settings_Window : public Settings_Dialog {
protected:
    /// Returns the numbers of the visible pages.
    std::string Pages() {
        std::string pages;
        for (int i = 0; i < Settings_Frm::page_count; ++i)
            pages += dialog->Settings_Fra[i].Visible() ? std::to_string(i) : "";
        return pages;
    }
};

TEST_F(Settings_Window, opens_at_the_stored_tab_and_stores_the_last_one_however_it_ends) {
    const std::function<void()> ends[] = {
        [this] { Push(*dialog, dialog->Ok_Btn); },
        [this] { Push(*dialog, dialog->Cancel_Btn); },
        [this] { Input(*dialog, {.kind = Input_Kind::Clicked, .key = Key_Escape}, &dialog->Cancel_Btn); },
        [this] { Input(*dialog, {.kind = Input_Kind::Close}); },
        [this] {
            Desktop().mirrors.erase(&dialog->Model());
            Input(*dialog, {.kind = Input_Kind::Window_Lost});
        },
        [] { Desktop().Say(Broadcast::Session_Over); },
        [this] { form.Close_Settings(); }, // as at the program's end
    };
    std::int16_t tab = 1;
    Desktop().work_area.width = 1280;
    for (const auto &end : ends) {
        SCOPED_TRACE(tab);
        form.Compact_Timer.Set_Enabled(false);
        Cur_Settings.Auto_Compact = tab % 2 == 0;
        form.Compacted = tab == 4;
        Cur_Settings.Settings_Tab = tab;
        form.Move(tab % 2 == 0 ? 0 : 1280 * 15 - form.Width(), 600);
        form.Open_Settings();
        EXPECT_EQ(Pages(), std::to_string(tab - 1));
        EXPECT_EQ(dialog->Model().focused, dialog->TabStrip1.State().index);
        EXPECT_FALSE(dialog->Model().bounds.Intersects(form.Model().bounds)) << "it covers the calendar";
        Choose(*dialog, dialog->TabStrip1, tab);
        const Settings_Frm *first = dialog.get();
        form.Open_Settings();
        EXPECT_TRUE(form.Settings_Visible() && dialog.get() == first && Pages() == std::to_string(tab));
        // The calendar is blocked, and its countdown stops for the dialog.
        Press_Key(form, Key_F2);
        form.Compact_Timer_Timer();
        EXPECT_TRUE(form.Cur_Month == 3 && !form.Timer_Compacted);
        end();
        EXPECT_EQ(Stored("Settings Tab"), std::to_string(++tab));
        EXPECT_EQ(form.Compact_Timer.Enabled(), Cur_Settings.Auto_Compact == 1 && !form.Compacted);
        EXPECT_FALSE(form.Settings_Visible() || Desktop().mirrors.contains(&dialog->Model()));
        Press_Key(form, Key_F2);
        EXPECT_EQ(form.Cur_Month, 2);
        Press_Key(form, Key_F4);
    }
    EXPECT_TRUE(dialog->Model().title == "Settings" && dialog->Ok_Btn.State().is_default &&
                dialog->Cancel_Btn.State().is_cancel);
    Desktop().work_area.width = 1024;
    form.Move(0, 600); // neither side has enough room
    for (const std::int16_t odd : std::initializer_list<std::int16_t>{-5, 0, 9, 32767}) {
        Cur_Settings.Settings_Tab = odd;
        form.Open_Settings();
        EXPECT_LE(dialog->Model().bounds.Right(), 1024 * 15) << "on another monitor";
        EXPECT_EQ(Pages(), "0");
        EXPECT_FALSE(dialog->General.Alert_Chk.Checked()) << "left from the former dialog";
        Push(*dialog, dialog->General.Alert_Chk, true);
        form.Close_Settings();
    }
}

TEST_F(Settings_Window, every_control_has_its_own_place) {
    for (int i = 0; i <= Settings_Frm::page_count; ++i) { // the last one is the first page's other view
        const bool other_view = i == Settings_Frm::page_count;
        const std::vector<Control *> &controls =
            Open(static_cast<Settings_Frm::Page_Index>(other_view ? 0 : i)).Controls();
        if (other_view)
            Push(*dialog, dialog->Events.Stats_Opt);
        std::map<int, std::vector<const platform::Control_State *>> placed; // by container
        for (const Control *control : controls) {
            const platform::Control_State &state = control->State();
            if (!platform::Is_Shown(dialog->Model(), state))
                continue;
            SCOPED_TRACE(state.name + " \"" + state.caption + "\"");
            Rect room = dialog->Model().bounds;
            if (state.container >= 0)
                room = controls[static_cast<std::size_t>(state.container)]->Bounds();
            const Rect &place = state.bounds;
            // The fakes' texts are wider than those of Windows and take up to a line more.
            EXPECT_TRUE(!place.Empty() && Inside(place, {0, 0, room.width, room.height + 200}));
            for (const platform::Control_State *other : placed[state.container])
                EXPECT_TRUE(
                    !other->bounds.Intersects(place) ||
                    ((other->painted || other == &dialog->TabStrip1.State()) && Inside(place, other->bounds)))
                    << "it covers " << other->name;
            const bool has_text =
                state.kind == platform::Control_Kind::Label || state.kind == platform::Control_Kind::Button;
            EXPECT_TRUE(!has_text || state.painted || !state.caption.empty() ||
                        state.name == "Countdown_Lbl");
            placed[state.container].push_back(&state);
        }
    }
}

TEST_F(Settings_Window, a_preview_ends_with_whatever_the_user_turns_to) {
    Make_Pack("Default", "1=1-1-2\r\n");
    Cur_Settings.Use_Themes = 1;
    const std::pair<std::function<void()>, bool> ends[] = {
        {[this] { Input(*dialog, {.kind = Input_Kind::Clicked, .key = Key_Escape}, &dialog->Cancel_Btn); },
         true},
        {[this] { Push(*dialog, dialog->Apply_Btn); }, true},
        {[this] { Choose(*dialog, dialog->TabStrip1, Settings_Frm::style_fra); }, true},
        {[this] { Push(*dialog, dialog->Cancel_Btn); }, false},
        {[this] { form.Close_Settings(); }, false}, // as at the program's end
    };
    for (const auto &[end, stays] : ends) {
        SCOPED_TRACE(&end - &ends[0].first);
        form.Get_Wallpaper_Stuff("Default");
        form.Follow(Cur_Settings);
        const int height = form.Height();
        Wallpaper_Page &page = Open(Settings_Frm::wallpaper_fra).Wallpaper;
        Push(*dialog, page.Theme_Pos_Chk, false);
        dialog->Style.Pos_Manual_Opt.Set_Checked(true); // the preview shows what is not saved yet
        Push(*dialog, page.Preview_Btn);
        EXPECT_TRUE(page.Preview_Lbl.Visible() && form.Left() == 0);
        EXPECT_EQ(Fakes().wallpapers.back(), In_Pack("Default", "1.bmp"));
        end();
        EXPECT_EQ(form.Which_Month_Lbl.Caption(), "5th March - 2002");
        EXPECT_EQ(Fakes().wallpapers.back(), In_Pack("Default", "3.bmp"));
        EXPECT_TRUE(form.Height() == height && form.Settings_Visible() == stays);
    }
}

TEST_F(Settings_Window, previews_the_title_without_touching_a_setting) {
    const auto lacks_rights = [&] {
        return Open(Settings_Frm::general_fra).General.Startup_Lbl.Caption().find("lack") !=
               std::string::npos;
    };
    EXPECT_FALSE(lacks_rights());
    Fakes().registry_refuses_writes = true;
    EXPECT_TRUE(lacks_rights());
    General_Page &page = dialog->General;
    EXPECT_EQ(page.Bar_Preview_Lbl.Caption(), "5th March - 2002");
    const int writes = Fakes().registry_writes;
    for (const bool with_time : {false, true}) {
        Push(*dialog, page.Bar_Time_Chk, with_time);
        Choose(*dialog, page.Bar_Time_Cbo, 5);
        EXPECT_EQ(page.Bar_Preview_Lbl.Caption(),
                  with_time ? "10:30:00 AM - 5th March - 2002" : "5th March - 2002");
    }
    Enter_Text(*dialog, page.Bar_Time_Cbo, "H.mm:ss");
    Enter_Text(*dialog, page.Bar_Date_Cbo, "no format");
    EXPECT_EQ(page.Bar_Preview_Lbl.Caption(), "10.30:00 - Tuesday 5th March - 2002");
    Fakes().now.second = 7;
    Desktop().Advance(1000);
    EXPECT_EQ(page.Bar_Preview_Lbl.Caption(), "10.30:07 - Tuesday 5th March - 2002");
    Push(*dialog, page.Bar_Time_Chk, false);
    EXPECT_EQ(page.Bar_Preview_Lbl.Caption(), "Tuesday 5th March - 2002");
    for (const int tab : {Settings_Frm::general_fra, Settings_Frm::about_fra}) { // not while hidden
        Choose(*dialog, dialog->TabStrip1, tab);
        ++Fakes().now.day;
        Desktop().Advance(1000);
        EXPECT_EQ(page.Bar_Preview_Lbl.Caption(), "Wednesday 6th March - 2002");
    }
    form.Set_Back_Colour(123); // as Apply does
    Choose(*dialog, dialog->TabStrip1, Settings_Frm::general_fra);
    EXPECT_EQ(page.Bar_Preview_Lbl.Back_Colour(), 123);
    EXPECT_TRUE(Fakes().registry_writes == writes && Cur_Settings.Bar_Date_Format == "d Month - yyyy");
    const int width = dialog->About.Link_Lbl.Width();
    Desktop().char_width = 200; // as at other dots per inch
    Input(*dialog, {.kind = Input_Kind::Scale_Changed});
    EXPECT_GT(dialog->About.Link_Lbl.Width(), width);
}

TEST_F(Settings_Window, shows_the_example_balloon_while_the_left_button_is_held) {
    Label Tooltips_Page::*const examples[] = {&Tooltips_Page::TipExample_Lbl,
                                              &Tooltips_Page::TipBoxExample_Lbl};
    Cur_Settings.Tooltips = 7;
    EXPECT_TRUE(Open(Settings_Frm::tooltips_fra).Tooltips.Tips_Opt[1].Checked());
    for (Label Tooltips_Page::*label : examples)
        for (const int kind : {0, 1, 2}) {
            Tooltips_Page &now = Open(Settings_Frm::tooltips_fra).Tooltips;
            Push(*dialog, now.Tips_Opt[kind], true);
            EXPECT_EQ((now.*label).Tooltip(), kind == 1 ? "This is an example." : "");
            Press(*dialog, now.*label);
            EXPECT_EQ(form.Balloon_Showing(), kind == 2);
            Release(*dialog, now.*label);
            EXPECT_FALSE(form.Balloon_Showing());
        }
    Label &example = dialog->Tooltips.TipExample_Lbl;
    const int at = form.Balloon.Window.Left();
    Input(*dialog, {.kind = Input_Kind::Window_Moved, .point = {dialog->Left() - 900, dialog->Top()}});
    Press(*dialog, example);
    EXPECT_EQ(form.Balloon.Window.Left(), at - 900) << "it goes with a dialog that the user moves";
    EXPECT_EQ(form.Balloon.Window.Title_Lbl.Caption(), "5/3/2002");
    Input(*dialog, {.kind = Input_Kind::Capture_Lost});
    Press(*dialog, example, Mouse_Button::Right);
    EXPECT_FALSE(form.Balloon_Showing());
    Desktop().messages.push_back([this] {
        Push(*dialog, dialog->Cancel_Btn);
        form.Open_Settings(); // must not replace a dialog whose event still runs
    });
    Press(*dialog, example);
    EXPECT_FALSE(form.Balloon_Showing() || form.Settings_Visible());
}

} // namespace
