"""Makes small faults in Framework/Class, one at a time, and lists those that no unit or acceptance test finds.

Each fault is made in a private copy of the tree below build/mutate, built there, and tested: the unit tests first, then the
acceptance suites that are nearest to the file, then the others, until a test fails. What was tried is kept for as long as
the file stays as it is, so that a run that was stopped goes on.
"""

import argparse
import concurrent.futures
import fnmatch
import hashlib
import json
import os
import pathlib
import queue
import re
import shutil
import signal
import subprocess
import sys
import time
from dataclasses import dataclass

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
PLACE = ROOT / "build" / "mutate"
RESULTS = PLACE / "results"
EXPLAINED = ROOT / "tests" / "mutation" / "explained.txt"

# What becomes of a line: a name, what is looked for, what takes its place. Each place in a line is a mutation of its own.
OPERATORS = (
    ("bound", r"(?<=[\w)\]] )<(?= [\w(])", "<="),
    ("bound", r"(?<=[\w)\]] )<=(?= [\w(-])", "<"),
    ("bound", r"(?<=[\w)\]] )>(?= [\w(])", ">="),
    ("bound", r"(?<=[\w)\]] )>=(?= [\w(])", ">"),
    ("equality", r"(?<= )==(?= )", "!="),
    ("equality", r"(?<= )!=(?= )", "=="),
    ("logic", r"(?<= )&&(?= |$)", "||"),
    ("logic", r"(?<= )\|\|(?= |$)", "&&"),
    ("negation", r"(?<=\()!(?=\w)", ""),
    ("negation", r"(?<=return )!(?=\w)", ""),
    ("negation", r"\bif \((?=[\w>.()-]+\) )", "if (!"),
    ("dropped check", r"^\s*if \(.*\) (return|continue|break)\b.*;$", ""),
    ("dropped check", r"^\s*if \(.*\) [\w:>.-]+\(.*\);$", ""),
    ("ignored error", r"(?<=return )[\w:]+\(.*\) [<>!=]=? -?\w+(?=;)", "true"),
    ("dropped call", r"^\s*[a-z_]\w*(\.|->|::)?[\w.:>-]*\(.*\);$", ""),
    ("dropped call", r"^\s*[A-Z]\w*\(.*\);$", ""),
    ("dropped assignment", r"^\s*[\w.>\[\]*-]+_? = .*;$", ""),
    ("result", r"\breturn true;", "return false;"),
    ("result", r"\breturn false;", "return true;"),
    ("result", r"\bORV_SUCCESS\b", "ORV_BAD_ARGUMENT"),
    ("result", r"\breturn ORV_BAD_ARGUMENT\b", "return ORV_SUCCESS"),
    ("result", r"\bORV_NO_CONNECTION\b", "ORV_SUCCESS"),
    ("number", r"(?<![\w.'])(?:[1-9]|[1-9]\d)(?![\w.'])", lambda found: str(int(found[0]) + 1)),
    ("number", r"(?<![\w.'])0(?![\w.'])", "1"),
    ("number", r"(?<=\d)'000(?=;|\)|,)", "'001"),
    ("arithmetic", r"(?<=[\w)\]]) \+ (?=[\w(])", " - "),
    ("arithmetic", r"(?<=[\w)\]]) - (?=[\w(])", " + "),
    ("extreme", r"\bstd::min\b", "std::max"),
    ("extreme", r"\bstd::max\b", "std::min"),
    ("flag", r" \| [A-Z]\w+", ""),
)
# Two statements that stand one below the other change places.
STATEMENT = re.compile(r"^(\s+)(?!return|break|continue|throw|using|static|const|auto|std::\w+(<.*>)? \w+)\S.*;$")

