// The system's dialogs that ask for a file name.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace platform {

struct Form_Model;

/// The option bit that lets the user choose several files.
constexpr std::int32_t Multiple_Files = 0x200;

/// The input and output of a file dialog.
struct File_Dialog {
    const Form_Model *owner = nullptr; ///< the form that owns the dialog; null: none
    bool saves = false;                ///< true: asks for a file to write; false: for files to open
    /// Pairs of a description and a pattern, with a NUL after each text and one more at the end; or empty.
    std::string filter;
    std::string folder;            ///< the initial folder; empty: the system chooses
    std::string title;             ///< empty: the system's title
    std::int32_t filter_index = 0; ///< the selected pair in `filter`, counted from 1
    std::int32_t flags = 0;        ///< the system's option bits
    std::size_t file_room = 260;   ///< the maximum length of `file` in UTF-16 units, with the NUL
    std::size_t title_room = 260;  ///< the same for `file_title`
    std::string file; ///< the chosen path; with Multiple_Files the system's whole answer, padded with NULs
    std::string file_title; ///< the chosen file's name without its folder
};

/// Shows a file dialog and waits for the answer. Meanwhile timers run, and no other window of the program
/// takes clicks or keys. Returns true and sets `file`, `file_title`, `filter_index` and `flags` to the user's
/// choice. Returns false and leaves `dialog` unchanged if the user cancels or the answer does not fit. The
/// current folder stays the same.
bool Show_File_Dialog(File_Dialog &dialog);

} // namespace platform
