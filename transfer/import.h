// Importing events, a configuration or a whole data file from files that the user chooses. csv.h and
// icalendar.h read events, merging.h and icalendar_merging.h merge them, and configuration.h reads settings.
#pragma once

#include "base/callback.h"
#include "calendar/main_frm.h"
#include "core/events.h"
#include "transfer/csv.h"
#include "transfer/icalendar_merging.h"
#include "transfer/progress.h"
#include "ui/open_save_dialog.h"

#include <string>
#include <vector>

/// The imports, with all messages to the user. They report file errors instead of throwing them.
class Importer {
public:
    /// Both arguments must outlive the object. `dialog` asks for the files.
    Importer(Main_Frm &calendar, OpenSaveDialog &dialog);

    void Import_CSV();
    void Import_Config();
    void Import_Data_File();
    void Import_ICalendar();

    // The owner must set all of these.

    Progress Import_Progress;
    /// Replaces the contents of the list of events with these events.
    Callback<void(std::vector<Event>)> Show_Staged_Events;
    /// Reloads the list of events and their counts after an import into the data file.
    Callback<void()> On_Data_File_Replaced;
    /// Shows the hourglass over the dialog until the work ends.
    Callback<void()> Show_Hourglass;
    /// Closes the dialog, because it no longer shows the current settings.
    Callback<void()> On_Configuration_Changed;
    /// Shows the current settings in the dialog and keeps it open: the import has changed only a part of
    /// them.
    Callback<void()> On_Configuration_Partly_Changed;

    static std::string Backup_File();

private:
    bool Ask_File(const char *title, const char *filter, bool not_own_file);
    void Stage_Events(const std::string &bytes, std::vector<Event> &staged);
    void Merge_Imported(std::vector<Event> &staged);
    void Write_Merged(const std::vector<Event> &staged) const;
    Merge_Counts Import_Events(const std::string &bytes);
    bool Confirm_Replace() const;

    Main_Frm &calendar_;
    OpenSaveDialog &dialog_;
    CSV_Columns columns_; ///< keeps the values of the previous file
    unsigned writes_ = 0; ///< Event_Store::Writes if only the import has written since its backup
};
