#include "editor/edit_frm.h"

#include "base/joined.h"
#include "base/scoped_value.h"
#include "platform/locale.h"
#include "platform/message_box.h"
#include "platform/screen.h"
#include "toolkit/rows.h"
#include "toolkit/units.h"

#include <algorithm>

using namespace layout;
using platform::Box_Answer;

namespace {

constexpr int text_width = 370 * 15;
constexpr int text_room = 200; ///< characters visible at once, even if all are wide
constexpr int text_frame = 8 * 15;
constexpr int scroll_bar = 17 * 15;
constexpr int title_bar = 40 * 15; ///< estimated height, with the frame

} // namespace

Edit_Frm::Edit_Frm(Main_Frm &calendar) : Form(platform::Form_Kind::Dialog, "Edit_Frm"), calendar_(calendar) {
    Set_Title("Edit event");
    Ok_Btn.Set_Default(true);
    Cancel_Btn.Set_Cancel(true);
    Apply_Btn.Set_Enabled(false);
    Message_Txt.On_Change = [this] { Message_Txt_Change(); };
    Ok_Btn.On_Click = [this] { Ok_Btn_Click(); };
    Cancel_Btn.On_Click = [this] { Cancel_Btn_Click(); };
    Apply_Btn.On_Click = [this] { Apply_Btn_Click(); };
    On_Close = [this] { Form_Unload(); };
    On_Window_Lost = [this] { Form_Unload(); };
    On_Dots_Changed = [this] { Lay_Out(); };
}

void Edit_Frm::Edit_Box(int index) {
    const Date day = calendar_.Date_Of_Box(index);
    // The user must first answer an open message box of the editor.
    if (busy_ || day.day < 1 || day.day > DaysInMonth({day.year, day.month, 1}))
        return;
    if (!Confirm_Leave())
        return;
    day_ = day;
    // An editor that is already open keeps its "Every year" tick for the next day.
    if (!Visible())
        Every_Year_Chk.Set_Checked(false);
    Fill();
    Date_Lbl.Set_Caption(Full_Date(day_, platform::Month_Name(day_.month)));
    Set_Unsaved(false);
    Lay_Out();
    Place_Near(calendar_.Box_Lbl[index]);
    if (Visible())
        return Return_To_Editor();
    Set_Focus(Message_Txt);
    Show();
}

void Edit_Frm::Fill() {
    const Scoped_Value busy(busy_, true);
    Message_Txt.Set_Text({});
    const Stored_Message message = calendar_.Events.Get_Message(Date_Key(day_));
    load_incomplete_ = message.incomplete;
    if (message.every_year)
        Every_Year_Chk.Set_Checked(true);
    Message_Txt.Set_Text(message.text);
}

/// Asks whether to save unsaved text. Returns false if the editor stays on its day: the user cancels, or the
/// editor refuses the text or cannot save it.
bool Edit_Frm::Confirm_Leave() {
    if (!Visible() || !Apply_Btn.Enabled())
        return true;
    Box_Answer answer{};
    {
        const Scoped_Value busy(busy_, true);
        answer = platform::Message_Box(Joined({"Save changes for the ", Date_Lbl.Caption(), "?"}),
                                       platform::Box_Icon::Question, platform::Box_Buttons::Yes_No_Cancel,
                                       "Desktop Wallpaper");
    }
    if (answer == Box_Answer::No || (answer == Box_Answer::Yes && Apply_Btn_Click()))
        return true;
    Return_To_Editor();
    return false;
}

bool Edit_Frm::Offer_To_Save() {
    if (busy_)
        return false;
    if (!Confirm_Leave())
        return false;
    // Close the editor, so that it does not ask about the discarded text again if something else keeps the
    // program from ending.
    if (Visible() && Apply_Btn.Enabled())
        Form_Unload();
    return true;
}

void Edit_Frm::Save_Without_Asking() {
    if (Visible() && Apply_Btn.Enabled() && Check_Quotes())
        Apply_Btn_Click();
}

