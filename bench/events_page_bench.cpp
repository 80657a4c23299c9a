// Times listing, sorting and counting all events for the overview. Files and short dates come from the fakes.
// The list box is not filled.
#include "core/event_store.h"
#include "settings/event_overview.h"
#include "settings/event_statistics.h"
#include "tests/fakes/fakes.h"

#include <benchmark/benchmark.h>

namespace {

constexpr Date today{2002, 3, 5};

/// Writes `count` events from 100 years to the data file, in mixed order, every third of them yearly.
void Make_Mixed_File(std::int64_t count) {
    Reset_Fakes();
    std::string &bytes = Fakes().files[Event_Store::Data_File()];
    for (std::int64_t i = 0; i < count; ++i) {
        const std::int64_t mixed = i * 7919 % 100'003;
        const Date date{static_cast<std::int16_t>(i % 3 == 0 ? every_year : 1950 + mixed % 100),
                        static_cast<std::int16_t>(1 + mixed / 100 % 12),
                        static_cast<std::int16_t>(1 + mixed / 1200 % 28)};
        bytes.append("\"").append(Date_Key(date)).append("=Event number ").append(std::to_string(i));
        bytes.append(", at noon\"\r\n");
    }
}

void List_Events(benchmark::State &state) {
    Make_Mixed_File(state.range(0));
    std::vector<Event> events;
    std::size_t length = 0;
    for (auto _ : state) {
        Load_Events(events, Sort_Order::Descending_Date, today);
        for (const Event &event : events)
            length += Overview_Line(event).size();
    }
    benchmark::DoNotOptimize(length);
    if (events.size() != static_cast<std::size_t>(state.range(0)))
        state.SkipWithError("events are missing");
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

void Count_Events(benchmark::State &state) {
    Make_Mixed_File(state.range(0));
    Event_Statistics statistics;
    for (auto _ : state) {
        statistics = {};
        Read_Events(today.year, [&](const Event &event) { Workout_Stats(statistics, event, today); });
    }
    benchmark::DoNotOptimize(statistics);
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

} // namespace

BENCHMARK(List_Events)->Arg(100)->Arg(10'000)->Unit(benchmark::kMicrosecond);
BENCHMARK(Count_Events)->Arg(100)->Arg(10'000)->Unit(benchmark::kMicrosecond);
