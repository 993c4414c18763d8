"""Eight processes set everything on one user's files, as fast as they can, while others read and observe.

stress.py SECONDS [--without-memory]

Expected: every read of a settings file finds a whole property list; every getter answers with a value that somebody may
have set; each observer hears of everything that each poster set, in the poster's order; no process grows. Prints what was done
and ends with 1 when something was otherwise. --without-memory leaves out the bound on memory, for a build with sanitizers,
which keep freed memory for a while.

Runs inside trx-mixer-sim and dbus-run-session; scripts/stress starts everything.
"""

import json
import os
import pathlib
import plistlib
import select
import subprocess
import sys
import tempfile
import time

STRESS_HOST = os.environ["STRESS_HOST"]
TRX_MIXER_CTL = os.environ["TRX_MIXER_CTL"]

POSTERS = 8
OBSERVERS = 2
READERS = 2
FILE_READERS = 2

PATIENCE = 60  # seconds until a process that does not answer is given up
WARM_UP = 0.3  # share of the time after which nothing may grow any more
FEWEST_SETS = 20  # of each poster, on the slowest machine
MOST_GROWTH = 128  # KiB of memory, each process

BOOST = {"MaxLevel": range(4)}
KEYS = {
    "TRX-Arden": BOOST,
    "TRX-VOLT": BOOST | {"MidiChannel": range(16)},
    "TRX-HALDEN": BOOST,
    "TRX-LUMEN": BOOST,
    "TRX-MORROW": BOOST,
    "TRX-SELVA": BOOST | {f"Output{n}": range(8) for n in range(3)} | {f"Input{n}": range(3) for n in range(5)},
}


def settings_file(folder, model):
    return folder / "orvikaudio/Preferences" / f"com.orvikaudio.{model}autosetup.plist"


# --- A process that reads the files -------------------------------------------------------------


def fault_of(data, keys):
    """The error in a settings file's contents; nothing when it is complete."""
    try:
        settings = plistlib.loads(data, fmt=plistlib.FMT_XML)
    except Exception as error:
        return f"{error!r} in {data!r}"
    if not isinstance(settings, dict) or not settings:
        return f"no entries: {settings!r}"
    for key, value in settings.items():
        if type(value) is not int or value not in keys.get(key, ()):
            return f"{key} = {value!r}"
    return ""


def read_files(folder):
    """Reads the files again and again until the input ends, then reports how often and the first error."""
    print("ready", flush=True)
    reads, wrong, seen = 0, "", set()
    while not select.select([sys.stdin], [], [], 0.001)[0]:
        for model, keys in KEYS.items():
            try:
                data = settings_file(folder, model).read_bytes()
            except FileNotFoundError:
                if model in seen:
                    wrong = wrong or f"{model} is missing"
                continue
            seen.add(model)
            reads += 1
            wrong = wrong or fault_of(data, keys)
    print(json.dumps({"counts": [reads], "wrong": wrong}), flush=True)


# --- The one that starts all --------------------------------------------------------------------


class Member:
    """One of the processes, from its "ready" on."""

    def __init__(self, name, words, env):
        self.name = name
        self._process = subprocess.Popen(words, env=env, stdin=subprocess.PIPE, stdout=subprocess.PIPE)
        self._text = b""

    def line(self):
        deadline = time.monotonic() + PATIENCE
        while b"\n" not in self._text:
            output = self._process.stdout
            ready, _, _ = select.select([output], [], [], max(0, deadline - time.monotonic()))
            data = os.read(output.fileno(), 65536) if ready else b""
            if not data:
                raise SystemExit(f"{self.name} {'ended' if ready else 'does not answer'}")
            self._text += data
        line, self._text = self._text.split(b"\n", 1)
        return line.decode()

    def report(self):
        """A report of its work so far."""
        return self._ask(b"?\n")

    def stand_still(self):
        """A report of a poster's work so far. The poster continues when it is asked for its next report."""
        return self._ask(b"!\n")

    def _ask(self, request):
        self._process.stdin.write(request)
        self._process.stdin.flush()
        return json.loads(self.line())

    def end(self):
        """Ends it and returns its last report."""
        self._process.stdin.close()
        report = json.loads(self.line())
        if self._process.wait(PATIENCE) != 0:
            raise SystemExit(f"{self.name} ended with {self._process.returncode}")
        return report

    def memory(self):
        """KiB of its private resident memory, counted page by page: the sum in "status" is inexact."""
        pages = pathlib.Path(f"/proc/{self._process.pid}/smaps_rollup").read_text()
        return next(int(line.split()[1]) for line in pages.splitlines() if line.startswith("Anonymous:"))

    def kill(self):
        self._process.kill()
        self._process.wait()


