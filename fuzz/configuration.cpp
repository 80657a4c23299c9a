// Any bytes are taken over as a configuration, or refused; whatever the settings are then, they are written
// and read back the same, or refused.
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
    // What was stored lets the program start.
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
