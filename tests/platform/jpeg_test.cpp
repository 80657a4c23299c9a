// The check of a JPEG file before it is decoded.
#include "base/jpeg.h"
#include "tests/contract/small_jpeg.h"

#include <gtest/gtest.h>

TEST(Jpeg, Whole_Files_Tell_Their_Size_And_Parts_Of_Them_Nothing) {
    using namespace std::string_literals;
    const std::string whole = Small_Jpeg(1), start = whole.substr(0, whole.size() - 2), end = "\xFF\xD9";
    // A stuffed byte and a restart marker in the scan, a second scan, fill bytes, and bytes after the end.
    for (const std::string &rest :
         {end, "\xFF\0\xFF\xD3"s + end, "\xFF\xDA\0\x03x"s + end, "\xFF\xFF" + end, end + "more"})
        EXPECT_EQ(Jpeg_Size(start + rest), (Size{10, 6}));
    // A second frame, a second start, and a segment shorter than its length.
    for (const std::string &rest : {whole.substr(71, 13), "\xFF\xD8"s, "\xFF\xFE\0\x01"s})
        EXPECT_FALSE(Jpeg_Size(start + rest + end)) << rest;
    for (std::size_t length = 0; length < whole.size(); ++length)
        EXPECT_FALSE(Jpeg_Size(whole.substr(0, length))) << length;
    std::string flat = whole;
    flat[71 + 6] = '\0';
    EXPECT_FALSE(Jpeg_Size(flat));
}
