#include "core/event_store.h"

#include "base/joined.h"
#include "core/date.h"
#include "core/sequential.h"
#include "platform/files.h"
#include "platform/locale.h"
#include "platform/message_box.h"

#include <algorithm>
#include <exception>

namespace {

void Show_Loading_Error() {
    platform::Message_Box("Error loading in data file.", platform::Box_Icon::Stop);
}

/// Reads the whole data file into `bytes`. Returns false if the file does not exist. Throws
/// platform::File_Error, also if a folder has the file's name.
bool Read_Data_File(std::string &bytes) {
    const std::string path = Event_Store::Data_File();
    if (!platform::Path_Exists(path))
        return false;
    bytes = platform::Read_File(path);
    return true;
}

/// Calls `take` with each record of the data file. Skips items without "=", such as notes and empty lines,
/// and returns false if there were any. Throws platform::File_Error, Sequential_Error and everything that
/// `take` throws.
bool For_Each_Record(Callback_Ref<void(std::string_view item, const Event_Record &parts)> take) {
    std::string bytes;
    if (!Read_Data_File(bytes))
        return true;
    bool sound = true;
    Sequential_Reader reader(bytes);
    for (std::string_view item; reader.Next(item);) {
        if (Event_Record parts; Parse_Record(item, parts))
            take(item, parts);
        else
            sound = false;
    }
    return sound;
}

std::string Format_Records(const std::vector<std::string> &records) {
    std::size_t size = 0;
    for (const std::string &record : records)
        size += record.size() + 4;
    std::string bytes;
    bytes.reserve(size);
    for (const std::string &record : records)
        Append_Item(bytes, record);
    return bytes;
}

} // namespace

bool Parse_Record(std::string_view record, Event_Record &parts) {
    const std::size_t equals = record.find('=');
    if (equals == std::string_view::npos)
        return false;
    parts.key = record.substr(0, equals);
    parts.text = record.substr(equals + 1);
    return true;
}

std::string Change_Name(std::string_view what, const Date &day) {
    return Joined({what, " ", std::to_string(day.day), " ", platform::Month_Name(day.month)});
}

std::string Event_Store::Data_File() {
    return platform::Program_Folder() + "\\calendar.dat";
}

bool Event_Store::Undo() {
    const std::string name(Changes.Name());
    if (name.empty())
        return false;
    try {
        if (!Changes.Undo()) {
            platform::Message_Box(
                Joined({"The data file has changed since then, so this was not undone:\r\n\r\n", name}),
                platform::Box_Icon::Exclamation);
            return false;
        }
    } catch (const std::exception &) {
        return Show_Save_Error();
    }
    // If Undo has deleted the file, Load_File keeps Temp_Lst as it is, and the next save would write the
    // events again.
    Temp_Lst.clear();
    return true;
}

bool Event_Store::Load_File() {
    try {
        std::string bytes;
        load_failed_ = true;
        if (Read_Data_File(bytes)) {
            Temp_Lst.clear();
            Sequential_Reader reader(bytes);
            for (std::string_view item; reader.Next(item);)
                Temp_Lst.emplace_back(item);
        }
        load_failed_ = false;
        return true;
    } catch (const std::exception &) {
        Show_Loading_Error();
        load_failed_ = true; // again: a save while the message was open has cleared it, but Temp_Lst may lack
                             // the saved record
        return false;
    }
}

bool Event_Store::Check_For_Pre(const std::string &key, const std::string &text, bool each_year) {
    const std::string every = Every_Year_Key(key);
    const auto same_day = [&](const std::string &record) {
        Event_Record parts;
        return Parse_Record(record, parts) && (parts.key == key || parts.key == every);
    };
    const auto match = std::find_if(Temp_Lst.begin(), Temp_Lst.end(), same_day);
    if (match == Temp_Lst.end())
        return Write_New_Line(key, text, each_year);
    const auto place = match - Temp_Lst.begin();
    std::string before = *match;
    if (text.empty())
        Temp_Lst.erase(match);
    else
        *match = Joined({each_year ? every : key, "=", text});
    try {
        Write_Data_File();
        return true;
    } catch (const std::exception &) {
        // If the file is missing, the next save writes Temp_Lst, which must not have the change that failed.
        if (text.empty())
            Temp_Lst.insert(Temp_Lst.begin() + place, std::move(before));
        else
            Temp_Lst[static_cast<std::size_t>(place)] = std::move(before);
        return Show_Save_Error();
    }
}

void Event_Store::Write_Records(const std::string &added) {
    if (load_failed_)
        throw platform::File_Error("the rest of the file is unknown");
    std::string bytes = Format_Records(Temp_Lst);
    if (!added.empty())
        Append_Item(bytes, added);
    platform::Replace_File(Data_File(), bytes);
    ++writes_;
}

void Event_Store::Write_Data_File() {
    Write_Records({});
}

bool Event_Store::Rewrite_File(const std::string &added) {
    try {
        Write_Records(added);
        return true;
    } catch (const std::exception &) {
        return Show_Save_Error();
    }
}

bool Event_Store::Show_Save_Error() {
    platform::Message_Box("Error saving data file.", platform::Box_Icon::Stop);
    return false;
}

bool Event_Store::Write_ALL() {
    return Rewrite_File({});
}

bool Event_Store::Write_New_Line(const std::string &key, const std::string &text, bool each_year) {
    if (text.empty())
        return !load_failed_;
    return Rewrite_File(Joined({each_year ? Every_Year_Key(key) : key, "=", text}));
}

Stored_Message Event_Store::Get_Message(const std::string &key) {
    const std::string every = Every_Year_Key(key);
    Stored_Message message;
    bool sound = false;
    try {
        sound = For_Each_Record([&](std::string_view, const Event_Record &parts) {
            if (parts.key == every)
                message.every_year = true;
            else if (parts.key != key)
                return;
            message.text = parts.text;
        });
    } catch (const std::exception &) {
        // Keep the text found so far: saving an empty editor would delete the event.
        message.incomplete = true;
    }
    if (!sound)
        Show_Loading_Error();
    return message;
}

bool Event_Store::Load_Dates(Callback_Ref<void(std::string_view record)> enter, Callback<void()> entered) {
    bool complete = false;
    bool sound = false;
    try {
        sound = For_Each_Record([&](std::string_view item, const Event_Record &) { enter(item); });
        complete = true;
    } catch (const std::exception &) { // the message follows below
    }
    if (entered)
        entered();
    if (!sound)
        Show_Loading_Error();
    return complete;
}
