#include "ui/open_save_dialog.h"

#include "core/convert.h"

#include <algorithm>

namespace {

constexpr std::size_t plain_room = 260;
constexpr std::size_t room_of_several = 8192;

std::string Up_To_Nul(const std::string &text) {
    return text.substr(0, text.find('\0'));
}

} // namespace

Dialog_Cancelled::Dialog_Cancelled() : Error("Cancel was selected.") {
}

std::string System_Filter(std::string_view filter) {
    if (filter.empty())
        return {};
    std::string list(filter);
    std::replace(list.begin(), list.end(), '|', '\0');
    list.append(2, '\0');
    return list;
}

void OpenSaveDialog::ShowOpen() {
    Show(false);
}

void OpenSaveDialog::ShowSave() {
    Show(true);
}

void OpenSaveDialog::Show(bool saves) {
    platform::File_Dialog dialog;
    dialog.owner = owner_;
    dialog.saves = saves;
    dialog.filter = System_Filter(Filter);
    dialog.folder = InitDir;
    dialog.title = DialogTitle;
    if (!Filter.empty() && FilterIndex == 0)
        FilterIndex = 1;
    dialog.filter_index = FilterIndex;
    dialog.flags = Flags;
    const bool several = !saves && (Flags & platform::Multiple_Files) != 0;
    dialog.file_room = several ? room_of_several : plain_room;
    dialog.title_room =
        several ? room_of_several : static_cast<std::size_t>(std::max<std::int16_t>(MaxFileSize, 0));
    if (!platform::Show_File_Dialog(dialog)) {
        if (CancelError)
            throw Dialog_Cancelled();
        return;
    }
    FileName = several ? dialog.file : Up_To_Nul(dialog.file);
    if (!several)
        FileTitle = Up_To_Nul(dialog.file_title);
    Flags = dialog.flags;
    FilterIndex = Fit_Int16(dialog.filter_index);
}

void OpenSaveDialog::ParseMultiFileName(std::string &folder, std::vector<std::string> &names,
                                        std::int16_t &count) const {
    std::size_t nul = FileName.find('\0');
    if (nul == std::string::npos) {
        const std::size_t separator = FileName.rfind('\\');
        const bool has_folder = separator != std::string::npos && separator != 0;
        folder = has_folder ? FileName.substr(0, separator) : std::string();
        names = {FileName.substr(separator == std::string::npos ? 0 : separator + 1)};
        count = 1;
        return;
    }
    if (folder.empty())
        folder = FileName.substr(0, nul);
    while (nul != std::string::npos) {
        const std::size_t begin = nul + 1;
        nul = FileName.find('\0', begin);
        names.push_back(FileName.substr(begin, nul == std::string::npos ? nul : nul - begin));
        count = Fit_Int16(count + 1);
    }
}
