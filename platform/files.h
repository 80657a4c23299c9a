// Whole files: reading one, replacing one, asking for one. There is no way to write into the middle of a
// file.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

namespace platform {

/// A file could not be read or written. what() names the file and the system's reason, in the user's
/// language.
class File_Error : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// The folder that holds the running program, without a separator at its end.
std::string Program_Folder();

/// The running program's file name without ".exe".
std::string Program_Name();

/// True when `path` names an existing file (a folder is none).
bool File_Exists(const std::string &path);

/// False when it is certain that nothing bears the name `path`. Where the system cannot tell, as with a disk
/// that fails or a name that can be none, it is true: reading then tells the failure.
bool Path_Exists(const std::string &path);

/// All bytes of the file. Other programs may read and write it meanwhile. Throws File_Error.
std::string Read_File(const std::string &path);

/// Makes `bytes` the content of the file, whole or not at all: they are written to a new file beside it,
/// flushed to the disk, and the new file takes the name over. Throws File_Error, and then the old file is as
/// it was.
void Replace_File(const std::string &path, std::string_view bytes);

} // namespace platform
