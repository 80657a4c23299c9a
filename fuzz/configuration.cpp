// Checks that any bytes are imported as a configuration or refused, and that the stored settings load again.
// The export of these settings reads back as the same settings, or is refused.
#include "transfer/configuration.h"

#include "core/convert.h"
#include "core/sequential.h"
#include "tests/fakes/fakes.h"

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    Reset_Fakes();
    Cur_Settings = Settings{};
    try {
        Import_Configuration({reinterpret_cast<const char *>(data), size});
    } catch (const Conversion_Error &) {
    } catch (const Sequential_Error &) {
    }
    // The program can start with the stored settings.
    const Settings taken = Cur_Settings;
    Load_Settings();
    try {
        const std::string bytes = Configuration_Bytes(taken);
        if (Configuration_Bytes(Cur_Settings) != bytes)
            std::abort();
        Cur_Settings = Settings{};
        Import_Configuration(bytes);
        if (Configuration_Bytes(Cur_Settings) != bytes)
            std::abort();
    } catch (const Sequential_Error &) { // a quote in a text
    }
    return 0;
}
