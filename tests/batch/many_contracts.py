# SPDX-FileCopyrightText: 2026 The Quorvex developers
# SPDX-License-Identifier: MIT
"""Folders of contracts for the tests and benchmarks of batch."""

import os
import random


def weekdays(count):
    """As "mm/dd/yy", from January 1, 2001 on."""
    import datetime
    day = datetime.date(2001, 1, 1)
    while count > 0:
        if day.weekday() < 5:
            yield day.strftime("%m/%d/%y")
            count -= 1
        day += datetime.timedelta(days=1)


def contract(generator, days):
    """The text of a quote file: a random walk in quarter cents."""
    lines = []
    close = generator.uniform(200, 600)
    for date in weekdays(days):
        opened = close
        close = max(20, close + generator.gauss(0, 4))
        top, bottom = max(opened, close) + generator.uniform(0, 3), min(opened, close) - generator.uniform(0, 3)
        prices = ", ".join(f"{round(price * 4) / 4:.2f}" for price in (opened, top, bottom, close))
        lines.append(f"{date}, {prices}, {generator.randrange(100000)}, {generator.randrange(200000)}\r\n")
    return "".join(lines)


def is_bad(number):
    """Whether the contract of this number is refused: two of a hundred, if there are bad ones at all."""
    return number % 50 == 7


def write_contracts(folder, count, days=500, bad=True, kinds=40):
    """Writes C0000000.txt and so on, each one of so many kinds; bad ones are too short."""
    generator = random.Random(1)
    texts = [contract(generator, days) for _ in range(kinds)]
    short = contract(generator, 24)
    os.makedirs(folder, exist_ok=True)
    for number in range(count):
        with open(os.path.join(folder, f"C{number:07}.txt"), "w", encoding="ascii", newline="") as file:
            file.write(short if bad and is_bad(number) else texts[number % kinds])
