#!/usr/bin/env python3
"""Compares the days of 500 random repetitions with those of another program.

icalendar_days.py CALENDAR_DAYS [SEED]: CALENDAR_DAYS is the tool built from tests/transfer/calendar_days.cpp
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
    # No BYSETPOS for weeks: in the first week the other program counts positions from the start of the event.
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
    """Returns the other program's texts by day, within the window."""
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


head, tail = "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:-//x//y//EN\r\n", "END:VCALENDAR\r\n"
events = [random_event(number) for number in range(500)]
with tempfile.NamedTemporaryFile("w", suffix=".ics", newline="") as file:
    file.write(head + "".join(events) + tail)
    file.flush()
    command = [tool, file.name, *f"{TODAY:%Y %m %d}".split()]
    lines = subprocess.run(command, check=True, capture_output=True, text=True).stdout.splitlines()
ours = {}
for line in lines:
    if line.startswith("9999-02-29"):  # in no year of the window
        continue
    year, month, day = (int(part) for part in line[:10].split("-"))
    for year in range(FIRST.year, LAST.year + 1) if year == 9999 else (year,):
        date = datetime.date(year, month, day)
        if FIRST <= date <= LAST:
            ours.setdefault(int(line.split(" ")[-1]), set()).add((date, line[11:]))
different = total = 0
for number, event in enumerate(events):
    mine = ours.get(number, set())
    other = days_of(icalendar.Calendar.from_ical(head + event + tail))
    total += len(other)
    if mine != other:
        different += 1
        print(event, "ours only:", sorted(mine - other)[:5], "theirs only:", sorted(other - mine)[:5])

print(f"{total} days of 500 repetitions, {different} differences")
sys.exit(different > 0 or total < 5000)
