// Replaces a file by renaming a new file over it. The new file's name is the old name with ".vellatro-new"
// appended. If a killed run leaves a new file behind, the next replacement deletes it. The system renames a
// file completely or not at all. ReplaceFile would keep the access list, but it is not atomic: between its
// two steps no file has the name.
#include "platform/files.h"

#include "base/joined.h"
#include "win32/handles.h"
#include "win32/paths.h"
#include "win32/system_error.h"
#include "win32/system_library.h"
#include "win32/wide_text.h"

#include <algorithm>
#include <new>

namespace platform {

namespace {

constexpr const char *New_File_Suffix = ".vellatro-new";
constexpr DWORD Share_All = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

/// In bytes (512 MiB). Read_To_End refuses a file of this length or more, because a 32-bit process might not
/// have room for the bytes twice.
constexpr DWORD Longest_File = 0x20000000;
constexpr std::size_t Bytes_Per_Write = 0x100000;

/// Virus scanners and indexers hold a file open for a moment after each change, so Rename_Over tries
/// again for about 0.3 seconds.
constexpr int Rename_Tries = 10;
constexpr DWORD Milliseconds_Between_Tries = 30;

[[noreturn]] void Throw(const std::string &path, DWORD code) {
    throw File_Error(Joined({path, ": ", win32::System_Error_Text(code)}));
}

/// Makes system calls on a missing disk fail for a scope, instead of asking the user for the disk.
class Quiet_Errors {
public:
    Quiet_Errors() : before_(SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX)) {}
    ~Quiet_Errors() { SetErrorMode(before_); }
    Quiet_Errors(const Quiet_Errors &) = delete;
    Quiet_Errors &operator=(const Quiet_Errors &) = delete;

private:
    UINT before_;
};

/// Sets `attributes` to those of the file or folder at `path`. Returns an error code.
DWORD Query_Attributes(const std::string &path, DWORD &attributes) {
    const std::wstring wide = win32::Path_For_Call(path);
    if (wide.empty())
        return ERROR_INVALID_NAME;
    const Quiet_Errors quiet;
    attributes = GetFileAttributesW(wide.c_str());
    return attributes == INVALID_FILE_ATTRIBUTES ? GetLastError() : DWORD{NO_ERROR};
}

/// Makes the string `size` bytes long. Returns false if out of memory.
bool Resize(std::string &bytes, std::size_t size) {
    try {
        bytes.resize(size);
        return true;
    } catch (const std::bad_alloc &) {
        return false;
    }
}

/// Reads up to the end of the file, even if another program lengthens the file meanwhile. Returns an error
/// code.
DWORD Read_To_End(HANDLE file, std::string &bytes) {
    DWORD high = 0;
    const DWORD low = GetFileSize(file, &high);
    if (low == INVALID_FILE_SIZE && GetLastError() != NO_ERROR)
        return GetLastError();
    std::size_t filled = 0;
    std::size_t room = low + std::size_t{1}; // the last byte lets the loop find the end without more room
    for (;;) {
        if (high != 0 || low > Longest_File || room > Longest_File || !Resize(bytes, room))
            return ERROR_NOT_ENOUGH_MEMORY;
        DWORD got = 0;
        if (!ReadFile(file, bytes.data() + filled, static_cast<DWORD>(room - filled), &got, nullptr))
            return GetLastError();
        filled += got;
        if (got == 0) {
            bytes.resize(filled);
            return NO_ERROR;
        }
        if (filled == room)
            room += room / 2 + 4096;
    }
}

/// Writes all bytes and flushes them to the disk. Returns an error code.
DWORD Write_All(HANDLE file, std::string_view bytes) {
    while (!bytes.empty()) {
        const auto part = static_cast<DWORD>(std::min(bytes.size(), Bytes_Per_Write));
        DWORD written = 0;
        if (!WriteFile(file, bytes.data(), part, &written, nullptr))
            return GetLastError();
        if (written == 0)
            return ERROR_DISK_FULL;
        bytes.remove_prefix(written);
    }
    if (FlushFileBuffers(file))
        return NO_ERROR;
    // Some shared folders cannot flush. They save the file nevertheless.
    const DWORD code = GetLastError();
    return code == ERROR_INVALID_FUNCTION || code == ERROR_NOT_SUPPORTED ? DWORD{NO_ERROR} : code;
}

/// Opens a file only to query its properties. That works even if another program has opened the file
/// exclusively.
win32::Unique_File Open_For_Query(const std::wstring &path) {
    return win32::Own_File(CreateFileW(path.c_str(), 0, Share_All, nullptr, OPEN_EXISTING, 0, nullptr));
}

/// Returns the file's path with all symbolic links resolved. Returns an empty path if there is no file or the
/// system cannot tell. Systems before Windows Vista cannot tell, but have no such links.
std::wstring Resolve_Links(const std::wstring &path) {
    using Final_Path = DWORD WINAPI(HANDLE, LPWSTR, DWORD, DWORD);
    auto *const final_path = win32::Look_Up<Final_Path>(L"kernel32.dll", "GetFinalPathNameByHandleW");
    const win32::Unique_File file = Open_For_Query(path);
    if (final_path == nullptr || !file)
        return {};
    std::wstring found(MAX_PATH, L'\0');
    DWORD length = final_path(file.get(), found.data(), MAX_PATH, 0);
    if (length > MAX_PATH) { // including the NUL
        found.resize(length);
        length = final_path(file.get(), found.data(), length, 0);
    }
    found.resize(length < found.size() ? length : 0);
    return found;
}

/// Copies the access list of one file to another. If `from` has no such list, does nothing: `to` keeps the
/// list that it got from its folder.
void Copy_Access_List(const std::wstring &from, const std::wstring &to) {
    DWORD size = 0;
    GetFileSecurityW(from.c_str(), DACL_SECURITY_INFORMATION, nullptr, 0, &size);
    std::string space(size, '\0');
    auto *const list = reinterpret_cast<SECURITY_DESCRIPTOR_RELATIVE *>(space.data());
    if (size < sizeof *list || !GetFileSecurityW(from.c_str(), DACL_SECURITY_INFORMATION, list, size, &size))
        return;
    // Entries that the file inherits from its folder must stay inherited.
    if ((list->Control & SE_DACL_AUTO_INHERITED) != 0)
        list->Control |= SE_DACL_AUTO_INHERIT_REQ;
    SetFileSecurityW(to.c_str(), DACL_SECURITY_INFORMATION, list);
}

/// Creates the file with these bytes and attributes. Gives it the access list of the file `old`, if `old`
/// exists, and the last write time `written`, if not null. Returns an error code.
DWORD Write_New_File(const std::wstring &path, std::string_view bytes, DWORD attributes,
                     const std::wstring &old, const FILETIME *written) {
    const win32::Unique_File file = win32::Own_File(
        CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, attributes, nullptr));
    if (!file)
        return GetLastError();
    Copy_Access_List(old, path);
    const DWORD code = Write_All(file.get(), bytes);
    // A disk that cannot store the time still gets the copy.
    if (code == NO_ERROR && written != nullptr)
        SetFileTime(file.get(), nullptr, nullptr, written);
    return code;
}

