// The event editor: the dialog that changes the event of one day. How events are kept (core/event_store.h)
// and shown (calendar/main_frm.h) is not here.
#pragma once

#include "calendar/main_frm.h"
#include "core/date.h"
#include "toolkit/form.h"

/// Edits one day at a time. That day stays the editor's own while it is open, whatever month the calendar
/// shows meanwhile.
class Edit_Frm : public Form {
public:
    /// `calendar` must outlive the editor.
    explicit Edit_Frm(Main_Frm &calendar);

    /// Opens the editor for box `index` of the shown month; a box without a day opens nothing. An editor that
    /// is open already asks for its unsaved text first and may stay on its day.
    void Edit_Box(int index);

    /// Before the program or the session ends: offers unsaved text for saving. False when the user wants to
    /// stay, when the text cannot be saved as it is, and while a question about it is open already.
    bool Offer_To_Save();

    /// Saves unsaved text without a question and closes, where the session cannot wait. A text that is
    /// refused stays as it is.
    void Save_Without_Asking();

    /// False when the text holds a double quote, which no record can carry.
    bool Check_Quotes() const;

    /// Saves and closes. False when the text was refused or could not be saved, which the user has been told;
    /// the editor stays open with it then.
    bool Apply_Btn_Click();
    void Ok_Btn_Click();
    void Cancel_Btn_Click();
    void Message_Txt_Change();

    /// After the editor was closed, by whatever way.
    Handler<> On_Unload;

    Label Date_Lbl{*this, "Date_Lbl"};
    Label Message_Lbl{*this, "Message_Lbl", "&Event:"}; ///< names the text box
    Text_Box Message_Txt{*this, "Message_Txt"};
    Check_Box Every_Year_Chk{*this, "Every_Year_Chk", "Every &year"};
    Button Ok_Btn{*this, "Ok_Btn", "OK"};
    Button Cancel_Btn{*this, "Cancel_Btn", "Cancel"};
    Button Apply_Btn{*this, "Apply_Btn", "&Apply"}; ///< enabled: there is unsaved text

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
    Date day_;                     ///< being edited; its key and its box follow from it
    bool load_incomplete_ = false; ///< the day's event may be one that the editor has not seen
    bool busy_ = false;            ///< in a procedure that shows message boxes
};
