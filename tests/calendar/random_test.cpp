// Ten thousand random actions on the whole program without a screen: whatever a user does in whatever order,
// nothing breaks that always holds.
#include "app/program.h"
#include "core/sequential.h"
#include "editor/edit_frm.h"
#include "tests/calendar/calendar_test.h"

#include <algorithm>
#include <random>

using platform::Input_Event;
using platform::Input_Kind;
using platform::Mouse_Button;

namespace {

class Random_Actions : public Calendar_Test {
protected:
    int Upto(int count) { return std::uniform_int_distribution<int>(0, count - 1)(random); }
    bool Once_In(int count) { return Upto(count) == 0; }

    void Mouse(Form &target) {
        constexpr Input_Kind kinds[] = {Input_Kind::Mouse_Down, Input_Kind::Mouse_Up, Input_Kind::Mouse_Up,
                                        Input_Kind::Mouse_Move, Input_Kind::Double_Click};
        constexpr Mouse_Button buttons[] = {Mouse_Button::Left, Mouse_Button::Left, Mouse_Button::Left,
                                            Mouse_Button::Right, Mouse_Button::Middle};
        Input_Event event{};
        event.kind = kinds[Upto(5)];
        event.button =
            event.kind == Input_Kind::Mouse_Move && Once_In(2) ? Mouse_Button::None : buttons[Upto(5)];
        event.point = {Upto(target.Width() + 200) - 100, Upto(target.Height() + 200) - 100};
        // The title is small, and much happens there.
        if (Once_In(4))
            event.point.y = Upto(form.Which_Month_Lbl.Height());
        Desktop().button_held = event.kind == Input_Kind::Mouse_Down;
        target.Input(event);
    }

    void Key() {
        constexpr int keys[] = {13,  33,  34,  36,  37,  38,  39,  40,  46, 93,
                                112, 113, 114, 115, 116, 119, 120, 121, 123};
        Input_Event event{};
        event.key = keys[Upto(19)];
        event.shift = Once_In(2);
        event.repeated = Once_In(8);
        event.kind = Input_Kind::Key_Down;
        form.Input(event);
        event.kind = Input_Kind::Key_Up;
        form.Input(event);
    }

    void Edit() {
        constexpr const char *texts[] = {
            "", "Dentist", "a=b", "with, comma", "\"quoted\"", "long long long text"};
        const Control *const buttons[] = {&editor->Every_Year_Chk, &editor->Apply_Btn, &editor->Ok_Btn,
                                          &editor->Cancel_Btn};
        Input_Event event{};
        if (editor->Visible()) {
            const bool type = Once_In(2);
            event.kind = type ? Input_Kind::Text_Changed : Input_Kind::Clicked;
            event.control = (type ? &editor->Message_Txt : buttons[Upto(4)])->State().index;
            event.text = texts[Upto(6)];
            event.checked = Once_In(2);
            editor->Input(event);
        } else {
            event.kind = Input_Kind::Default_Action;
            event.control = form.Box_Lbl[Upto(Main_Frm::box_count)].State().index;
            form.Input(event);
        }
    }

    void Time() {
        platform::Date_Time &now = Fakes().now;
        if (Once_In(3))
            now = {2002, 1 + Upto(12), 1 + Upto(28), Upto(24), Upto(60), 59, 999};
        Desktop().Advance(static_cast<unsigned>(Once_In(4) ? 61000 : 1000));
    }

    void System() {
        Fakes().first_weekday = Upto(7);
        Desktop().Say(platform::Broadcast::Settings_Changed);
        constexpr int dots[] = {96, 120, 144};
        Desktop().dots_per_inch = dots[Upto(3)];
        Input_Event event{};
        event.kind = Once_In(2) ? Input_Kind::Dots_Changed : Input_Kind::Capture_Lost;
        form.Input(event);
        event.kind = Input_Kind::Focus_Changed;
        event.checked = Once_In(2);
        form.Input(event);
        Desktop().Say(static_cast<platform::Broadcast>(Upto(5)));
        Cur_Settings.Auto_Compact = static_cast<std::int16_t>(Upto(2));
        Cur_Settings.Tooltips = static_cast<std::int16_t>(Upto(3));
    }

