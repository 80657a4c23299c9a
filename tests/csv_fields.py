#!/usr/bin/env python3
"""Checks that another reader of tables finds the events of a data file in an exported CSV file.

csv_fields.py FOLDER: calendar.dat and out.csv lie in it; the yearly events are those of 2027
"""
import csv
import datetime
import pathlib
import sys

folder = pathlib.Path(sys.argv[1])
expected = []
for line in (folder / "calendar.dat").read_text(encoding="utf-8").splitlines():
    key, text = (line[1:-1] if line.startswith('"') else line).split("=", 1)
    day, month, year = map(int, key.split("/"))
    expected.append((datetime.date(2027 if year == 9999 else year, month, day), text))
with open(folder / "out.csv", encoding="utf-8", newline="") as file:
    heading, *rows = csv.reader(file, strict=True)
assert heading == ["Subject", "Start Date", "Description", "Start Time", "End Date", "End Time"], heading


def short(date):
    return f"{date.month}/{date.day}/{date.year}"


midnight = "12:00:00 AM"
wanted = [
    ["Vellatro", short(date), text, midnight, short(date + datetime.timedelta(1)), midnight]
    for date, text in sorted(expected)
]
assert wanted and rows == wanted, f"{rows} instead of {wanted}"
