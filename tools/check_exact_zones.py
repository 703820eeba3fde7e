#!/usr/bin/env python3
"""Holds the exact rules against Python's zoneinfo.

    tools/check_exact_zones.py [--companion PATH] [--from 1990] [--to 2040] [--zones N]

Every zone of the machine's database, every change of its clock in those years, one second before, at
and after it, on seven machines: offset, name, difference to the machine's clock, what the zone's
clock shows, and what the machine's time converts to. The companion answers in bulk ("zones
instants"). --zones takes every N-th zone only. It prints what differs, at most 20 lines, and what
has been asked; the status is 1 when anything differs.
"""
import argparse
import datetime
import json
import os
import struct
import subprocess
import sys
import tempfile
import zoneinfo

UTC = datetime.timezone.utc
EPOCH = datetime.datetime(1970, 1, 1)
MACHINES = ["UTC", "Europe/London", "America/New_York", "Asia/Kolkata", "Australia/Lord_Howe",
            "Pacific/Apia", "America/St_Johns"]
LONGEST_HALF = 366 * 86400
# Law moved this zone west and the clock on for the summer in one night, so that nothing was seen;
# QTimeZone does not tell such a summer from standard time. Offset and readings are right.
UNTOLD_SUMMERS = {("Asia/Qyzylorda", 1992)}


def reading(instant):
    return EPOCH + datetime.timedelta(seconds=instant)


def state(zone, instant):
    """Offset and daylight saving in seconds."""
    local = reading(instant).replace(tzinfo=UTC).astimezone(zone)
    return int(local.utcoffset().total_seconds()), int(local.dst().total_seconds())


def first_with_another(zone, low, high):
    """The first second in (low, high] whose state is not that of low."""
    before = state(zone, low)
    while high - low > 1:
        middle = (low + high) // 2
        if state(zone, middle) == before:
            low = middle
        else:
            high = middle
    return high


def spans(zone, begin, end):
    """[since, until, offset, dst] in order; a day holds one change at most."""
    result = [[begin, end, *state(zone, begin)]]
    at = begin
    while at < end:
        step = min(at + 86400, end)
        now = state(zone, step)
        if now != tuple(result[-1][2:]):
            at = first_with_another(zone, at, step)
            result[-1][1] = at
            result.append([at, end, *state(zone, at)])
        else:
            at = step
    return result


def is_less_than_standard(all_spans, number):
    """Whether a daylight time has the earlier clock, as Dublin's winter has."""
    around = all_spans[max(number - 1, 0):number] + all_spans[number + 1:number + 2]
    standard = [span[2] for span in around if span[3] == 0]
    own = all_spans[number][2]
    return any(offset > own for offset in standard) and not any(o < own for o in standard)


def is_daylight(all_spans, number):
    since, until, offset, dst = all_spans[number]
    if dst != 0:
        return not is_less_than_standard(all_spans, number)
    if until - since > LONGEST_HALF:
        return False
    return any(0 <= n < len(all_spans) and all_spans[n][3] != 0 and all_spans[n][2] < offset and
               is_less_than_standard(all_spans, n) for n in (number - 1, number + 1))


def moment_text(moment):
    return f"{moment:%d/%m}/{moment.year:04} {moment.hour}:{moment:%M:%S}"


def instants_of(machine, local):
    """The instants at which the machine's clock shows that reading, the earlier first."""
    found = []
    for fold in (0, 1):
        utc = local.replace(tzinfo=machine, fold=fold).astimezone(UTC)
        if utc.astimezone(machine).replace(tzinfo=None) == local:
            instant = int((utc.replace(tzinfo=None) - EPOCH).total_seconds())
            if instant not in found:
                found.append(instant)
    return sorted(found)


def single(number):
    return struct.unpack("f", struct.pack("f", number))[0]