/// Renames the file `from` to `to`, and replaces a file of that name. Returns an error code.
DWORD Rename_Over(const std::wstring &from, const std::wstring &to) {
    for (int tries = 1;; ++tries) {
        if (MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH))
            return NO_ERROR;
        const DWORD code = GetLastError();
        const bool held = code == ERROR_SHARING_VIOLATION || code == ERROR_ACCESS_DENIED;
        if (!held || tries == Rename_Tries)
            return code;
        Sleep(Milliseconds_Between_Tries);
    }
}

void Remove_File(const std::wstring &path) {
    // The system does not delete a write-protected file.
    SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL);
    DeleteFileW(path.c_str());
}

/// Replaces the file. `written` becomes its last write time; null: now. Throws File_Error.
void Replace(const std::string &path, std::string_view bytes, const FILETIME *written) {
    std::wstring wide = win32::Path_For_Call(path);
    std::wstring new_file = win32::Path_For_Call(path + New_File_Suffix);
    if (wide.empty())
        Throw(path, ERROR_INVALID_NAME);
    const Quiet_Errors quiet;
    if (const std::wstring real = Resolve_Links(wide); !real.empty()) {
        wide = real;
        new_file = real + win32::To_Wide(New_File_Suffix);
    }
    DWORD attributes = GetFileAttributesW(wide.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES)
        attributes = 0;
    if ((attributes & (FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY)) != 0)
        Throw(path, ERROR_ACCESS_DENIED);
    // A hidden file stays hidden and an encrypted one encrypted.
    attributes &= FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_ENCRYPTED |
                  FILE_ATTRIBUTE_NOT_CONTENT_INDEXED;
    Remove_File(new_file);
    DWORD code = Write_New_File(new_file, bytes, attributes | FILE_ATTRIBUTE_ARCHIVE, wide, written);
    if (code == NO_ERROR)
        code = Rename_Over(new_file, wide);
    if (code != NO_ERROR) {
        Remove_File(new_file);
        Throw(path, code);
    }
}

