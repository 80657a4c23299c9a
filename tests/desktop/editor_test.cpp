// The event editor by mouse and keyboard: what it saves, refuses and asks, and that its day stays its own.
#include "tests/desktop/driver.h"

#include <windows.h>

namespace {

// The editor's controls.
constexpr int date_lbl = 100;
constexpr int message_txt = 102;
constexpr int every_year_chk = 103;
constexpr int ok_btn = 104;
constexpr int cancel_btn = 105;
constexpr int apply_btn = 106;

// Days of May 2027: the editor of a Saturday reaches from there to the left and never over a Sunday.
constexpr const char *saturday = "Saturday 8th May 2027";
constexpr const char *sunday = "Sunday 9th May 2027";

class Editor : public Desktop_Test {
protected:
    static HWND Window() { return program->Window("Vellatro_Edit_Frm"); }
    static HWND Part(int control) { return GetDlgItem(Window(), control); }
    static bool Unsaved() { return IsWindowEnabled(Part(apply_btn)) != FALSE; }
    static bool Ticked() { return SendMessageA(Part(every_year_chk), BM_GETCHECK, 0, 0) == BST_CHECKED; }

    /// Opens the editor by a double click, which it has to take the keyboard after.
    static void Open(const std::string &day, const std::string &text) {
        program->Double_Click(day);
        ASSERT_TRUE(Becomes(day, [] { return Text_Of(Part(date_lbl)); }));
        ASSERT_TRUE(Becomes(text, [] { return Text_Of(Part(message_txt)); }));
        ASSERT_TRUE(Wait_Until([] { return Has_Keyboard(Part(message_txt)); }));
        EXPECT_FALSE(Unsaved());
    }
    /// Types over all that is there.
    static void Type(const std::string &text) {
        ASSERT_TRUE(Wait_Until([] { return Has_Keyboard(Part(message_txt)); }));
        SendMessageA(Part(message_txt), EM_SETSEL, 0, -1);
        Send_Text(text);
        ASSERT_TRUE(Becomes(text, [] { return Text_Of(Part(message_txt)); }));
        EXPECT_TRUE(Unsaved());
    }
    static void Push(int control) {
        Click_On(Part(control), [] { return !Window(); });
    }
    static ::testing::AssertionResult Asks(const std::string &box) {
        return Becomes(box, [] { return program->Box(); });
    }
    static ::testing::AssertionResult Shows(const std::string &day, const std::string &text) {
        return Becomes(day + ": " + text, [&] {
            const Item item = program->Named(day);
            return item.name + ": " + item.value;
        });
    }
    static inline const Program *program = nullptr;
};

TEST_F(Editor, Saves_Refuses_And_Asks) {
    const std::string rest = "\"9/5/2027=Sunday\"\r\n";
    Write_Data(rest);
    program = &Start_Calendar();
    Open(saturday, "");
    Click_On(Part(every_year_chk), [] { return Ticked(); });
    EXPECT_FALSE(Unsaved()) << "by the tick alone";
    Send_Key('E', true); // back into the text
    ASSERT_TRUE(Wait_Until([] { return Has_Keyboard(Part(message_txt)); }));
    Type("Each May");
    Push(apply_btn);
    EXPECT_EQ(Data(), rest + "\"8/5/9999=Each May\"\r\n");
    EXPECT_TRUE(Shows(saturday, "Each May"));

    Open(saturday, "Each May");
    EXPECT_TRUE(Ticked());
    Type("a \"quote\"");
    Click_On(Part(ok_btn), [] { return !program->Box().empty(); });
    ASSERT_TRUE(
        Asks("warning [Vellatro] Make sure you haven't used any quotation marks (\") in your entry."));
    program->Answer();
    EXPECT_EQ(Text_Of(Part(message_txt)), "a \"quote\"");
    Push(cancel_btn); // without a question
    Open(saturday, "Each May");
    Type("New");
    for (const WORD answer : {WORD{IDCANCEL}, WORD{IDYES}}) {
        program->Double_Click(sunday);
        ASSERT_TRUE(Asks("[Desktop Wallpaper] Save changes for the " + std::string(saturday) + "?"));
        for (const int button : {IDYES, IDNO, IDCANCEL})
            EXPECT_TRUE(GetDlgItem(program->Box_Window(), button)) << button;
        program->Answer(answer);
        if (answer == IDYES)
            break;
        EXPECT_EQ(Text_Of(Part(date_lbl)), saturday);
        ASSERT_TRUE(Wait_Until([] { return Has_Keyboard(Part(message_txt)); }));
        Send_Text("er"); // the text has the keyboard, its caret behind the text
        EXPECT_TRUE(Becomes(std::string("Newer"), [] { return Text_Of(Part(message_txt)); }));
    }
    EXPECT_TRUE(Becomes(std::string("Sunday"), [] { return Text_Of(Part(message_txt)); }));
    EXPECT_EQ(Text_Of(Part(date_lbl)), sunday);
    EXPECT_EQ(Data(), rest + "\"8/5/9999=Newer\"\r\n");
    Push(cancel_btn);
}

TEST_F(Editor, Saves_Unasked_When_The_Session_Waits_For_Nobody) {
    program = &Start_Calendar();
    Open(saturday, "");
    Type("New");
    DWORD_PTR agreed = 0;
    SendMessageTimeoutA(FindWindowA("Vellatro_Broadcasts", nullptr), WM_QUERYENDSESSION, 0,
                        static_cast<LPARAM>(ENDSESSION_CRITICAL), SMTO_ABORTIFHUNG, 5000, &agreed);
    EXPECT_EQ(agreed, 1U);
    EXPECT_EQ(Data(), "\"8/5/2027=New\"\r\n");
    EXPECT_EQ(program->Box(), "");
}

} // namespace
