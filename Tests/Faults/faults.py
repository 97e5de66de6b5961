#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Runs the program again and again, each time with one system call failing, and judges how it took it."""
import argparse
import concurrent.futures
import errno
import hashlib
import os
import queue
import re
import shutil
import signal
import struct
import subprocess
import sys
import tempfile
import time

# The calls in the order of the counts that the preloaded library keeps, and the errors that they can give.
CALLS = {
    "open": "EACCES EMFILE EIO EINTR",
    "create": "EACCES ENOSPC EMFILE EIO",
    "read": "EIO EINTR",
    "read-event": "EINTR EAGAIN",
    "pread": "EIO EINTR",
    "write": "ENOSPC EIO EINTR",
    "pwrite": "ENOSPC EIO EINTR",
    "close": "EIO",
    "copy": "EIO ENOSPC EXDEV EINTR",
    "mmap": "ENOMEM EACCES",
    "memory": "ENOMEM",
    "stat": "EACCES EIO",
    "fstat": "EIO",
    "fsync": "EIO ENOSPC",
    "rename": "EIO ENOSPC EACCES",
    "unlink": "EIO EACCES",
    "mkdir": "EACCES ENOSPC EIO",
    "ftruncate": "EIO ENOSPC EINTR",
    "init": "EMFILE ENOMEM",
    "watch": "ENOSPC ENOMEM EACCES",
    "eventfd": "EMFILE ENOMEM",
    "thread": "EAGAIN",
    "opendir": "EACCES EMFILE EIO",
    "readdir": "EIO",
    "poll": "EINTR ENOMEM",
    "statvfs": "EIO ENOSYS",
    "lock": "EAGAIN ENOLCK EINTR",
    "chmod": "EACCES",
    "seek": "EIO EINVAL",
}
# Those that come once and go: a caller tries again, and would do so for ever. So does memory of the kernel's own.
PASSING = {"EINTR", "EAGAIN"}
ALWAYS = 2**40
MOST_SECONDS = 10
SOURCE = "chrome/Profile 1"
CHANGED = ".config/google-chrome/Default/History"
SETTINGS = b"[General]\ndisabledProfiles=chromium/Default\nkept=of an earlier version\n"
OLD_TARGET = b"the export of last week\n"


# Files of the browsers' that count as missing where they cannot be read, without a word. The answer must then be the
# very one that is given where they are missing.
PASSED_OVER = [
    (r"/(History|Favicons|places\.sqlite|favicons\.sqlite)-(wal|shm|journal)$",
     "what stands beside a database is copied with it where it can be"),
    (r"/Local State$", "a browser whose list of profiles cannot be read has no profiles"),
]

# What Qt and GLib say of a thread of their own that does not come: painting waits for it for ever, and GLib ends the
# process. Nobody outside of them can go on for them.
THREADS_OF_LIBRARIES = ("QThread::start: Thread creation error", "GLib-ERROR **")

PROGRAMS = ["roamlet", "roamlet-window.so", "roamlet-updates.so", "roamlet-programs.so",
            "roamlet-search.so", "roamlet-open.so", "roamlet-sample-home", "roamlet-save",
            "roamlet-failing-calls.so"]


class Job:
    def __init__(self, name, arguments, program="roamlet", kind="once"):
        self.name, self.arguments, self.program, self.kind = name, arguments, program, kind


JOBS = [
    Job("summary", ["--summary"]),
    Job("search", ["--search", "garden"]),
    Job("site", ["--site", "code.example.org"]),
    Job("top", ["--top"]),
    Job("export", ["--export", "html", "--source", SOURCE]),
    Job("csv", ["--export", "csv", "--source", "firefox/FIREFOX"]),
    Job("watch", ["--watch", "4"], kind="watch"),
    Job("save", [SOURCE], program="roamlet-save"),
    Job("window", [], kind="window"),
]


