#include "transfer/import.h"

#include "base/joined.h"
#include "base/letters.h"
#include "core/sequential.h"
#include "core/settings.h"
#include "platform/files.h"
#include "platform/locale.h"
#include "platform/message_box.h"
#include "toolkit/guard.h"
#include "transfer/configuration.h"
#include "transfer/merging.h"

#include <algorithm>
#include <exception>
#include <optional>
#include <utility>

namespace {

/// Copies the data file to data.bak. Returns whether there is a data file.
bool Backup_Data() {
    if (!platform::File_Exists(Event_Store::Data_File()))
        return false;
    platform::Copy_File(Event_Store::Data_File(), Importer::Backup_File());
    return true;
}

/// Backs up the data file and the records for an import. After a successful import data.bak remains.
class Backup {
public:
    explicit Backup(std::vector<std::string> &records)
        : records_(records), before_(records), file_was_there_(Backup_Data()) {}
    /// Restores the records, and also the data file if the import `may_have_written` it, and deletes
    /// data.bak. If there was no data file before, deletes a new one, but keeps the data.bak of an earlier
    /// import, because it may be all that the user has.
    void Restore(bool may_have_written) const {
        records_ = before_;
        if (!file_was_there_) {
            if (may_have_written && platform::File_Exists(Event_Store::Data_File()))
                platform::Delete_File(Event_Store::Data_File());
        } else if (platform::File_Exists(Importer::Backup_File())) {
            if (may_have_written)
                platform::Copy_File(Importer::Backup_File(), Event_Store::Data_File());
            platform::Delete_File(Importer::Backup_File());
        }
    }

private:
    std::vector<std::string> &records_;
    std::vector<std::string> before_;
    bool file_was_there_;
};

/// Returns the key of the first record that the data file cannot hold: a hand-written record with a quote, to
/// which the import has added a text with a comma. Returns an empty key if there is none.
std::string First_Unwritable(const std::vector<std::string> &records) {
    Event_Record parts;
    std::string bytes;
    try {
        for (const std::string &record : records) {
            Parse_Record(record, parts);
            Append_Item(bytes, record);
        }
    } catch (const Sequential_Error &) {
        return std::string(parts.key);
    }
    return {};
}

} // namespace

Importer::Importer(Main_Frm &calendar, OpenSaveDialog &dialog) : calendar_(calendar), dialog_(dialog) {
}

std::string Importer::Backup_File() {
    return platform::Program_Folder() + "\\data.bak";
}

/// Asks for an existing file and sets dialog_.FileName. Returns false if the user cancels.
bool Importer::Ask_File(const char *title, const char *filter, bool not_own_file) {
    for (;;) {
        dialog_.FileName.clear();
        dialog_.DialogTitle = title;
        dialog_.Filter = filter;
        dialog_.ShowOpen();
        if (dialog_.FileName.empty())
            return false;
        if (!platform::File_Exists(dialog_.FileName))
            platform::Message_Box("File doesn't exist!", platform::Box_Icon::Exclamation);
        else if (not_own_file && To_Upper(dialog_.FileName) == To_Upper(Event_Store::Data_File()))
            platform::Message_Box("You can't import the data file your currently using!",
                                  platform::Box_Icon::Exclamation);
        else
            return true;
    }
}

void Importer::Import_CSV() {
    std::optional<Backup> backup;
    std::optional<Undo_Log::Change> change; // lasts until the import ends or restores the file
    std::vector<Event> staged;
    enum { Asking, Reading, Merging, Listed } stage = Asking;
    try {
        backup.emplace(calendar_.Events.Temp_Lst);
        if (!Ask_File("Import Events from CSV File", "Comma Separated Values File (*.csv)|*.csv", false))
            return;
        Import_Progress.Begin();
        stage = Reading;
        change.emplace(calendar_.Events.Changes, "Import");
        Stage_Events(platform::Read_File(dialog_.FileName), staged);
        // Back up again: if the Windows session is about to end, the editor may have saved its text since the
        // first backup.
        backup.emplace(calendar_.Events.Temp_Lst);
        writes_ = calendar_.Events.Writes();
        stage = Merging;
        Merge_Imported(staged);
        change.reset();
        const std::size_t count = staged.size();
        stage = Listed;
        Show_Staged_Events(std::move(staged));
        Import_Progress.End();
        calendar_.Redraw();
        platform::Message_Box(Joined({"Successfully imported ", std::to_string(count),
                                      " events from the CSV file...\r\n\r\n", dialog_.FileName}),
                              platform::Box_Icon::Information);
    } catch (const std::exception &) {
        // Keep a text that the editor has saved since the backup, and with it the events imported before the
        // error.
        const bool keep_file = stage >= Merging && calendar_.Events.Writes() != writes_;
        try {
            // Do not restore after a failed backup: data.bak may be from an earlier import.
            if (backup && !keep_file)
                backup->Restore(stage >= Merging);
        } catch (const std::exception &) { // data.bak remains for the user
        }
        change.reset();
        if (stage == Reading || stage == Merging) {
            // List the events read before the error, although the counts are those of the data file.
            if (!keep_file)
                for (Event &event : staged)
                    event.key.clear(); // marks the event as not in the file
            Show_Staged_Events(std::move(staged));
        }
        Import_Progress.End();
        platform::Message_Box("Error when importing from CSV file.", platform::Box_Icon::Exclamation);
    }
}

