#!/usr/bin/env python3
"""Checks calendar files against another program's reading of them: 500 random repetitions, and an export.

icalendar_days.py CALENDAR_DAYS [SEED]: the tool of tests/transfer/calendar_days.cpp
"""
import datetime
import random
import subprocess
import sys
import tempfile

import icalendar
import recurring_ical_events

TODAY = datetime.date(2026, 11, 22)
FIRST, LAST = datetime.date(2026, 10, 1), datetime.date(2027, 12, 31)
WEEKDAYS = ["SU", "MO", "TU", "WE", "TH", "FR", "SA"]
tool = sys.argv[1]
seed = int(sys.argv[2]) if len(sys.argv) > 2 else 18
print(f"seed {seed}")
pick = random.Random(seed)


def ask(mode, text):
    """What the tool prints about a file."""
    with tempfile.NamedTemporaryFile("wb", suffix=".ics") as file:
        file.write(text.encode())
        file.flush()
        today = [str(part) for part in (TODAY.year, TODAY.month, TODAY.day)]
        return subprocess.run([tool, mode, file.name, *today], check=True, capture_output=True).stdout


def some(values, most=3):
    return ",".join(str(value) for value in pick.sample(values, pick.randint(1, min(most, len(values)))))


def random_rule(start, timed):
    frequency = pick.choice(["DAILY", "WEEKLY", "MONTHLY", "YEARLY"])
    parts = [f"FREQ={frequency}"]
    by = []
    if pick.random() < 0.5:
        parts.append(f"INTERVAL={pick.randint(1, 5)}")
    if pick.random() < 0.3:
        by.append("BYMONTH=" + some(range(1, 13), 4))
    if frequency in ("MONTHLY", "YEARLY") and pick.random() < 0.3:
        by.append("BYMONTHDAY=" + some([*range(1, 32), *range(-31, 0)], 4))
    if pick.random() < 0.5:
        days = pick.sample(WEEKDAYS, pick.randint(1, 4))
        if frequency in ("MONTHLY", "YEARLY") and pick.random() < 0.6:
            days = [str(pick.choice([-2, -1, 1, 2, 3, 4])) + day for day in days]
        by.append("BYDAY=" + ",".join(days))
    elif frequency == "YEARLY" and pick.random() < 0.3:
        by.append("BYYEARDAY=" + some([1, 60, 100, 366, -1, -100, -366]))
    elif frequency == "YEARLY" and pick.random() < 0.3:
        by += ["BYWEEKNO=" + some([1, 2, 20, 52, 53, -1]), "BYDAY=" + some(WEEKDAYS)]
    # The other program takes positions in the week of the start from the start on, not from the week's first day.
    if by and frequency in ("MONTHLY", "YEARLY") and pick.random() < 0.3:
        by.append("BYSETPOS=" + some([1, 2, -1, -2], 2))
    parts += by
    if pick.random() < 0.4:
        parts.append("WKST=" + pick.choice(WEEKDAYS))
    end = pick.random()
    if end < 0.3:
        parts.append(f"COUNT={pick.randint(1, 200)}")
    elif end < 0.6:
        until = start + datetime.timedelta(pick.randint(0, 1500))
        parts.append(f"UNTIL={until:%Y%m%d}" + ("T235959" if timed else ""))
    pick.shuffle(parts)
    return ";".join(parts)


def random_event(number):
    start = datetime.date(2023, 1, 1) + datetime.timedelta(pick.randint(0, 1700))
    timed = pick.random() < 0.4
    kind = "" if timed else ";VALUE=DATE"

    def written(day):
        return f"{day:%Y%m%d}" + ("T101500" if timed else "")

    lines = ["BEGIN:VEVENT", f"UID:{number}", f"SUMMARY:{number}", f"DTSTART{kind}:{written(start)}"]
    if pick.random() < 0.2:
        lines.append(f"DTEND{kind}:{written(start + datetime.timedelta(pick.randint(1, 5)))}")
    elif pick.random() < 0.2:
        lines.append("DURATION:P2D")
    elif not timed:
        lines.append(f"DTEND{kind}:{written(start + datetime.timedelta(1))}")
    lines.append("RRULE:" + random_rule(start, timed))
    for name in ("EXDATE", "RDATE"):
        if pick.random() < 0.3:
            days = [start + datetime.timedelta(7 * pick.randint(0, 150)) for _ in range(pick.randint(1, 40))]
            lines.append(f"{name}{kind}:" + ",".join(written(day) for day in days))
    return "\r\n".join([*lines, "END:VEVENT", ""])


