#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Roamlet authors
# SPDX-License-Identifier: MIT
"""Writes histories, reads them with Roamlet meanwhile, and judges every answer. Scripts/check-live.sh builds what it
needs: the folder of the programs and the minutes are its arguments."""

import hashlib
import json
import mmap
import multiprocessing
import os
import random
import re
import shutil
import sqlite3
import struct
import subprocess
import sys
import tempfile
import time
from collections import defaultdict

# Left out are the journal modes MEMORY and OFF: a change that is half written leaves nothing in the files by which a
# copy could be told from a whole one, or be made one. No browser keeps its history so.
WRITERS = [
    ("DELETE", "NORMAL"),
    ("TRUNCATE", "NORMAL"),
    ("PERSIST", "NORMAL"),
    ("WAL", "NORMAL"),
    ("DELETE", "EXCLUSIVE"),
    ("TRUNCATE", "EXCLUSIVE"),
    ("PERSIST", "EXCLUSIVE"),
    ("WAL", "EXCLUSIVE"),
]
ROWS = 60
# The number of a commit is in the minute of the latest visit, too, which --summary tells.
FIRST_MINUTE = 13_100_000 * 1000 // 60  # in 2016, counted as Chromium does, from 1601
UNIX_MINUTE = FIRST_MINUTE - 11_644_473_600 // 60
COUNTS = struct.Struct("qq")


def folder(home, number):
    return os.path.join(home, ".config/google-chrome", f"Profile {number}")


def connect(path, journal, locking):
    database = sqlite3.connect(path, isolation_level=None, timeout=60)
    database.execute(f"PRAGMA locking_mode = {locking}")
    database.execute(f"PRAGMA journal_mode = {journal}")
    return database


def row(number):
    return number, f"Moment {number} of a writer", (FIRST_MINUTE + number) * 60_000_000


def create(path, journal, locking):
    os.makedirs(os.path.dirname(path))
    database = connect(path, journal, locking)
    database.execute("PRAGMA page_size = 4096")
    database.execute(
        "CREATE TABLE urls(id INTEGER PRIMARY KEY AUTOINCREMENT, url LONGVARCHAR, title LONGVARCHAR,"
        " visit_count INTEGER DEFAULT 0 NOT NULL, typed_count INTEGER DEFAULT 0 NOT NULL,"
        " last_visit_time INTEGER NOT NULL, hidden INTEGER DEFAULT 0 NOT NULL)")
    database.execute("CREATE INDEX urls_url_index ON urls (url)")
    database.execute("CREATE TABLE padding(n INTEGER, bytes BLOB)")
    database.execute("BEGIN")
    for i in range(ROWS):
        database.execute("INSERT INTO urls(visit_count, title, last_visit_time, url) VALUES(?, ?, ?, ?)",
                         (*row(0), f"https://writer.example/{i}/" + "x" * 500))
        database.execute("INSERT INTO padding VALUES(0, zeroblob(3100))")
    database.execute("COMMIT")
    database.close()


def write(path, journal, locking, counts, place, end):
    """Puts the next number into every row, again and again, in every way and with every rest."""
    rng = random.Random(f"{journal} {locking}")
    number = 0
    while time.monotonic() < end:
        database = connect(path, journal, locking)
        until_closed = time.monotonic() + 20
        while time.monotonic() < min(until_closed, end):
            # Most of the time most of them rest: else nobody would be without one.
            if rng.random() < 0.5:
                time.sleep(rng.uniform(0, 3))
            pause = rng.choice([0, 0, 0.002, 0.005, 0.02])
            database.execute(f"PRAGMA synchronous = {rng.choice(['OFF', 'OFF', 'NORMAL', 'FULL'])}")
            # What does not fit into memory is in the file, or in the log, before the commit.
            database.execute(f"PRAGMA cache_size = {rng.choice([5, 2000])}")
            until_changed = time.monotonic() + 2
            while time.monotonic() < min(until_changed, end):
                gives_up = rng.random() < 0.1
                if not gives_up:
                    number += 1
                    counts[place:place + 8] = struct.pack("q", number)
                database.execute("BEGIN IMMEDIATE")
                database.execute("UPDATE urls SET visit_count = ?, title = ?, last_visit_time = ?",
                                 row(number + gives_up))
                # Pages change their places.
                some = rng.randrange(ROWS)
                database.execute("INSERT INTO urls(url, visit_count, title, last_visit_time) SELECT url || 'y',"
                                 " visit_count, title, last_visit_time FROM urls ORDER BY id LIMIT ?", (some,))
                database.execute("DELETE FROM urls WHERE id IN (SELECT id FROM urls ORDER BY id LIMIT ?)", (some,))
                database.execute("UPDATE urls SET url = substr(url, 1, 520)")
                database.execute("UPDATE padding SET n = ?", (number + gives_up,))
                if gives_up:
                    database.execute("ROLLBACK")
                else:
                    database.execute("COMMIT")
                    counts[place + 8:place + 16] = struct.pack("q", number)
                if pause:
                    time.sleep(rng.uniform(pause / 2, pause))
        database.close()