/// Appends the events of a file to `staged`. This is nine tenths of the work. Keeps each event as a date and
/// a text: a date read back from a line of the list could be another day if the short date format has a
/// two-digit year, or if the system cannot read that format.
void Importer::Stage_Events(const std::string &bytes, std::vector<Event> &staged) {
    CSV_Lines lines(bytes);
    if (!Check_CSV_Headings(lines.Next_Line(), columns_))
        throw CSV_Error("the headings are not those of events");
    Event event;
    while (!lines.At_End()) {
        if (Read_CSV_Line(lines.Next_Record(), columns_, event))
            staged.push_back(std::move(event));
        Import_Progress.Step(lines.Position(), bytes.size() / 9 * 10);
    }
}

/// Merges the staged events in memory. Writes the data file only when the user could notice a difference:
/// before painting windows, and at the end. The file always holds the first events up to some number, even if
/// the program is killed. Loads the file again after painting, because the editor may have stored its text at
/// the end of a Windows session.
void Importer::Merge_Imported(std::vector<Event> &staged) {
    std::size_t i = 0;
    do {
        calendar_.Events.Load_File();
        Record_Merger merger(calendar_.Events.Temp_Lst);
        bool due = false;
        for (; i < staged.size() && !due; ++i) {
            merger.Merge(staged[i]);
            due = Import_Progress.Due();
        }
        if (!staged.empty()) {
            Write_Merged(staged);
            ++writes_;
        }
        if (due)
            Import_Progress.Show(9 * staged.size() + i, 10 * staged.size());
    } while (i < staged.size());
}

/// Writes the merged records. Throws as Write_Data_File does, but first names the day of a record that the
/// file cannot hold.
void Importer::Write_Merged(const std::vector<Event> &staged) const {
    try {
        calendar_.Events.Write_Data_File();
    } catch (const Sequential_Error &) {
        const std::string key = First_Unwritable(calendar_.Events.Temp_Lst);
        const auto event =
            std::find_if(staged.begin(), staged.end(), [&](const Event &each) { return each.key == key; });
        if (event != staged.end())
            platform::Message_Box(
                Joined(
                    {"The event of ",
                     platform::Short_Date(event->date.year, event->date.month, event->date.day),
                     " holds a quotation mark (\"). Remove it before you import another event of that day."}),
                platform::Box_Icon::Exclamation);
        throw;
    }
}

void Importer::Import_Config() {
    const Settings before = Cur_Settings;
    bool imported = false;
    try {
        if (!Ask_File("Import Configuration File", "Configuration File (*.ini)|*.ini", false))
            return;
        Show_Hourglass();
        Import_Configuration(platform::Read_File(dialog_.FileName));
        imported = true;
        calendar_.Get_Wallpaper_Stuff(Cur_Settings.Pack_Name);
        calendar_.Follow(before);
    } catch (const std::exception &) {
        Import_Progress.End();
        platform::Message_Box("Error when importing configuration from file.",
                              platform::Box_Icon::Exclamation);
        if (Cur_Settings == before)
            return;
        // Keep the settings imported before the error. Make the calendar and the dialog follow them, or the
        // next OK would restore the old settings.
        if (!imported)
            Run_Guarded([this] { calendar_.Get_Wallpaper_Stuff(Cur_Settings.Pack_Name); });
        Run_Guarded([&] { calendar_.Follow(before); });
        On_Configuration_Partly_Changed();
        return;
    }
    Import_Progress.End();
    platform::Message_Box("Loaded configuration file successfully.", platform::Box_Icon::Information);
    On_Configuration_Changed();
}

