// Ten thousand random actions on the calendar and its editor without a screen: whatever a user does in
// whatever order, nothing breaks that always holds.
#include "app/program.h"
#include "core/settings.h"
#include "editor/edit_frm.h"
#include "tests/calendar/calendar_test.h"

#include <algorithm>
#include <random>
#include <sstream>

using platform::Box_Answer;
using platform::Input_Kind;
using platform::Mouse_Button;

namespace {

class Random_Actions : public Calendar_Test {
protected:
    int Upto(int count) { return std::uniform_int_distribution<int>(0, count - 1)(random); }
    template <typename Choice>
    Choice One_Of(std::initializer_list<Choice> choices) {
        return choices.begin()[Upto(static_cast<int>(choices.size()))];
    }

    void Mouse() {
        const auto kind = One_Of({Input_Kind::Mouse_Down, Input_Kind::Mouse_Up, Input_Kind::Mouse_Up,
                                  Input_Kind::Mouse_Move, Input_Kind::Double_Click});
        // The title is small, and much happens there.
        const int height = One_Of({form.Height(), form.Height(), form.Which_Month_Lbl.Height()});
        Desktop().button_held = kind == Input_Kind::Mouse_Down;
        Send(kind, {Upto(form.Width()), Upto(height)},
             One_Of({Mouse_Button::Left, Mouse_Button::Left, Mouse_Button::Right, Mouse_Button::Middle}));
    }

    void Time_And_System() {
        if (Upto(3) == 0)
            Fakes().now = {2002, 1 + Upto(12), 1 + Upto(28), Upto(24), Upto(60), 59, 999};
        Desktop().Advance(One_Of({1000U, 61000U}));
        Cur_Settings.Auto_Compact = static_cast<std::int16_t>(Upto(2));
        Cur_Settings.Tooltips = static_cast<std::int16_t>(Upto(3));
        Send(One_Of({Input_Kind::Dots_Changed, Input_Kind::Capture_Lost, Input_Kind::Focus_Changed}));
        Desktop().Say(static_cast<platform::Broadcast>(Upto(5)));
    }

    void Tell_Editor(Input_Kind kind, const Control &control, const std::string &text = {}) {
        platform::Input_Event event{};
        event.kind = kind;
        event.control = control.State().index;
        event.text = text;
        event.checked = Upto(2) == 0;
        editor.Model().input(event);
    }

    /// The key of the edited day, which the user knows only as 5th March 2002.
    std::string Edited_Key() const {
        std::istringstream words(editor.Date_Lbl.Caption());
        std::string weekday, day, month, year;
        words >> weekday >> day >> month >> year;
        const auto &months = Fakes().months;
        const auto number = std::find(months.begin(), months.end(), month) - months.begin() + 1;
        return std::to_string(std::stoi(day)) + "/" + std::to_string(number) + "/" + year;
    }

    /// After a save the first record of the day is the one that was typed, and its box shows it.
    void Save() {
        const std::string key = Edited_Key();
        const std::string stem = key.substr(0, key.rfind('/') + 1);
        const std::string text = editor.Message_Txt.Text();
        const bool every_year = editor.Every_Year_Chk.Checked();
        Tell_Editor(Input_Kind::Clicked, editor.Ok_Btn);
        EXPECT_EQ(editor.Visible(), text.find('"') != std::string::npos);
        if (editor.Visible())
            return;
        ++saves;
        form.Events.Load_File();
        const auto &records = form.Events.Temp_Lst;
        const auto first = std::find_if(records.begin(), records.end(), [&](const std::string &record) {
            return record.starts_with(key + "=") || record.starts_with(stem + "9999=");
        });
        // Without a text the first record is gone, and another one may be behind it.
        if (!text.empty()) {
            ASSERT_NE(first, records.end());
            EXPECT_EQ(*first, (every_year ? stem + "9999=" : key + "=") + text);
        }
        const std::string shown = std::to_string(form.Cur_Month) + "/" + std::to_string(form.Cur_Year);
        if (key == std::to_string(std::stoi(key)) + "/" + shown) {
            EXPECT_EQ(Box_Of(std::stoi(key)).Access().value, text);
        }
    }

    void Edit() {
        switch (Upto(4)) {
        case 0:
            return Tell_Editor(Input_Kind::Clicked, editor.Every_Year_Chk);
        case 1:
            return Tell_Editor(Input_Kind::Clicked, editor.Cancel_Btn);
        case 2:
            return Save();
        default:
            return Tell_Editor(Input_Kind::Text_Changed, editor.Message_Txt,
                               One_Of({"", "a text", "another, = one", "a \"quote\""}));
        }
    }

    void Act() {
        if (editor.Visible() && Upto(3) == 0)
            Edit();
        else if (Upto(5) == 0)
            Time_And_System();
        else if (Upto(4) == 0)
            Press_Key(form, One_Of({13, 33, 34, 36, 37, 40, 46, 93, 112, 113, 114, 115, 119, 120, 123}));
        else
            Mouse();
    }

    /// What a save wrote is read as it was written, and a save changes one record.
    void Check_File() {
        const auto count = std::count(Data_File().begin(), Data_File().end(), '\n');
        EXPECT_LE(std::abs(count - records_before), Fakes().writes - writes_before);
        writes_before = Fakes().writes;
        records_before = count;
        const std::string bytes = Data_File();
        Event_Store store;
        store.Load_File();
        store.Write_ALL();
        EXPECT_EQ(static_cast<std::ptrdiff_t>(store.Temp_Lst.size()), count);
        EXPECT_EQ(Data_File(), bytes);
        writes_before = Fakes().writes;
    }

    std::mt19937 random{20020305};
    Edit_Frm editor{form};
    int saves = 0;
    int writes_before = 0;
    std::ptrdiff_t records_before = 0;
};

TEST_F(Random_Actions, break_nothing) {
    Events({"5/3/2002=today", "12/4/9999=April", "25/12/9999=December"});
    Fakes().any_box = true;
    Connect_Editor(form, editor);
    Start();
    records_before = 3;
    Desktop().choose = [this](const std::vector<platform::Menu_Item> &) {
        Act(); // time goes on under a menu, and a key may come from elsewhere
        return One_Of({0, 1, 2, 4});
    };
    for (int i = 0; i < 10'000 && !HasFailure(); ++i) {
        SCOPED_TRACE(i);
        Desktop().messages.push_back([this] { Mouse(); });
        if (editor.Visible())
            Fakes().Expect_Box("Save changes for the " + editor.Date_Lbl.Caption() + "?",
                               One_Of({Box_Answer::Yes, Box_Answer::No, Box_Answer::Cancel}));
        Act();
        Fakes().expected_boxes.clear();
        if (Fakes().writes != writes_before)
            Check_File();
        EXPECT_EQ(std::count_if(
                      Desktop().mirrors.begin(), Desktop().mirrors.end(),
                      [](const auto &mirror) { return mirror.first->kind == platform::Form_Kind::Dialog; }),
                  editor.Visible() ? 1 : 0);
        EXPECT_EQ(Desktop().mirrors.at(&form.Model()).clip, Seen());
        EXPECT_EQ(Seen().size() == 1, form.Compacted);
        EXPECT_FALSE(form.Compacted && form.Compact_Timer.Enabled());
        EXPECT_EQ(form.Balloon_Showing(), form.Timer2.Enabled());
        EXPECT_TRUE(form.Compacted || Box_Of(1).Caption() == " 1");
    }
    EXPECT_GT(saves, 50);
}

} // namespace