# The tests that are nearest to a file, which are run first: unit tests and acceptance suites by the beginnings of their
# names. The first pattern that fits decides.
NEAREST = (
    ("*/Linux/Receiver*", "BusWait", "EventLoop|NotificationService|Process|Threads"),
    ("*/Linux/SessionBus*", "SessionBus|BusWait", "NotificationService|EventLoop|Callback"),
    ("*/Linux/Poster*", "BusWait", "NotificationService|Process|Threads"),
    ("*/Linux/EventLoop*", "BusWait", "EventLoop"),
    ("*/USB/*", "BusWalk|ConnectedUnits|OpenUnit|Interrupted|Request|PlatformStatus|USBDevice|Vendor",
     "Units|Unopened|Diagnostics"),
    ("*/Linux/SystemLanguage*", "SystemLanguage", "SystemLanguage"),
    ("*/Linux/LocalizedStrings*", "LocalizedStrings|Languages|WarningTexts", "SystemLanguage|InputRoutingWarning"),
    ("*/Linux/SystemPath*", "SystemPath", "VersionTexts"),
    ("*/Platform/*Text*", "Text|KeptText|NumericComparison", "VersionTexts"),
    ("*/Platform/*Notification*", "UserInfo|SessionBus|BusWait", "Callback|EventLoop"),
    ("*/Platform/*", "PropertyList|File|Folders|Settings|Xml", "SettingsFile|Process"),
    ("*/InputAudio*", "", "InputAudio"),
    ("*/InputRoutingWarning*", "", "InputRoutingWarning"),
    ("*/OutputAudio*", "", "OutputAudio"),
    ("*/ORVFunc/Setting*", "Settings", "Each/Setting|SettingsFile"),
    ("*/ChangeKind*", "ChangeKind", "Callback"),
    ("*/MixerStatus*", "", "MixerStatus"),
    ("*/VersionTexts*", "", "VersionTexts"),
    ("*/SystemVersion*", "SystemVersion", "VersionTexts"),
    ("*/Diagnostics*", "", "Diagnostics"),
    ("*", "Product", "Product|Arguments"),
)
UNIT_PROGRAMS = ("interrupted-request-tests", "request-tests", "bus-wait-tests", "bus-tests", "unit-tests")
PROGRAMS = (*UNIT_PROGRAMS, "acceptance-umockdev")
OTHER_RIGS = r"^acceptance\.(apple|interface|memcheck|kernel)"


@dataclass(frozen=True)
class Mutation:
    path: str
    line: int  # of the first line that changes, from 1
    operator: str
    before: tuple
    after: tuple
    place: int  # in the line, to tell two of one operator apart
    file: str  # a digest of the file as it was read

    def name(self):
        return f"{self.path}:{self.line}:{self.operator.replace(' ', '-')}:{self.place}"

    def applied(self, text):
        lines = text.split("\n")
        lines[self.line - 1:self.line - 1 + len(self.before)] = self.after
        return "\n".join(lines)

    def result_file(self):
        return RESULTS / (hashlib.sha1(repr(self).encode()).hexdigest() + ".json")


def mutations_of_line(path, digest, number, line):
    code = re.sub(r"\s*//.*$", "", line)
    quoted = [range(*found.span()) for found in re.finditer(r'"(?:[^"\\]|\\.)*"|\'(?:[^\'\\\d]|\\.)\'', code)]
    if not code.strip() or code.lstrip().startswith(("#", "*", "/*", "template", "using ", "namespace", "static_assert", "friend")):
        return
    for operator, pattern, replacement in OPERATORS:
        for found in re.finditer(pattern, code):
            if any(found.start() in text for text in quoted):
                continue
            new = replacement(found) if callable(replacement) else replacement
            yield Mutation(path, number, operator, (line,), (code[:found.start()] + new + code[found.end():],), found.start(),
                           digest)


def mutations_of_file(path):
    text = (ROOT / path).read_text()
    digest = hashlib.sha1(text.encode()).hexdigest()
    lines = text.split("\n")
    for number, line in enumerate(lines, 1):
        yield from mutations_of_line(path, digest, number, line)
        following = lines[number] if number < len(lines) else ""
        first, second = STATEMENT.match(line), STATEMENT.match(following)
        if first and second and first[1] == second[1] and line != following and "(" in line and "(" in following:
            yield Mutation(path, number, "swapped order", (line, following), (following, line), 0, digest)


def all_mutations():
    files = sorted(str(file.relative_to(ROOT)) for file in (ROOT / "Framework" / "Class").rglob("*")
                   if file.suffix in (".cpp", ".h") and "Apple" not in file.parts)
    return [mutation for file in files for mutation in mutations_of_file(file)]


