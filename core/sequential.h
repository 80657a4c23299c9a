// Reading and writing text files item by item, by the comma and quote rules of sequential files.
#pragma once

#include "base/error.h"

#include <string>
#include <string_view>

/// Thrown if a quoted item has no closing quote, if an item cannot be written, or if the bytes are not plain
/// text: UTF-16, or a NUL outside quotes.
class Sequential_Error : public Error {
public:
    using Error::Error;
};

/// Reads the items of a file in one pass. An item ends at a comma or a line ending (CR LF, LF or CR); blanks
/// around it are not part of it. A quoted item extends to its closing quote, unchanged, including line
/// endings and NULs. The byte 0x1A outside quotes ends the file. A UTF-8 byte order mark at the start, and
/// blanks and empty lines at the end, are skipped; any other empty line is an empty item. Items are UTF-8; an
/// item in another encoding is converted from the system's ANSI code page. The bytes must outlive the reader.
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
    std::string converted_;  ///< the last item that was not UTF-8
};

/// Appends one item to `bytes` in quotes, followed by CR LF. An item that contains a quote is written without
/// quotes around it; only hand-written items contain one. Throws Sequential_Error, leaving `bytes` unchanged,
/// if such an item would read back differently: it begins with a quote, contains a comma, line break, NUL or
/// 0x1A, or has blanks at its ends. The reader never returns such items.
void Append_Item(std::string &bytes, std::string_view item);
