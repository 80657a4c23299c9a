// The rules by which a sequential file falls into items, and that what is written reads back the same.
#include "core/sequential.h"

#include <gtest/gtest.h>
#include <vector>

using namespace std::string_literals;
using namespace std::string_view_literals;
using Items = std::vector<std::string>;

namespace {

Items Read(std::string_view bytes) {
    Items items;
    Sequential_Reader reader(bytes);
    for (std::string_view item; reader.Next(item);)
        items.emplace_back(item);
    return items;
}

} // namespace

TEST(Sequential, Reads_By_Comma_And_Quote_Rules) {
    const struct {
        std::string_view bytes;
        Items items;
    } cases[] = {
        {"", {}},
        {"\"5/3/2002=Dentist\"\r\n\"25/12/9999=Christmas\"\r\n",
         {"5/3/2002=Dentist", "25/12/9999=Christmas"}},
        {"\"a, b\",\"c\"\r\n", {"a, b", "c"}},
        {"\"two\r\nlines\n\"\r\nx", {"two\r\nlines\n", "x"}},
        {"\"nul\0inside\",n\0l"sv, {"nul\0inside"s, "n\0l"s}},
        {"a\nb\rc\r\nd", {"a", "b", "c", "d"}},
        {" \t a b \t,\t\" c \" \t, d \r\n", {"a b", " c ", "d"}},
        {"\"a\"\"b\" c\r\n", {"a", "b", "c"}},
        {"\"a\"  \r\n\"b\"", {"a", "b"}},
        {"it\"s,a\"\n", {"it\"s", "a\""}},
        {"a\r\n\r\nb", {"a", "", "b"}},
        {"a\n\rb", {"a", "", "b"}},
        {",a,,b,", {"", "a", "", "b"}},
        {"\"\"\r\n\"\"", {"", ""}},
        {"a\r\n\r\n \t\r\n", {"a"}},
        {"\r\n \r\n", {}},
        {"\xEF\xBB\xBF\"a\"\r\n", {"a"}},
        {"\xEF\xBB\xBF", {}},
        {"a,\xEF\xBB\xBF", {"a", "\xEF\xBB\xBF"}},
    };
    for (const auto &c : cases)
        EXPECT_EQ(Read(c.bytes), c.items) << c.bytes;
}

TEST(Sequential, Unclosed_Quote_Is_An_Error_After_The_Items_Before_It) {
    for (const std::string_view bytes : {"\"a\"\r\n\"b\r\n"sv, "a,\""sv, "a\n\"   \r\n"sv}) {
        Sequential_Reader reader(bytes);
        std::string_view item;
        EXPECT_TRUE(reader.Next(item));
        EXPECT_EQ(item, "a");
        EXPECT_THROW(reader.Next(item), Sequential_Error) << bytes;
    }
}

TEST(Sequential, What_Is_Written_Reads_Back_The_Same) {
    const Items items{"\xEF\xBB\xBFmark \" quote",
                      "5/3/2002=a, b = c",
                      "",
                      " blanks ",
                      "two\r\nlines",
                      "it\"s",
                      "nul\0inside"s,
                      "\xEF\xBB\xBFmark"};
    std::string bytes;
    for (const std::string &item : items)
        Append_Item(bytes, item);
    EXPECT_EQ(Read(bytes), items);

    bytes.clear();
    Append_Item(bytes, "5/3/2002=x");
    EXPECT_EQ(bytes, "\"5/3/2002=x\"\r\n");
    for (const char *impossible : {"\"a", "a\",b", "a\"\nb", " a\"", "a\" ", "\""})
        EXPECT_THROW(Append_Item(bytes, impossible), Sequential_Error) << impossible;
    EXPECT_EQ(bytes, "\"5/3/2002=x\"\r\n");
}
