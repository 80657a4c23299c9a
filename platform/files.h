// Whole files: reading one, replacing one, deleting one, asking for one or for all in a folder. There is no
// way to write into the middle of a file.
#pragma once

#include "base/error.h"
#include "platform/clock.h"

#include <string>
#include <string_view>
#include <vector>

namespace platform {

/// A file could not be read or written. what() names the file and the system's reason, in the user's
/// language.
class File_Error : public Error {
public:
    using Error::Error;
};

/// The folder that holds the running program, without a separator at its end.
std::string Program_Folder();

/// The running program's file name without ".exe".
std::string Program_Name();

/// True when `path` names an existing file (a folder is none).
bool File_Exists(const std::string &path);

/// True when `path` names an existing folder.
bool Folder_Exists(const std::string &path);

/// The names, without the folder's, of the plain files in a folder, or of the folders in it, in no certain
/// order. None where the folder cannot be read.
enum class Entry_Kind { Files, Folders };
std::vector<std::string> Names_In_Folder(const std::string &folder, Entry_Kind kind);

/// False when it is certain that nothing bears the name `path`. Where the system cannot tell, as with a disk
/// that fails or a name that can be none, it is true: reading then tells the failure.
bool Path_Exists(const std::string &path);

/// When the file was written last, by the local clock. Throws File_Error.
Date_Time Modified_Time(const std::string &path);

/// All bytes of the file. Other programs may read and write it meanwhile. Throws File_Error.
std::string Read_File(const std::string &path);

/// Makes `bytes` the content of the file, whole or not at all: they are written to a new file beside it,
/// flushed to the disk, and the new file takes the name over, with the access list of the old one where that
/// has one of its own. Behind a symbolic link it is the file that the link names. Throws File_Error, and then
/// the old file is as it was.
void Replace_File(const std::string &path, std::string_view bytes);

/// Makes `to` a copy of the file `from`, whole or not at all, which counts as written when `from` was. Throws
/// File_Error, and then an old `to` is as it was.
void Copy_File(const std::string &from, const std::string &to);

/// Deletes a plain file, also one that is hidden, but none that is write-protected. Throws File_Error.
void Delete_File(const std::string &path);

} // namespace platform
