// Shows the system's common file dialogs.
#include "platform/file_dialog.h"

#include "win32/mirror.h"
#include "win32/modal.h"
#include "win32/system_library.h"
#include "win32/wide_text.h"

#include <commdlg.h>

namespace platform {

namespace {

/// Restores the current folder at the end of a scope. The dialogs change the current folder to the folder
/// that the user has opened, and no program can remove a folder that is current.
class Current_Folder_Guard {
public:
    Current_Folder_Guard() {
        const DWORD size = GetCurrentDirectoryW(0, nullptr);
        folder_.resize(size);
        folder_.resize(GetCurrentDirectoryW(size, folder_.data()));
    }
    ~Current_Folder_Guard() {
        if (!folder_.empty())
            SetCurrentDirectoryW(folder_.c_str());
    }
    Current_Folder_Guard(const Current_Folder_Guard &) = delete;
    Current_Folder_Guard &operator=(const Current_Folder_Guard &) = delete;

private:
    std::wstring folder_;
};

std::wstring Up_To_Nul(const std::wstring &text) {
    return text.substr(0, text.find(L'\0'));
}

const wchar_t *Null_If_Empty(const std::wstring &text) {
    return text.empty() ? nullptr : text.c_str();
}

} // namespace

bool Show_File_Dialog(File_Dialog &dialog) {
    const std::wstring filter = win32::To_Wide(dialog.filter);
    const std::wstring folder = win32::To_Wide(dialog.folder);
    const std::wstring title = win32::To_Wide(dialog.title);
    std::wstring file(dialog.file_room, L'\0');
    std::wstring file_title(dialog.title_room, L'\0');
    OPENFILENAMEW record = {};
    // Every Windows version accepts this size.
    record.lStructSize = OPENFILENAME_SIZE_VERSION_400W;
    record.hwndOwner = dialog.owner == nullptr ? nullptr : win32::Window_Of_Form(*dialog.owner);
    record.hInstance = GetModuleHandleW(nullptr);
    record.lpstrFilter = Null_If_Empty(filter);
    record.nFilterIndex = static_cast<DWORD>(dialog.filter_index);
    record.lpstrFile = file.data();
    record.nMaxFile = static_cast<DWORD>(file.size());
    record.lpstrFileTitle = file_title.data();
    record.nMaxFileTitle = static_cast<DWORD>(file_title.size());
    record.lpstrInitialDir = Null_If_Empty(folder);
    record.lpstrTitle = Null_If_Empty(title);
    record.Flags = static_cast<DWORD>(dialog.flags);

    const Current_Folder_Guard kept;
    const win32::Modal_Scope modal(record.hwndOwner);
    // Load the library on demand: file dialogs are rare, and their libraries would slow down every start.
    const auto show = win32::Look_Up<decltype(GetOpenFileNameW)>(
        L"comdlg32.dll", dialog.saves ? "GetSaveFileNameW" : "GetOpenFileNameW");
    if (show == nullptr || !show(&record))
        return false;
    dialog.file = win32::From_Wide((dialog.flags & Multiple_Files) != 0 ? file : Up_To_Nul(file));
    dialog.file_title = win32::From_Wide(Up_To_Nul(file_title));
    dialog.flags = static_cast<std::int32_t>(record.Flags);
    dialog.filter_index = static_cast<std::int32_t>(record.nFilterIndex);
    return true;
}

} // namespace platform
