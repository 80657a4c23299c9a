#include "transfer/export.h"

#include "base/joined.h"
#include "base/letters.h"
#include "core/event_store.h"
#include "platform/files.h"
#include "platform/locale.h"
#include "platform/message_box.h"
#include "transfer/configuration.h"
#include "transfer/icalendar.h"

#include <array>

namespace {

struct Kind_Row {
    const char *title;
    const char *filter;
    const char *extension;
    const char *to; ///< the end of the closing message; for events, their number precedes it
};

constexpr std::array<Kind_Row, 5> kinds{
    {{"Export Data File", "Data File (calendar.dat)|*.dat", ".dat", "data file to..."},
     {"Export Configuration File", "Configuration File (*.ini)|*.ini", ".ini",
      "current configuration to file..."},
     {"Export Events to Text File", "Text File (*.txt)|*.txt", ".txt", " events to the text file..."},
     {"Export Events as CSV File", "Comma Separated Values File (*.csv)|*.csv", ".csv",
      " events to the CSV file..."},
     {"Export Events as iCalendar File", "iCalendar File (*.ics)|*.ics", ".ics",
      " events to the iCalendar file..."}}};

/// Asks for the file's name until it is valid and the user agrees to overwrite an existing file. Returns an
/// empty name if the user cancels.
std::string Ask_Name(const Kind_Row &kind, OpenSaveDialog &dialog) {
    for (;;) {
        dialog.FileName.clear();
        dialog.DialogTitle = kind.title;
        dialog.Filter = kind.filter;
        dialog.ShowSave();
        std::string name = dialog.FileName;
        if (name.empty())
            return name;
        if (!To_Upper(name).ends_with(To_Upper(kind.extension)))
            name += kind.extension;
        // Copying the file onto itself would be harmless, but it would not be an export.
        if (To_Upper(name) == To_Upper(Event_Store::Data_File())) {
            platform::Message_Box("You can't export to the data file you're currently using!",
                                  platform::Box_Icon::Exclamation);
            continue;
        }
        if (!platform::File_Exists(name) ||
            platform::Message_Box("Overwrite existing file?", platform::Box_Icon::Question,
                                  platform::Box_Buttons::Yes_No) == platform::Box_Answer::Yes)
            return name;
    }
}

/// Appends `text` in quotes, then `after`. Doubles each quote in `text`, as other programs expect. Only a
/// hand-written record contains quotes, and the import drops them.
void Append_Field(std::string &bytes, std::string_view text, const char *after) {
    bytes += '"';
    for (const char character : text)
        bytes.append(character == '"' ? 2 : 1, character);
    bytes += '"';
    bytes += after;
}

std::string Short_Date(const Date &date) {
    return platform::Short_Date(date.year, date.month, date.day);
}

std::string Text_Bytes(const std::vector<Event> &events, Progress &progress) {
    std::string bytes;
    for (std::size_t i = 0; i < events.size(); ++i) {
        bytes.append(Date_Prefix(events[i])).append(events[i].text).append("\r\n");
        progress.Step(i, events.size());
    }
    return bytes;
}

/// Sets `bytes` to the content of the new file, and `message` to the closing message without the file's name.
/// Leaves `bytes` empty for the data file, which the caller copies. If the content is missing or incomplete,
/// shows a message and returns false.
bool Make_Content(Export_Kind kind, Callback_Ref<Settings()> shown, Progress &progress, std::string &bytes,
                  std::string &message) {
    const std::string to = kinds[static_cast<std::size_t>(kind)].to;
    message = "Successfully exported " + to;
    if (kind == Export_Kind::Configuration) {
        bytes = Configuration_Bytes(shown());
        return true;
    }
    if (kind == Export_Kind::Data_File) {
        if (!platform::File_Exists(Event_Store::Data_File())) {
            platform::Message_Box(
                "Can't find data file! This could be because you havn't created any events yet?",
                platform::Box_Icon::Exclamation);
            return false;
        }
        return true;
    }
    std::vector<Event> events;
    // An incomplete list of events must not pass for a complete one.
    if (Load_Events(events, Sort_Order::Ascending_Date, Today()) == Read_Result::Incomplete) {
        platform::Message_Box("Error loading in data file.", platform::Box_Icon::Stop);
        return false;
    }
    bytes = kind == Export_Kind::CSV         ? CSV_Bytes(events, progress)
            : kind == Export_Kind::ICalendar ? ICalendar_Bytes(events, progress)
                                             : Text_Bytes(events, progress);
    message = Joined({"Successfully exported ", std::to_string(events.size()), to});
    return true;
}

} // namespace

std::string CSV_Bytes(const std::vector<Event> &events, Progress &progress) {
    constexpr const char *midnight = "12:00:00 AM";
    std::string bytes =
        "\"Subject\",\"Start Date\",\"Description\",\"Start Time\",\"End Date\",\"End Time\"\r\n";
    for (std::size_t i = 0; i < events.size(); ++i) {
        Append_Field(bytes, "Vellatro", ",");
        Append_Field(bytes, Short_Date(events[i].date), ",");
        Append_Field(bytes, events[i].text, ",");
        Append_Field(bytes, midnight, ",");
        Append_Field(bytes, Short_Date(Date_Of(Day_Number(events[i].date) + 1)), ",");
        Append_Field(bytes, midnight, "\r\n");
        progress.Step(i, events.size());
    }
    return bytes;
}

void Export_File(Export_Kind kind, OpenSaveDialog &dialog, Callback_Ref<Settings()> shown,
                 Progress &progress) {
    const std::string name = Ask_Name(kinds[static_cast<std::size_t>(kind)], dialog);
    if (name.empty())
        return;
    progress.Begin();
    std::string bytes, message;
    if (!Make_Content(kind, shown, progress, bytes, message))
        return;
    if (kind == Export_Kind::Data_File)
        platform::Copy_File(Event_Store::Data_File(), name);
    else
        platform::Replace_File(name, bytes);
    progress.End();
    platform::Message_Box(Joined({message, "\r\n", name}), platform::Box_Icon::Information);
}
