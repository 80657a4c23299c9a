// Checks that storing the event of one day keeps all other records of any data file, in their order. A file
// that cannot be loaded to its end stays unchanged.
#include "core/event_store.h"

#include "tests/fakes/fakes.h"

#include <cstdint>
#include <cstdlib>

namespace {

const char *const key = "5/3/2002";
const char *const every = "5/3/9999";

void Demand(bool holds) {
    if (!holds)
        std::abort();
}

bool Is_That_Day(const std::string &record) {
    Event_Record parts;
    return Parse_Record(record, parts) && (parts.key == key || parts.key == every);
}

} // namespace

// The first byte chooses the stored text, the rest is the file.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    if (size == 0)
        return 0;
    const std::string text = (data[0] & 1U) != 0 ? "new, = \r\n text" : "";
    const bool each_year = (data[0] & 2U) != 0;
    Reset_Fakes();
    Fakes().any_box = true;
    std::string &file = Fakes().files[Event_Store::Data_File()];
    const std::string before(reinterpret_cast<const char *>(data) + 1, size - 1);
    file = before;

    Event_Store store;
    store.Load_File();
    const bool loaded = Fakes().boxes.empty();
    std::vector<std::string> expected = store.Temp_Lst;
    store.Check_For_Pre(key, text, each_year);
    if (!loaded) {
        Demand(file == before);
        return 0;
    }
    Demand(Fakes().boxes.empty());

    std::size_t i = 0;
    while (i < expected.size() && !Is_That_Day(expected[i]))
        ++i;
    const bool matched = i < expected.size();
    if (!text.empty()) {
        if (!matched)
            expected.emplace_back();
        expected[i] = (each_year ? every : key) + ("=" + text);
    } else if (matched) {
        expected.erase(expected.begin() + static_cast<std::ptrdiff_t>(i));
    } else {
        Demand(file == before);
    }
    store.Load_File();
    Demand(store.Temp_Lst == expected);

    store.Get_Message(key); // may show a message about a line without "="
    store.Load_Dates([](std::string_view) {});
    return 0;
}
