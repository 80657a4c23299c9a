// The user's registry in memory.
#include "platform/registry.h"
#include "tests/fakes/fakes.h"

namespace platform {

std::optional<std::string> Read_User_Value(const std::string &key, const std::string &name) {
    const auto value = Fakes().registry.find(key + "\\" + name);
    if (value == Fakes().registry.end())
        return std::nullopt;
    return value->second;
}

void Write_User_Value(const std::string &key, const std::string &name, const std::string &text) {
    Fake_System &system = Fakes();
    ++system.registry_writes;
    if (system.registry_refuses_writes)
        throw Registry_Error(key + " cannot be written");
    system.registry.insert_or_assign(key + "\\" + name, text);
}

} // namespace platform
