// The "Import\Export" page of the settings dialog. The code in transfer/ does the work of its buttons.
#pragma once

#include "base/callback.h"
#include "settings/page.h"
#include "toolkit/control_array.h"
#include "transfer/export.h"
#include "transfer/import.h"

class Transfer_Page final : public Page {
public:
    Transfer_Page(Frame &frame, Main_Frm &calendar);
    void Lay_Out() override;

    /// Returns the configuration that the dialog shows, including changes that are not applied yet. The
    /// dialog sets this callback and most of those in `Import`.
    Callback<Settings()> Shown_Configuration;

    void Export_Btn_Click(int index); ///< the number of an Export_Kind
    void Import_Btn_Click(int index);

    Frame Export_Fra{frame_, "Export_Fra", "Export"};
    Control_Array<Button, 4> Export_Btn{Export_Fra, "Export_Btn"};
    Control_Array<Label, 4> Export_Lbl{Export_Fra, "Export_Lbl"};
    Button Export_ICalendar_Btn{Export_Fra, "Export_ICalendar_Btn", "&iCalendar..."};
    Label Export_ICalendar_Lbl{Export_Fra, "Export_ICalendar_Lbl",
                               "All events, for calendars on the web and on phones."};
    Frame Import_Fra{frame_, "Import_Fra", "Import"};
    Control_Array<Button, 3> Import_Btn{Import_Fra, "Import_Btn"};
    Control_Array<Label, 3> Import_Lbl{Import_Fra, "Import_Lbl"};
    Button Import_ICalendar_Btn{Import_Fra, "Import_ICalendar_Btn", "iCal&endar..."};
    Label Import_ICalendar_Lbl{Import_Fra, "Import_ICalendar_Lbl",
                               "Adds the events of another calendar to your events."};
    Label Progress_Lbl{frame_, "Progress_Lbl", "Progress:"}; ///< labels the bar
    Progress_Bar Progress_Bar1{frame_, "Progress_Bar1"};
    OpenSaveDialog Dialog1{&dialog_.Model()};
    Importer Import;

private:
    void Export(Export_Kind kind);
    void Show_Progress(int percent);
    void End_Progress();

    Progress progress_; ///< the progress of an export
};
