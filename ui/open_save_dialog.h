// The file dialog control: the system's open and save dialogs behind a few properties.
#pragma once

#include "base/error.h"
#include "platform/file_dialog.h"

#include <cstdint>
#include <string>
#include <vector>

/// Thrown if the user cancels a file dialog whose CancelError is set.
class Dialog_Cancelled : public Error {
public:
    Dialog_Cancelled();
    static constexpr std::int32_t Number = 32755;
    static constexpr const char *Help_File = "cmdlg98.chm";
    static constexpr std::int32_t Help_Context = 32755;
};

class OpenSaveDialog {
public:
    /// `owner` is the form that owns the dialogs. If it is null, the dialogs have no owner.
    explicit OpenSaveDialog(const platform::Form_Model *owner) : owner_(owner) {}

    std::string DialogTitle;
    bool CancelError = false;
    std::string Filter;           ///< pairs of description and pattern, separated by "|"
    std::string InitDir;          ///< the initial folder
    std::int16_t FilterIndex = 0; ///< the selected pair of Filter, counted from 1
    std::string DefaultExt;       ///< the dialogs do not use it
    /// The chosen path; with the flag for several files, the system's unparsed answer. The dialogs always
    /// open with an empty name.
    std::string FileName;
    std::string FileTitle;          ///< the chosen file's name without its folder
    std::int16_t MaxFileSize = 260; ///< capacity of FileTitle in characters, with its terminator
    std::int32_t Flags = 0;         ///< the system's option bits, before and after a dialog

    /// Show a dialog and store the result in FileName, FilterIndex and Flags, and for a single file also in
    /// FileTitle. If there is a Filter, change a FilterIndex of 0 to 1. If the user cancels, change nothing
    /// else, and throw Dialog_Cancelled if CancelError is set.
    void ShowOpen();
    void ShowSave();

    /// Splits FileName into its folder and file names. A single name replaces all three values. For several
    /// names, appends them to `names`, adds their number to `count`, and sets `folder` only if it is empty.
    /// Throws Conversion_Error if `count` does not fit.
    void ParseMultiFileName(std::string &folder, std::vector<std::string> &names, std::int16_t &count) const;

private:
    void Show(bool saves);

    const platform::Form_Model *owner_;
};

/// Returns a filter in the system's form: each part between "|" ends with a NUL, and one more NUL follows. An
/// empty filter stays empty.
std::string System_Filter(std::string_view filter);
