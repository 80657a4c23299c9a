// Whole files: reading, replacing, copying, deleting and finding them. No function writes into the middle of
// a file.
#pragma once

#include "base/error.h"
#include "platform/clock.h"

#include <string>
#include <string_view>
#include <vector>

namespace platform {

/// Thrown if access to a file fails. what() names the file and the system's reason in the user's language.
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

/// The kind of entry that Names_In_Folder returns.
enum class Entry_Kind { Files, Folders };

/// Returns the names of the plain files or of the folders in `folder`, without the folder's path and in no
/// particular order. Returns no names if the folder cannot be read.
std::vector<std::string> Names_In_Folder(const std::string &folder, Entry_Kind kind);

/// Returns false only if `path` certainly does not exist. Returns true if the system cannot tell, as with a
/// failing disk or an invalid name. Reading the file then reports the error.
bool Path_Exists(const std::string &path);

/// Returns the local time of the last write to the file. Throws File_Error.
Date_Time Modified_Time(const std::string &path);

/// Returns all bytes of the file. Other programs may read and write the file meanwhile. Throws File_Error,
/// also for a file of 512 MiB or more.
std::string Read_File(const std::string &path);

/// Replaces the content of the file completely or not at all, and creates the file if it is missing. Writes
/// `bytes` to a new file in the same folder, flushes the new file to the disk and renames it over the old
/// one. The new file gets the access list of the old one. If `path` is a symbolic link, replaces the link's
/// target. On failure, throws File_Error and leaves the old file unchanged.
void Replace_File(const std::string &path, std::string_view bytes);

/// Makes `to` a copy of the file `from`, completely or not at all, with the same time of the last write. On
/// failure, throws File_Error and leaves an old `to` unchanged.
void Copy_File(const std::string &from, const std::string &to);

/// Deletes a file, even a hidden one. Throws File_Error, also for a folder or a write-protected file.
void Delete_File(const std::string &path);

} // namespace platform
