// What of a JPEG file is looked at before it is decoded.
#include "platform/jpeg.h"
#include "tests/contract/small_jpeg.h"

#include <gtest/gtest.h>

namespace {

using platform::Jpeg_Size;
using platform::Size;

TEST(Jpeg, Whole_Files_Tell_Their_Size_And_Parts_Of_Them_Nothing) {
    const std::string whole = Small_Jpeg(1);
    EXPECT_EQ(Jpeg_Size(whole), (Size{10, 6}));
    EXPECT_EQ(Jpeg_Size(whole + "more"), (Size{10, 6}));
    for (std::size_t length = 0; length < whole.size(); ++length)
        EXPECT_FALSE(Jpeg_Size(whole.substr(0, length))) << length;
    const std::string frame = whole.substr(71, 13);
    const std::string start = whole.substr(0, whole.size() - 2);
    const std::string end = whole.substr(whole.size() - 2);
    const struct {
        std::string what, bytes;
        bool is_whole;
    } cases[] = {{"a stuffed byte and a restart in the scan", std::string("\xFF\0\xFF\xD3", 4) + end, true},
                 {"a second scan", std::string("\xFF\xDA\0\x03x", 5) + end, true},
                 {"fill bytes", "\xFF\xFF" + end, true},
                 {"a second frame", frame + end, false},
                 {"a start within", "\xFF\xD8" + end, false},
                 {"a segment shorter than its length", std::string("\xFF\xFE\0\x01", 4) + end, false}};
    for (const auto &[what, bytes, is_whole] : cases)
        EXPECT_EQ(Jpeg_Size(start + bytes).has_value(), is_whole) << what;
    std::string flat = whole;
    flat[71 + 6] = '\0';
    EXPECT_FALSE(Jpeg_Size(flat));
}

} // namespace
