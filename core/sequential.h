// Reading a text file item by item with the comma-and-quote rules of sequential input, and writing such
// items.
#pragma once

#include "platform/error.h"

#include <string>
#include <string_view>

/// A quoted item has no closing quote, or an item cannot be written.
class Sequential_Error : public platform::Error {
public:
    using Error::Error;
};

/// Walks over the bytes of a file once. An item ends at a comma or a line end (CR LF, LF or CR); blanks
/// around it are no part of it. An item that begins with a quote goes to its closing quote exactly as
/// written, line ends and NULs included. A byte-order mark of UTF-8 at the very start, and blanks and empty
/// lines at the end, are skipped; any other empty line is an empty item. The bytes must outlive the reader
/// and the items.
class Sequential_Reader {
public:
    explicit Sequential_Reader(std::string_view bytes);

    /// The next item in `item`, as a view into the bytes; false at the end. Throws Sequential_Error.
    bool Next(std::string_view &item);

private:
    const char *at_;
    const char *end_;
};

/// Appends one item to `bytes` so that it reads back the same: in quotes, followed by CR LF. An item that
/// holds a quote, as only a hand-written one does, stays without quotes around it. Throws Sequential_Error,
/// with `bytes` unchanged, for one that would read back differently so: it holds a quote and also begins with
/// one, holds a comma or line break, or has blanks at its ends. No reader gives such items.
void Append_Item(std::string &bytes, std::string_view item);
