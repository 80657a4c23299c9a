// Importing: events, a configuration and whole data files out of files that the user chooses. How a file of
// events is read is in csv.h and how its events join the others in merging.h, a configuration in
// configuration.h.
#pragma once

#include "base/callback.h"
#include "calendar/main_frm.h"
#include "core/event_entries.h"
#include "transfer/csv.h"
#include "transfer/icalendar_merging.h"
#include "transfer/progress.h"
#include "ui/open_save_dialog.h"

#include <string>
#include <vector>

/// The imports, with all messages to the user. None throws for its file.
class Importer {
public:
    /// Both must outlive it. The files are asked for in `dialog`.
    Importer(Main_Frm &calendar, OpenSaveDialog &dialog);

    void Import_CSV();
    void Import_Config();
    void Import_Data_File();
    void Import_ICalendar();

    // All to be filled.

    Progress Import_Progress;
    /// The list of events is to show these instead of what it shows.
    Callback<void(std::vector<Event>)> Show_Staged_Events;
    /// The list of events and their counts are to be those of the data file, which is another one now.
    Callback<void()> On_Data_File_Replaced;
    /// The pointer over the dialog is to be the hourglass until the work's end.
    Callback<void()> Show_Hourglass;
    /// The settings are not what the dialog shows any more: it is to be closed.
    Callback<void()> On_Configuration_Changed;
    /// The same, but only a part was imported: the dialog is to stay, and to show the settings.
    Callback<void()> On_Configuration_Partly_Changed;

    static std::string Backup_File();

private:
    bool Ask_File(const char *title, const char *filter, bool not_own_file);
    void Read_Events(const std::string &bytes, std::vector<Event> &staged);
    void Merge_Imported(std::vector<Event> &staged);
    void Write_Merged(const std::vector<Event> &staged) const;
    Join_Counts Join_Calendar(const std::string &bytes);
    bool Confirm_Replace() const;

    Main_Frm &calendar_;
    OpenSaveDialog &dialog_;
    CSV_Columns columns_; ///< of the last file, too
    unsigned writes_ = 0; ///< of the data file up to the last one of an import
};
