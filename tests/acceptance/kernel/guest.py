"""One virtual machine: started, listened to on its serial port, and judged."""

import re
import subprocess
import threading

# The switch of the device isa-debug-exit turns what the guest writes into an exit status: twice that and one more. QEMU itself
# ends with 0 (after a panic or a restart) or 1 (when it cannot start), so that neither can be taken for a pass.
SWITCH = "isa-debug-exit,iobase=0xf4,iosize=4"
STATUS_OF_A_PASS = 2 * 0x10 + 1

KERNEL_PARAMETERS = [
    "console=ttyS0", "quiet",
    "panic=-1", "oops=panic",  # whatever is wrong with the kernel ends the guest at once
    # On a busy host the emulated clocks are too slow for what the kernel expects of them.
    "no_timer_check", "tsc=reliable",
    # What is at the same address again has been translated before: that halves the time of a run.
    "nokaslr", "norandmaps",
    "mitigations=off",
]

SUMMARY = re.compile(r"(\d+) cases run, (\d+) failed")


def qemu_words(kernel, archive, memory=512):
    return ["qemu-system-x86_64",
            "-M", "pc", "-accel", "tcg", "-cpu", "max", "-m", str(memory),
            "-nodefaults", "-no-user-config", "-display", "none", "-no-reboot",
            "-device", SWITCH,
            "-kernel", str(kernel.vmlinux), "-initrd", str(archive), "-append", " ".join(KERNEL_PARAMETERS)]


def judge(status, lines, expected_cases):
    """What speaks against a guest, nothing for a pass. Both of its voices must say so: the status, which a panic or a restart
    cannot give, and the count on the serial port, which a program that ends early cannot give."""
    if status is None:
        return "it was still running when its time was over"
    summaries = [match for match in map(SUMMARY.fullmatch, lines) if match]
    if not summaries:
        return f"it did not say how many cases it ran (QEMU ended with status {status})"
    run, failed = (int(number) for number in summaries[-1].groups())
    if failed:
        return f"{failed} of {run} cases failed"
    if run != expected_cases:
        return f"it ran {run} cases instead of {expected_cases}"
    if status != STATUS_OF_A_PASS:
        return f"QEMU ended with status {status} instead of {STATUS_OF_A_PASS}"
    return ""


class Guest:
    """A guest that runs some cases."""

    def __init__(self, name, words, cases, log, show):
        self.name = name
        self.cases = cases
        self.lines = []
        self.verdict = ""
        self._log = log
        self._show = show
        # When this script is killed, nobody is left to end the guest.
        self._process = subprocess.Popen(["setpriv", "--pdeathsig", "KILL", *words, "-serial", "stdio"], stdin=subprocess.DEVNULL,
                                         stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
        self._listener = threading.Thread(target=self._listen)
        self._listener.start()

    def _listen(self):
        with open(self._log, "w", encoding="utf-8") as log:
            for raw in self._process.stdout:
                line = raw.decode("utf-8", "replace").rstrip("\r\n")
                self.lines.append(line)
                print(line, file=log, flush=True)
                self._show(self, line)

    def wait(self, seconds):
        """Waits for the end, at most so long, and judges."""
        try:
            status = self._process.wait(max(0, seconds))
        except subprocess.TimeoutExpired:
            status = None
            self._process.kill()
            self._process.wait()
        self._listener.join()
        self.verdict = judge(status, self.lines, len(self.cases))