def chosen(options):
    mutations = [one for one in all_mutations() if not options.only or fnmatch.fnmatch(one.name(), f"*{options.only}*")]
    if options.sample and options.sample < len(mutations):
        step = len(mutations) / options.sample
        mutations = [mutations[int(number * step)] for number in range(options.sample)]
    return mutations


def explanations():
    """Why a mutation cannot be seen: lines of 'path | operator | the line as it is | why'."""
    rows = [line.split(" | ") for line in EXPLAINED.read_text().splitlines() if line and not line.startswith("#")]
    return {(path, operator, line.strip()): why for path, operator, line, why in rows}


def stages(path):
    """What is run, the nearest and cheapest first."""
    units, suites = next(row[1:] for row in NEAREST if fnmatch.fnmatch(path, row[0]))
    if units:
        yield from ((program, units) for program in UNIT_PROGRAMS)
    yield "acceptance-umockdev", suites
    yield from ((program, "") for program in UNIT_PROGRAMS)
    yield "acceptance-umockdev", ""


def everything():
    yield from ((program, "") for program in PROGRAMS)


class DoesNotBuild(Exception):
    pass


running = set()  # what was started and has not ended


def end_at_once(*_):
    for process in list(running):
        os.killpg(process.pid, signal.SIGKILL)
    os._exit(1)


class Copy:
    """A copy of the tree with a build of its own, for one mutation after the other."""

    def __init__(self, number, without):
        self.without = without
        self.tree = PLACE / f"copy-{number}"
        self.build = self.tree / "build" / "release"

    def prepare(self):
        files = subprocess.run(["git", "ls-files", "--cached", "--others", "--exclude-standard", "-z"], cwd=ROOT, check=True,
                               stdout=subprocess.PIPE).stdout.decode().split("\0")
        present = [file for file in files if file and (ROOT / file).exists()]
        for file in present:
            target = self.tree / file
            if target.exists() and target.read_bytes() == (ROOT / file).read_bytes():
                continue
            target.parent.mkdir(parents=True, exist_ok=True)
            shutil.copy2(ROOT / file, target)
            target.touch()
        self.remove_others(set(present))
        self.run(["cmake", "--preset", "release", "-DBUILD_TESTING=ON", "-DCMAKE_LINK_DEPENDS_NO_SHARED=ON"], 600)
        if not self.builds(*PROGRAMS):
            raise SystemExit("the tree does not build as it is")
        failed = self.first_failure(everything(), 300)
        if failed:
            raise SystemExit(f"{failed} fails as things are; --without leaves it out")

    def remove_others(self, present):
        for file in self.tree.rglob("*"):
            name = str(file.relative_to(self.tree))
            if file.is_file() and not name.startswith("build/") and name not in present:
                file.unlink()

    def run(self, command, patience):
        """Whether the command ended well; what it started ends with it."""
        with open(self.tree / "mutate.log", "w", encoding="utf-8") as log:
            with subprocess.Popen(command, cwd=self.tree, stdin=subprocess.DEVNULL, stdout=log, stderr=log,
                                  start_new_session=True) as process:
                running.add(process)
                try:
                    return process.wait(patience) == 0
                except subprocess.TimeoutExpired:
                    os.killpg(process.pid, signal.SIGKILL)
                    return False
                finally:
                    running.discard(process)

    def builds(self, *programs):
        return self.run(["ninja", "-C", str(self.build), *programs], 1800)

    def first_failure(self, tests, patience):
        """The first test that fails or takes too long; None when there is none. Most often one program shows it, so that
        the others need not be linked."""
        for program, beginnings in tests:
            if not self.builds(program):
                raise DoesNotBuild
            command = (self.acceptance(beginnings, patience) if program.startswith("acceptance") else
                       self.unit_tests(program, beginnings))
            if not self.run(command, 40 * patience if program.startswith("acceptance") else 4 * patience):
                log = (self.tree / "mutate.log").read_text(errors="replace")
                found = re.search(r"Test +#\d+: (\S+) \.*\**(?:Failed|Timeout|Exception|SEGFAULT|Subprocess)"
                                  r"|\[  FAILED  \] (\S+)", log)
                return (found[1] or found[2]) if found else f"{program}, which ended or did not end"
        return None

    # The cases of one program in one process.
    def unit_tests(self, program, beginnings):
        filter_ = ":".join(f"{name}*:*/{name}*" for name in beginnings.split("|")) if beginnings else "*"
        without = f"-{self.without}" if self.without else ""
        return [str(self.build / "bin" / program), "--gtest_fail_fast", f"--gtest_filter={filter_}{without}"]

    # Each case in a process of its own, several at once.
    def acceptance(self, beginnings, patience):
        return ["ctest", "--test-dir", str(self.build), "-R", rf"^acceptance\.({beginnings})", "-E", OTHER_RIGS,
                "--stop-on-failure", "-j4", "--timeout", str(patience), "--no-tests=ignore"]

    def attempt(self, mutation, patience):
        file = self.tree / mutation.path
        original = file.read_text()  # the tree may have changed since it was copied
        start = time.monotonic()
        file.write_text(mutation.applied(original))
        try:
            found = self.first_failure(stages(mutation.path), patience)
            return {"status": "found" if found else "survived", "by": found, "seconds": round(time.monotonic() - start)}
        except DoesNotBuild:
            return {"status": "does not build"}
        finally:
            file.write_text(original)


