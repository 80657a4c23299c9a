// Exporting the events, the configuration and the data file to files that the user chooses. configuration.h
// and icalendar.h define two of the formats.
#pragma once

#include "base/callback.h"
#include "core/events.h"
#include "core/settings.h"
#include "transfer/progress.h"
#include "ui/open_save_dialog.h"

#include <string>
#include <vector>

enum class Export_Kind { Data_File, Configuration, Text, CSV, ICalendar };

/// Returns the bytes of a CSV file with these events, in their order.
std::string CSV_Bytes(const std::vector<Event> &events, Progress &progress);

/// Asks for a name, writes the file, and shows all messages to the user. `shown` returns the configuration
/// that the dialog shows. Either replaces the target completely or leaves it unchanged. Throws
/// platform::File_Error, and Sequential_Error for a configuration that a file cannot hold.
void Export_File(Export_Kind kind, OpenSaveDialog &dialog, Callback_Ref<Settings()> shown,
                 Progress &progress);