def expected(zone, offset, daylight, machine, instant):
    own = state(machine, instant)[0]
    local = reading(instant + own)
    texts = [moment_text(reading(at + state(zone, at)[0])) for at in instants_of(machine, local)]
    return {"CurrentName": "Daylight" if daylight else "Standard",
            "CurrentGMTHours": -offset / 3600, "HoursFromLocal": (offset - own) / 3600,
            "local": moment_text(local), "zone": moment_text(reading(instant + offset)),
            "texts": texts}


def same(answer, wanted, whatever_name):
    if answer is None or answer.keys() != wanted.keys():
        return False
    for key, value in wanted.items():
        if key == "CurrentName" and whatever_name:
            continue
        number = isinstance(value, float)
        if (single(answer[key]) != single(value)) if number else answer[key] != value:
            return False
    return True


def questions_of(name, begin, end):
    """(instant, offset, daylight) one second before, at and after each change of the clock."""
    margin = 3 * LONGEST_HALF
    all_spans = spans(zoneinfo.ZoneInfo(name), begin - margin, end + margin)
    for number in range(1, len(all_spans)):
        before, after = all_spans[number - 1], all_spans[number]
        if before[2] == after[2] or not begin <= after[0] < end:
            continue
        yield after[0] - 1, before[2], is_daylight(all_spans, number - 1)
        for instant in (after[0], after[0] + 1):
            yield instant, after[2], is_daylight(all_spans, number)


def ask(companion, machine, questions):
    with tempfile.TemporaryDirectory() as folder:
        path = os.path.join(folder, "questions.txt")
        with open(path, "w", encoding="ascii") as file:
            for name, instant, *_ in questions:
                file.write(f"{reading(instant).isoformat()} {name}\n")
        command = [companion, "--app-folder", folder, "--local-zone", machine, "zones", "instants",
                   path]
        output = subprocess.run(command, stdout=subprocess.PIPE, check=False).stdout
    return [json.loads(line) for line in output.splitlines()]


def compare(companion, machine, questions):
    """The questions of which the answer differs."""
    answers = ask(companion, machine, questions)
    if len(answers) != len(questions):
        sys.exit(f"{len(answers)} answers to {len(questions)} questions on {machine}")
    own = zoneinfo.ZoneInfo(machine)
    for (name, instant, offset, daylight), answer in zip(questions, answers):
        wanted = expected(zoneinfo.ZoneInfo(name), offset, daylight, own, instant)
        if not same(answer, wanted, (name, reading(instant).year) in UNTOLD_SUMMERS):
            yield f"{name} at {reading(instant)} on {machine}: {answer}, not {wanted}"


def main():
    here = os.path.dirname(os.path.abspath(__file__))
    parser = argparse.ArgumentParser()
    parser.add_argument("--companion",
                        default=os.path.join(here, "..", "build", "debug", "bin", "tempolarkctl"))
    parser.add_argument("--from", dest="first", type=int, default=1990)
    parser.add_argument("--to", dest="last", type=int, default=2040)
    parser.add_argument("--zones", type=int, default=1)
    options = parser.parse_args()
    if "TZDIR" in os.environ:
        zoneinfo.reset_tzpath([os.environ["TZDIR"]])
    begin, end = (int((datetime.datetime(year, 1, 1) - EPOCH).total_seconds())
                  for year in (options.first, options.last + 1))
    names = [name for name in sorted(zoneinfo.available_timezones()) if name != "localtime"]
    names = names[::options.zones]
    questions = [(name, *question) for name in names for question in questions_of(name, begin, end)]
    wrong = 0
    for machine in MACHINES:
        for line in compare(options.companion, machine, questions):
            wrong += 1
            if wrong <= 20:
                print(line)
    print(f"{len(names)} zones, {len(questions) // 3} changes, {len(questions) * len(MACHINES)} "
          f"questions on {len(MACHINES)} machines: {wrong} differ")
    return 1 if wrong or not questions else 0


if __name__ == "__main__":
    sys.exit(main())
