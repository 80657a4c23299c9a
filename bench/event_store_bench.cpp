// Times filling a month from the data file. The comparison is a memchr count of the line endings in the same
// bytes, the least that reading can cost. The fakes hold the files, so that no disk distorts the figures.
// Both measurements copy the bytes from the fakes, as they would from a disk. The calendar window is the
// program's own; only text widths come from the fakes, which measure faster than the system.
#include "calendar/main_frm.h"
#include "core/date.h"
#include "core/event_store.h"
#include "platform/files.h"
#include "tests/fakes/fake_forms.h"
#include "tests/fakes/fakes.h"

#include <benchmark/benchmark.h>
#include <cstring>

namespace {

constexpr Date shown{2002, 3, 1};

/// Writes `count` events from 100 years to the data file, every third of them yearly.
void Make_File(std::int64_t count) {
    Reset_Fakes();
    std::string bytes;
    std::uint32_t random = 12345;
    for (std::int64_t i = 0; i < count; ++i) {
        random = random * 1664525U + 1013904223U;
        const std::uint32_t bits = random >> 8U;
        const Date date{static_cast<std::int16_t>(i % 3 == 0 ? every_year : 1950 + bits % 100),
                        static_cast<std::int16_t>(1 + bits / 128 % 12),
                        static_cast<std::int16_t>(1 + bits / 2048 % 28)};
        bytes.append("\"").append(Date_Key(date)).append("=Event number ").append(std::to_string(i));
        bytes.append(", at noon\"\r\n");
    }
    Fakes().files[Event_Store::Data_File()] = std::move(bytes);
}

void Fill_Month(benchmark::State &state) {
    Make_File(state.range(0));
    Reset_Desktop();
    Main_Frm form;
    form.Alert_Done = true;
    form.Which_Style(1);
    form.Cur_Month = shown.month;
    form.Cur_Year = shown.year;
    form.Setup_Boxes(shown.month, shown.year);
    for (auto _ : state)
        form.Load_Dates();
    if (form.Box_Caption_Lbl[Main_Frm::Start_Box(shown.month, shown.year)].Caption().empty() &&
        state.range(0) >= 10000)
        state.SkipWithError("the month is empty");
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

void Count_Line_Ends(benchmark::State &state) {
    Make_File(state.range(0));
    std::int64_t lines = 0;
    for (auto _ : state) {
        const std::string bytes = platform::Read_File(Event_Store::Data_File());
        const char *at = bytes.data();
        const char *const end = at + bytes.size();
        while (const void *found = std::memchr(at, '\n', static_cast<std::size_t>(end - at))) {
            at = static_cast<const char *>(found) + 1;
            ++lines;
        }
    }
    benchmark::DoNotOptimize(lines);
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

/// Times a save without the disk: loads all records, changes the last one and rewrites them all. The first
/// save adds that record.
void Save_One_Day(benchmark::State &state) {
    Make_File(state.range(0));
    Event_Store store;
    for (auto _ : state) {
        store.Load_File();
        store.Check_For_Pre("31/12/1900", "changed", false);
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

} // namespace

BENCHMARK(Fill_Month)->Arg(100)->Arg(10'000)->Arg(1'000'000)->Unit(benchmark::kMicrosecond);
BENCHMARK(Count_Line_Ends)->Arg(100)->Arg(10'000)->Arg(1'000'000)->Unit(benchmark::kMicrosecond);
BENCHMARK(Save_One_Day)->Arg(100)->Arg(10'000)->Arg(1'000'000)->Unit(benchmark::kMicrosecond);
