#!/usr/bin/env python3
"""Writes the tables of dates and ages that the tests compare with, by Python's own calendar and zones.

usage: makeCalendarTables.py FOLDER
"""
import calendar
import random
import sys
from datetime import date, datetime, timedelta, timezone
from pathlib import Path
from zoneinfo import ZoneInfo

ZONES = ["UTC", "Europe/Berlin", "Australia/Sydney", "America/Sao_Paulo", "Asia/Kathmandu", "America/Havana",
         "Africa/Cairo", "Pacific/Auckland"]
YEAR_LETTERS = "CDFGHJKLMNPQRSTVWXYZ"
WEEK_LETTERS = "123456789CDFGHJKLMNPQRTVWXY"


def instant(zone, day, time=datetime.min.time()):
    return datetime.combine(day, time, ZoneInfo(zone)).astimezone(timezone.utc)


def month_later(day, months):
    year, month = divmod(day.year * 12 + day.month - 1 + months, 12)
    return date(year, month + 1, min(day.day, calendar.monthrange(year, month + 1)[1]))


def whole(start, end, zone, step):
    """The count of steps nearest to zero's far side that does not pass `end`, found by trying one by one."""
    local = start.astimezone(ZoneInfo(zone))
    sign = 1 if end >= start else -1
    count = 0
    while True:
        later = instant(zone, step(local.date(), sign * (count + 1)), local.time())
        if (later > end) if sign > 0 else (later < end):
            return sign * count
        count += 1


def ages(rows, random_source):
    for zone in ZONES:
        for _ in range(40):
            start = instant(zone, date(2010, 1, 1) + timedelta(days=random_source.randrange(2500)))
            end = start + timedelta(seconds=random_source.randrange(-20_000_000, 120_000_000))
            rows.append((zone, start, end))
        for start_day, end_day in ((date(2014, 1, 31), date(2014, 2, 28)), (date(2012, 1, 31), date(2012, 2, 29)),
                                   (date(2014, 3, 29), date(2014, 3, 31)), (date(2014, 10, 25), date(2014, 10, 27)),
                                   (date(2012, 2, 29), date(2013, 2, 28)), (date(2014, 3, 31), date(2014, 2, 28))):
            start, end = instant(zone, start_day), instant(zone, end_day)
            rows += [(zone, start, end), (zone, start, end - timedelta(seconds=1)),
                     (zone, start, end + timedelta(seconds=1))]


def write(path, header, rows):
    path.write_text("\n".join(["\t".join(header)] + ["\t".join(map(str, row)) for row in rows]) + "\n")


def main():
    folder = Path(sys.argv[1])
    random_source = random.Random(20140512)
    periods = []
    ages(periods, random_source)
    write(folder / "ages.tsv", ("zone", "from", "to", "days", "months"),
          [(zone, int(start.timestamp()), int(end.timestamp()),
            whole(start, end, zone, lambda day, n: day + timedelta(days=n)),
            whole(start, end, zone, month_later)) for zone, start, end in periods])

    packed = []
    for zone in ZONES:
        for _ in range(60):
            year, month, day = random_source.randrange(1980, 2060), random_source.randrange(16), random_source.randrange(32)
            first = month_later(date(year - 1, 12, 1), month)
            made = instant(zone, first + timedelta(days=day - 1))
            packed.append((zone, (year - 1980) * 512 + month * 32 + day, int(made.timestamp())))
    write(folder / "packed-dates.tsv", ("zone", "packed", "date"), packed)

    serials = []
    for zone in ZONES:
        for index, letter in enumerate(YEAR_LETTERS):
            week = random_source.randrange(27)
            new_year = date(2010 + index // 2, 1, 1)
            made = instant(zone, new_year) + timedelta(weeks=week + 1 + 26 * (index % 2), days=-new_year.weekday())
            serials.append((zone, "C02" + letter + WEEK_LETTERS[week] + "TXF5YW0"[:7], int(made.timestamp())))
    write(folder / "serials.tsv", ("zone", "serial", "date"), serials)


main()
