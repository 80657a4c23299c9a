// The rules for the items of a sequential file, and that written items are read back unchanged.
#include "core/sequential.h"

#include <gtest/gtest.h>
#include <vector>

using namespace std::string_literals;

namespace {

std::vector<std::string> Read(std::string_view bytes) {
    std::vector<std::string> items;
    try {
        Sequential_Reader reader(bytes);
        for (std::string_view item; reader.Next(item);)
            items.emplace_back(item);
    } catch (const Sequential_Error &) {
        items.push_back("!");
    }
    return items;
}

TEST(Sequential, Reads_By_Comma_And_Quote_Rules) {
    const std::pair<std::string, std::vector<std::string>> cases[] = {
        {"", {}},
        {"\"nul\0inside\",n\0l"s, {"nul\0inside"s, "!"}},
        {"\"1\x1A\" \x1A", {"1\x1A"}},
        {"a,b \x1A\"", {"a", "b"}},
        {"a\n\n\n \x1A\xFF,\0"s, {"a"}},
        {"a\n\n\nb\x1A", {"a", "", "", "b"}},
        // Each item has its own encoding.
        {"\"\xE9\x80\",\u00E9\u65E5\n\xE9", {"\u00E9\u20AC", "\u00E9\u65E5", "\u00E9"}},
        {" \t a b \t,\t\" c \" \t, d \r\n", {"a b", " c ", "d"}},
        {"\"a\"\"b\" c\r\n\"d\"  \r\ne", {"a", "b", "c", "d", "e"}},
        {"it\"s,a\"\n", {"it\"s", "a\""}},
        {"a\r\n\r\nb\n\rc", {"a", "", "b", "", "c"}},
        {",a,,b,", {"", "a", "", "b"}},
        {"\xEF\xBB\xBF\"a\"\r\n\xEF\xBB\xBF", {"a", "\xEF\xBB\xBF"}},
    };
    for (const auto &[bytes, items] : cases)
        EXPECT_EQ(Read(bytes), items) << bytes;
}

TEST(Sequential, What_Is_Written_Reads_Back_The_Same) {
    // A byte order mark counts only at the start of the file.
    const std::vector<std::string> items{
        "\xEF\xBB\xBF \" quote", "a, b = c", "", " blanks ", "two\r\nlines", "nul\0inside"s, "it\"s",
        "\xEF\xBB\xBFmark",      "\x1A"};
    std::string bytes;
    for (const std::string &item : items)
        Append_Item(bytes, item);
    const std::string before = bytes;
    for (const char *impossible : {"\"a", "a\",b", "a\"\nb", " a\"", "a\" ", "\"", "a\"\x1A"})
        EXPECT_THROW(Append_Item(bytes, impossible), Sequential_Error) << impossible;
    EXPECT_EQ(bytes, before);
    EXPECT_EQ(Read(bytes), items);
}

} // namespace
