"""Measures everything and rewrites the table and the plot of docs/performance.md.

report.py PAGE PLOT

Everything below runs inside trx-mixer-sim and dbus-run-session, which scripts/bench starts.
"""

import json
import os
import pathlib
import re
import statistics
import subprocess
import sys
import tempfile

import counts
import desk

BEGIN, END = "<!-- figures: written by scripts/bench -->\n", "<!-- end of the figures -->\n"
VENDOR = os.environ["MAKER_USB_VENDOR_ID"]
REPETITIONS = 15
MEASURED_FOR = 0.05  # seconds, each repetition at least
WHOLE_PROCESS_RUNS = 31
MOST_CPU_OF_A_COMMAND = 15  # milliseconds

DEVICES = (1, 2, 4, 8, 16, 32, 48, 64)
UNITS = (1, 4, 8, 16, 32, 64)

# Operation, what it is compared with, the upper (or lower) limit, what dominates the cost.
RATIOS = (
    ("walk", "walk-floor", "≤ 1.15", "the kernel: it opens, reads and closes one file a device"),
    ("send-again", "send-again-floor", "≤ 1.15", "one walk; the rest is the parser of the stored level"),
    ("set", "set-floor", "≤ 1.15", "one walk, then the new file; reading and writing the property list, and what keeps "
                                   "links and permissions"),
    ("libusb", "send-again", "≥ 30", "what libusb does to start: udev, a thread, each device's descriptors"),
    ("libusb", "set", "≥ 30", "as above; the set stores and announces besides"),
    ("get", "get-libplist", "≤ 1.2", "the parser; on top come the path, the file's size and the check of its nesting"),
    ("announce", "announce-sd-bus", "≤ 1.3", "sd-bus; on top come the dictionary, which is kept, and a check that all has left"),
    ("announce-read", "announce-read-sd-bus", "≤ 1.3", "sd-bus; on top come the checks of the message and the copy of its dictionary"),
)
NAMES = {
    "walk": "one walk over 12 devices",
    "walk-floor": "the same system calls",
    "send-again": "a stored level sent again to 1 of 12 devices",
    "send-again-floor": "the same system calls and libplist",
    "set": "a level set on 1 of 12 devices",
    "set-floor": "the same system calls and libplist",
    "libusb": "a request with libusb from cold",
    "get": "a getter",
    "get-libplist": "libplist alone",
    "announce": "an announcement",
    "announce-sd-bus": "sd-bus alone",
    "announce-read": "reading a notification",
    "announce-read-sd-bus": "sd-bus alone",
}


def times(subject, only=".", repetitions=REPETITIONS, figure=statistics.median):
    """The processor time of each operation of a program, in microseconds: one figure for all repetitions."""
    with tempfile.NamedTemporaryFile("r") as file:
        counts.run(counts.PROGRAMS / f"trx-bench-{subject}", f"--benchmark_filter={only}", f"--benchmark_min_time={MEASURED_FOR}",
                   f"--benchmark_repetitions={repetitions}", "--benchmark_enable_random_interleaving=true",
                   f"--benchmark_out={file.name}", "--benchmark_out_format=json")
        runs = [run for run in json.load(file)["benchmarks"] if run["run_type"] == "iteration"]
    names = {run["run_name"]: run["run_name"].removesuffix("/process_time") for run in runs}
    return {name: figure([run["cpu_time"] for run in runs if run["run_name"] == run_name]) for run_name, name in names.items()}


def processor_time(*command, accepted=(0,)):
    """The median processor time of a command as a whole, in milliseconds."""
    taken = []
    for _ in range(WHOLE_PROCESS_RUNS):
        process = subprocess.Popen(command, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL)
        _, status, usage = os.wait4(process.pid, 0)
        process.returncode = os.waitstatus_to_exitcode(status)
        if process.returncode not in accepted:
            raise RuntimeError(f"{command} ended with {process.returncode}")
        taken.append((usage.ru_utime + usage.ru_stime) * 1000)
    return statistics.median(taken)


def plain(number):
    return f"{number:.1f}".removesuffix(".0")


def holds(ratio, promise):
    sign, limit = promise.split()
    return ratio <= float(limit) if sign == "≤" else ratio >= float(limit)


class Table:
    def __init__(self):
        self.rows = ["| what | against | system calls | instructions | time | promise | what dominates the cost |",
                     "|---|---|---|---|---|---|---|"]
        self.missed = []

    def ratio(self, costs, ours, theirs, promise, limits):
        """A row; the promise is about time and about what can be counted of its subject."""
        cells = []
        for kind in ("calls", "instructions", "time"):
            if costs[kind][theirs] == 0:  # the reading of a message that has arrived makes no system call
                cells.append("")
                continue
            ratio = costs[kind][ours] / costs[kind][theirs]
            figures = f" ({plain(costs[kind][ours])} : {plain(costs[kind][theirs])})" if kind == "calls" else ""
            # A floor has almost no instructions of its own.
            is_empty = theirs.endswith("-floor") and kind == "instructions"
            cells.append("" if is_empty else f"{ratio:.2f}{figures}")
            if kind in promised(ours, theirs) and not holds(ratio, promise):
                self.missed.append(f"{ours} against {theirs}: {kind} {ratio:.2f}, promised {promise}")
        self.rows.append(f"| {NAMES[ours]} | {NAMES[theirs]} | {' | '.join(cells)} | {promise} | {limits} |")


