"""What one operation costs in system calls and in instructions, in its own process and in user mode.

A program that repeats an operation is run twice, a few times and many times over; the difference is the operation's, and
what the program costs besides falls out.
"""

import os
import pathlib
import re
import subprocess
import tempfile

PROGRAMS = pathlib.Path(os.environ["TRX_PROGRAMS"])
FEW, MANY = 5, 25
PATIENCE = 900  # seconds until a run that hangs is given up

# The exit codes of a trxctl that stored the setting: the mixer took it, or the mixer did not answer, as on this desk without
# the simulator's library.
STORED = (0, 9)


def run(*words, accepted=(0,)):
    done = subprocess.run([str(word) for word in words], stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                          stderr=subprocess.STDOUT, text=True, timeout=PATIENCE, check=False)
    if done.returncode not in accepted:
        raise RuntimeError(f"{words} ended with {done.returncode}: {done.stdout}")


def counted(command, counter, **options):
    """The number that a counter leaves in a file for a whole process."""
    with tempfile.TemporaryDirectory() as folder:
        return counter(pathlib.Path(folder) / "count", command, **options)


def strace(file, command):
    run("strace", "-f", "-qq", "-c", "-U", "calls,name", "-o", file, *command)
    return int(re.search(r"^\s*(\d+) total$", file.read_text(), re.MULTILINE)[1])


def callgrind(file, command, accepted=(0,)):
    run("valgrind", "--quiet", "--tool=callgrind", f"--callgrind-out-file={file}", *command, accepted=accepted)
    return int(re.search(r"^totals: (\d+)$", file.read_text(), re.MULTILINE)[1])


def per_operation(operation, counter):
    subject = {"announce": "announcement", "libusb": "libusb"}.get(operation.split("-")[0], "interface")
    program = PROGRAMS / f"trx-repeat-{subject}"
    few, many = (counted([program, operation, times], counter) for times in (FEW, MANY))
    return (many - few) / (MANY - FEW)


def system_calls(operation):
    # A program's start takes a few calls more or less, for example to read what the bus sends.
    return round(per_operation(operation, strace))


def instructions(operation):
    return per_operation(operation, callgrind)