def try_all(mutations, options):
    copies = queue.SimpleQueue()
    for number in range(options.jobs):
        copy = Copy(number, options.without)
        print(f"preparing copy {number + 1} of {options.jobs}", flush=True)
        copy.prepare()
        copies.put(copy)

    def attempt(mutation):
        copy = copies.get()
        try:
            result = copy.attempt(mutation, options.patience)
        finally:
            copies.put(copy)
        mutation.result_file().write_text(json.dumps({"name": mutation.name(), **result}))
        print(f"{result['status']:15} {mutation.name()}" + (f"  ({result['by']})" if result.get("by") else ""), flush=True)

    RESULTS.mkdir(parents=True, exist_ok=True)
    left = [one for one in mutations if not one.result_file().exists()]
    with concurrent.futures.ThreadPoolExecutor(options.jobs) as pool:
        for _ in pool.map(attempt, left):
            pass


def report(mutations):
    """Prints what came of them. Returns whether each one was found or is explained."""
    known = explanations()
    counts = {"found": 0, "survived": 0, "explained": 0, "does not build": 0}
    survivors = []
    for mutation in mutations:
        status = json.loads(mutation.result_file().read_text())["status"]
        if status == "survived" and (mutation.path, mutation.operator, mutation.before[0].strip()) in known:
            status = "explained"
        counts[status] += 1
        if status == "survived":
            survivors.append(mutation)
    for mutation in survivors:
        print(f"\n{mutation.name()}")
        for sign, lines in (("-", mutation.before), ("+", mutation.after)):
            print("\n".join(f"  {sign} {line}" for line in lines))
    built = sum(counts.values()) - counts["does not build"]
    print("\n" + ", ".join(f"{number} {status}" for status, number in counts.items()))
    if built > counts["explained"]:
        print(f"found: {100 * counts['found'] / (built - counts['explained']):.1f} % of those that can be seen")
    return not survivors


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--list", action="store_true", help="show the mutations and do nothing")
    parser.add_argument("--only", metavar="GLOB", help="those whose name has this in it, such as 'Receiver*bound'")
    parser.add_argument("--sample", type=int, metavar="N", help="N of them, evenly spread")
    parser.add_argument("--jobs", type=int, default=1, metavar="N", help="so many copies of the tree at once (default 1)")
    parser.add_argument("--patience", type=int, default=40, metavar="SECONDS",
                        help="a test that takes longer has found its mutation (default 40)")
    parser.add_argument("--without", metavar="PATTERN", help="unit tests to leave out, such as one that fails as things are")
    options = parser.parse_args()
    mutations = chosen(options)
    if options.list:
        for mutation in mutations:
            print(f"{mutation.name()}\n  - {mutation.before[0].strip()}\n  + {mutation.after[0].strip()}")
        print(f"{len(mutations)} mutations")
        return 0
    for ending in (signal.SIGINT, signal.SIGTERM):
        signal.signal(ending, end_at_once)
    try_all(mutations, options)
    return 0 if report(mutations) else 1


if __name__ == "__main__":
    sys.exit(main())
