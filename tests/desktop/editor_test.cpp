// The event editor by mouse and keyboard: what it saves, refuses and asks.
#include "tests/desktop/driver.h"

#include <windows.h>

namespace {

// Identifiers of the editor's controls.
constexpr int date_lbl = 100;
constexpr int message_txt = 102;
constexpr int every_year_chk = 103;
constexpr int ok_btn = 104;
constexpr int cancel_btn = 105;
constexpr int apply_btn = 106;

// Days of May 2027. The editor of a Saturday opens to its left and never covers a Sunday.
constexpr const char *saturday = "Saturday 8th May 2027";
constexpr const char *sunday = "Sunday 9th May 2027";

class Editor : public Desktop_Test {
protected:
    static HWND Window() { return program->Window("Vellatro_Edit_Frm"); }
    static HWND Part(int control) { return GetDlgItem(Window(), control); }
    static bool Unsaved() { return IsWindowEnabled(Part(apply_btn)) != FALSE; }
    static bool Ticked() { return SendMessageA(Part(every_year_chk), BM_GETCHECK, 0, 0) == BST_CHECKED; }

    /// Opens the editor by a double click, and expects the text to get the keyboard focus.
    static void Open(const std::string &day, const std::string &text) {
        program->Double_Click(day);
        ASSERT_TRUE(Becomes(day, [] { return Text_Of(Part(date_lbl)); }));
        ASSERT_TRUE(Becomes(text, [] { return Text_Of(Part(message_txt)); }));
        ASSERT_TRUE(Wait_Until([] { return Has_Keyboard(Part(message_txt)); }));
        EXPECT_FALSE(Unsaved());
    }
    /// Replaces the whole text by typing.
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
    static inline const Program *program = nullptr;
};

TEST_F(Editor, Saves_Refuses_And_Asks) {
    const std::string rest = "\"9/5/2027=Sunday\"\r\n";
    Write_Data(rest);
    program = &Start_Calendar();
    Open(saturday, "");
    Click_On(Part(every_year_chk), [] { return Ticked(); });
    EXPECT_FALSE(Unsaved()) << "by the tick alone";
    Send_Key('E', true); // the access key of the text, to which Type waits for the keyboard to go
    Type("Each May");
    Push(apply_btn);
    EXPECT_EQ(Data(), rest + "\"8/5/9999=Each May\"\r\n");
    EXPECT_TRUE(Becomes(std::string("Each May"), [] { return program->Named(saturday).value; }));

    Open(saturday, "Each May");
    EXPECT_TRUE(Ticked());
    Type("a \"quote\"");
    Click_On(Part(ok_btn), [] { return !program->Box().empty(); });
    ASSERT_TRUE(
        Asks("warning [Vellatro] Make sure you haven't used any quotation marks (\") in your entry."));
    program->Answer();
    EXPECT_EQ(Text_Of(Part(message_txt)), "a \"quote\"");
    Push(cancel_btn); // asks nothing
    Open(saturday, "Each May");
    Type("New");
    program->Double_Click(sunday);
    ASSERT_TRUE(Asks("[Desktop Wallpaper] Save changes for the " + std::string(saturday) + "?"));
    program->Answer(IDYES);
    EXPECT_TRUE(Becomes(std::string("Sunday"), [] { return Text_Of(Part(message_txt)); }));
    EXPECT_EQ(Text_Of(Part(date_lbl)), sunday);
    EXPECT_EQ(Data(), rest + "\"8/5/9999=New\"\r\n");
    Type("Forced"); // a forced end of the session saves it without asking
    DWORD_PTR agreed = 0;
    SendMessageTimeoutA(FindWindowA("Vellatro_Broadcasts", nullptr), WM_QUERYENDSESSION, 0,
                        static_cast<LPARAM>(ENDSESSION_CRITICAL), SMTO_ABORTIFHUNG, 5000, &agreed);
    EXPECT_EQ(agreed, 1U);
    EXPECT_EQ(Data(), "\"9/5/2027=Forced\"\r\n\"8/5/9999=New\"\r\n");
    EXPECT_EQ(program->Box(), "");
}

} // namespace
