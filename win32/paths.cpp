#include "win32/paths.h"

#include "win32/handles.h"
#include "win32/wide_text.h"

#include <algorithm>

namespace win32 {

namespace {

/// The length of the longest plain path: MAX_PATH less the NUL and the 12 characters of a short file name. A
/// folder's path must leave room for such a name.
constexpr std::size_t Longest_Plain_Path = 247;

/// Returns whether the path contains ".." or "." as a component. The system takes the long form literally, so
/// that form must not contain such a component.
bool Has_Dot_Step(const std::wstring &path) {
    return (path + L'\\').find(L"\\..\\") != std::wstring::npos ||
           (path + L'\\').find(L"\\.\\") != std::wstring::npos;
}

} // namespace

std::wstring Path_For_Call(const std::string &path) {
    std::wstring wide = To_Wide(path);
    if (wide.find(L'\0') != std::wstring::npos)
        return {};
    if (wide.size() <= Longest_Plain_Path)
        return wide;
    std::replace(wide.begin(), wide.end(), L'/', L'\\');
    if (Has_Dot_Step(wide) || wide.starts_with(L"\\\\?\\"))
        return wide;
    if (wide.starts_with(L"\\\\"))
        return L"\\\\?\\UNC" + wide.substr(1);
    if (wide[1] == L':' && wide[2] == L'\\')
        return L"\\\\?\\" + wide;
    return wide;
}

std::wstring Program_Path() {
    std::wstring path(MAX_PATH, L'\0');
    DWORD length = 0;
    while ((length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()))) >=
           path.size())
        path.resize(path.size() * 2);
    path.resize(length);
    return path;
}

} // namespace win32