def load_disk(path, end):
    with open(path, "wb") as file:
        while time.monotonic() < end:
            file.seek(0)
            file.write(os.urandom(1 << 20))
            file.flush()
            os.fsync(file.fileno())
            time.sleep(0.05)


def fingerprint(home):
    result = {}
    for parent, _, names in os.walk(home):
        for name in names:
            path = os.path.join(parent, name)
            status = os.lstat(path)
            # A browser's lock is a link to nowhere.
            if os.path.islink(path):
                continue
            with open(path, "rb") as file:
                result[path] = (hashlib.sha256(file.read()).hexdigest(), status.st_mtime_ns, status.st_ino)
    return result


class Table:
    def __init__(self):
        self.rows = defaultdict(lambda: [0, 0, 0, 0])

    def add(self, writer, way, reads, complaints, wrong, torn):
        for i, count in enumerate((reads, complaints, wrong, torn)):
            self.rows[writer, way][i] += count

    def print(self):
        print(f"{'writer':24} {'way of reading':18} {'reads':>8} {'complaints':>11} {'wrong':>6} {'torn':>6}")
        for (writer, way), counts in sorted(self.rows.items()):
            print(f"{writer:24} {way:18} {counts[0]:8} {counts[1]:11} {counts[2]:6} {counts[3]:6}")
        total = [sum(column) for column in zip(*self.rows.values())]
        print(f"{'all':24} {'':18} {total[0]:8} {total[1]:11} {total[2]:6} {total[3]:6}")
        return total


class Commands:
    """The program itself, one job after the other."""

    def __init__(self, program, environment, counts, table):
        self.program, self.environment, self.counts, self.table = program, environment, counts, table

    def begun_and_committed(self):
        return {number: COUNTS.unpack_from(self.counts, number * COUNTS.size) for number in range(len(WRITERS))}

    def run(self, *arguments):
        before = self.begun_and_committed()
        done = subprocess.run([self.program, *arguments], env=self.environment, capture_output=True, text=True,
                              timeout=600)
        after = self.begun_and_committed()
        return done, {number: (before[number][1], after[number][0]) for number in before}

    def judge(self, way, limits, numbers, done):
        """`numbers` are what was told of each writer, `None` being no number at all."""
        for number, told in numbers.items():
            least, most = limits[number]
            wrong = len(told) != 1 or None in told or not least <= min(told) <= most
            if wrong:
                print(f"{label(number)}, {way}: {told} is not from {least} to {most}", file=sys.stderr)
            self.table.add(label(number), way, 1, 0, int(wrong), 0)
        lines = [line for line in done.stderr.splitlines() if line.strip()]
        for line in lines:
            print(f"{way}: {line}", file=sys.stderr)
            named = [number for number in range(len(WRITERS)) if label(number) in line]
            self.table.add(label(named[0]) if named else "others", way, 0, 1, 0, 0)

    def top(self):
        done, limits = self.run("--top")
        numbers = defaultdict(set)
        for line in done.stdout.splitlines():
            found = re.match(r"(\d+)  (.*?)  writer\.example  Moment (\d+) of", line)
            if found and found[2] in NUMBERS:
                numbers[NUMBERS[found[2]]] |= {int(found[1]), int(found[3])}
        self.judge("--top", limits, numbers, done)

    def search(self):
        done, limits = self.run("--search", "writer")
        numbers, rows = defaultdict(set), defaultdict(int)
        for line in done.stdout.splitlines():
            found = re.search(r"  Chrome - (.*?)\s{2,}Moment (\d+) of", line)
            if found and found[1] in NUMBERS:
                numbers[NUMBERS[found[1]]].add(int(found[2]))
                rows[NUMBERS[found[1]]] += 1
        for number, count in rows.items():
            if count != ROWS:
                numbers[number].add(None)
        self.judge("--search", limits, numbers, done)

    def summary(self):
        done, limits = self.run("--summary")
        numbers = defaultdict(set)
        for line in done.stdout.splitlines():
            found = re.match(r"Chrome - (.*?)  .*  (\d+) history URLs, latest visit (.*)$", line)
            if found and found[1] in NUMBERS:
                minute = (calendar_minutes(found[3]) - UNIX_MINUTE)
                numbers[NUMBERS[found[1]]] |= {minute} if int(found[2]) == ROWS else {None}
            elif "history" not in line and re.match(r"Chrome|Firefox|Chromium", line):
                self.table.add("others", "--summary", 0, 1, 0, 0)
                print(f"--summary: {line}", file=sys.stderr)
        self.judge("--summary", limits, numbers, done)


