// The file dialog control: the system's dialogs for opening and saving behind a few properties.
#pragma once

#include "base/error.h"
#include "platform/file_dialog.h"

#include <cstdint>
#include <string>
#include <vector>

/// The user cancelled a file dialog whose caller wanted that to be an error.
class Dialog_Cancelled : public Error {
public:
    Dialog_Cancelled();
    static constexpr std::int32_t Number = 32755;
    static constexpr const char *Help_File = "cmdlg98.chm";
    static constexpr std::int32_t Help_Context = 32755;
};

class OpenSaveDialog {
public:
    /// The form that the dialogs belong to; null: none.
    explicit OpenSaveDialog(const platform::Form_Model *owner) : owner_(owner) {}

    std::string DialogTitle;
    bool CancelError = false;
    std::string Filter;           ///< description and pattern in turn, parted by "|"
    std::string InitDir;          ///< folder in which a dialog opens
    std::int16_t FilterIndex = 0; ///< of the selected pair of Filter, counted from 1
    std::string DefaultExt;       ///< kept only: no dialog gets it
    /// The chosen path, or with the bit of several files the raw answer. What it holds before is no
    /// suggestion: the dialogs open with an empty name.
    std::string FileName;
    std::string FileTitle;          ///< the chosen file's name without its folder
    std::int16_t MaxFileSize = 260; ///< most characters of FileTitle, with the one that ends it
    std::int32_t Flags = 0;         ///< the system's option bits, as given and as they come back

    /// Show a dialog and put the choice into FileName, FileTitle, FilterIndex and Flags. When the user
    /// cancels, these stay, and with CancelError they throw Dialog_Cancelled.
    void ShowOpen();
    void ShowSave();

    /// Parts FileName into its folder and the names in it. Where FileName holds several names a `folder` that
    /// is not empty already stays as it is; `count` is how many names there are.
    void ParseMultiFileName(std::string &folder, std::vector<std::string> &names, std::int16_t &count) const;

private:
    void Show(bool saves);

    const platform::Form_Model *owner_;
};

/// A filter as the system wants it: each piece between the "|" ended by a NUL, and one more NUL at the end.
/// An empty filter stays empty.
std::string System_Filter(std::string_view filter);
