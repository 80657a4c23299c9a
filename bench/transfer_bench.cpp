// Times the export and import of many events with the real procedures, from file to file. The fakes hold the
// files.
#include "core/event_store.h"
#include "tests/fakes/fake_forms.h"
#include "transfer/export.h"
#include "transfer/import.h"

#include <benchmark/benchmark.h>

namespace {

/// Returns a CSV file with events from 60 years, many of them on the same days.
std::string CSV_File(std::int64_t count) {
    std::string bytes = "\"Subject\",\"Start Date\",\"Description\"\r\n";
    for (std::int64_t i = 0; i < count; ++i) {
        const std::int64_t mixed = i * 7919 % 100'003;
        bytes += "\"Event " + std::to_string(i) + "\",\"" + std::to_string(1 + mixed % 28) + "/" +
                 std::to_string(1 + mixed / 28 % 12) + "/" + std::to_string(1970 + mixed / 336 % 60) +
                 "\",\"at noon, \"\"as always\"\"\"\r\n";
    }
    return bytes;
}

/// Returns an iCalendar file with the same number of events on the same days, each with the properties that a
/// web calendar writes.
std::string ICalendar_File(std::int64_t count) {
    const auto two = [](std::int64_t number) { return std::to_string(100 + number).substr(1); };
    std::string bytes = "BEGIN:VCALENDAR\r\nVERSION:2.0\r\n";
    for (std::int64_t i = 0; i < count; ++i) {
        const std::int64_t mixed = i * 7919 % 100'003;
        bytes += "BEGIN:VEVENT\r\nUID:" + std::to_string(i) +
                 "@example.org\r\nDTSTART;VALUE=DATE:" + std::to_string(1970 + mixed / 336 % 60) +
                 two(1 + mixed / 28 % 12) + two(1 + mixed % 28) +
                 "\r\nDTSTAMP:20261122T101500Z\r\nSUMMARY:Event " + std::to_string(i) +
                 "\r\nLOCATION:at noon\\, \"as always\"\r\nTRANSP:TRANSPARENT\r\nEND:VEVENT\r\n";
    }
    return bytes + "END:VCALENDAR\r\n";
}

/// Imports a file into an empty calendar in each iteration. The message must show success, or failure if
/// `good` is false.
void Import_Events(benchmark::State &state, const std::string &bytes, const char *title,
                   void (Importer::*import)(), bool good = true) {
    Reset_Desktop();
    Main_Frm form;
    form.Alert_Done = true;
    form.Which_Style(1);
    form.Cur_Month = 5;
    form.Cur_Year = 2027;
    OpenSaveDialog dialog(nullptr);
    Importer importer(form, dialog);
    importer.Show_Staged_Events = [](const std::vector<Event> &) {};
    importer.On_Data_File_Replaced = [] {};
    for (auto _ : state) {
        Reset_Fakes();
        Fakes().any_box = true;
        form.Events.Temp_Lst.clear(); // an import without a data file would keep them
        Fakes().files["C:\\in"] = bytes;
        Fakes().Expect_Dialog(title, "C:\\in");
        (importer.*import)();
    }
    if (Fakes().boxes.size() != 1 || (Fakes().boxes[0].icon == platform::Box_Icon::Information) != good)
        state.SkipWithError("the import had another result");
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(bytes.size()));
}

constexpr const char *csv_title = "Import Events from CSV File";

void Import_ICalendar(benchmark::State &state) {
    Import_Events(state, ICalendar_File(state.range(0)), "Import Events from iCalendar File",
                  &Importer::Import_ICalendar);
}

void Import_Many(benchmark::State &state) {
    Import_Events(state, CSV_File(state.range(0)), csv_title, &Importer::Import_CSV);
}

/// Times an import in which no line ends with a quote: it joins all lines and then fails.
void Import_Unclosed(benchmark::State &state) {
    std::string bytes = "\"Subject\",\"Start Date\",\"Description\"\r\n";
    for (std::int64_t i = 0; i < state.range(0); ++i)
        bytes += "\"a line without an end\r\n";
    Import_Events(state, bytes, csv_title, &Importer::Import_CSV, false);
}

void Export_Events(benchmark::State &state) {
    std::vector<Event> events;
    for (std::int64_t i = 0; i < state.range(0); ++i)
        events.push_back({{2002, 3, 5}, false, "5/3/2002", "Event " + std::to_string(i)});
    Progress progress;
    for (auto _ : state)
        benchmark::DoNotOptimize(CSV_Bytes(events, progress));
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

} // namespace

BENCHMARK(Import_Many)->Arg(1'000)->Arg(100'000)->Unit(benchmark::kMillisecond);
BENCHMARK(Import_ICalendar)->Arg(1'000)->Arg(100'000)->Unit(benchmark::kMillisecond);
BENCHMARK(Import_Unclosed)->Arg(1'000)->Arg(100'000)->Unit(benchmark::kMillisecond);
BENCHMARK(Export_Events)->Arg(100'000)->Unit(benchmark::kMillisecond);
