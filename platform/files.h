// Whole files: reading, replacing, copying, deleting and finding them. No function writes into the middle of
// a file.
#pragma once

#include "base/error.h"
#include "platform/clock.h"

#include <string>
#include <string_view>
#include <vector>

namespace platform {

/// A file could not be read or written. what() names the file and the system's reason in the user's language.
class File_Error : public Error {
public:
    using Error::Error;
};

/// Returns the folder of the running program, without a separator at its end.
std::string Program_Folder();

/// Returns the running program's file name without ".exe".
std::string Program_Name();

/// Returns whether `path` names an existing file. A folder is not a file.
bool File_Exists(const std::string &path);

/// Returns whether `path` names an existing folder.
bool Folder_Exists(const std::string &path);

/// Returns the names of the plain files or of the folders in a folder, without its path and in no particular
/// order. Returns nothing if the folder cannot be read.
enum class Entry_Kind { Files, Folders };
std::vector<std::string> Names_In_Folder(const std::string &folder, Entry_Kind kind);

/// Returns false only if `path` certainly does not exist. Returns true if the system cannot tell, as with a
/// failing disk or an invalid name. Reading the file then reports the error.
bool Path_Exists(const std::string &path);

/// Returns when the file was last written, in local time. Throws File_Error.
Date_Time Modified_Time(const std::string &path);

/// Returns all bytes of the file. Other programs may read and write the file meanwhile. Throws File_Error.
std::string Read_File(const std::string &path);

/// Replaces the content of the file completely or not at all. Writes `bytes` to a new file beside it, flushes
/// that to the disk and renames it over the old file. The new file gets the access list of the old one, if
/// that has one. If `path` is a symbolic link, replaces the file that it names. Throws File_Error and leaves
/// the old file unchanged.
void Replace_File(const std::string &path, std::string_view bytes);

/// Makes `to` a copy of the file `from`, completely or not at all, with the same time of the last write.
/// Throws File_Error and leaves an old `to` unchanged.
void Copy_File(const std::string &from, const std::string &to);

/// Deletes a plain file, even a hidden one, but not a write-protected one. Throws File_Error.
void Delete_File(const std::string &path);

} // namespace platform
