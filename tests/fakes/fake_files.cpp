// A disk in memory.
#include "platform/files.h"
#include "tests/fakes/fakes.h"

namespace platform {

std::string Program_Folder() {
    return Fakes().program_folder;
}

bool File_Exists(const std::string &path) {
    return Fakes().files.contains(path);
}

bool Path_Exists(const std::string &path) {
    return File_Exists(path) || Fakes().folders.contains(path);
}

std::string Read_File(const std::string &path) {
    Fake_System &system = Fakes();
    ++system.reads;
    const auto file = system.files.find(path);
    if (file == system.files.end() || system.unreadable.contains(path))
        throw File_Error(path + " cannot be read");
    return file->second;
}

void Replace_File(const std::string &path, std::string_view bytes) {
    Fake_System &system = Fakes();
    ++system.writes;
    if (system.folders.contains(path) || system.unwritable.contains(path))
        throw File_Error(path + " cannot be written");
    system.files.insert_or_assign(path, std::string(bytes));
}

} // namespace platform
