// File names of the program as the system's calls take them.
#include "win32/paths.h"

#include "win32/handles.h"
#include "win32/wide_text.h"

#include <algorithm>

namespace win32 {

namespace {

/// Plain paths end here: MAX_PATH less the 12 characters of a short file name, as folders may need them.
constexpr std::size_t Longest_Plain_Path = 247;

/// The long form is taken literally by the system: steps like ".." may not be in it.
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