def calendar_minutes(text):
    return int(time.mktime(time.strptime(text.strip(), "%Y-%m-%d %H:%M"))) // 60


def label(number):
    journal, locking = WRITERS[number]
    return journal + ("" if locking == "NORMAL" else " exclusive")


NUMBERS = {label(number): number for number in range(len(WRITERS))}


def main():
    programs, minutes = sys.argv[1], float(sys.argv[2])
    os.environ["TZ"] = "UTC"
    time.tzset()
    work = tempfile.mkdtemp(prefix="roamlet-live-")
    home, temporary = os.path.join(work, "home"), os.path.join(work, "tmp")
    os.makedirs(temporary)
    for number, (journal, locking) in enumerate(WRITERS):
        create(os.path.join(folder(home, number), "History"), journal, locking)
    with open(os.path.join(home, ".config/google-chrome/Local State"), "w", encoding="utf-8") as file:
        names = {f"Profile {number}": {"name": name} for name, number in NUMBERS.items()}
        json.dump({"profile": {"info_cache": names}}, file)
    counters = os.path.join(work, "counters")
    with open(counters, "wb+") as file:
        file.truncate(COUNTS.size * len(WRITERS))
        counts = mmap.mmap(file.fileno(), 0)
    environment = {name: value for name, value in os.environ.items() if not name.startswith("XDG_")}
    environment |= {"HOME": home, "TMPDIR": temporary, "TZ": "UTC", "LC_ALL": "C.UTF-8"}

    # All are asked to end by themselves, so that nothing is left of them.
    end = time.monotonic() + minutes * 60
    seconds = str(int(minutes * 60))
    processes = [multiprocessing.Process(target=write, args=(os.path.join(folder(home, number), "History"), journal,
                                                             locking, counts, number * COUNTS.size, end))
                 for number, (journal, locking) in enumerate(WRITERS)]
    processes.append(multiprocessing.Process(target=load_disk, args=(os.path.join(work, "load"), end)))
    for process in processes:
        process.start()
    browsers = {name: subprocess.Popen([os.path.join(programs, "roamlet-live-browsing"), name, seconds, home],
                                       stdout=subprocess.PIPE, text=True)
                for name in ("chromium", "firefox") if shutil.which(name if name == "chromium" else "firefox-esr")}
    reads = subprocess.Popen([os.path.join(programs, "roamlet-live-reads"), seconds, counters], env=environment,
                             stdout=subprocess.PIPE, text=True)
    table = Table()
    commands = Commands(os.path.join(programs, "roamlet"), environment, counts, table)
    rounds = (commands.top, commands.search, commands.summary)
    while time.monotonic() < end and reads.poll() is None:
        for command in rounds:
            command()
    for line in reads.communicate()[0].splitlines():
        source, way, *figures = line.split("\t")
        profile = re.match(r"chrome/Profile (\d+)$", source)
        table.add(label(int(profile[1])) if profile else source, way, *map(int, figures))
    is_fine = reads.returncode == 0
    for process in processes:
        process.join()
        is_fine = is_fine and process.exitcode == 0
    for name, process in browsers.items():
        print(f"{name}: {process.communicate()[0].strip()}")
        is_fine = is_fine and process.returncode == 0

    # Nobody but us is left: what we read must stay as it is.
    before = fingerprint(home)
    for command in rounds:
        command()
    subprocess.run([os.path.join(programs, "roamlet-live-reads"), "3", counters], env=environment,
                   stdout=subprocess.DEVNULL, check=True)
    changed = sorted(path for path, state in fingerprint(home).items() if before.get(path) != state)
    ours = os.path.join(home, ".config/roamlet")
    changed = [path for path in changed if not path.lower().startswith(ours)]
    left = os.listdir(temporary)

    commits = {name: COUNTS.unpack_from(counts, number * COUNTS.size)[1] for name, number in NUMBERS.items()}
    print("commits: " + ", ".join(f"{name} {count}" for name, count in commits.items()))
    total = table.print()
    for path in changed:
        print(f"changed by us: {path}")
    if left:
        print(f"left behind: {', '.join(left)}")
    if not is_fine:
        print("a writer, a browser or a reader failed")
    is_good = is_fine and not changed and not left and total[2] == 0 and total[3] == 0 and min(commits.values()) > 0
    if is_good:
        shutil.rmtree(work)
    else:
        print(f"what is left of it: {work}")
    return 0 if is_good else 1


if __name__ == "__main__":
    sys.exit(main())
