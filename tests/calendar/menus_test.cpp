// The popup menus, "Clear", the box style keys, and the keyboard's way over the days.
#include "tests/calendar/calendar_test.h"

using platform::Box_Answer;
using platform::Mouse_Button;

namespace {

const std::vector<std::string> day_menu{"Clear", "Edit", "(Settings)", "Exit"};

class Menus : public Calendar_Test {
protected:
    void Right_Click_Day(int day) {
        Label &box = Box_Of(day);
        Mouse_At({box.Left() + 1, box.Top() + 1});
    }
    void Right_Click_Title(bool right_half) {
        const Label &title = form.Which_Month_Lbl;
        Mouse_At({title.Left() + title.Width() / 2 + (right_half ? 0 : -1), title.Top() + 1});
    }
    void Key(int key, bool shift = false, bool repeated = false) {
        platform::Input_Event event{};
        event.key = key;
        event.shift = shift;
        event.repeated = repeated;
        event.kind = platform::Input_Kind::Key_Down;
        form.Input(event);
        event.kind = platform::Input_Kind::Key_Up;
        event.shift = false; // let go first
        form.Input(event);
    }
    /// The marked day, 0: none is seen.
    int Marked() {
        int marked = 0;
        for (int i = 0; i < Main_Frm::box_count; ++i) {
            if (!form.Box_Lbl[i].State().marked)
                continue;
            EXPECT_EQ(marked, 0) << "two marks";
            EXPECT_EQ(form.Model().focused, form.Box_Lbl[i].State().index);
            marked = std::stoi(form.Box_Lbl[i].Caption());
        }
        return marked;
    }
    std::vector<int> edited;

private:
    void Mouse_At(platform::Point point) {
        platform::Input_Event event{};
        event.kind = platform::Input_Kind::Mouse_Down;
        event.button = Mouse_Button::Right;
        event.point = point;
        form.Input(event);
        event.kind = platform::Input_Kind::Mouse_Up;
        form.Input(event);
    }
};

TEST_F(Menus, clear_takes_the_first_record_of_the_day_and_empties_the_box) {
    Events({"6/3/2002=first", "6/3/9999=second", "7/3/2002=other"});
    Start();
    Desktop().expected_menus.push_back({day_menu, 1, nullptr});
    Right_Click_Day(6);
    EXPECT_FALSE(Desktop().menu_at);
    EXPECT_EQ(Text_Of(6), "");
    EXPECT_EQ(Text_Of(7), "other");
    EXPECT_EQ(Box_Of(6).Tooltip(), "");
    EXPECT_EQ(Box_Of(6).Access().value, "");
    EXPECT_EQ(Fakes().files["C:\\Vellatro\\calendar.dat"], "\"6/3/9999=second\"\r\n\"7/3/2002=other\"\r\n");
    const int writes = Fakes().writes;
    Desktop().expected_menus.push_back({day_menu, 1, nullptr});
    Right_Click_Day(8);
    EXPECT_EQ(Fakes().writes, writes);
}

TEST_F(Menus, the_other_items_of_a_day) {
    Start();
    form.Open_Editor = [this](int index) { edited.push_back(index); };
    Desktop().expected_menus.push_back({day_menu, 2, nullptr});
    Right_Click_Day(1);
    EXPECT_EQ(edited, std::vector<int>{5});
    Desktop().expected_menus.push_back({day_menu, 0, nullptr});
    Right_Click_Day(1);
    EXPECT_EQ(edited.size(), 1U);

    int settings = 0;
    form.Open_Settings = [&settings] { ++settings; };
    Desktop().expected_menus.push_back({{"Clear", "Edit", "Settings", "Exit"}, 3, nullptr});
    Right_Click_Day(1);
    EXPECT_EQ(settings, 1);
    bool may_end = false;
    form.Ask_Unsaved = [&may_end] { return may_end; };
    for (const bool answer : {false, true}) {
        may_end = answer;
        Desktop().expected_menus.push_back({{"Clear", "Edit", "Settings", "Exit"}, 4, nullptr});
        Right_Click_Day(1);
        EXPECT_EQ(Desktop().loop_ended, answer);
    }
}

TEST_F(Menus, an_item_chosen_after_the_month_changed_under_the_menu_does_nothing_to_another_day) {
    // The 20th of March is in the box of the 24th of April, and the 20th of April in that of the 16th of
    // March.
    Events({"20/3/2002=a", "24/4/2002=b", "20/4/2002=c", "16/3/2002=d"});
    Start();
    Fakes().now = {2002, 3, 31, 23, 59, 59, 0};
    Desktop().Advance(1000);
    form.Open_Editor = [this](int index) { edited.push_back(index); };
    const std::string before = Fakes().files["C:\\Vellatro\\calendar.dat"];
    for (const int item : {1, 1, 2, 2}) {
        Desktop().expected_menus.push_back({day_menu, item, [] {
                                                Fakes().now.month = Fakes().now.month == 3 ? 4 : 3;
                                                Desktop().Advance(1000);
                                            }});
        Fakes().any_box = true; // today's alert
        Right_Click_Day(20);
    }
    EXPECT_EQ(Fakes().files["C:\\Vellatro\\calendar.dat"], before);
    EXPECT_TRUE(edited.empty());
}

TEST_F(Menus, months_and_years) {
    Start();
    Desktop().expected_menus.push_back(
        {{"Jan", "Feb", "- Mar", "Apr", "May", "Jun", "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"},
         12,
         nullptr});
    Right_Click_Title(false);
    EXPECT_EQ(form.Which_Month_Lbl.Caption(), "December - 2002");
    EXPECT_EQ(form.Box_Lbl[0].Caption(), " 1"); // laid out: a Sunday
    const std::string now = "Current Month\\Year";
    struct {
        int year;
        std::vector<std::string> items;
        int answer;
        int new_year, new_month;
    } const rows[] = {
        {2002, {"2000", "2001", now, "2003", "2004"}, 1, 2000, 12},
        {2002, {"2000", "2001", now, "2003", "2004"}, 5, 2004, 12},
        {2002, {"2000", "2001", now, "2003", "2004"}, 0, 2002, 12},
        {1990, {"1988", "1989", now, "1991", "1992"}, 3, 2002, 3},
        {100, {now, "101", "102"}, 4, 101, 12},
        {9997, {"9995", "9996", now, "9998"}, 4, 9998, 12},
    };
    for (const auto &row : rows) {
        Show_Month(12, static_cast<std::int16_t>(row.year));
        Desktop().expected_menus.push_back({row.items, row.answer, nullptr});
        Right_Click_Title(true);
        EXPECT_EQ(form.Cur_Year, row.new_year);
        EXPECT_EQ(form.Cur_Month, row.new_month);
    }
}

TEST_F(Menus, expand_is_the_title_s_only_item_in_compact_mode) {
    Start();
    for (const bool right_half : {false, true}) {
        Double_Click(form, form.Which_Month_Lbl);
        for (const int answer : {0, 1}) {
            EXPECT_TRUE(form.Compacted);
            Desktop().expected_menus.push_back({{"Expand"}, answer, nullptr});
            Right_Click_Title(right_half);
        }
        EXPECT_FALSE(form.Compacted);
    }
}

TEST_F(Menus, f8_and_f9_step_through_the_styles_once_the_theme_s_style_is_off) {
    const std::string question = "You can't change the box style because Use Theme Style is selected. Do you "
                                 "want to turn off Use Theme Style?";
    Events({"6/3/2002=a text of several words"});
    Start();
    for (const Box_Answer answer : {Box_Answer::No, Box_Answer::Cancel}) {
        Fakes().Expect_Box(question, answer);
        Key(119);
        EXPECT_EQ(Cur_Settings.Style, 1);
        EXPECT_EQ(Fakes().registry_writes, 0);
    }
    Fakes().Expect_Box(question, Box_Answer::Yes);
    Key(119);
    EXPECT_EQ(Fakes().registry["Software\\Vellatro\\Settings\\Use Theme Style"], "0");
    EXPECT_EQ(Fakes().registry["Software\\Vellatro\\Settings\\Style"], "0");
    EXPECT_EQ(form.Box_Lbl[0].Height(), 34 * 15);
    // The window still stands on the work area's edge, and its region is that of the new boxes.
    EXPECT_EQ(form.Top() + form.Box_Lbl[35].Bounds().Bottom(), 740 * 15 - 75);
    EXPECT_EQ(Desktop().mirrors.at(&form.Model()).clip.back(), form.Box_Caption_Lbl[35].Bounds());
    EXPECT_EQ(Text_Of(6).find('\n'), std::string::npos);
    Key(120);
    EXPECT_EQ(Cur_Settings.Style, 1);
    EXPECT_NE(Text_Of(6).find('\n'), std::string::npos);
    Cur_Settings.Style = 7; // counts as 1
    Key(119);
    EXPECT_EQ(Cur_Settings.Style, 0);

    Fakes().registry_refuses_writes = true;
    Fakes().any_box = true;
    Key(119);
    EXPECT_EQ(Cur_Settings.Style, 0);
    EXPECT_EQ(form.Box_Lbl[0].Height(), 34 * 15);
}

TEST_F(Menus, arrow_keys_move_the_mark_over_the_month_s_edges) {
    Start();
    EXPECT_EQ(Marked(), 0);
    Key(39); // shows it on today
    EXPECT_EQ(Marked(), 5);
    struct {
        int year, month, day, key;
        int new_year, new_month, new_day;
    } const rows[] = {
        {2002, 3, 5, 37, 2002, 3, 4},   {2002, 3, 5, 38, 2002, 2, 26},    {2002, 3, 31, 39, 2002, 4, 1},
        {2002, 3, 25, 40, 2002, 4, 1},  {2002, 12, 31, 39, 2003, 1, 1},   {2003, 1, 3, 38, 2002, 12, 27},
        {100, 1, 1, 37, 100, 1, 1},     {9998, 12, 31, 40, 9998, 12, 31}, {2002, 3, 31, 33, 2002, 2, 28},
        {2002, 3, 31, 34, 2002, 4, 30}, {1999, 7, 9, 36, 2002, 3, 5},     {2002, 3, 9, 36, 2002, 3, 5},
    };
    for (const auto &row : rows) {
        Show_Month(static_cast<std::int16_t>(row.month), static_cast<std::int16_t>(row.year));
        Click(form, Box_Of(row.day)); // takes the mark along
        ASSERT_EQ(Marked(), row.day);
        Key(row.key);
        EXPECT_EQ(Date_Key({form.Cur_Year, form.Cur_Month, static_cast<std::int16_t>(Marked())}),
                  Date_Key({static_cast<std::int16_t>(row.new_year), static_cast<std::int16_t>(row.new_month),
                            static_cast<std::int16_t>(row.new_day)}));
    }
    // Only while the window has the keyboard.
    platform::Input_Event event{};
    event.kind = platform::Input_Kind::Focus_Changed;
    form.Input(event);
    EXPECT_EQ(Marked(), 0);
    event.checked = true;
    form.Input(event);
    EXPECT_EQ(Marked(), 5);
    const auto canvas = Painted(form, Box_Of(5).Bounds());
    int frames = 0; // today's, and the mark inside of it
    for (const Canvas_Operation &operation : canvas.operations)
        frames += operation.kind == Canvas_Operation::Kind::Frame ? 1 : 0;
    EXPECT_EQ(frames, 2);

    Double_Click(form, form.Which_Month_Lbl);
    EXPECT_EQ(Marked(), 0);
    EXPECT_EQ(form.Model().focused, form.Which_Month_Lbl.State().index);
    Key(39);
    Double_Click(form, form.Which_Month_Lbl);
    EXPECT_EQ(Marked(), 5);
}

TEST_F(Menus, keys_act_on_the_marked_day_when_they_went_down_here) {
    Events({"5/3/2002=text"});
    Cur_Settings.Show_Alerts = 0;
    Fakes().registry["Software\\Vellatro\\Settings\\Show Alerts"] = "0";
    Start();
    form.Open_Editor = [this](int index) { edited.push_back(index); };
    Key(13); // a mark that is not seen yet only appears
    EXPECT_EQ(Marked(), 5);
    EXPECT_TRUE(edited.empty());
    Key(13);
    EXPECT_EQ(edited, std::vector<int>{9});
    platform::Input_Event up{}; // of a key that closed a message box
    up.kind = platform::Input_Kind::Key_Up;
    up.key = 46;
    form.Input(up);
    Key(46, false, true); // held since before
    EXPECT_EQ(Text_Of(5), "text");
    for (const int key : {93, 121}) {
        Desktop().expected_menus.push_back({day_menu, 0, nullptr});
        Key(key, key == 121);
        EXPECT_EQ(form.Control_At(*Desktop().menu_at), &form.Box_Caption_Lbl[9]);
    }
    Key(46);
    EXPECT_EQ(Text_Of(5), "");
    EXPECT_EQ(Fakes().files["C:\\Vellatro\\calendar.dat"], "");
    Key(123);
    for (const int key : {13, 46})
        Key(key);
    EXPECT_EQ(edited.size(), 1U);
    Desktop().expected_menus.push_back({{"Expand"}, 1, nullptr});
    Key(93);
    EXPECT_FALSE(form.Compacted);
    EXPECT_EQ(Marked(), 5);
}

} // namespace