def browser_files(home):
    """Everything of the browsers': content, mode and time of each file and folder."""
    result = {}
    top = os.path.join(home, ".config")
    for folder, folders, names in os.walk(top):
        if folder == top:
            folders[:] = [each for each in folders if each != "Roamlet"]
        for name in folders + names:
            path = os.path.join(folder, name)
            status = os.lstat(path)
            content = b""
            if name in names:
                with open(path, "rb") as file:
                    content = hashlib.sha256(file.read()).digest()
            result[os.path.relpath(path, home)] = (content, status.st_mode, status.st_mtime_ns)
    return result


def cpu_ticks(pid):
    try:
        with open(f"/proc/{pid}/stat") as file:
            fields = file.read().rpartition(")")[2].split()
        return int(fields[11]) + int(fields[12])
    except OSError:
        return None


class Place:
    """A home, a temporary folder and a target that one run has for itself."""

    def __init__(self, folder, sample, build):
        # Beside it lies what is Qt's and ours: there nothing fails.
        self.run_folder = os.path.join(folder, "run")
        folder = os.path.join(folder, "files")
        self.folder, self.build = folder, build
        self.home, self.temporary = os.path.join(folder, "home"), os.path.join(folder, "temporary")
        self.target_folder = os.path.join(folder, "target")
        self.target, self.sample = os.path.join(self.target_folder, "bookmarks.html"), sample
        self.settings = os.path.join(self.home, ".config", "Roamlet", "Roamlet.conf")
        os.makedirs(self.target_folder)
        os.mkdir(self.run_folder, 0o700)
        self.restore()

    def restore(self):
        shutil.rmtree(self.home, ignore_errors=True)
        shutil.copytree(self.sample, self.home, symlinks=True)
        self.before = browser_files(self.home)

    def reset(self):
        for folder in (self.temporary, os.path.dirname(self.settings), self.target_folder):
            shutil.rmtree(folder, ignore_errors=True)
            os.mkdir(folder, 0o700)
        for path, content in ((self.settings, SETTINGS), (self.target, OLD_TARGET)):
            with open(path, "wb") as file:
                file.write(content)

    def without(self, path, job):
        """A run without a fault, and without this file."""
        os.remove(path)
        self.before = browser_files(self.home)
        try:
            return self.run(job)
        finally:
            self.restore()

    def run(self, job, fault=None):
        counts = os.path.join(self.run_folder, "counts")
        if os.path.exists(counts):
            os.remove(counts)
        environment = {
            "HOME": self.home, "XDG_CONFIG_HOME": os.path.join(self.home, ".config"), "TMPDIR": self.temporary,
            "XDG_CACHE_HOME": os.path.join(self.run_folder, "cache"), "XDG_RUNTIME_DIR": self.run_folder,
            "DBUS_SESSION_BUS_ADDRESS": "disabled:", "QT_QPA_PLATFORM": "offscreen", "LC_ALL": "C.UTF-8",
            "PATH": os.environ["PATH"], "LD_PRELOAD": os.path.join(self.build, "roamlet-failing-calls.so"),
            "ROAMLET_FAULT_BELOW": self.folder + "/", "ROAMLET_FAULT_COUNTS": counts,
        }
        if fault:
            call, error, first, last = fault
            environment["ROAMLET_FAULT"] = f"{call}:{getattr(errno, error)}:{first}:{last}"
        arguments = [each.replace("FIREFOX", self.firefox()) for each in job.arguments]
        if job.program == "roamlet-save":
            arguments.append(self.target)
        result = Result()
        result.folder = self.folder
        paths = [os.path.join(self.run_folder, name) for name in ("output", "errors")]
        output_place = os.path.join(self.target_folder, "output")
        began = time.monotonic()
        with open(output_place, "wb") as output, open(paths[1], "wb") as errors:
            process = subprocess.Popen([os.path.join(self.build, job.program), *arguments], env=environment,
                                       stdin=subprocess.DEVNULL, stdout=output, stderr=errors, cwd="/")
            self.accompany(job, process, output_place, paths[1], began)
            try:
                result.status = process.wait(max(began + MOST_SECONDS - time.monotonic(), 0.01))
            except subprocess.TimeoutExpired:
                process.kill()
                result.status = process.wait()
                result.hung = True
        result.seconds = time.monotonic() - began
        with open(output_place, "rb") as file:
            result.output = file.read().decode(errors="replace")
        os.remove(output_place)
        with open(paths[1], "rb") as file:
            result.errors = file.read().decode(errors="replace").replace(self.folder, "")
        self.read_counts(counts, result)
        result.left = [f"temporary/{name}" for name in os.listdir(self.temporary)]
        result.left += [name for name in os.listdir(os.path.dirname(self.settings)) if name != "Roamlet.conf"]
        result.left += [name for name in os.listdir(self.target_folder) if name != "bookmarks.html"]
        after = browser_files(self.home)
        result.changed = sorted(path for path in self.before.keys() | after.keys()
                                if self.before.get(path) != after.get(path))
        if result.changed:
            self.restore()
        result.target, result.settings = self.content(self.target), self.content(self.settings)
        return result

    def accompany(self, job, process, output, errors, began):
        """What whoever uses the program does meanwhile."""
        def wait_until(condition, seconds):
            end = min(time.monotonic() + seconds, began + MOST_SECONDS)
            while process.poll() is None and time.monotonic() < end:
                if condition():
                    return True
                time.sleep(0.02)
            return False

        if job.kind == "watch":
            if wait_until(lambda: b"Watching the" in (self.content(errors) or b""), MOST_SECONDS):
                self.change_a_browser()
                if wait_until(lambda: os.path.getsize(output) > 0, MOST_SECONDS):
                    process.send_signal(signal.SIGTERM)
        elif job.kind == "window":
            self.wait_until_idle(wait_until, process)
            if process.poll() is None:
                process.send_signal(signal.SIGTERM)

    @staticmethod
    def wait_until_idle(wait_until, process):
        seen = {"ticks": -1, "since": time.monotonic()}

        def is_idle():
            ticks, now = cpu_ticks(process.pid), time.monotonic()
            if ticks != seen["ticks"]:
                seen.update(ticks=ticks, since=now)
            return now - seen["since"] > 0.3 and ticks is not None and ticks > 5

        wait_until(is_idle, 6)

    def change_a_browser(self):
        """As its browser would, but so that it stays the same file."""
        path = os.path.join(self.home, CHANGED)
        with open(path, "r+b") as file:
            first = file.read(1)
            file.seek(0)
            file.write(first)
        content, mode, _ = self.before[CHANGED]
        self.before[CHANGED] = (content, mode, os.stat(path).st_mtime_ns)

    def firefox(self):
        folder = os.path.join(self.home, ".config/mozilla/firefox")
        return next(name for name in os.listdir(folder) if os.path.isdir(os.path.join(folder, name)))

    @staticmethod
    def content(path):
        try:
            with open(path, "rb") as file:
                return file.read()
        except FileNotFoundError:
            return None

    @staticmethod
    def read_counts(path, result):
        content = Place.content(path) or b""
        numbers = struct.unpack(f"{len(CALLS) + 1}Q", content[:8 * (len(CALLS) + 1)]) if content else None
        result.counts = dict(zip(CALLS, numbers)) if numbers else {}
        result.failed = numbers[-1] if numbers else 0
        result.path = content[8 * (len(CALLS) + 1):].split(b"\0")[0].decode(errors="replace") if content else ""


