#include "platform/process.h"

#include "win32/handles.h"
#include "win32/paths.h"
#include "win32/wide_text.h"

#include <iterator>
#include <utility>

namespace platform {

namespace {

constexpr wchar_t Restart_Option[] = L"\" /again ";

win32::Unique_Kernel_Handle claim;

/// Returns a folder's path with long names and a separator at its end. The system may report folders with
/// short (8.3) names. The names that it makes up contain a '~'.
std::wstring Long_Folder(const std::wstring &folder) {
    std::wstring found = folder;
    if (folder.find(L'~') != std::wstring::npos) {
        wchar_t name[MAX_PATH] = {};
        const DWORD length = GetLongPathNameW(folder.c_str(), name, MAX_PATH);
        if (length > 0 && length < MAX_PATH)
            found.assign(name, length);
    }
    if (!found.ends_with(L'\\'))
        found += L'\\';
    return found;
}

} // namespace

bool Claim_Single_Instance(const std::string &name) {
    SetLastError(ERROR_SUCCESS);
    win32::Unique_Kernel_Handle mutex(CreateMutexW(nullptr, FALSE, win32::To_Wide(name).c_str()));
    const DWORD error = GetLastError();
    // ERROR_ACCESS_DENIED also means that the mutex exists: the same user created it with other rights.
    if (error == ERROR_ALREADY_EXISTS || (!mutex && error == ERROR_ACCESS_DENIED))
        return false;
    claim = std::move(mutex);
    return true;
}

void Release_Single_Instance() {
    claim.reset();
}

int Restart_Count() {
    const std::wstring line = GetCommandLineW();
    const std::size_t option = line.rfind(Restart_Option);
    if (option == std::wstring::npos)
        return 0;
    const wchar_t digit = line[option + std::size(Restart_Option) - 1];
    return digit >= L'1' && digit <= L'9' ? digit - L'0' : 0;
}

void Start_Again(int count) {
    if (GetSystemMetrics(SM_SHUTTINGDOWN) != 0)
        return;
    const std::wstring program = win32::Program_Path();
    std::wstring line = L"\"" + program + Restart_Option + win32::To_Wide(std::to_string(count));
    STARTUPINFOW start = {};
    start.cb = sizeof start;
    PROCESS_INFORMATION made = {};
    if (!CreateProcessW(program.c_str(), line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start,
                        &made))
        return;
    CloseHandle(made.hThread);
    CloseHandle(made.hProcess);
}

bool Started_From_Temporary_Folder() {
    wchar_t temporary[MAX_PATH] = {};
    const DWORD length = GetTempPathW(MAX_PATH, temporary);
    if (length == 0 || length >= MAX_PATH)
        return false;
    const std::wstring program = win32::Program_Path();
    const std::wstring above = Long_Folder(temporary);
    const std::wstring folder = Long_Folder(program.substr(0, program.rfind(L'\\'))).substr(0, above.size());
    // A whole drive does not count as the folder for temporary files, even if the environment names it.
    constexpr std::size_t drive = 3; // the length of "C:\"
    return above.size() > drive && lstrcmpiW(folder.c_str(), above.c_str()) == 0;
}

} // namespace platform