class Group:
    """The processes of one run."""

    def __init__(self, folder):
        env = dict(os.environ, XDG_CONFIG_HOME=str(folder))
        self.members = []
        self.observers = [self._start(f"observer {n}", [STRESS_HOST, "observer"], env) for n in range(OBSERVERS)]
        for observer in self.observers:
            observer.line()
        self.posters = [self._start(f"poster {n}", [STRESS_HOST, "poster", str(n)], env) for n in range(POSTERS)]
        self.readers = [self._start(f"reader {n}", [STRESS_HOST, "reader"], env) for n in range(READERS)]
        this = [sys.executable, "-B", __file__, "--read-files", str(folder)]
        self.file_readers = [self._start(f"file reader {n}", this, env) for n in range(FILE_READERS)]
        for member in self.posters + self.readers + self.file_readers:
            member.line()

    def _start(self, name, words, env):
        member = Member(name, words, env)
        self.members.append(member)
        return member

    def hosts(self):
        return self.observers + self.posters + self.readers

    def sizes(self):
        """Memory and descriptors of each host, taken when every observer has received everything."""
        sets = [poster.stand_still()["counts"][0] for poster in self.posters]
        for observer in self.observers:
            wait_until_all_is_told(observer, sets)
        return {member.name: (member.memory(), member.report()["descriptors"]) for member in self.hosts()}

    def kill(self):
        for member in self.members:
            member.kill()


def stay_until(deadline):
    """Lets the others work, and keeps the mixers' log short: it is not part of the test."""
    while (left := deadline - time.monotonic()) > 0:
        subprocess.run([TRX_MIXER_CTL, "log", "clear"], check=True, timeout=PATIENCE)
        select.select([], [], [], min(1, left))


def wait_until_all_is_told(observer, sets):
    """The observer's report when it has received this many announcements, or after a time limit."""
    deadline = time.monotonic() + PATIENCE
    while True:
        report = observer.report()
        if sum(report["counts"]) >= sum(sets) or time.monotonic() > deadline:
            return report
        time.sleep(0.01)


class Verdict:
    """The differences from what was expected."""

    def __init__(self):
        self.faults = []

    def expect(self, isWell, text):
        if not isWell:
            self.faults.append(text)

    def expect_well(self, name, report):
        self.expect(not report["wrong"], f"{name}: {report['wrong']}")


def check_growth(verdict, before, after, withMemory):
    growth = {}
    for name, (memory, descriptors) in after.items():
        growth[name] = grown = memory - before[name][0]
        verdict.expect(descriptors == before[name][1],
                       f"{name}: {before[name][1]} descriptors became {descriptors}")
        if withMemory:
            verdict.expect(grown <= MOST_GROWTH, f"{name}: grew by {grown} KiB")
    return growth


def check_files(verdict, folder):
    names = sorted(os.listdir(folder / "orvikaudio/Preferences"))
    verdict.expect(names == sorted(settings_file(folder, model).name for model in KEYS), f"files left: {names}")
    for model, keys in KEYS.items():
        verdict.expect(not (fault := fault_of(settings_file(folder, model).read_bytes(), keys)), f"{model}: {fault}")


def run(seconds, withMemory, folder):
    """Runs once, prints a summary, and returns the errors."""
    verdict = Verdict()
    group = Group(folder)
    try:
        start = time.monotonic()
        stay_until(start + seconds * WARM_UP)
        before = group.sizes()
        stay_until(start + seconds)
        after = group.sizes()
        took = time.monotonic() - start
        sets = []
        for poster in group.posters:
            report = poster.end()
            verdict.expect_well(poster.name, report)
            sets.append(report["counts"][0])
            verdict.expect(sets[-1] >= FEWEST_SETS, f"{poster.name}: only {sets[-1]} sets")
        heard = []
        for observer in group.observers:
            report = wait_until_all_is_told(observer, sets)
            verdict.expect_well(observer.name, report)
            verdict.expect(report["counts"] == sets, f"{observer.name}: heard of {report['counts']} of {sets}")
            heard.append(report["counts"])
            observer.end()
        reads = []
        for reader in group.readers + group.file_readers:
            report = reader.end()
            verdict.expect_well(reader.name, report)
            verdict.expect(report["counts"][0] > 0, f"{reader.name}: read nothing")
            reads.append(report["counts"][0])
        growth = check_growth(verdict, before, after, withMemory)
        check_files(verdict, folder)
    finally:
        group.kill()
    print(f"{POSTERS} posters made {sum(sets)} sets in {took:.0f} s: {' '.join(map(str, sets))}")
    print(f"{OBSERVERS} observers heard {' and '.join(str(sum(counts)) for counts in heard)} times")
    print(f"{READERS} readers asked for all current values {' and '.join(map(str, reads[:READERS]))} times")
    print(f"{FILE_READERS} readers read {' and '.join(map(str, reads[READERS:]))} files")
    largest = max(growth, key=growth.get)
    print(f"the memory of {largest} grew most, by {growth[largest]} KiB")
    return verdict.faults


def main(words):
    if words[0] == "--read-files":
        return read_files(pathlib.Path(words[1]))
    fastest = "/dev/shm" if os.access("/dev/shm", os.W_OK) else None
    with tempfile.TemporaryDirectory(dir=fastest) as folder:
        faults = run(float(words[0]), "--without-memory" not in words, pathlib.Path(folder))
    print("as promised" if not faults else "\n".join(f"FAULT {fault}" for fault in faults))
    return 1 if faults else 0


sys.exit(main(sys.argv[1:]))
