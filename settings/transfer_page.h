// The page "Import\Export" of the settings dialog. What its buttons do is in transfer/.
#pragma once

#include "base/callback.h"
#include "settings/page.h"
#include "toolkit/control_array.h"
#include "transfer/export.h"
#include "transfer/import.h"

#include <cstdint>
#include <vector>

class Transfer_Page {
public:
    [[gnu::noinline]] Transfer_Page(Form &dialog, Frame &frame, Main_Frm &calendar);

    // To be filled by the dialog.

    /// The configuration that the dialog shows, changes that are not applied yet included.
    Callback<Settings()> Shown_Configuration;
    /// Lists imported events instead of what is listed.
    Callback<void(std::vector<Sort_Entry>)> Show_Staged;
    /// Lists and counts the events of the data file anew.
    Callback<void()> Data_File_Replaced;
    /// Closes the dialog, which does not show the settings any more.
    Callback<void()> Configuration_Imported;
    /// Shows the settings anew: a part of a configuration was imported.
    Callback<void()> Configuration_Partly_Imported;

    void Export_Btn_Click(std::int16_t index);
    void Import_Btn_Click(std::int16_t index);
    /// Places the controls, also after a change of the dots per inch.
    void Lay_Out();

    Frame Export_Fra;
    Control_Array<Button, 4> Export_Btn;
    Control_Array<Label, 4> Export_Lbl;
    Button Export_ICalendar_Btn;
    Label Export_ICalendar_Lbl;
    Frame Import_Fra;
    Control_Array<Button, 3> Import_Btn;
    Control_Array<Label, 3> Import_Lbl;
    Button Import_ICalendar_Btn;
    Label Import_ICalendar_Lbl;
    Label Progress_Lbl; ///< names the bar; both are seen while something takes long
    Progress_Bar Progress_Bar1;
    OpenSaveDialog Dialog1;

private:
    void Export(Export_Kind kind);
    void Show_Progress(int percent);
    void End_Progress();

    Form &dialog_;
    Importer importer_;
    Progress progress_; ///< of the exports
};
