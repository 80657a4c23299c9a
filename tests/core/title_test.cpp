// The title in each date format, and the patterns that users may type.
#include "core/settings.h"
#include "core/title.h"
#include "tests/fakes/fake_test.h"

using Title_Test = Fake_Test;

namespace {

const platform::Date_Time afternoon{2002, 3, 5, 15, 7, 9, 0};
const platform::Date_Time midnight{2002, 11, 12, 0, 30, 45, 0};
const std::string weekday_form = "Weekday - d month - yyyy";

} // namespace

TEST_F(Title_Test, Patterns) {
    std::string texts;
    for (const char *pattern : {"A/Ph",        "mm/yyyy",        "HH:mm Am/pM",   "m:s",
                                "\"open h",    "\"AM/PM\" h",    "h\\",           "\\\\\\\"h",
                                "yyyy-mm-dd",  "H:m:m",          "HH:mm:ss",      "HHHH mmm ddd",
                                "m/d s",       "100%s %n",       "H \\m\\i\\n m", "d.m.yy",
                                "h AM/PM mm",  "y yyy yyyyy",    "\"\\\"h",       "H:mm d/m",
                                "M D S Y a/m", "\"at \"H\" h\"", "h\xCC\x81 H"})
        texts += Format_Pattern(pattern, afternoon) + "|";
    EXPECT_EQ(texts,
              "P3|03/2002|03:07 pM|7:9|open h|AM/PM 15|15\\|\\\"15|2002-03-05|15:7:3|15:07:09|15 07 05|"
              "3/5 9|100%9 %n|15 min 7|5.3.02|3 PM 07|y 2002 2002|\\15|15:07 5/3|M D S Y a/3|"
              "at 15 h|h\xCC\x81 15|");
    EXPECT_EQ(Format_Pattern("H:mm HH:s h:mm", midnight), "0:30 00:45 0:30");
    EXPECT_EQ(Format_Pattern("h:mm AM/PM hh a/p", midnight), "12:30 AM 12 a");
    EXPECT_EQ(Format_Pattern("h AM/PM", {2002, 3, 5, 12, 0, 0, 0}), "12 PM");
    EXPECT_EQ(Format_Pattern("yyyy yy", {105, 3, 5, 12, 0, 0, 0}), "0105 05");
}

TEST_F(Title_Test, Long_Patterns_Are_Cut_Between_Characters) {
    const std::string pattern(254, '-');
    EXPECT_EQ(Format_Pattern(pattern + "\xC3\xA9", midnight), pattern);
    EXPECT_EQ(Format_Pattern(pattern.substr(1) + "\xC3\xA9", midnight), pattern.substr(1) + "\xC3\xA9");
    EXPECT_EQ(Format_Pattern(std::string(100'000, '\\'), midnight).size(), 128U);
}

TEST_F(Title_Test, The_Five_Date_Forms) {
    const std::pair<std::string, std::string> cases[] = {{"mm/yyyy", "03/2002"},
                                                         {"dd/mm/yyyy", "05/03/2002"},
                                                         {"Month - yyyy", "March - 2002"},
                                                         {"d Month - yyyy", "5th March - 2002"},
                                                         {weekday_form, "Tuesday 5th March - 2002"}};
    for (const auto &[format, title] : cases) {
        EXPECT_EQ(Bar_Date_Text(false, "H:mm", format, 3, 2002, afternoon), title);
        EXPECT_EQ(Bar_Date_Text(true, "H:mm", format, 3, 2002, afternoon), "15:07 - " + title);
        EXPECT_EQ(Bar_Date_Text(true, "H:mm", format, 4, 2002, afternoon), "April - 2002");
        EXPECT_EQ(Bar_Date_Text(true, "H:mm", format, 3, 9998, afternoon), "March - 9998");
    }
    EXPECT_EQ(Fakes().registry_writes, 0);
}

TEST_F(Title_Test, An_Unknown_Form_Is_Repaired_Once) {
    std::string &setting = Cur_Settings.Bar_Date_Format;
    for (const bool refuses : {false, true}) {
        setting = "Mm/yyyy"; // names are case-sensitive
        EXPECT_EQ(Bar_Date_Text(false, "", setting, 4, 2002, afternoon), "April - 2002");
        EXPECT_EQ(setting, "Mm/yyyy");
        Fakes().registry_refuses_writes = refuses;
        Fakes().registry_writes = 0;
        for (int second = 0; second < 3; ++second)
            EXPECT_EQ(Bar_Date_Text(true, "H", setting, 3, 2002, afternoon), "15 - Tuesday 5th March - 2002");
        EXPECT_EQ(setting, weekday_form);
        EXPECT_EQ(Fakes().registry_writes, 1);
    }
    EXPECT_EQ(Fakes().registry["Software\\Vellatro\\Settings\\Bar Date Format"], weekday_form);
}
