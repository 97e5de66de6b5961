#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""The user of Scripts/check-desktop-search.sh: searches pages in GNOME Shell and in KRunner, looks at what they show,
opens some, and measures how long an answer takes. Runs on a session bus of its own, with a sample home as its home, and
ends with status 1 when something is not as it should be."""
import json
import os
import pathlib
import signal
import sqlite3
import statistics
import subprocess
import sys
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, Gio, GLib  # noqa: E402

SERVICE = "org.roamlet.Roamlet.Search"
PROVIDER = "org.roamlet.Roamlet.desktop"
SETTINGS = "Roamlet/Roamlet.conf"
SWITCH = "showInDesktopSearch"
# What has been promised, in milliseconds, seconds and MiB.
COLD_START = 100
FURTHER_LETTER = 10
SILENCE = 60
MEMORY = 30
ROUNDS = 5

here = pathlib.Path(__file__).parent
home = pathlib.Path.home()
config = home / ".config"
opened = home / "opened"
failures = 0


def check(what, is_right, detail=""):
    global failures
    failures += not is_right
    said = str(detail)
    if is_right and len(said) > 100:
        said = said[:99] + "…"
    print(f"{'ok    ' if is_right else 'FAILED'} {what}{said and ': '}{said}", flush=True)
    return is_right


def wait_for(find, seconds=30):
    end = time.monotonic() + seconds
    while True:
        try:
            found = find()
        except GLib.Error:  # What is read went away meanwhile.
            found = None
        if found or time.monotonic() > end:
            return found
        time.sleep(0.05)


# The pages that are looked for, in browsers and profiles of their own.


class Page:
    def __init__(self, browser, profile, title, url):
        self.browser, self.profile, self.title, self.url = browser, profile, title, url

    def command(self):
        """Whether the stand-in of the browser was told to open this page in its profile, and in no other."""
        lines = opened.read_text().splitlines() if opened.exists() else []
        for line in lines:
            program, *arguments = line.split("\t")
            if program == self.browser and arguments and arguments[-1] == self.url:
                return self.profile in arguments
        return False

    def is_in(self, row):
        return self.title in row["texts"] and any(self.url in text for text in row["texts"])


firefox = config / "mozilla/firefox"
FIREFOX_PROFILE = next(path for path in sorted(firefox.iterdir()) if path.name.endswith(".Work"))
LIGHTHOUSE = Page("firefox", str(FIREFOX_PROFILE), "Quokka at the lighthouse", "https://quokka.example/lighthouse")
BURROW = Page("google-chrome", "--profile-directory=Profile 1", "Quokka in the burrow", "https://quokka.example/burrow")
MEADOW = Page("chromium", "--profile-directory=Default", "Quokka on the meadow", "https://quokka.example/meadow")
# More than the Shell shows.
OTHERS = [Page("google-chrome", "--profile-directory=Default", f"Quokka number {number}",
               f"https://quokka.example/number/{number}") for number in range(1, 7)]


def plant():
    """Lets the newest pages of the profiles be ours."""
    with sqlite3.connect(FIREFOX_PROFILE / "places.sqlite") as places:
        places.execute("UPDATE moz_places SET title = ?, url = ? WHERE id = (SELECT place_id FROM moz_historyvisits "
                       "ORDER BY visit_date DESC LIMIT 1)", (LIGHTHOUSE.title, LIGHTHOUSE.url))
    for folder, pages in (("google-chrome/Profile 1", [BURROW]), ("chromium/Default", [MEADOW]),
                          ("google-chrome/Default", OTHERS)):
        with sqlite3.connect(config / folder / "History") as history:
            ids = history.execute("SELECT id FROM urls WHERE hidden = 0 ORDER BY last_visit_time DESC LIMIT ?",
                                  (len(pages),)).fetchall()
            for (number,), page in zip(ids, pages):
                history.execute("UPDATE urls SET title = ?, url = ? WHERE id = ?", (page.title, page.url, number))
    with sqlite3.connect(config / "google-chrome/Profile 1/Favicons") as icons:
        icons.execute("UPDATE icon_mapping SET page_url = ? WHERE id = (SELECT min(id) FROM icon_mapping)",
                      (BURROW.url,))


def stand_in(browser):
    """A browser that writes down how it was started."""
    program = home / "bin" / browser
    program.parent.mkdir(exist_ok=True)
    program.write_text(f"""#!/bin/sh
{{ printf '%s' "${{0##*/}}"; [ $# = 0 ] || printf '\\t%s' "$@"; echo; }} >>'{opened}'
""")
    program.chmod(0o755)
    entry = home / ".local/share/applications" / f"{browser}.desktop"
    entry.parent.mkdir(parents=True, exist_ok=True)
    entry.write_text(f"[Desktop Entry]\nType=Application\nName={browser}\nExec={program} %U\n")


def write_settings(**values):
    """As the program does it: the new file takes the place of the old one in one step."""
    file = config / SETTINGS
    file.parent.mkdir(exist_ok=True)
    new = file.with_suffix(".new")
    new.write_text("[General]\n" + "".join(f"{key}={value}\n" for key, value in values.items()))
    new.rename(file)


# What the bus carries.


class Bus:
    def __init__(self):
        self.connection = Gio.bus_get_sync(Gio.BusType.SESSION)
        self.file = home / "bus"
        self.output = self.file.open("w")
        self.monitor = subprocess.Popen([sys.executable, here / "desktop-search-monitor.py"], stdout=self.output)
        if not wait_for(lambda: self.file.read_text().startswith("{")):
            sys.exit("The bus cannot be observed.")

    def call(self, destination, path, interface, member, arguments=None, seconds=30):
        answer = self.connection.call_sync(destination, path, interface, member, arguments, None,
                                           Gio.DBusCallFlags.NONE, seconds * 1000)
        return answer.unpack()

    def ask(self, member, arguments=None):
        return self.call("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", member, arguments)

    def process(self):
        """The process id of the service; nothing while it does not run."""
        if not self.ask("NameHasOwner", GLib.Variant("(s)", (SERVICE,)))[0]:
            return None
        return self.ask("GetConnectionUnixProcessID", GLib.Variant("(s)", (SERVICE,)))[0]

    def end_service(self):
        process = self.process()
        if process:
            os.kill(process, signal.SIGTERM)
            if not wait_for(lambda: not self.process() and not pathlib.Path(f"/proc/{process}").exists()):
                sys.exit("The service does not end when it is told to.")

    def events(self):
        return [json.loads(line) for line in self.file.read_text().splitlines(keepends=True) if line.endswith("\n")][1:]

    def calls(self, since=0.0):
        """What was asked since that time: the call with what was answered and after how many milliseconds."""
        events = [event for event in self.events() if event["time"] >= since]
        answers = {(event["sender"], event["serial"]): event for event in events if event["kind"] != "call"}
        result = []
        for event in events:
            if event["kind"] == "call":
                answer = answers.get((event["sender"], event["serial"]))
                result.append({"member": event["member"], "arguments": event["arguments"],
                               "answer": answer and answer["arguments"],
                               "isError": answer and answer["kind"] == "error",
                               "milliseconds": answer and (answer["time"] - event["time"]) * 1000})
        return result


# GNOME Shell.

class Shell:
    def __init__(self, bus):
        self.bus = bus
        self.log = (home / "shell.log").open("w")
        self.process = subprocess.Popen(["gnome-shell", "--headless", "--wayland", "--no-x11", "--virtual-monitor",
                                         "1280x800", "--unsafe-mode"], stdout=self.log, stderr=self.log)
        if not wait_for(lambda: self.run("Main.layoutManager._startingUp === false"), 90):
            print((home / "shell.log").read_text(), file=sys.stderr)
            sys.exit("GNOME Shell does not start.")
        self.run("imports.gi.St.Settings.get().inhibit_animations()")
        self.run((here / "desktop-search-shell.js").read_text().replace("PROVIDER", json.dumps(PROVIDER)))
        # Five seconds after something was made in the folders of settings, it looks for applications anew.
        wait_for(lambda: self.run("global.check.reloads > 0"), 7)

    def run(self, code):
        is_done, result = self.bus.call("org.gnome.Shell", "/org/gnome/Shell", "org.gnome.Shell", "Eval",
                                        GLib.Variant("(s)", (code,)))
        if not is_done:
            sys.exit(f"GNOME Shell cannot run {code}: {result}")
        return json.loads(result) if result else None

    def state(self):
        return self.run("global.check.state()")

    def open(self):
        """The overview, with nothing typed."""
        self.run("Main.overview.hide()")
        wait_for(lambda: not self.run("Main.overview.visible"))
        self.run("Main.overview.show()")
        if not wait_for(lambda: self.state()["isOpen"]):
            sys.exit("The overview does not open.")

    def press(self, *values):
        self.run(f"global.check.press({', '.join(map(str, values))})")

    def rest(self, text):
        """What is shown when the search for that text is over."""
        def at_rest():
            state = self.state()
            is_over = state["text"] == text and state["terms"] == text.split() and not state["isSearching"]
            return state if is_over else None
        state = wait_for(at_rest)
        if not state:
            print(*self.bus.calls()[-5:], (home / "shell.log").read_text()[-2000:], sep="\n", file=sys.stderr)
            sys.exit(f"The search for “{text}” does not end: {self.state()}")
        return state

    def type(self, text):
        """Types letter by letter and waits for the end of each search."""
        typed = self.state()["text"]
        for letter in text:
            self.press(ord(letter))
            typed += letter
            if letter != " ":
                state = self.rest(typed)
        return state

    def search(self, text):
        """Opens the overview, types letter by letter, and tells what is shown at the end and when it began."""
        while True:
            self.open()
            reloads, since = self.run("global.check.reloads"), time.monotonic()
            state = self.type(text)
            if reloads == self.run("global.check.reloads"):
                return state, since

    def end(self):
        self.process.terminate()
        try:
            self.process.wait(10)
        except subprocess.TimeoutExpired:
            self.process.kill()


RETURN = 0xff0d


def texts(rows):
    return [row["texts"][0] for row in rows if row["texts"]]


def is_icon(data):
    """Whether these are the pixels of a picture as both desktops want them."""
    width, height, stride, has_alpha, bits, channels, pixels = data
    return (0 < width < 2048 and 0 < height < 2048 and bits == 8 and channels == 3 + has_alpha
            and stride >= width * channels and pixels["bytes"] >= stride * (height - 1) + width * channels
            and pixels["different"] > 1)


def descendants(node):
    for index in range(node.get_child_count()):
        child = node.get_child_at_index(index)
        if child is not None:
            yield child
            yield from descendants(child)


def search_fields():
    """What stands in the search fields of the main windows."""
    found = []
    desktop = Atspi.get_desktop(0)
    for index in range(desktop.get_child_count()):
        program = desktop.get_child_at_index(index)
        if program is not None and program.get_name().lower() == "roamlet":
            for node in descendants(program):
                if node.get_role_name() == "text" and node.get_name() == "Search":
                    found.append(Atspi.Text.get_text(node, 0, -1))
    return found


def check_gnome(bus, shell):
    print("== GNOME Shell")
    if not check("the Shell knows the search", shell.run("global.check.isProvided")):
        return
    check("nothing runs before it is asked", not bus.process())
    shell.open()
    start = time.monotonic()
    shell.type("q")
    check("the first letter starts the service", bool(bus.process()))
    state = shell.type("u")
    check("one and two letters give nothing", not state["rows"], texts(state["rows"]))
    state = shell.type("o")
    check("three letters give pages", bool(state["rows"]))
    check("no more than five rows are shown, of more that there are", len(state["rows"]) == 5 and state["more"] != "",
          f"{len(state['rows'])} rows, {state['more'] or 'no more'}")
    check("asked anew, the same is found", ask(bus, "quo")[:5] == texts(state["rows"]), texts(state["rows"]))
    asked = [call["member"] for call in bus.calls(start)]
    check("further letters are asked of what was found", "GetSubsearchResultSet" in asked, ", ".join(asked))
    state = shell.type("kka burr")
    check("words find the page that has all of them", texts(state["rows"]) == [BURROW.title], texts(state["rows"]))
    check("a row has its title and its address", len(state["rows"]) > 0 and BURROW.is_in(state["rows"][0]),
          state["rows"])
    check("a row has its site's icon", len(state["rows"]) > 0 and state["rows"][0]["icon"] > 0)
    data = [meta["icon-data"] for call in bus.calls(start) if call["member"] == "GetResultMetas"
            for meta in call["answer"][0] if "icon-data" in meta]
    check("icons are pictures", data != [] and all(map(is_icon, data)), [icon[:6] for icon in data])

    opened.unlink(missing_ok=True)
    shell.run("global.check.setClipboard('mine')")
    shell.press(RETURN)
    check("Return opens the page in its browser and its profile", wait_for(BURROW.command), said_to_browsers())
    wait_for(lambda: not shell.run("Main.overview.visible"))
    shell.run("global.check.readClipboard()")
    copied = wait_for(lambda: shell.run("global.check.clipboard"))
    check("and leaves the clipboard alone", copied == "mine", copied)
    for page, words in ((LIGHTHOUSE, "lighthouse quokka"), (MEADOW, "meadow quokka")):
        shell.search(words)
        opened.unlink(missing_ok=True)
        shell.press(RETURN)
        check(f"“{words}” opens a page of {page.browser} in its profile", wait_for(page.command), said_to_browsers())

    for words in ("quokka number", "burrow quokka"):
        shell.search(words)
        shell.run("global.check.launch()")
        check(f"the program's icon opens the main window with “{words}” in its field",
              wait_for(lambda: words in search_fields(), 30), search_fields())
    check("there is one window", len(shell.run("global.check.windows()")) == 1, shell.run("global.check.windows()"))
    log = (home / "shell.log").read_text()
    complaints = [line for line in log.splitlines() if "search provider" in line.lower()]
    check("the Shell complains of nothing", complaints == [], complaints)


def said_to_browsers():
    return opened.read_text().strip().replace("\t", " ") if opened.exists() else "nothing was started"


# KRunner.


def krunner(*steps):
    """What its list shows after each of the steps."""
    file = home / "rows.qml"
    file.write_text((here / "desktop-search-rows.qml").read_text().replace("STEPS", json.dumps(steps)))
    environment = dict(os.environ, QT_QPA_PLATFORM="offscreen", QT_QUICK_BACKEND="software", XDG_CURRENT_DESKTOP="KDE")
    run = subprocess.run(["qmlscene", str(file)], env=environment, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                         text=True, timeout=120, check=False)
    shown = [json.loads(line.split("ROWS ", 1)[1]) for line in run.stdout.splitlines() if "ROWS " in line]
    if len(shown) != len(steps):
        print(run.stdout, file=sys.stderr)
        sys.exit(f"KRunner's list came to step {len(shown)} of {len(steps)}.")
    return shown


def pages(rows):
    return [row["text"] for row in rows if "quokka.example" in (row["subtext"] or "") + row["text"]]


def check_krunner(bus):
    print("== KRunner")
    bus.end_service()
    opened.unlink(missing_ok=True)
    start = time.monotonic()
    rows = krunner(*({"query": text} for text in ("q", "qu", "quo", "quokka", "quokka burr")),
                   {"query": "lighthouse quokka", "run": LIGHTHOUSE.title})
    calls = bus.calls(start)
    check("it starts the service and asks", any(call["member"] == "Match" for call in calls),
          ", ".join(call["member"] for call in calls))
    check("one and two letters give nothing", not pages(rows[0]) and not pages(rows[1]), pages(rows[1]))
    check("three letters give pages", len(pages(rows[2])) > 1, pages(rows[2]))
    check("words find the page that has all of them", pages(rows[4]) == [BURROW.title], pages(rows[4]))
    burrow = next((row for row in rows[4] if row["text"] == BURROW.title), {})
    check("a row has its title, its address, a category and an icon",
          BURROW.url in burrow.get("subtext", "") and burrow.get("category") and burrow.get("hasIcon"), burrow)
    data = [match[5]["icon-data"] for call in calls if call["member"] == "Match" and call["answer"]
            for match in call["answer"][0] if "icon-data" in match[5]]
    check("icons are pictures", data != [] and all(map(is_icon, data)), len(data))
    check("Return opens the page in its browser and its profile", wait_for(LIGHTHOUSE.command), said_to_browsers())
    krunner({"query": "meadow quokka", "run": MEADOW.title, "action": 0})
    check("its action opens the main window with the words in its field",
          wait_for(lambda: "meadow quokka" in search_fields(), 30), search_fields())
    calls = bus.calls(start)
    check("nothing is answered with an error", not any(call["isError"] for call in calls),
          [call["answer"] for call in calls if call["isError"]])


# What the settings decide, while the service runs and when it starts.


def ask(bus, *words):
    """The titles that are found, asked as the Shell asks."""
    path, interface = "/org/roamlet/Roamlet/Search/Gnome", "org.gnome.Shell.SearchProvider2"
    found, = bus.call(SERVICE, path, interface, "GetInitialResultSet", GLib.Variant("(as)", (words,)))
    metas, = bus.call(SERVICE, path, interface, "GetResultMetas", GLib.Variant("(as)", (found,)))
    return [meta["name"] for meta in metas]


def check_settings(bus):
    print("== Settings")

    def holds(what, is_right):
        check(f"{what}, while the service runs", wait_for(lambda: is_right(ask(bus, "quokka")), 5), ask(bus, "quokka"))
        bus.end_service()
        check(f"{what}, from its start", is_right(ask(bus, "quokka")), ask(bus, "quokka"))

    ask(bus, "quokka")
    write_settings(disabledProfiles="chrome/Profile 1")
    holds("a source that is switched off stays out", lambda found: found and BURROW.title not in found)
    write_settings(**{SWITCH: "false"})
    holds("nothing is answered when the search is switched off", lambda found: not found)
    write_settings()
    holds("everything is back when it is switched on", lambda found: BURROW.title in found)


# Times.


class Table:
    def __init__(self):
        self.rows = []

    def add(self, what, times, limit=None):
        if not times:
            check(f"there are times for: {what}", False)
            return
        median = statistics.median(times)
        self.rows.append((what, f"{median:.1f}", f"{min(times):.1f}", f"{max(times):.1f}", len(times),
                          "" if limit is None else f"{limit}", limit is None or median <= limit))

    def print(self):
        load = ", ".join(f"{each:.1f}" for each in os.getloadavg())
        print(f"== Times of an answer on the bus, in milliseconds ({os.cpu_count()} processors, load {load})")
        form = "{:<58} {:>8} {:>8} {:>8} {:>4} {:>6}"
        print(form.format("", "median", "best", "worst", "of", "limit"))
        for *row, is_right in self.rows:
            print(form.format(*row) + ("" if is_right else "  too long"))
        for row in self.rows:
            if row[5] != "":
                check(f"{row[0]} takes at most {row[5]} ms", row[6], f"{row[1]} ms")


def answer_times(calls, members):
    return [call for call in calls if call["member"] in members and call["milliseconds"] is not None]


def measure(bus, shell):
    table = Table()
    searches = ("GetInitialResultSet", "GetSubsearchResultSet")
    start, first, further, metas, whole = [], [], [], [], []
    for _ in range(ROUNDS):
        shell.open()
        bus.end_service()
        _, since = shell.search("harbour")
        calls = answer_times(bus.calls(since), searches)
        start += [call["milliseconds"] for call in calls[:1]]
        answered = [call["milliseconds"] for call in calls if len("".join(call["arguments"][-1])) >= 3]
        first += answered[:1]
        further += answered[1:]
        metas += [call["milliseconds"] for call in answer_times(bus.calls(since), ("GetResultMetas",))]
        shell.open()
        bus.end_service()
        since = time.monotonic()
        shell.run("Main.overview.searchEntry.set_text('harbour')")
        shell.rest("harbour")
        whole += [call["milliseconds"] for call in answer_times(bus.calls(since), searches)]
    table.add("GNOME: cold start, the first letter", start, COLD_START)
    table.add("GNOME: then the third letter, the first with an answer", first, COLD_START)
    table.add("GNOME: each further letter", further, FURTHER_LETTER)
    table.add("GNOME: the rows with their icons", metas)
    # As if pasted: all histories have to be read before the answer.
    table.add("GNOME: cold start, a whole word at once", whole)
    start, first, further = [], [], []
    for _ in range(ROUNDS):
        bus.end_service()
        since = time.monotonic()
        krunner(*({"query": "harbour"[:length]} for length in range(1, 8)))
        start += [call["milliseconds"] for call in bus.calls(since)[:1]]
        answered = [call["milliseconds"] for call in answer_times(bus.calls(since), ("Match",))]
        first += answered[:1]
        further += answered[1:]
    table.add("KRunner: cold start, its first question", start, COLD_START)
    table.add("KRunner: then the third letter, the first with an answer", first, COLD_START)
    table.add("KRunner: each further letter", further, FURTHER_LETTER)
    return table


def memory(process):
    """What belongs to the process alone, and its part of what it shares, in MiB."""
    lines = pathlib.Path(f"/proc/{process}/smaps_rollup").read_text().splitlines()
    return next(int(line.split()[1]) for line in lines if line.startswith("Pss:")) / 1024


def processor_time(process):
    fields = pathlib.Path(f"/proc/{process}/stat").read_text().rsplit(")", 1)[1].split()
    return (int(fields[11]) + int(fields[12])) / os.sysconf("SC_CLK_TCK")


def check_rest(bus):
    print("== At rest")
    ask(bus, "harbour")
    last = time.monotonic()
    process = bus.process()
    maps = pathlib.Path(f"/proc/{process}/maps").read_text()
    names = ("Qt6Widgets", "Qt6Network", "roamlet-window", "roamlet-updates")
    strangers = sorted({line.rsplit("/", 1)[1] for line in maps.splitlines() if any(name in line for name in names)})
    check("no library of windows is loaded", strangers == [], strangers)
    used = memory(process)
    check(f"it takes at most {MEMORY} MiB", used <= MEMORY, f"{used:.1f} MiB")
    spent = []

    def is_gone():
        silence = time.monotonic() - last
        # What it still had to do after the answer is its own affair, and so is its end.
        if SILENCE / 4 < silence < SILENCE * 0.9 and bus.process() == process:
            spent.append(processor_time(process))
        return not bus.process()

    gone = wait_for(is_gone, SILENCE * 1.5)
    silence = time.monotonic() - last
    check("it takes no processor time between questions", spent and spent[-1] - spent[0] < 0.02,
          f"{spent[-1] - spent[0]:.2f} s" if spent else "it was gone")
    check("it is gone after a minute of silence", gone and SILENCE * 0.9 <= silence <= SILENCE * 1.2,
          f"{silence:.0f} s")
    check("its process has ended", wait_for(lambda: not pathlib.Path(f"/proc/{process}").exists(), 5))
    check("the next question starts it again", BURROW.title in ask(bus, "quokka", "burrow"))


def main():
    for browser in ("firefox", "google-chrome", "chromium"):
        stand_in(browser)
    plant()
    bus = Bus()
    # What a session tells the programs that its bus starts.
    bus.ask("UpdateActivationEnvironment", GLib.Variant("(a{ss})", ({
        "WAYLAND_DISPLAY": "wayland-0", "QT_QPA_PLATFORM": "wayland", "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"},)))
    shell = Shell(bus)
    try:
        check_gnome(bus, shell)
        check_krunner(bus)
        check_settings(bus)
        table = measure(bus, shell)
        check_rest(bus)
        table.print()
    finally:
        shell.end()
        bus.monitor.terminate()
    print(f"{failures} checks failed." if failures else "Both desktops find pages, show them and open them.")
    sys.exit(min(failures, 1))


main()