def promised(ours, theirs):
    return ("calls", "time") if theirs.endswith("-floor") else ("instructions", "time")


def costs_of_operations():
    desk.plug(mixers=1, strangers=11)
    operations = {name for row in RATIOS for name in row[:2]}
    return {"calls": {name: counts.system_calls(name) for name in operations},
            "instructions": {name: counts.instructions(name) for name in operations},
            "time": {**times("interface"), **times("announcement"), **times("libusb")}}


def whole_commands(table):
    desk.plug(mixers=1, strangers=11)
    ours = processor_time(str(counts.PROGRAMS / "trxctl"), "boost", "1", accepted=counts.STORED)
    # Debian's pyusb needs Debian's Python, even if another one is found first.
    theirs = processor_time("/usr/bin/python3", str(pathlib.Path(__file__).parent / "pyusb_host.py"), "1", VENDOR)
    promise = f"< {MOST_CPU_OF_A_COMMAND} ms"
    if ours >= MOST_CPU_OF_A_COMMAND:
        table.missed.append(f"trxctl boost 1: {ours:.1f} ms of processor time, promised {promise}")
    shown = "< 1 ms" if ours < 1 else f"{ours:.0f} ms"
    table.rows.append(f"| a host in Python with pyusb, as a whole process | `trxctl boost 1` | | | {theirs / ours:.1f} | "
                      f"`trxctl` {promise} ({shown}) | loading: the dynamic linker, the interpreter |")


def growth(label, sizes, set_up, operation):
    """System calls and time at each size, in multiples of those at the first."""
    calls, time = [], []
    for size in sizes:
        set_up(size)
        calls.append(counts.system_calls(operation))
        # Other programs only add to the time, and the sizes are not measured in random order.
        time.append(times("interface", f"^{operation}(/|$)", repetitions=9, figure=min)[operation])
        print(f"{label} {size}: {calls[-1]:g} system calls", file=sys.stderr)
    steps = {(calls[i + 1] - calls[i]) / (sizes[i + 1] - sizes[i]) for i in range(len(sizes) - 1)}
    slope, start = statistics.linear_regression(sizes, time)
    off = max(abs(taken - start - slope * size) for size, taken in zip(sizes, time)) / time[-1]
    rows = [f"{size} {call / calls[0]:.4f} {taken / time[0]:.4f} {(start + slope * size) / time[0]:.4f}"
            for size, call, taken in zip(sizes, calls, time)]
    sentence = (f"{' or '.join(plain(step) for step in sorted(steps))} further system calls for each; "
                f"correlation of the time with a straight line {statistics.correlation(sizes, time):.4f}, "
                f"no point farther from it than {off:.1%} of the cost at {sizes[-1]}")
    return rows, sentence, statistics.correlation(sizes, time)


def plot(file, blocks):
    with tempfile.NamedTemporaryFile("w") as data:
        data.write("\n\n\n".join("\n".join(rows) for rows in blocks) + "\n")
        data.flush()
        subprocess.run(["gnuplot", "-e", f"figures='{data.name}'; page='{file}'",
                        pathlib.Path(__file__).parent / "growth.gnuplot"], check=True)


def rewrite(page, text):
    before, _, rest = page.read_text().partition(BEGIN)
    _, end, after = rest.partition(END)
    if not end:
        raise RuntimeError(f"{page} has no place for the figures")
    page.write_text(before + BEGIN + "\n" + text + "\n" + END + after)


def main(page, picture):
    if "LD_PRELOAD" in os.environ:
        sys.exit("Times are measured without what the simulator loads into programs; that needs root, or a system that "
                 "lets its users make mount namespaces of their own.")
    settings = desk.make_settings()
    table = Table()
    costs = costs_of_operations()
    for row in RATIOS:
        table.ratio(costs, *row)
    whole_commands(table)
    devices, with_devices, straight_devices = growth(
        "devices", DEVICES, lambda size: desk.plug(mixers=1, strangers=size - 1), "walk")
    units, with_units, straight_units = growth(
        "units", UNITS, lambda size: desk.plug(mixers=size, strangers=64 - size), "send-again")
    plot(picture, [devices, units])
    settings.cleanup()
    for what, straight in (("devices", straight_devices), ("units", straight_units)):
        if straight < 0.99:
            table.missed.append(f"growth with {what}: correlation with a straight line {straight:.4f}")
    text = "\n".join(table.rows) + f"""

Growth, from 1 to 64:

- a walk, with devices: {with_devices}.
- a stored level sent again, with mixers among 64 devices: {with_units}.

![Cost of a walk by devices, and of a level sent again by mixers](performance.svg)
"""
    rewrite(page, text)
    print(text)
    for missed in table.missed:
        print(f"missed: {missed}", file=sys.stderr)
    return 1 if table.missed else 0


if __name__ == "__main__":
    sys.exit(main(pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2])))
