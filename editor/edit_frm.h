// The event editor: the dialog that changes the event of one day. core/event_store.h stores the events,
// calendar/main_frm.h shows them.
#pragma once

#include "calendar/main_frm.h"
#include "core/date.h"
#include "toolkit/form.h"

/// Edits one day at a time. The editor keeps its day while it is open, whatever month the calendar shows.
class Edit_Frm : public Form {
public:
    /// `calendar` must outlive the editor.
    explicit Edit_Frm(Main_Frm &calendar);

    /// Opens the editor for box `index` of the shown month. Does nothing if the box has no day, or while a
    /// message box of the editor is open. If the editor is already open, first asks whether to save its
    /// unsaved text, and may stay on its day.
    void Edit_Box(int index);

    /// Offers to save unsaved text before the program or the session ends. Returns false if the user cancels,
    /// if the editor cannot save the text, or while an earlier message box is still open.
    bool Offer_To_Save();

    /// Saves unsaved text and closes the editor without a question, because the session ends without waiting
    /// for an answer. Leaves a text with a double quote unsaved.
    void Save_Without_Asking();

    /// Returns false if the text holds a double quote, which a record cannot store.
    bool Check_Quotes() const;

    /// Saves the text and closes the editor. If the editor refuses the text or cannot save it, shows the user
    /// a message, stays open with the text and returns false.
    bool Apply_Btn_Click();
    void Ok_Btn_Click();
    void Cancel_Btn_Click();
    void Message_Txt_Change();

    /// Called after the editor has closed, for any reason.
    Handler<> On_Unload;

    Label Date_Lbl{*this, "Date_Lbl"};
    Label Message_Lbl{*this, "Message_Lbl", "&Event:"}; ///< labels the text box
    Text_Box Message_Txt{*this, "Message_Txt"};
    Check_Box Every_Year_Chk{*this, "Every_Year_Chk", "Every &year"};
    Button Ok_Btn{*this, "Ok_Btn", "OK"};
    Button Cancel_Btn{*this, "Cancel_Btn", "Cancel"};
    Button Apply_Btn{*this, "Apply_Btn", "&Apply"}; ///< enabled while there is unsaved text

private:
    bool Confirm_Leave();
    bool Save(const std::string &text);
    void Set_Unsaved(bool unsaved);
    void Fill();
    void Form_Unload();
    void Return_To_Editor();
    void Lay_Out();
    void Place_Near(const Control &box);

    Main_Frm &calendar_;
    Date day_;                     ///< the edited day, which determines the record's key and the box
    bool load_incomplete_ = false; ///< the day may have an event that the editor could not read
    bool busy_ = false;            ///< a procedure that shows message boxes is running
};
