// The events and their only file, calendar.dat in the program's folder.
#pragma once

#include "base/callback.h"
#include "core/date.h"
#include "core/undo.h"

#include <string>
#include <string_view>
#include <vector>

/// An event record, split at its first "=".
struct Event_Record {
    std::string_view key;
    std::string_view text;
};

/// Splits a record at its first "=". Returns false if it has none.
bool Parse_Record(std::string_view record, Event_Record &parts);

/// Returns the name of a change to a day's event, such as "Clear 5 March".
std::string Change_Name(std::string_view what, const Date &day);

/// The event that Get_Message found for a day.
struct Stored_Message {
    std::string text;
    bool every_year = false; ///< at least one of the day's records is yearly
    bool incomplete = false; ///< reading failed before the end of the file; the user has seen a message
};

/// Reads and rewrites the event file, always as a whole. A procedure whose access to the file fails shows one
/// fixed message and returns; only Write_Data_File throws instead. Timers run on while a message box is open,
/// and may call any of these procedures again.
class Event_Store {
public:
    /// The items of the file in file order, as of the last Load_File and the changes since, but without those
    /// that Write_New_Line has added.
    std::vector<std::string> Temp_Lst;

    /// Returns the path of calendar.dat.
    static std::string Data_File();

    /// The user's changes to the file since the program started. Code that changes the file for the user
    /// keeps an Undo_Log::Change of this log alive meanwhile.
    Undo_Log Changes{Data_File()};

    /// Undoes the newest change. Returns whether it changed the file. If something else has changed the file
    /// since, shows a message and leaves the file alone. On failure, shows "Error saving data file.".
    bool Undo();

    /// Fills Temp_Lst from the file, including lines that are not records. Leaves Temp_Lst as it is if there
    /// is no file. If reading fails, shows "Error loading in data file." and returns false.
    bool Load_File();

    /// Stores `text` as the event of the day with the exact key `key`, then saves. Replaces the first record
    /// of that day, exact or yearly, or adds one. An empty text removes that record; if there is none, the
    /// file stays untouched. Returns false, after a message, if it cannot save the file.
    bool Check_For_Pre(const std::string &key, const std::string &text, bool each_year);

    /// Rewrites the file from Temp_Lst. Throws platform::File_Error if the write fails, or if the last
    /// Load_File failed, since a rewrite would lose the unread rest. Throws Sequential_Error for a record
    /// that cannot be written. After a throw the file is unchanged.
    void Write_Data_File();

    /// Rewrites the file as Write_Data_File does. On failure, shows "Error saving data file." and returns
    /// false.
    bool Write_ALL();

    /// Returns how often this store has written the file.
    unsigned Writes() const { return writes_; }

    /// Rewrites the file from Temp_Lst and one more record, but does not add the record to Temp_Lst. Does
    /// nothing if `text` is empty. Returns false if the write or the last Load_File failed.
    bool Write_New_Line(const std::string &key, const std::string &text, bool each_year);

    /// Shows "Error saving data file." and returns false. Callers also use it to refuse a save.
    static bool Show_Save_Error();

    /// Returns the event of the day `key`: the text of its last record in the file. If reading fails, shows
    /// the message of Load_File and returns the text found before the failure. Skips lines without "=", and
    /// shows the message once if there are any.
    Stored_Message Get_Message(const std::string &key);

    /// Calls `enter` for each record in file order; the view is valid during the call. Calls `entered` after
    /// the last record, before any message. If reading fails or `enter` throws, stops reading and shows the
    /// message of Load_File. Skips lines without "=", and shows the message if there are any. Returns
    /// whether it has entered all records.
    bool Load_Dates(Callback_Ref<void(std::string_view record)> enter, Callback<void()> entered = nullptr);

private:
    /// Writes Temp_Lst, then the record `added` unless `added` is empty. Throws as Write_Data_File does.
    void Write_Records(const std::string &added);
    /// Writes as Write_Records does, but shows a message and returns false on failure.
    bool Rewrite_File(const std::string &added);

    unsigned writes_ = 0;
    bool load_failed_ = false; ///< the last Load_File failed, so a rewrite would lose the unread rest
};