class Result:
    hung = False

    def answer(self):
        """What was printed, without what differs from run to run."""
        text = re.sub(r"in \d+\.\d\ds", "in a while", self.output)
        # Icons are an ornament: nobody is told when they cannot be read.
        text = re.sub(r"(\d+|no) site icons *", "icons", text)
        text = re.sub(r"^\d{4}-\d\d-\d\d \d\d:\d\d  (?=[A-Z][a-z]+ - \w+$)", "", text, flags=re.M)
        return text.replace(self.folder, ""), self.target, self.keys()

    def keys(self):
        return sorted(line.split(b"=")[0] for line in (self.settings or b"").splitlines())

    def told(self, usual):
        """What was said beyond what is said without a fault."""
        lines = [line for line in self.errors.splitlines() if line not in usual]
        told = self.output.replace(self.folder, "")
        return lines + [line.strip() for line in told.splitlines() if line.startswith("  ! ")]


def judge(job, result, usual, call, without):
    """Everything that is wrong with a run. What would have been said without a file, `without` tells."""
    wrong = []
    asked_to_end = job.kind != "once"
    if call == "thread" and (result.hung or result.status < 0) and any(
            text in result.errors for text in THREADS_OF_LIBRARIES):
        pass
    elif result.hung:
        wrong.append("took ten seconds or more")
    elif result.status < 0 and not (asked_to_end and result.status == -signal.SIGTERM):
        wrong.append(f"was ended by {signal.Signals(-result.status).name}")
    # What cannot be removed stays, until the next start sweeps it away.
    if result.left and call != "unlink":
        wrong.append("left behind " + ", ".join(sorted(result.left)))
    if result.changed:
        wrong.append("changed " + ", ".join(result.changed))
    if result.target not in (OLD_TARGET, usual.target):
        wrong.append("left a part of an export")
    missing = [line for line in SETTINGS.splitlines() if line.split(b"=")[0] not in result.keys()]
    if missing or b"of an earlier version" not in (result.settings or b""):
        wrong.append("lost settings")
    told = result.told(usual.errors.splitlines())
    # With nobody to listen to signals, one that asks for the end is the end: nothing is saved on the way.
    is_ended_at_once = job.kind == "window" and call in ("eventfd", "thread") and result.status == -signal.SIGTERM
    if not told and not result.hung and (result.status >= 0 or asked_to_end) and not is_ended_at_once:
        if result.answer() != usual.answer() and not is_passed_over(result, without):
            wrong.append("gave another answer without a word")
        elif result.status != usual.status:
            wrong.append(f"gave status {result.status} without a word")
    return wrong, told