/// Returns the time of the last write to the file. Throws File_Error.
FILETIME Last_Write_Time(const std::string &path) {
    const std::wstring wide = win32::Path_For_Call(path);
    if (wide.empty())
        Throw(path, ERROR_INVALID_NAME);
    const Quiet_Errors quiet;
    const win32::Unique_File file = Open_For_Query(wide);
    FILETIME written = {};
    if (!file || !GetFileTime(file.get(), nullptr, nullptr, &written))
        Throw(path, GetLastError());
    return written;
}

} // namespace

std::string Program_Folder() {
    std::wstring path = win32::Program_Path();
    const std::size_t separator = path.rfind(L'\\');
    path.resize(separator == std::wstring::npos ? 0 : separator);
    return win32::From_Wide(path);
}

std::string Program_Name() {
    std::wstring name = win32::Program_Path();
    name.erase(0, name.rfind(L'\\') + 1);
    return win32::From_Wide(name.substr(0, name.rfind(L'.')));
}

bool File_Exists(const std::string &path) {
    DWORD attributes = 0;
    return Query_Attributes(path, attributes) == NO_ERROR && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

bool Folder_Exists(const std::string &path) {
    DWORD attributes = 0;
    return Query_Attributes(path, attributes) == NO_ERROR && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

std::vector<std::string> Names_In_Folder(const std::string &folder, Entry_Kind kind) {
    std::vector<std::string> names;
    const std::wstring pattern = win32::Path_For_Call(folder + "\\*");
    const Quiet_Errors quiet;
    WIN32_FIND_DATAW found = {};
    const HANDLE first = pattern.empty() ? INVALID_HANDLE_VALUE : FindFirstFileW(pattern.c_str(), &found);
    if (first == INVALID_HANDLE_VALUE)
        return names;
    const win32::Unique_Find find(first);
    do {
        const std::wstring name = found.cFileName;
        const bool is_folder = (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
        if (is_folder != (kind == Entry_Kind::Folders) || name == L"." || name == L"..")
            continue;
        // Skip a name that is not valid Unicode, because the conversion would turn it into another name.
        std::string text = win32::From_Wide(name);
        if (win32::To_Wide(text) == name)
            names.push_back(std::move(text));
    } while (FindNextFileW(find.get(), &found));
    return names;
}

bool Path_Exists(const std::string &path) {
    DWORD attributes = 0;
    const DWORD code = Query_Attributes(path, attributes);
    return code != ERROR_FILE_NOT_FOUND && code != ERROR_PATH_NOT_FOUND;
}

std::string Read_File(const std::string &path) {
    const std::wstring wide = win32::Path_For_Call(path);
    if (wide.empty())
        Throw(path, ERROR_INVALID_NAME);
    const Quiet_Errors quiet;
    const win32::Unique_File file = win32::Own_File(CreateFileW(
        wide.c_str(), GENERIC_READ, Share_All, nullptr, OPEN_EXISTING, FILE_FLAG_SEQUENTIAL_SCAN, nullptr));
    if (!file)
        Throw(path, GetLastError());
    // Reading from a device, such as a serial port, would block the program.
    if (GetFileType(file.get()) != FILE_TYPE_DISK)
        Throw(path, ERROR_INVALID_NAME);
    std::string bytes;
    const DWORD code = Read_To_End(file.get(), bytes);
    if (code != NO_ERROR)
        Throw(path, code);
    return bytes;
}

void Replace_File(const std::string &path, std::string_view bytes) {
    Replace(path, bytes, nullptr);
}

void Copy_File(const std::string &from, const std::string &to) {
    const FILETIME written = Last_Write_Time(from);
    Replace(to, Read_File(from), &written);
}

Date_Time Modified_Time(const std::string &path) {
    const FILETIME written = Last_Write_Time(path);
    FILETIME local = {};
    SYSTEMTIME time = {};
    if (!FileTimeToLocalFileTime(&written, &local) || !FileTimeToSystemTime(&local, &time))
        Throw(path, GetLastError());
    return {time.wYear, time.wMonth, time.wDay, time.wHour, time.wMinute, time.wSecond, time.wMilliseconds};
}

void Delete_File(const std::string &path) {
    const std::wstring wide = win32::Path_For_Call(path);
    if (wide.empty())
        Throw(path, ERROR_INVALID_NAME);
    const Quiet_Errors quiet;
    if (!DeleteFileW(wide.c_str()))
        Throw(path, GetLastError());
}

} // namespace platform