    void Act() {
        switch (Upto(10)) {
        case 0:
            return Key();
        case 1:
        case 2:
        case 3:
            return Edit();
        case 4:
            return Time();
        case 5:
            return Once_In(4) ? System() : Mouse(form);
        default:
            return Mouse(form);
        }
    }

    void Check() {
        std::vector<platform::Rect> seen;
        for (const platform::Control_State *control : form.Model().controls)
            if (control->visible)
                seen.push_back(control->bounds);
        EXPECT_EQ(Desktop().mirrors.at(&form.Model()).clip, seen);
        EXPECT_EQ(seen.size() == 1, form.Compacted);
        EXPECT_FALSE(form.Compacted && form.Compact_Timer.Enabled());
        EXPECT_TRUE(form.Cur_Month >= 1 && form.Cur_Month <= 12);
        EXPECT_LE(Desktop().mirrors.size(), 4U); // calendar, editor, balloon, splash
        EXPECT_EQ(form.Balloon_Showing(), form.Timer2.Enabled());
        int marks = 0;
        for (const Label &box : form.Box_Lbl)
            marks += box.State().marked ? 1 : 0;
        EXPECT_LE(marks, form.Compacted ? 0 : 1);
        if (!form.Compacted) {
            const int start = Main_Frm::Start_Box(form.Cur_Month, form.Cur_Year);
            EXPECT_EQ(form.Box_Lbl[start].Caption(), " 1");
        }
        Check_File();
    }

    /// What was written last is what the records in memory say, all of them well formed.
    void Check_File() {
        const std::string &bytes = Fakes().files["C:\\Vellatro\\calendar.dat"];
        Sequential_Reader reader(bytes);
        std::vector<std::string> records;
        for (std::string_view item; reader.Next(item);) {
            Event_Record parts;
            EXPECT_TRUE(Part_Record(item, parts)) << item;
            EXPECT_NO_THROW(Parse_Date_Key(parts.key));
            records.emplace_back(item);
        }
        if (Fakes().writes == writes_checked)
            return;
        writes_checked = Fakes().writes;
        // A new record goes to the file alone, and comes into memory with the next reading.
        if (records.size() == form.Events.Temp_Lst.size() + 1)
            records.pop_back();
        EXPECT_EQ(records, form.Events.Temp_Lst);
    }

    std::mt19937 random{20020305};
    Edit_Frm *editor = nullptr;
    int writes_checked = 0;
};

TEST_F(Random_Actions, break_nothing) {
    Events({"5/3/2002=today", "25/12/9999=every year"});
    Fakes().any_box = true;
    Fakes().registry["Software\\Vellatro\\Settings\\Use Theme Style"] = "0";
    Edit_Frm edit_frm(form);
    editor = &edit_frm;
    Connect_Editor(form, edit_frm);
    Start();
    Desktop().choose = [this](const std::vector<platform::Menu_Item> &items) {
        if (Once_In(4))
            Act(); // time goes on under a menu, and a key may come from elsewhere
        const int chosen = Upto(static_cast<int>(items.size()) + 1);
        if (chosen == 0 || !items[static_cast<std::size_t>(chosen - 1)].enabled)
            return 0;
        return items[static_cast<std::size_t>(chosen - 1)].id;
    };
    for (int i = 0; i < 10'000 && !HasFailure(); ++i) {
        SCOPED_TRACE(i);
        for (int message = Upto(2); message > 0; --message)
            Desktop().messages.push_back([this] { Mouse(form); });
        Act();
        Check();
        Fakes().boxes.clear();
        Desktop().told.clear();
    }
    EXPECT_GT(writes_checked, 100);
}

} // namespace