/// Returns whether the user agrees to lose the existing data file.
bool Importer::Confirm_Replace() const {
    if (!platform::File_Exists(Event_Store::Data_File()))
        return true;
    const auto modified = [](const std::string &path) {
        return platform::Date_Time_Text(platform::Modified_Time(path));
    };
    constexpr std::string_view warning =
        "You already have a working data file. Importing another one will completely overwrite the old one "
        "and "
        "you will lose all data. Are you absolutely sure you want to do this?\r\n\r\n";
    const std::string question = Joined({warning, "Replace current file 'calendar.dat' modified on ",
                                         modified(Event_Store::Data_File()), "\r\n\r\nwith new file '",
                                         dialog_.FileTitle, "' modified on ", modified(dialog_.FileName)});
    return platform::Message_Box(question, platform::Box_Icon::Exclamation,
                                 platform::Box_Buttons::Yes_No_Cancel) == platform::Box_Answer::Yes;
}

void Importer::Import_Data_File() {
    try {
        if (!Ask_File("Import Data File", "Data File (calendar.dat)|*.dat", true))
            return;
        if (Confirm_Replace()) {
            {
                const Undo_Log::Change change(calendar_.Events.Changes, "Import");
                platform::Copy_File(dialog_.FileName, Event_Store::Data_File());
            }
            On_Data_File_Replaced();
        }
        calendar_.Redraw();
        // This message appears after No and Cancel, too.
        platform::Message_Box("Successfully imported data file from...\r\n\r\n" + dialog_.FileName,
                              platform::Box_Icon::Information);
    } catch (const std::exception &) {
        platform::Message_Box("Error when importing data file.", platform::Box_Icon::Exclamation);
    }
}

void Importer::Import_ICalendar() {
    const auto fail = [this](std::string_view reason) {
        Import_Progress.End();
        platform::Message_Box(Joined({"Error when importing from iCalendar file.", reason}),
                              platform::Box_Icon::Exclamation);
    };
    Merge_Counts counts;
    try {
        if (!Ask_File("Import Events from iCalendar File", "iCalendar File (*.ics)|*.ics", false))
            return;
        Import_Progress.Begin();
        counts = Import_Events(platform::Read_File(dialog_.FileName));
    } catch (const Error &error) {
        return fail(Joined({"\r\n\r\n", error.what()}));
    } catch (const std::exception &) {
        return fail({});
    }
    Import_Progress.End();
    On_Data_File_Replaced();
    calendar_.Redraw();
    const auto number = [](std::size_t count) { return std::to_string(count); };
    std::string message = Joined(
        {"Successfully imported ", number(counts.imported), " events from the iCalendar file...\r\n\r\n",
         dialog_.FileName, "\r\n\r\nImported: ", number(counts.imported),
         ", already there: ", number(counts.already_there), ", skipped: ", number(counts.skipped)});
    if (counts.unsupported > 0)
        message += "\r\nOnly on their first day, because their repetition is not supported: " +
                   number(counts.unsupported);
    platform::Message_Box(message, platform::Box_Icon::Information);
}

/// Merges all events of a calendar file or none. Writes data.bak and the data file once, at the end, and only
/// if an event is new. A failed write leaves the file unchanged, so no restore is needed. Paints no window
/// between loading and writing, so the editor cannot store its text in between.
Merge_Counts Importer::Import_Events(const std::string &bytes) {
    const Calendar_File file = Read_ICalendar(bytes, Import_Progress);
    const Event_Days days = Find_Event_Days(file, Today(), Import_Progress);
    calendar_.Events.Load_File();
    std::vector<std::string> &records = calendar_.Events.Temp_Lst;
    std::vector<std::string> before = records;
    try {
        if (!platform::File_Exists(Event_Store::Data_File()))
            records.clear(); // the file that held the records is gone
        const Merge_Counts counts = Merge_Calendar(file, days, records);
        if (counts.imported > 0) {
            Backup_Data();
            const Undo_Log::Change change(calendar_.Events.Changes, "Import");
            calendar_.Events.Write_Data_File();
        }
        return counts;
    } catch (...) {
        records.swap(before);
        throw;
    }
}