def days_of(calendar):
    """The days in the window on which the other program sees each text."""
    days = set()
    for event in recurring_ical_events.of(calendar).between(FIRST - datetime.timedelta(7),
                                                            LAST + datetime.timedelta(1)):
        begin, end = event["DTSTART"].dt, event["DTEND"].dt
        text = str(event["SUMMARY"])
        if isinstance(begin, datetime.datetime):
            text = f"{begin:%H:%M} {text}"
            end -= datetime.timedelta(seconds=1 if end > begin else 0)
            begin, end = begin.date(), end.date()
        else:
            end -= datetime.timedelta(1 if end > begin else 0)
        for day in range((end - begin).days + 1):
            days.add((begin + datetime.timedelta(day), text))
    return {(day, text) for day, text in days if FIRST <= day <= LAST}


def in_window(month, day):
    """The days of every year."""
    for year in range(FIRST.year, LAST.year + 1):
        try:
            date = datetime.date(year, month, day)
        except ValueError:  # 29 February
            continue
        if FIRST <= date <= LAST:
            yield date


def our_days(lines):
    days = set()
    for line in lines:
        year, month, day = (int(part) for part in line[:10].split("-"))
        dates = in_window(month, day) if year == 9999 else [datetime.date(year, month, day)]
        days.update((date, line[11:]) for date in dates if FIRST <= date <= LAST)
    return days


head, tail = "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:-//x//y//EN\r\n", "END:VCALENDAR\r\n"
events = [random_event(number) for number in range(500)]
ours = {}
for day, text in our_days(ask("days", head + "".join(events) + tail).decode().splitlines()):
    ours.setdefault(int(text.split(" ")[-1]), set()).add((day, text))
different = total = 0
for number, event in enumerate(events):
    mine = ours.get(number, set())
    other = days_of(icalendar.Calendar.from_ical(head + event + tail))
    total += len(other)
    if mine != other:
        different += 1
        print(event, "ours only:", sorted(mine - other)[:5], "theirs only:", sorted(other - mine)[:5])

texts = ["a, b; c \\ d", "ä日本📅 " * 40, "2 + 2 = 4", "x" * 76, "it's", " blanks "]
data = "".join(f'"{number + 1}/12/{year}={text}"\r\n'
               for year in (2026, 2027, 9999) for number, text in enumerate(texts))
data += '"29/2/9999=Leap"\r\n"31/12/2027=Last"\r\n'
exported = ask("export", data)
assert all(len(line) <= 75 for line in exported.split(b"\r\n")) and b"\n" not in exported.replace(b"\r\n", b"")
assert all(line.decode() is not None for line in exported.split(b"\r\n")), "a character is cut"
assert exported == ask("export", data)
calendar = icalendar.Calendar.from_ical(exported)
uids = {str(event["UID"]) for event in calendar.walk("VEVENT")}
wanted = set()
for line in data.splitlines():
    key, text = line[1:-1].split("=", 1)
    day, month, year = (int(part) for part in key.split("/"))
    dates = in_window(month, day) if year == 9999 else [datetime.date(year, month, day)]
    wanted.update((date, text) for date in dates)
if days_of(calendar) != wanted or len(uids) != len(data.splitlines()):
    different += 1
    print("the export:", days_of(calendar) ^ wanted, len(uids))
print(f"{total} days of 500 repetitions, {len(wanted)} exported, {different} differences")
sys.exit(different > 0 or total < 5000)
