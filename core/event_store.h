// The events and their one file, calendar.dat in the program's folder. What a day box shows of them is not
// here.
#pragma once

#include "base/callback.h"
#include "core/date.h"
#include "core/undo.h"

#include <string>
#include <string_view>
#include <vector>

/// An event record parted at its first "=".
struct Event_Record {
    std::string_view key;
    std::string_view text;
};

/// Parts a record; false when it has no "=".
bool Parse_Record(std::string_view record, Event_Record &parts);

/// The name of a change to the event of a day: Clear 5 March.
std::string Change_Name(std::string_view what, const Date &day);

/// What Get_Message found for a day.
struct Stored_Message {
    std::string text;
    bool every_year = false; ///< one of the day's records is an every-year one
    bool incomplete = false; ///< the file could not be read to its end, which the user has been told
};

/// Reads and rewrites the event file, always whole. Each procedure that touches the file shows one fixed
/// sentence when that fails, and leaves; but for Write_Data_File none throws for it. A message box lets
/// timers go on, so all of them may be entered again while one is shown.
class Event_Store {
public:
    /// All records of the file in file order, as of the last Load_File.
    std::vector<std::string> Temp_Lst;

    /// The path of calendar.dat.
    static std::string Data_File();

    /// What the user has changed in the file since the program's start. Whoever changes it for the user has a
    /// Change of this alive meanwhile.
    Undo_Log Changes{Data_File()};

    /// Takes the newest of the changes back. Returns whether the file is another one now; a file that
    /// something else has changed since is not, which the user is told, and a failure shows "Error saving
    /// data file.".
    bool Undo();

    /// Fills Temp_Lst from the file, with the lines that are no records; without a file it stays as it is.
    /// Returns false when the file could not be read to its end, which shows "Error loading in data file.".
    bool Load_File();

    /// Stores `text` as the event of the day `key`, an exact key: replaces, removes or adds the record, then
    /// saves. The first record of the day counts, be it exact or every-year. An empty text removes it, and
    /// where there is none leaves the file untouched. Returns false when the file does not hold `text` now,
    /// which the user has been told.
    bool Check_For_Pre(const std::string &key, const std::string &text, bool each_year);

    /// Rewrites the file from Temp_Lst. Throws platform::File_Error, Sequential_Error for a record that
    /// cannot be written, and the former after a failed Load_File, too: a rewrite would lose what was not
    /// read. The file is as it was then.
    void Write_Data_File();

    /// The same, but a failure shows "Error saving data file." and returns false.
    bool Write_ALL();

    /// How often this has written the file.
    unsigned Writes() const { return writes_; }

    /// Rewrites the file from Temp_Lst with one record more, which does not enter Temp_Lst. Does nothing when
    /// `text` is empty. Returns false when that failed, or the last Load_File did.
    bool Write_New_Line(const std::string &key, const std::string &text, bool each_year);

    /// Shows "Error saving data file." for a save that must not be tried. Returns false.
    static bool Show_Save_Error();

    /// The event of the day `key`: of several records the last one in the file. Without a file there is none.
    /// A failure shows the message of Load_File; what was found before it is returned. Lines without "=" show
    /// it, too, but once, and the records behind them count.
    Stored_Message Get_Message(const std::string &key);

    /// Calls `enter` for each record in file order; the view it is given lasts for the call. An exception of
    /// it ends the reading with the message of Load_File, which lines without "=" show, too. `entered` is
    /// called after the last record, before that message. Returns whether all records were entered.
    bool Load_Dates(Callback_Ref<void(std::string_view record)> enter, Callback<void()> entered = nullptr);

private:
    /// Writes Temp_Lst and, unless it is empty, the record `added`. Throws as Write_Data_File does.
    void Write_Records(const std::string &added);
    /// The same with a message for a failure.
    bool Rewrite_File(const std::string &added);

    unsigned writes_ = 0;
    bool load_failed_ = false; ///< the last Load_File failed: a rewrite would lose what it did not read
};
