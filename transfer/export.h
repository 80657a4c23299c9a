// Exporting: the events, the configuration and the data file into files that the user names. The formats are
// made here (that of the configuration in configuration.h) and read in csv.h.
#pragma once

#include "base/callback.h"
#include "core/event_entries.h"
#include "core/settings.h"
#include "transfer/progress.h"
#include "ui/open_save_dialog.h"

#include <string>
#include <vector>

enum class Export_Kind { Data_File, Configuration, Text, CSV, ICalendar };

/// The bytes of a file with these events, in their order.
std::string CSV_Bytes(const std::vector<Event> &events, Progress &progress);

/// Asks for a name and writes the file, with all messages to the user. The target is replaced by a whole new
/// file only. Throws platform::File_Error when that fails, and Sequential_Error for a configuration that no
/// file can hold; the target is as it was then. `shown` gives the configuration that the dialog shows.
void Export_File(Export_Kind kind, OpenSaveDialog &dialog, Callback_Ref<Settings()> shown,
                 Progress &progress);
