// The title in every form, and the patterns that users may type.
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
    const struct {
        const char *pattern;
        const char *afternoon;
        const char *midnight;
    } cases[] = {
        {"H:mm", "15:07", "0:30"},
        {"HH:mm:ss", "15:07:09", "00:30:45"},
        {"h:m:s", "15:7:9", "0:30:45"},
        {"h:mm AM/PM", "3:07 PM", "12:30 AM"},
        {"hh:mm am/pm", "03:07 pm", "12:30 am"},
        {"HH:mm Am/pM", "03:07 pM", "12:30 Am"},
        {"h a/P", "3 P", "12 a"},
        {"A/Ph", "P3", "A12"},
        {"h AM/PM mm", "3 PM 07", "12 AM 30"},
        {"mm/yyyy", "03/2002", "11/2002"},
        {"dd/mm/yyyy", "05/03/2002", "12/11/2002"},
        {"d.m.yy", "5.3.02", "12.11.02"},
        {"yyyy-mm-dd HH:mm", "2002-03-05 15:07", "2002-11-12 00:30"},
        {"H:mm d/m", "15:07 5/3", "0:30 12/11"},
        {"m:s", "7:9", "30:45"},
        {"m/d s", "3/5 9", "11/12 45"},
        {"H:m:m", "15:7:3", "0:30:11"},
        {"H \\m\\i\\n m", "15 min 7", "0 min 30"},
        {"\"at \"H\" hours\"", "at 15 hours", "at 0 hours"},
        {"\"AM/PM\" h", "AM/PM 15", "AM/PM 0"},
        {"\"open h", "open h", "open h"},
        {"h\\", "15\\", "0\\"},
        {"\\\\\\\"h", "\\\"15", "\\\"0"},
        {"\"\\\"h", "\\15", "\\0"},
        {"HHHH mmm ddd", "15 07 05", "00 30 12"},
        {"y yyy yyyyy", "y 2002 2002", "y 2002 2002"},
        {"M D S Y p a/m", "M D S Y p a/3", "M D S Y p a/11"},
        {"H\xC2\xB7mm \xE6\x97\xA5",
         "15\xC2\xB7"
         "07 \xE6\x97\xA5",
         "0\xC2\xB7"
         "30 \xE6\x97\xA5"},
        {"h\xCC\x81 H", "h\xCC\x81 15", "h\xCC\x81 0"},
        {"100%s %n", "100%9 %n", "100%45 %n"},
        {"", "", ""},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(Format_Pattern(c.pattern, afternoon), c.afternoon) << c.pattern;
        EXPECT_EQ(Format_Pattern(c.pattern, midnight), c.midnight) << c.pattern;
    }
    EXPECT_EQ(Format_Pattern("h AM/PM", {2002, 3, 5, 12, 0, 0, 0}), "12 PM");
    EXPECT_EQ(Format_Pattern("yyyy yy", {105, 3, 5, 12, 0, 0, 0}), "0105 05");
}

TEST_F(Title_Test, Long_Patterns_Are_Cut_Between_Characters) {
    std::string pattern(254, '-');
    EXPECT_EQ(Format_Pattern(pattern + "\xC3\xA9", midnight), pattern);
    EXPECT_EQ(Format_Pattern(pattern.substr(1) + "\xC3\xA9", midnight), pattern.substr(1) + "\xC3\xA9");
    std::string fields;
    for (int i = 0; i < 100'000; ++i)
        fields += "sd";
    EXPECT_LE(Format_Pattern(fields, midnight).size(), 510U);
}

TEST_F(Title_Test, The_Five_Date_Forms) {
    const struct {
        std::string format;
        const char *title;
    } cases[] = {
        {"mm/yyyy", "03/2002"},
        {"dd/mm/yyyy", "05/03/2002"},
        {"Month - yyyy", "March - 2002"},
        {"d Month - yyyy", "5th March - 2002"},
        {weekday_form, "Tuesday 5th March - 2002"},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(Bar_Date_Text(false, "H:mm", c.format, 3, 2002, afternoon), c.title);
        EXPECT_EQ(Bar_Date_Text(true, "H:mm", c.format, 3, 2002, afternoon),
                  std::string("15:07 - ") + c.title);
        EXPECT_EQ(Bar_Date_Text(true, "H:mm", c.format, 4, 2002, afternoon), "April - 2002");
        EXPECT_EQ(Bar_Date_Text(true, "H:mm", c.format, 3, 9998, afternoon), "March - 9998");
    }
    EXPECT_EQ(Bar_Date_Text(false, "", weekday_form, 2, 2002, {2002, 3, 31, 0, 0, 0, 0}), "February - 2002");
    EXPECT_EQ(Fakes().registry_writes, 0);
}

TEST_F(Title_Test, An_Unknown_Form_Is_Repaired_Once) {
    std::string &setting = Cur_Settings.Bar_Date_Format;
    setting = "xyz";
    EXPECT_EQ(Bar_Date_Text(false, "", setting, 4, 2002, afternoon), "April - 2002");
    EXPECT_EQ(setting, "xyz");
    for (const bool refuses : {false, true}) {
        setting = "Mm/yyyy"; // names are exact
        Fakes().registry_refuses_writes = refuses;
        Fakes().registry_writes = 0;
        for (int second = 0; second < 3; ++second)
            EXPECT_EQ(Bar_Date_Text(true, "H", setting, 3, 2002, afternoon), "15 - Tuesday 5th March - 2002");
        EXPECT_EQ(setting, weekday_form);
        EXPECT_EQ(Fakes().registry_writes, 1);
    }
    EXPECT_EQ(Fakes().registry["Software\\Vellatro\\Settings\\Bar Date Format"], weekday_form);
}
