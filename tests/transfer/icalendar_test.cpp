// iCalendar files through the buttons of the page: files of other programs, errors that change nothing, and
// exports byte for byte. tests/icalendar_days.py compares random repetitions.
#include "tests/transfer/transfer_test.h"
#include "transfer/event_days.h"

namespace {

/// Today is 5 March 2002, so imports take repetitions from 1 February 2002 to 31 December 2003.
class Calendar_Files : public Transfer_Test {
protected:
    /// Imports the file and expects this message.
    void Import_Bytes(const std::string &bytes, const std::string &message) {
        File("C:\\in.ics") = bytes;
        Import(3, "C:\\in.ics", message);
    }
    static std::string Lines(std::string text) {
        std::string bytes;
        for (const char c : text)
            bytes += c == '|' ? "\r\n" : std::string(1, c);
        return bytes;
    }
    static std::string Calendar(const std::string &lines) {
        return Lines("BEGIN:VCALENDAR|VERSION:2.0|" + lines + "END:VCALENDAR|");
    }
    static std::string Event(const std::string &lines) { return "BEGIN:VEVENT|" + lines + "END:VEVENT|"; }
    static std::string Imported(int imported, int there, int passed, int unsupported = 0) {
        const std::string number = std::to_string(imported);
        return "Successfully imported " + number +
               " events from the iCalendar file...\r\n\r\nC:\\in.ics\r\n\r\n" + "Imported: " + number +
               ", already there: " + std::to_string(there) + ", skipped: " + std::to_string(passed) +
               (unsupported == 0
                    ? ""
                    : "\r\nOnly on their first day, because their repetition is not supported: " +
                          std::to_string(unsupported));
    }
};

TEST_F(Calendar_Files, give_their_events_to_the_days) {
    const std::string day = "DTSTART;VALUE=DATE:20020305|", one = "5/3/2002=";
    const std::string weekly = "DTSTART:20020304T0900|SUMMARY:W|RRULE:FREQ=WEEKLY";
    const struct {
        const char *name;
        std::string lines, records;
        int imported = 1, passed = 0, unsupported = 0;
    } rows[] = {
        {"a text, folded inside a character, with escapes and quotes",
         Event(day + "summary;LANGUAGE=de;X-A=\"a:b;c\":Caf\xC3| \xA9\\, \\\"x\\\" 1\\;2| \uFEFF\t\\\\ a\\nb "
                     "|LOCATION: Room 1\\, 2|"),
         one + "Caf\xC3\xA9, 'x' 1;2\uFEFF \\ a b, Room 1, 2|"},
        {"the first line of a description for an empty summary, and the first of two places",
         Event(day + "SUMMARY: |DESCRIPTION:\\n First \\nSecond|LOCATION:L|LOCATION:M|"), one + "First, L|"},
        {"what is inside of an event or beside it",
         "BEGIN:VTIMEZONE|TZID:Z|BEGIN:STANDARD|DTSTART:19700101T000000|RRULE:FREQ=YEARLY|TZOFFSETTO:+0100|"
         "END:STANDARD|END:VTIMEZONE|BEGIN:VTODO|SUMMARY:Todo|DTSTART:20020305|END:VTODO|" +
             Event("BEGIN:VALARM|DESCRIPTION:Alarm|SUMMARY:A|TRIGGER:-PT5M|END:VALARM|SUMMARY:E|" + day) +
             "X-WR-CALNAME:Name|no property|",
         one + "E|"},
        {"nothing that could be shown",
         Event(day) + Event("SUMMARY:No start|") + Event("DTSTART:20020230|SUMMARY:No date|") +
             Event(day + "SUMMARY:Not|STATUS:CANCELLED|") + Event("DTSTART:00990101|SUMMARY:Early|"),
         "", 0, 5},
        {"times: local, of a zone, of UTC over midnight, short, of the midnight at the end of a day",
         Event("SUMMARY:L|DTSTART:20020305T0959|") +
             Event("SUMMARY:Z|DTSTART;TZID=\"A:B\":20020306T230000|") +
             Event("SUMMARY:U|DTSTART:20020306T223000Z|") + Event("SUMMARY:E|DTSTART:20020307T240000|"),
         one + "09:59 L|6/3/2002=23:00 Z|7/3/2002=00:30 U|8/3/2002=00:00 E|", 4},
        {"several days: to a date or a midnight, not touching that day; by a duration; ends before the start",
         Event("SUMMARY:D|DTSTART:20020227|DTEND:20020301|") +
             Event("SUMMARY:T|DTSTART:20020310T2200|DTEND:20020312T0000|") +
             Event("SUMMARY:P|DTSTART:20020320|DURATION:P2D|") +
             Event("SUMMARY:B|DTSTART:20020325|DTEND:20020301|") +
             Event("SUMMARY:U|DTSTART:20020329T213000Z|DTEND:20020330T220000Z|"),
         "27/2/2002=D|28/2/2002=D|10/3/2002=22:00 T|11/3/2002=22:00 T|20/3/2002=P|21/3/2002=P|25/3/2002=B|"
         "29/3/2002=23:30 U|30/3/2002=23:30 U|",
         5},
        {"every year, said in several ways and of a year that is none",
         Event("SUMMARY:A|DTSTART:16040229|RRULE:FREQ=YEARLY|") +
             Event("SUMMARY:B|DTSTART:00010301|RRULE:freq=yearly;bymonth=3;bymonthday=1;interval=1|"),
         "29/2/9999=A|1/3/9999=B|", 2},
        {"a rule of a zone to a time of UTC, an exception of UTC, and days beside the rule",
         "BEGIN:VTIMEZONE|TZID:Z|BEGIN:STANDARD|TZOFFSETTO:-0400|END:STANDARD|BEGIN:A|TZOFFSETTO:-0500|END:A|"
         "END:VTIMEZONE|BEGIN:VTIMEZONE|BEGIN:STANDARD|TZOFFSETTO:+0900|END:STANDARD|END:VTIMEZONE|"
         "BEGIN:VTIMEZONE|TZID:Z|BEGIN:DAYLIGHT|TZOFFSETTO:-0500|END:DAYLIGHT|END:VTIMEZONE|" +
             Event("SUMMARY:W|DTSTART;TZID=\"Z\":20020304T200000|RRULE:FREQ=DAILY;UNTIL=20020308T010000Z|"
                   "EXDATE:20020306T010000Z|RDATE;VALUE=PERIOD:20020401T200000/PT1H,20020403T000000Z/PT1H|"),
         "4/3/2002=20:00 W|6/3/2002=20:00 W|7/3/2002=20:00 W|1/4/2002=20:00 W|2/4/2002=20:00 W|"},
        {"repetitions that are moved, cancelled and left out; another one of the same name",
         Event("UID:1|" + weekly + ";UNTIL=20020325|EXDATE;VALUE=DATE:20020318|") +
             Event("UID:1|RECURRENCE-ID:20020311T090000|DTSTART:20020312T1000|SUMMARY:M|") +
             Event("UID:1|RECURRENCE-ID:20020325T090000|DTSTART:20020325T0900|SUMMARY:W|STATUS:CANCELLED|") +
             Event("UID:2|RECURRENCE-ID:19990101|DTSTART:19990102|SUMMARY:Alone|"),
         "4/3/2002=09:00 W|12/3/2002=10:00 M|2/1/1999=Alone|", 3, 1},
        {"rules that are not understood",
         Event(weekly + ";BYEASTER=1|") + Event(weekly + ";BYHOUR=9,17|EXDATE:20020311|") +
             Event("SUMMARY:H|DTSTART:20020304|RRULE:FREQ=HOURLY|"),
         "4/3/2002=09:00 W + H|", 2, 0, 3},
    };
    Fakes().zone_minutes = 120;
    for (const auto &row : rows) {
        Data_File() = "";
        // A second equal event and a second import of the file change nothing.
        const int there = row.unsupported > 0 ? 1 : 0;
        Import_Bytes("\xEF\xBB\xBF" + Calendar(row.lines),
                     Imported(row.imported, there, row.passed, row.unsupported));
        EXPECT_EQ(Records(), row.records) << row.name;
        Backup() = "of before";
        Import_Bytes(Calendar(row.lines), Imported(0, row.imported + there, row.passed, row.unsupported));
        EXPECT_EQ(Records() + Backup(), row.records + "of before") << row.name;
    }
}

TEST_F(Calendar_Files, join_the_records_and_hide_none) {
    const std::string before =
        Lines("\"1/4/9999=Fools\"|\"5/3/2002=Old \"|\"6/3/2002=A + B\"|\"25/12/2002=Pay\"|"
              "\"7/3/9999=Y\"|\"7/3/2002=Z\"|\"7/3/2003=X + 2\"|");
    const std::string yearly = "RRULE:FREQ=YEARLY|";
    const std::string file =
        Calendar(Event("SUMMARY:New +|DTSTART:20020305|") + Event("SUMMARY:+ Mid|DTSTART:20020305|") +
                 Event("SUMMARY:B  + A|DTSTART:20020306|") + Event("SUMMARY:Last|DTSTART:20020305|")) +
        Calendar(Event("SUMMARY:Trip|DTSTART:20020401|") + Event("SUMMARY:Xmas|DTSTART:20001225|" + yearly) +
                 Event("SUMMARY:1|DTSTART:20020307|") + Event("SUMMARY:2|DTSTART:20000307|" + yearly));
    Data_File() = before;
    Import_Bytes(file, Imported(7, 1, 0));
    const std::string after = "25/12/9999=Xmas|1/4/9999=Fools + Trip|5/3/2002=Old  + New + + + Mid + Last|"
                              "6/3/2002=A + B|25/12/2002=Pay + Xmas|7/3/9999=Y + 1 + 2|7/3/2002=Z + 1 + 2|"
                              "7/3/2003=X + 2|";
    EXPECT_EQ(Records(), after);
    EXPECT_EQ(Backup(), before);
    EXPECT_EQ(Text_Of(7), "Z + 1 + 2");
    EXPECT_EQ(dialog->Events.Events_Lst.Items().size(), 8U);
    Import_Bytes(file, Imported(0, 8, 0));
    EXPECT_EQ(Records(), after);
    Fakes().files.erase("C:\\Vellatro\\calendar.dat");
    Import_Bytes(Calendar(Event("SUMMARY:Trip|DTSTART:20020401|")), Imported(1, 0, 0));
    EXPECT_EQ(Records(), "1/4/2002=Trip|");
}

TEST_F(Calendar_Files, change_nothing_when_they_are_none) {
    const std::string event = Event("SUMMARY:x|DTSTART:20020305|"),
                      failed = "Error when importing from iCalendar file.";
    const std::string before = Lines("\"5/3/2002=Old\"|");
    const std::pair<std::string, std::string> rows[] = {
        {"", "The file is not an iCalendar file."},
        {Lines(event), "The file is not an iCalendar file."},
        {Calendar(event) + Lines("BEGIN:VCALENDAR|" + event),
         "The file is incomplete: the end of VCALENDAR is missing."},
        {Calendar("BEGIN:VEVENT|SUMMARY:x|"), "The file is damaged: VCALENDAR ends without a beginning."},
        {Calendar(event), "C:\\Vellatro\\calendar.dat cannot be written"},
    };
    Data_File() = before;
    for (const auto &[bytes, reason] : rows) {
        if (reason.ends_with("written"))
            Fakes().unwritable.insert("C:\\Vellatro\\calendar.dat");
        Import_Bytes(bytes, failed + "\r\n\r\n" + reason);
        EXPECT_EQ(Data_File(), before);
        EXPECT_EQ(Has_Backup(), reason.ends_with("written"));
    }
    EXPECT_EQ(form.Events.Temp_Lst, std::vector<std::string>{"5/3/2002=Old"});
}

TEST_F(Calendar_Files, are_written_byte_for_byte) {
    const std::string cut = "\u65E5\u65E5\u65E5\u65E5\u65E5\u65E5\u65E5",
                      text = "a, b; c\\d " + std::string(31, 'x') + cut;
    Data_File() = Lines("\"29/2/9999=Leap\"|\"31/12/2002=" + text + cut + "\"|");
    Fakes().zone_minutes = -60;
    Export(4, "C:\\out", "Successfully exported 2 events to the iCalendar file...\r\nC:\\out.ics");
    const std::string stamp = "DTSTAMP:20020305T113000Z|", end = "TRANSP:TRANSPARENT|";
    EXPECT_EQ(
        File("C:\\out.ics"),
        Lines("BEGIN:VCALENDAR|VERSION:2.0|PRODID:-//Vellatro//Vellatro//EN|" +
              Event("UID:1bd4272b0ada5477@vellatro|" + stamp +
                    "DTSTART;VALUE=DATE:20000229|DTEND;VALUE=DATE:20000301|RRULE:FREQ=YEARLY|SUMMARY:Leap|" +
                    end) +
              Event("UID:779fd176c0eacc1e@vellatro|" + stamp +
                    "DTSTART;VALUE=DATE:20021231|DTEND;VALUE=DATE:20030101|"
                    "SUMMARY:a\\, b\\; c\\\\d " +
                    std::string(31, 'x') + cut + "| " + cut + "|" + end) +
              "END:VCALENDAR|"));
    Import_Bytes(File("C:\\out.ics"), Imported(0, 2, 0));
}

} // namespace
