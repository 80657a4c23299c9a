// Undo from the calendar: the menu names each kind of change, and undo refuses if the file cannot be written
// or was changed. tests/core/event_store_test.cpp undoes random changes.
#include "editor/edit_frm.h"
#include "tests/transfer/transfer_test.h"
#include "toolkit/keys.h"

using platform::Input_Kind;

namespace {

class Undoing : public Transfer_Test {
protected:
    Undoing() { form.Close_Settings(); }

    void Undo_Key(bool repeated = false) {
        Input(form, {.kind = Input_Kind::Key_Down, .key = Key_Z, .repeated = repeated, .control_key = true});
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
    void Import_From(int index, const char *path) {
        Open(Settings_Frm::transfer_fra);
        Import(index, path, "");
    }
};

TEST_F(Undoing, takes_every_kind_of_change_back) {
    Fakes().answer_box = [](const Shown_Box &) { return platform::Box_Answer::Yes; };
    File("C:\\in.csv") = "\"Subject\",\"Start Date\",\"Description\"\r\n\"A\",\"20/3/2002\",\"B\"\r\n";
    File("C:\\in.ics") = "BEGIN:VCALENDAR\nBEGIN:VEVENT\nDTSTART:20020320\nSUMMARY:C\nEND:VEVENT\n"
                         "END:VCALENDAR\n";
    File("C:\\in.dat") = "\"20/3/2002=D\"";
    Choose(20, "", 0);
    Edit(4, "first"); // creates the file
    const std::string first = Data_File();
    // The file is now hand-written, in a form that the program never writes.
    Data_File() = "\xEF\xBB\xBF 20/3/2002=it\"s \n\n\"1/2/2002=a\",\"5/4/2002=b\"";
    form.Redraw();
    const struct {
        const char *name;
        std::function<void()> change;
    } kinds[] = {
        {"Clear 20 March", [&] { Choose(20, "Edit 4 March", 1); }},
        {"Remove 1 February",
         [&] {
             Open(Settings_Frm::events_fra).Events.Events_Lst.Select(0);
             dialog->Events.Events_Lst_DblClick();
         }},
        {"Import", [&] { Import_From(2, "C:\\in.csv"); }},
        {"Import", [&] { Import_From(3, "C:\\in.ics"); }},
        {"Import", [&] { Import_From(0, "C:\\in.dat"); }},
        {"Edit 20 March", [&] { Edit(20, "E"); }},
        {"Edit 20 March", [&] { Edit(20, ""); }},
    };
    std::vector<std::array<std::string, 3>> before; // name, file, text shown
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
        Undo_Key(true); // a held key is ignored
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
    Edit(6, "new"); // does not bring back anything of the old file
    EXPECT_EQ(Data_File(), "\"6/3/2002=new\"\r\n");
}

} // namespace
