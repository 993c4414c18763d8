"""Runs trxctl as its users do, on a desk with two software mixers, and looks at what it left behind.

Everything below runs inside trx-mixer-sim and dbus-run-session, which the test command starts.
"""

import json
import os
import pathlib
import plistlib
import re
import select
import subprocess
import tempfile
import time
import unittest

TRXCTL = os.environ["TRXCTL"]
TRX_MIXER_CTL = os.environ["TRX_MIXER_CTL"]
WITHOUT_POWERS = ["setpriv", "--bounding-set=-all", "--"]
PATIENCE = 60  # seconds until a test that waits gives up

LEVELS = ["-5 dB", "-10 dB", "-15 dB", "-19 dB"]
REQUEST = re.compile(r"unit (\d+) .* wValue ([0-9a-f]{4}) .*  (\S[^\d]*)$")
MODELS = ["TRX-Arden", "TRX-VOLT", "TRX-HALDEN", "TRX-LUMEN", "TRX-MORROW", "TRX-SELVA"]


class Result:
    """How one run ended."""

    def __init__(self, code, out, err):
        self.code = code
        self.out = out
        self.err = err

    @property
    def json(self):
        """The one JSON object that the output must be, on one line."""
        if self.out.count("\n") != 1 or not self.out.endswith("\n"):
            raise AssertionError(f"not one line: {self.out!r}")
        return json.loads(self.out)

    def __repr__(self):
        return f"exit code {self.code}\nstdout: {self.out}\nstderr: {self.err}"


class Running:
    """A trxctl that goes on running, such as a watch."""

    def __init__(self, command, env):
        self._process = subprocess.Popen(
            command, env=env, stdin=subprocess.DEVNULL,
            stdout=subprocess.PIPE, stderr=subprocess.PIPE)
        self._text = {"stdout": b"", "stderr": b""}

    def line(self, stream="stdout"):
        """Waits for the next line of a stream."""
        pipe = getattr(self._process, stream)
        deadline = time.monotonic() + PATIENCE
        while b"\n" not in self._text[stream]:
            ready, _, _ = select.select([pipe], [], [], max(0, deadline - time.monotonic()))
            if not ready:
                raise AssertionError(f"no line on {stream} in {PATIENCE} s")
            data = os.read(pipe.fileno(), 4096)
            if not data:
                raise AssertionError(f"{stream} ended with {self._text[stream]!r}")
            self._text[stream] += data
        line, self._text[stream] = self._text[stream].split(b"\n", 1)
        return line.decode()

    def has_line(self, seconds):
        """Whether a line is there on standard output, or comes within some seconds."""
        return b"\n" in self._text["stdout"] or bool(
            select.select([self._process.stdout], [], [], seconds)[0])

    def json_line(self):
        return json.loads(self.line())

    def signal(self, number):
        self._process.send_signal(number)

    def close_output(self):
        """Goes away as the reader of the output."""
        self._process.stdout.close()

    def end(self):
        """Waits for the end and gives what was not read yet."""
        if self._process.stdout.closed:
            err = self._process.stderr.read()
            self._process.wait(PATIENCE)
            out = b""
        else:
            out, err = self._process.communicate(timeout=PATIENCE)
        return Result(self._process.returncode, (self._text["stdout"] + out).decode(),
                      (self._text["stderr"] + err).decode())

    def stop(self):
        if self._process.poll() is None:
            self._process.kill()
        self._process.wait()
        self._process.stdout.close()
        self._process.stderr.close()