/// Brings the open editor to the front and gives its text box the focus.
void Edit_Frm::Return_To_Editor() {
    Bring_To_Front();
    Set_Focus(Message_Txt);
}

bool Edit_Frm::Check_Quotes() const {
    return Message_Txt.Text().find('"') == std::string::npos;
}

bool Edit_Frm::Apply_Btn_Click() {
    const Scoped_Value busy(busy_, true);
    if (!Check_Quotes()) {
        platform::Message_Box("Make sure you haven't used any quotation marks (\") in your entry.",
                              platform::Box_Icon::Exclamation);
        return false;
    }
    const std::string text = Message_Txt.Text();
    if (!Save(text)) {
        Set_Unsaved(true);
        return false;
    }
    calendar_.Show_Saved_Event(day_, text);
    Set_Unsaved(false);
    calendar_.Alert_Done = true;
    Form_Unload();
    return true;
}

/// Stores the text as the day's event. On failure, shows the user a message and returns false.
bool Edit_Frm::Save(const std::string &text) {
    Event_Store &events = calendar_.Events;
    const Undo_Log::Change change(events.Changes, Change_Name("Edit", day_));
    events.Load_File();
    // If Fill could not read the whole file, the day may have an event that the user has not seen. Refuse to
    // save even if the file is readable by now, because saving would replace that event.
    return load_incomplete_ ? Event_Store::Show_Save_Error()
                            : events.Check_For_Pre(Date_Key(day_), text, Every_Year_Chk.Checked());
}

void Edit_Frm::Ok_Btn_Click() {
    Apply_Btn_Click();
}

void Edit_Frm::Cancel_Btn_Click() {
    Form_Unload();
}

void Edit_Frm::Message_Txt_Change() {
    Set_Unsaved(true);
}

void Edit_Frm::Set_Unsaved(bool unsaved) {
    if (unsaved == Apply_Btn.Enabled())
        return;
    Apply_Btn.Set_Enabled(unsaved);
    platform::Explain_Refusal(unsaved ? "An event in the editor is not saved yet." : "");
}

void Edit_Frm::Form_Unload() {
    Set_Unsaved(false);
    Close();
    calendar_.Resume_Auto_Compact();
    if (On_Unload)
        On_Unload();
}

void Edit_Frm::Lay_Out() {
    const int line = platform::Line_Height(Message_Txt.Font());
    platform::Font bold = Message_Txt.Font();
    bold.bold = true;
    Date_Lbl.Set_Font(bold);

    const int wide = std::max(1, platform::Text_Width("W", Message_Txt.Font()));
    const int in_line = std::max(1, (text_width - text_frame - scroll_bar) / wide);
    const int text_lines = (text_room + in_line - 1) / in_line;

    Rows rows{margin, margin, text_width};
    rows.Add(Date_Lbl);
    rows.Add(Message_Lbl, small_gap);
    rows.Add(Message_Txt, gap, text_lines * line + text_frame);
    rows.Add(Every_Year_Chk, margin);
    Place_Buttons({&Ok_Btn, &Cancel_Btn, &Apply_Btn}, margin + text_width, rows.Top());
    Resize(2 * margin + text_width, rows.Top() + button_height + margin);
}

/// Places the editor below the box, or above the box if the editor fits only there. The platform keeps the
/// window on the screen.
void Edit_Frm::Place_Near(const Control &box) {
    const Rect area =
        platform::Work_Area_Around({Twips_To_Pixels(calendar_.Left() + box.Left() + box.Width() / 2),
                                    Twips_To_Pixels(calendar_.Top() + box.Top() + box.Height() / 2)});
    const int height = Height() + title_bar;
    const int box_top = calendar_.Top() + box.Top();
    const int below = calendar_.Top() + box.Bounds().Bottom() + gap;
    const int above = box_top - gap - height;
    const bool fits_below = below + height <= Pixels_To_Twips(area.Bottom());
    const bool fits_above = above >= Pixels_To_Twips(area.top);
    Move(calendar_.Left() + box.Left(), !fits_below && fits_above ? above : below);
}
