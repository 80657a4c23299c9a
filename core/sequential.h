// Reads and writes text files item by item, under the comma and quote rules of sequential files.
#pragma once

#include "base/error.h"

#include <string>
#include <string_view>

/// Thrown if a quoted item has no closing quote, if an item has no form that reads back the same, or if the
/// bytes are not plain text: UTF-16, or a NUL outside quotes.
class Sequential_Error : public Error {
public:
    using Error::Error;
};

/// Reads the items of a file in one pass. An item ends at a comma or a line ending (CR LF, LF or CR), and
/// does not include the blanks around it. A quoted item extends to its closing quote, unchanged, including
/// line endings and NULs. The byte 0x1A outside quotes ends the file. The reader skips a UTF-8 byte order
/// mark at the start, and blanks and empty lines at the end; any other empty line is an empty item. Items are
/// UTF-8; the reader converts others from the system's ANSI code page. The bytes must outlive the reader.
class Sequential_Reader {
public:
    /// Throws Sequential_Error for bytes with a UTF-16 byte order mark.
    explicit Sequential_Reader(std::string_view bytes);

    /// Sets `item` to the next item, valid until the next call. Returns false at the end. Throws
    /// Sequential_Error for a missing closing quote and for a NUL outside quotes.
    bool Next(std::string_view &item);

private:
    bool At_End();
    std::string_view Read_Quoted();
    std::string_view Read_Unquoted();

    const char *at_;
    const char *end_;
    const char *scanned_to_; ///< At_End has examined the line endings before this position
    bool all_utf8_;          ///< no item needs conversion
    std::string converted_;  ///< the last converted item
};

/// Appends one item to `bytes` in quotes, and CR LF. Omits the quotes around an item that itself contains a
/// quote; only hand-written items do. Throws Sequential_Error, leaving `bytes` unchanged, if such an item
/// would read back differently: it begins with a quote, contains a comma, line break, NUL or 0x1A, or has
/// blanks at its ends. The reader never returns such items.
void Append_Item(std::string &bytes, std::string_view item);
