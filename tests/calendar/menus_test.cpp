// The popup menus, "Clear", the box style keys, and moving over the days by keyboard.
#include "tests/calendar/calendar_test.h"

using platform::Input_Kind;

namespace {

constexpr const char *day_menu = "Clear|Edit|(Settings)|Exit";

class Menus : public Calendar_Test {
protected:
    Menus() {
        form.Open_Editor = [this](int index) { edited.push_back(index); };
    }
    void Choose(int day, int item, const std::function<void()> &meanwhile = nullptr) {
        const std::string undo(form.Events.Changes.Name());
        Desktop().expected_menus.push_back(
            {undo.empty() ? day_menu : day_menu + ("|-|Undo: " + undo), item, meanwhile});
        Click(form, Box_Of(day), platform::Mouse_Button::Right);
    }
    void Choose_On_Title(int right, const std::string &items, int item) {
        Desktop().expected_menus.push_back({items, item});
        Input(form, {.kind = Input_Kind::Mouse_Down,
                     .point = {form.Width() / 2 + right, 90},
                     .button = platform::Mouse_Button::Right});
    }
    /// Returns the marked day, or 0 if no mark is visible.
    std::int16_t Marked() {
        for (Label &box : form.Box_Lbl)
            if (box.State().marked)
                return static_cast<std::int16_t>(std::stoi(box.Caption()));
        return 0;
    }
    std::vector<int> edited;
};

TEST_F(Menus, of_a_day) {
    Events({"6/3/2002=first", "6/3/9999=second", "7/3/2002=other"});
    Start();
    Choose(6, 1); // "Clear" deletes the day's first record, and clears the box
    EXPECT_EQ(Text_Of(6) + Box_Of(6).Tooltip() + Box_Of(6).Access().value, "");
    Choose(7, 5, [this] { form.Clear_Box(Index_Of(7)); }); // cleared under the open menu: not to be undone
    EXPECT_EQ(Records(), "6/3/9999=second|");
    Choose(8, 1);
    Choose(1, 2, [this] { Press_Key(form, 123); }); // compact mode begins while the menu is open
    EXPECT_TRUE(Fakes().writes == 2 && edited == std::vector<int>{5});
    Press_Key(form, 123);
    // If the month changes while the menu is open, the chosen item does nothing to the day now in that box.
    edited.clear();
    Show_Month(3, 2002);
    Events({"20/3/2002=a", "24/4/2002=b", "20/4/2002=c", "16/3/2002=d"});
    const auto step = [this] {
        Input(form, {.kind = Input_Kind::Default_Action},
              form.Cur_Month == 3 ? &form.Next_Month_Lbl : &form.Prev_Month_Lbl);
    };
    for (const int item : {1, 1, 2, 2})
        Choose(20, item, step);
    EXPECT_TRUE(Fakes().writes == 2 && edited.empty());
    // A chosen year keeps the month shown when the menu opened, and a chosen month the year.
    Show_Month(1, 2005);
    Desktop().expected_menus = {{"2003|2004|Current Month\\Year|2006|2007", 5, step},
                                {"- Jan|Feb|Mar|Apr|May|Jun|Jul|Aug|Sep|Oct|Nov|Dec", 12, step}};
    for (const int key : {89, 77})
        Press_Key(form, key);
    EXPECT_EQ(form.Which_Month_Lbl.Caption(), "December - 2007");
    for (const bool may_end : {false, true}) {
        form.Offer_To_Save = [may_end] { return may_end; };
        Choose(1, 4);
        EXPECT_EQ(Desktop().loop_ended, may_end);
    }
}

TEST_F(Menus, of_the_title) {
    struct {
        std::int16_t year;
        const char *items;
        int answer;
        const char *title;
    } const rows[] = {
        {2002, "2000|2001|Current Month\\Year|2003|2004", 1, "December - 2000"},
        {1990, "1988|1989|Current Month\\Year|1991|1992", 3, "5th March - 2002"},
        {100, "Current Month\\Year|101|102", 4, "December - 101"},
        {9997, "9995|9996|Current Month\\Year|9998", 4, "December - 9998"},
    };
    Start();
    Choose_On_Title(-1, "Jan|Feb|- Mar|Apr|May|Jun|Jul|Aug|Sep|Oct|Nov|Dec", 12);
    Click(form, form.Next_Month_Lbl, platform::Mouse_Button::Right); // only the left one steps
    EXPECT_EQ(form.Which_Month_Lbl.Caption(), "December - 2002");
    for (const auto &row : rows) {
        Show_Month(12, row.year);
        Choose_On_Title(1, row.items, row.answer);
        EXPECT_EQ(form.Which_Month_Lbl.Caption(), row.title);
    }
    Double_Click(form, form.Which_Month_Lbl);
    for (const int answer : {0, 1}) {
        Choose_On_Title(2 * answer - 1, "Expand", answer);
        EXPECT_EQ(form.Compacted, answer == 0);
    }
}

TEST_F(Menus, keys_move_the_mark_over_the_month_s_edges) {
    struct {
        Date from;
        int key;
        Date to;
    } const rows[] = {
        {{2002, 3, 5}, 37, {2002, 3, 4}},     {{2002, 3, 5}, 38, {2002, 2, 26}},
        {{2002, 12, 25}, 40, {2003, 1, 1}},   {{2003, 1, 1}, 37, {2002, 12, 31}},
        {{100, 1, 1}, 37, {100, 1, 1}},       {{100, 1, 1}, 33, {100, 1, 1}},
        {{9998, 12, 31}, 40, {9998, 12, 31}}, {{9998, 12, 31}, 34, {9998, 12, 31}},
        {{2002, 3, 31}, 33, {2002, 2, 28}},   {{1999, 7, 9}, 36, {2002, 3, 5}},
        {{2002, 3, 30}, 39, {2002, 3, 31}},
    };
    Start();
    Show_Month(3, 2001);
    Press_Key(form, 39); // shows the mark, on today only if the month has it
    for (const auto &[key, year] : {std::pair(33, 2000), {33, 1999}, {34, 2000}, {34, 2001}}) {
        Input(form, {.kind = Input_Kind::Key_Down, .key = key, .control_key = true});
        EXPECT_TRUE(form.Cur_Year == year && form.Cur_Month == 3 && Marked() == 1) << year;
    }
    Input(form, {.kind = Input_Kind::Focus_Changed, .checked = true}); // Alt+F4 closed the editor
    Input(form, {.kind = Input_Kind::Key_Up, .key = 115});
    Input(form, {.kind = Input_Kind::Key_Up, .key = 115, .alt = true});
    EXPECT_EQ(form.Cur_Month, 3);
    for (const auto &row : rows) {
        Show_Month(row.from.month, row.from.year);
        Click(form, Box_Of(row.from.day)); // moves the mark
        Press_Key(form, row.key);
        EXPECT_EQ(Date_Key({form.Cur_Year, form.Cur_Month, Marked()}), Date_Key(row.to));
        EXPECT_EQ(form.Model().focused, Box_Of(row.to.day).State().index);
    }
    Cur_Settings.Use_Theme_Style = 0;
    for (const int key : {119, 120}) { // the other style; a dragged calendar stays in its place
        EXPECT_EQ(form.Top() == 450, key == 120);
        Press_Key(form, key);
        EXPECT_EQ(Desktop().mirrors.at(&form.Model()).clip, Seen());
        EXPECT_EQ(form.Top() + form.Box_Lbl[35].Bounds().Bottom() == 740 * 15 - 75, key == 119);
        form.Move(300, 450);
    }
    Input(form, {.kind = Input_Kind::Focus_Changed}); // the focus is lost
    EXPECT_EQ(Marked(), 0);
}

TEST_F(Menus, keys_act_on_the_marked_day_when_they_went_down_here) {
    Stored("Show Alerts") = "0";
    Start();
    for (const int key : {114, 116}) { // F3 and F5 read the file again
        Events({"5/3/2002=" + std::string(key == 114 ? "F3" : "text")});
        Press_Key(form, key);
        EXPECT_EQ(Text_Of(5), key == 114 ? "F3" : "text");
    }
    Press_Key(form, 46); // the first key only shows the mark
    Press_Key(form, 13);
    Input(form, {.kind = Input_Kind::Key_Up, .key = 46}); // the key went down in a message box
    EXPECT_EQ(Text_Of(5), "text");
    Desktop().expected_menus = {{day_menu, 0}, {"Expand", 1}};
    Press_Key(form, 93);
    EXPECT_EQ(form.Control_At(*Desktop().menu_at), &form.Box_Caption_Lbl[9]);
    Press_Key(form, 46);
    EXPECT_EQ(Text_Of(5) + Data_File(), "");
    for (const int key : {123, 13, 121, 93}) // into compact mode and out of it
        Press_Key(form, key);
    EXPECT_TRUE(edited == std::vector<int>{9} && Marked() == 5);
}

} // namespace