def is_passed_over(result, without):
    """Whether the one call that failed was for a file that counts as missing then, and did."""
    path = os.path.relpath(result.path, os.path.join(result.folder, "home"))
    if result.failed != 1 or path.startswith("..") or not any(re.search(rule, "/" + path) for rule, _ in PASSED_OVER):
        return False
    return result.answer() == without(path).answer()


def faults_of(job, usual, wanted, each):
    """Call, error, and from which to which call it fails: some of the calls, or each of them."""
    for call, errors in CALLS.items():
        made = usual.counts.get(call, 0)
        if not made or (wanted and call not in wanted):
            continue
        places = sorted({1, min(2, made), (made + 2) // 2, max(made * 4 // 5, 1)})
        if each:
            places = range(1, made + 1)
        for error in errors.split():
            yield from ((call, error, place, place) for place in places)
            # Qt's own loop of events tries again at once, and would do so for ever.
            if error not in PASSING and (call != "poll" or job.kind == "once"):
                yield call, error, 1, ALWAYS


def main():
    parser = argparse.ArgumentParser(prog="Scripts/check-faults.sh", description=__doc__)
    parser.add_argument("build")
    parser.add_argument("--job", action="append", choices=[job.name for job in JOBS], help="only this job")
    parser.add_argument("--call", action="append", choices=list(CALLS), help="only this call")
    parser.add_argument("--error", action="append", help="only this error, such as EIO")
    parser.add_argument("--each", action="store_true", help="not some of the calls, but each of them in turn")
    parser.add_argument("--keep", action="store_true", help="keep the folder of the runs")
    options = parser.parse_args()
    build = os.path.abspath(options.build)
    work = tempfile.mkdtemp(prefix="roamlet-faults-", dir="/dev/shm" if os.access("/dev/shm", os.W_OK) else None)
    began = time.monotonic()
    try:
        return check(options, build, work, began)
    finally:
        if not options.keep:
            shutil.rmtree(work, ignore_errors=True)


def check(options, build, work, began):
    # What runs for long stays what it is while others build.
    binaries = os.path.join(work, "build")
    os.mkdir(binaries)
    for name in PROGRAMS:
        shutil.copy2(os.path.join(build, name), binaries)
    build = binaries
    sample = os.path.join(work, "sample")
    subprocess.run([os.path.join(build, "roamlet-sample-home"), "--layout", "linux", "--safari", "-1", "--chrome", "2",
                    "--edge", "1", "--profiles", "chromium=1", "--profiles", "firefox=1", "--rows", "300",
                    "--bookmarks", "40", "--icons", "20", "--logs", sample], check=True, stdout=subprocess.DEVNULL)
    places = queue.Queue()
    # Watching and windows mostly wait.
    workers = 3 * (os.cpu_count() or 1)
    for number in range(workers):
        places.put(Place(os.path.join(work, f"place-{number}"), sample, build))

    def run(job, fault=None):
        place = places.get()
        try:
            place.reset()
            result = place.run(job, fault)
            result.remaining = []
            if result.hung:
                # A machine that stood still is no fault of the program's.
                place.reset()
                result = place.run(job, fault)
                result.remaining = []
            if fault and fault[0] == "unlink" and any(each.startswith("temporary/") for each in result.left):
                place.run(JOBS[0])
                result.remaining = os.listdir(place.temporary)
            return result
        finally:
            places.put(place)

    answers_without = {}

    def without(job, path):
        if (job.name, path) not in answers_without:
            place = places.get()
            try:
                place.reset()
                answers_without[job.name, path] = place.without(os.path.join(place.home, path), job)
            finally:
                places.put(place)
        return answers_without[job.name, path]

    print(f"{'job':8} {'call':10} {'error':7} {'which':>8} {'status':>6} {'s':>5}  what the user was told", flush=True)
    findings, total, missed = [], 0, 0
    jobs = [job for job in JOBS if not options.job or job.name in options.job]
    with concurrent.futures.ThreadPoolExecutor(workers) as pool:
        for job in jobs:
            usual = run(job)
            if usual.answer() != run(job).answer() or usual.left or usual.changed or usual.hung:
                print(f"{job.name} does not work without faults: {usual.status} {usual.errors} {usual.left}")
                findings.append(f"{job.name} without a fault")
                continue
            faults = [fault for fault in faults_of(job, usual, options.call, options.each) if not options.error or fault[1] in options.error]
            for fault, result in zip(faults, pool.map(lambda fault, job=job: run(job, fault), faults)):
                if not result.failed:
                    missed += 1
                    continue
                total += 1
                wrong, told = judge(job, result, usual, fault[0], lambda path, job=job: without(job, path))
                if result.remaining:
                    wrong.append("left for good " + ", ".join(result.remaining))
                which = "all" if fault[3] == ALWAYS else str(fault[2])
                row = f"{job.name:8} {fault[0]:10} {fault[1]:7} {which:>8} {result.status:6} {result.seconds:5.1f}  "
                row += told[0][:150] if told else "-"
                print(row, flush=True)
                if wrong:
                    path = result.path.replace(work, "")
                    findings.append(f"{row}\n    {'; '.join(wrong)} (the call was for {path or 'no path'})")
    print(f"\n{total} faults in {len(jobs)} jobs, {time.monotonic() - began:.0f} s; {missed} more were not met; "
          f"{len(findings)} findings")
    for finding in findings:
        print(finding)
    return 1 if findings or not total else 0


sys.exit(main())
