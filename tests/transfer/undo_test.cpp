// Undo at the calendar: every kind of change by its name in the menu, and what keeps it from the file. Random
// changes are in tests/core/event_store_test.cpp.
#include "editor/edit_frm.h"
#include "tests/transfer/transfer_test.h"
#include "toolkit/keys.h"

namespace {

class Undoing : public Transfer_Test {
protected:
    Undoing() { form.Close_Settings(); }

    void Undo_Key(bool repeated = false) {
        Input(form, {.kind = platform::Input_Kind::Key_Down,
                     .key = Key_Z,
                     .repeated = repeated,
                     .control_key = true});
    }
    void Choose(int day, const std::string &change, int item) {
        Desktop().expected_menus.push_back(
            {"Clear|Edit|Settings|Exit" + (change.empty() ? "" : "|-|Undo: " + change), item});
        Click(form, Box_Of(day), platform::Mouse_Button::Right);
    }
    void Edit(int day, const std::string &text) {
        Edit_Frm editor(form);
        editor.Edit_Box(Index_Of(day));
        Enter_Text(editor, editor.Message_Txt, text);
        Push(editor, editor.Ok_Btn);
    }
    void Remove_First() {
        Events_Page &page = Open(Settings_Frm::events_fra).Events;
        page.Events_Lst.Select(0);
        page.Events_Lst_DblClick();
    }
    void Import_File(const char *path, const char *title, const Button &button) {
        Fakes().Expect_Dialog(title, path);
        Push(*dialog, button);
    }
};

TEST_F(Undoing, takes_every_kind_of_change_back) {
    Fakes().answer_box = [](const Shown_Box &) { return platform::Box_Answer::Yes; };
    File("C:\\in.csv") = "\"Subject\",\"Start Date\",\"Description\"\r\n\"A\",\"20/3/2002\",\"B\"\r\n";
    File("C:\\in.ics") = "BEGIN:VCALENDAR\nBEGIN:VEVENT\nDTSTART:20020320\nSUMMARY:C\nEND:VEVENT\n"
                         "END:VCALENDAR\n";
    File("C:\\in.dat") = "\"20/3/2002=D\"";
    Choose(20, "", 0);
    Edit(4, "first"); // makes the file
    const std::string first = Data_File();
    // Another hand writes the file, which the program never would write so.
    Data_File() = "\xEF\xBB\xBF 20/3/2002=it\"s \n\n\"1/2/2002=a\",\"5/4/2002=b\"";
    form.Redraw();
    const auto transfer = [this]() -> Transfer_Page & { return Open(Settings_Frm::transfer_fra).Transfer; };
    const struct {
        const char *name;
        std::function<void()> change;
    } kinds[] = {
        {"Clear 20 March", [&] { Choose(20, "Edit 4 March", 1); }},
        {"Remove 1 February", [&] { Remove_First(); }},
        {"Import",
         [&] { Import_File("C:\\in.csv", "Import Events from CSV File", transfer().Import_Btn[2]); }},
        {"Import",
         [&] {
             Import_File("C:\\in.ics", "Import Events from iCalendar File", transfer().Import_ICalendar_Btn);
         }},
        {"Import", [&] { Import_File("C:\\in.dat", "Import Data File", transfer().Import_Btn[0]); }},
        {"Edit 20 March", [&] { Edit(20, ""); }},
    };
    std::vector<std::array<std::string, 3>> before; // name, file, what is seen
    for (const auto &[name, change] : kinds) {
        before.push_back({name, Data_File(), Text_Of(20)});
        change();
        form.Close_Settings();
        EXPECT_NE(Data_File(), before.back()[1]) << name;
    }
    for (; !before.empty(); before.pop_back()) {
        Fakes().unwritable.insert("C:\\Vellatro\\calendar.dat");
        const std::string kept = Data_File();
        Undo_Key();
        EXPECT_TRUE(Data_File() == kept && Fakes().boxes.back().text == "Error saving data file.");
        Fakes().unwritable.clear();
        Undo_Key(true); // a key that is held
        Choose(7, before.back()[0], 5);
        EXPECT_EQ(Data_File(), before.back()[1]) << before.back()[0];
        EXPECT_EQ(Text_Of(20) + Box_Of(20).Access().value, before.back()[2] + before.back()[2]);
    }
    const std::string foreign = Data_File();
    Undo_Key();
    EXPECT_EQ(Data_File(), foreign);
    EXPECT_EQ(Fakes().boxes.back().text,
              "The data file has changed since then, so this was not undone:\r\n\r\nEdit 4 March");
    Data_File() = first;
    Undo_Key();
    EXPECT_FALSE(Fakes().files.contains("C:\\Vellatro\\calendar.dat"));
    Choose(20, "", 0);
    Edit(6, "new"); // and nothing of the old file comes back
    EXPECT_EQ(Data_File(), "\"6/3/2002=new\"\r\n");
}

} // namespace