class HostTest(unittest.TestCase):
    """A test with an empty settings folder and two mixers, numbered 1 and 2, in good order."""

    maxDiff = None

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.config = pathlib.Path(folder.name)
        self.env = dict(os.environ, XDG_CONFIG_HOME=str(self.config), TERM="xterm", LC_ALL="C.UTF-8")
        for variable in ("NO_COLOR", "TRXCTL_MODEL"):
            self.env.pop(variable, None)
        for unit in (1, 2):
            self.mixer("clear", unit)
        self.mixer("log", "clear")

    def run_host(self, *words, env=None, unprivileged=False, **options):
        """Runs trxctl to its end; unprivileged: as root without the powers of root, too."""
        options.setdefault("stdout", subprocess.PIPE)
        options.setdefault("stderr", subprocess.PIPE)
        done = subprocess.run(self._command(words, unprivileged), env=env or self.env, stdin=subprocess.DEVNULL,
                              timeout=PATIENCE, check=False, **options)
        return Result(done.returncode, (done.stdout or b"").decode(), (done.stderr or b"").decode())

    @staticmethod
    def _command(words, unprivileged):
        before = WITHOUT_POWERS if unprivileged and os.geteuid() == 0 else []
        return [*before, TRXCTL, *words]

    def start_host(self, *words, env=None, unprivileged=False):
        """Starts a trxctl that goes on running."""
        running = Running(self._command(words, unprivileged), env or self.env)
        self.addCleanup(running.stop)
        return running

    def bus_address(self):
        """Where a session bus of the test's own listens."""
        return f"unix:path={self.config}/bus"

    def start_bus(self):
        """Starts a session bus of the test's own, which it may stop or kill."""
        bus = subprocess.Popen(["dbus-daemon", "--session", "--nofork", "--print-address",
                                f"--address={self.bus_address()}"], stdout=subprocess.PIPE)
        self.addCleanup(bus.stdout.close)
        self.addCleanup(bus.wait)
        self.addCleanup(bus.kill)
        bus.stdout.readline()
        return bus

    def done(self, *words, **options):
        """Runs trxctl, which must succeed and say nothing on standard error."""
        result = self.run_host(*words, **options)
        self.assertEqual((result.code, result.err), (0, ""), result)
        return result

    def done_with_notes(self, *words, **options):
        """Runs trxctl, which must succeed; what it says on standard error is the caller's."""
        result = self.run_host(*words, **options)
        self.assertEqual(result.code, 0, result)
        return result

    def assert_fails(self, code, words, message, hint, **options):
        """Runs trxctl, which must fail with exactly these two lines and no output."""
        result = self.run_host(*words, **options)
        self.assertEqual(result.err, f"trxctl: error: {message}\nhint: {hint}\n")
        self.assertEqual((result.code, result.out), (code, ""))

    def mixer(self, *words):
        """Tells the software mixers something and gives their answer."""
        return subprocess.run([TRX_MIXER_CTL, *map(str, words)], check=True, text=True,
                              stdout=subprocess.PIPE).stdout

    def unplug(self, unit):
        self.mixer("unplug", unit)
        self.addCleanup(self.mixer, "replug", unit)

    def unplug_all(self):
        self.unplug(1)
        self.unplug(2)

    def described(self, unit):
        """A plugged unit as trxctl names it."""
        bus, address = self.place(unit)
        return f"TRX-SELVA (bus {bus}, address {address}), serial SIM{unit:05}"

    def place(self, unit):
        """Bus and address of a plugged unit, as the desk itself has them."""
        rows = [line.split() for line in self.mixer("units").splitlines()]
        bus, address = next(row[4] for row in rows if row[0] == str(unit)).split("/")
        return int(bus), int(address)

    def sent(self, request):
        """The requests of one name since the test began: which mixer, which value; by mixer."""
        lines = map(REQUEST.match, self.mixer("log").splitlines())
        return sorted((int(line[1]), line[2]) for line in lines if line and line[3] == request)

    def levels_sent(self):
        return self.sent("USB output level")

    def assert_nothing_sent(self):
        self.assertEqual(self.mixer("log"), "")

    def settings_file(self, model="TRX-SELVA"):
        return self.config / "orvikaudio" / "Preferences" / f"com.orvikaudio.{model}autosetup.plist"

    def stored(self, model="TRX-SELVA"):
        """The stored settings of a model, or None."""
        file = self.settings_file(model)
        return plistlib.loads(file.read_bytes()) if file.exists() else None

    def store(self, settings, model="TRX-SELVA"):
        """Writes the settings of a model as another program might."""
        file = self.settings_file(model)
        file.parent.mkdir(parents=True, exist_ok=True)
        file.write_bytes(plistlib.dumps(settings))
