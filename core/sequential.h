// Reading a text file item by item with the comma-and-quote rules of sequential input, and writing such
// items.
#pragma once

#include "base/error.h"

#include <string>
#include <string_view>

/// A quoted item has no closing quote, an item cannot be written, or the bytes are not text: UTF-16, or with
/// a NUL outside of quotes.
class Sequential_Error : public Error {
public:
    using Error::Error;
};

/// Walks over the bytes of a file once. An item ends at a comma or a line end (CR LF, LF or CR); blanks
/// around it are no part of it. An item that begins with a quote goes to its closing quote exactly as
/// written, line ends and NULs included. The byte 0x1A outside of quotes is the end of the file, whatever
/// stands behind it. A byte-order mark of UTF-8 at the very start, and blanks and empty lines at the end, are
/// skipped; any other empty line is an empty item. Items are given as UTF-8: one that is none is taken as
/// text of the system's ANSI code page. The bytes must outlive the reader.
class Sequential_Reader {
public:
    /// Throws Sequential_Error for bytes with a byte-order mark of UTF-16.
    explicit Sequential_Reader(std::string_view bytes);

    /// The next item in `item`, as a view that is good until the next call; false at the end. Throws
    /// Sequential_Error.
    bool Next(std::string_view &item);

private:
    bool At_End();
    std::string_view Read_Quoted();
    std::string_view Read_Unquoted();

    const char *at_;
    const char *end_;
    const char *scanned_to_; ///< no line end before this one is among the last bytes of the file
    bool all_utf8_;          ///< no item needs a look
    std::string converted_;  ///< the last item that was not UTF-8
};

/// Appends one item to `bytes` so that it reads back the same: in quotes, followed by CR LF. An item that
/// holds a quote, as only a hand-written one does, stays without quotes around it. Throws Sequential_Error,
/// with `bytes` unchanged, for one that would read back differently so: it holds a quote and also begins with
/// one, holds a comma or line break, or has blanks at its ends. No reader gives such items.
void Append_Item(std::string &bytes, std::string_view item);
