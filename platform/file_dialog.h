// The system's dialogs that ask for a file name.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace platform {

struct Form_Model;

/// The option bit that lets the user choose several files.
constexpr std::int32_t Multiple_Files = 0x200;

/// What a file dialog is asked with, and what it answers.
struct File_Dialog {
    const Form_Model *owner = nullptr; ///< the form that it belongs to; null: none
    bool saves = false;                ///< asks for a file to write, else for one that is there
    std::string
        filter; ///< descriptions and patterns in turn, each ended by a NUL, and one more NUL; or empty
    std::string folder;            ///< where it opens; empty: where the system thinks best
    std::string title;             ///< empty: the system's own
    std::int32_t filter_index = 0; ///< of a pair in `filter`, counted from 1
    std::int32_t flags = 0;        ///< the system's option bits
    std::size_t file_room = 260;   ///< the most characters of the answers, with a NUL
    std::size_t title_room = 260;
    std::string file; ///< the chosen path; with Multiple_Files the whole answer, padded with NULs
    std::string file_title;
};

/// Shows a file dialog and waits for the answer; timers go on meanwhile, and no window of the program takes
/// clicks or keys. False, with `dialog` unchanged, when the user cancels or the answer does not fit. With
/// true, `file`, `file_title`, `filter_index` and `flags` are what was chosen. The current folder is
/// afterwards what it was before.
bool Show_File_Dialog(File_Dialog &dialog);

} // namespace platform
