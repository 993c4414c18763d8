"""A desktop for tests: a display in memory, and the setup application as a screen reader meets it.

Everything below runs inside trx-mixer-sim and dbus-run-session, which the test command starts. The accessibility bus is started
by the session bus.
"""

import os
import pathlib
import subprocess
import tempfile
import time
import unittest

import gi

TRX_SETUP = os.environ["TRX_SETUP"]
TRXCTL = os.environ["TRXCTL"]
TRX_MIXER_CTL = os.environ["TRX_MIXER_CTL"]
PATIENCE = 60  # seconds until a test that waits gives up


def start_display():
    """Starts a display in memory for the rest of this process."""
    reading, writing = os.pipe()
    server = subprocess.Popen(
        ["Xvfb", "-displayfd", str(writing), "-screen", "0", "1600x1000x24", "-nolisten", "tcp", "-noreset"],
        pass_fds=[writing], stderr=subprocess.DEVNULL)
    os.close(writing)
    with os.fdopen(reading) as told:
        os.environ["DISPLAY"] = f":{told.readline().strip()}"
    # The accessibility bus, which the session bus starts, makes the clicks.
    subprocess.run(["dbus-update-activation-environment", "DISPLAY"], check=True)
    unittest.addModuleCleanup(server.wait)
    unittest.addModuleCleanup(server.terminate)


def reader():
    """What a screen reader uses; only once there is a display."""
    gi.require_version("Atspi", "2.0")
    from gi.repository import Atspi  # pylint: disable=import-outside-toplevel
    return Atspi


def wait_until(what, is_so):
    """Waits for something, and gives what it gave."""
    deadline = time.monotonic() + PATIENCE
    while True:
        found = is_so()
        if found:
            return found
        if time.monotonic() > deadline:
            raise AssertionError(f"this never happens: {what}")
        time.sleep(0.05)


class SetupProgram:
    """A running trx-setup."""

    def __init__(self, *words, env):
        self.process = subprocess.Popen([TRX_SETUP, *words], env=env, stdin=subprocess.DEVNULL)
        self.window = wait_until("the window is there", self._window)

    def _window(self):
        if self.process.poll() is not None:
            raise AssertionError(f"trx-setup ended with {self.process.returncode}")
        desktop = reader().get_desktop(0)
        for number in range(desktop.get_child_count()):
            program = desktop.get_child_at_index(number)
            if program is not None and program.get_process_id() == self.process.pid and program.get_child_count():
                return program.get_child_at_index(0)
        return None

    def everything(self, inside=None):
        """All that the window has, in the order in which a reader meets it."""
        inside = inside or self.window
        yield inside
        for number in range(inside.get_child_count()):
            child = inside.get_child_at_index(number)
            if child is not None:
                yield from self.everything(child)

    def find(self, role, name):
        """What has this role and name and can be seen."""
        shown = reader().StateType.SHOWING
        for part in self.everything():
            if part.get_role_name() == role and part.get_name() == name and part.get_state_set().contains(shown):
                return part
        return None

    def wait_for(self, role, name):
        return wait_until(f"there is a {role} {name!r}", lambda: self.find(role, name))

    def stop(self):
        if self.process.poll() is None:
            self.process.kill()
        self.process.wait()


def click(part):
    """Clicks in the middle of something on the display."""
    area = reader().Component.get_extents(part, reader().CoordType.SCREEN)
    x, y = area.x + area.width // 2, area.y + area.height // 2
    reader().generate_mouse_event(x, y, "abs")
    reader().generate_mouse_event(x, y, "b1c")


class DesktopTest(unittest.TestCase):
    """A test with an empty settings folder and one mixer in good order, its selectors on USB."""

    maxDiff = None

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.config = pathlib.Path(folder.name)
        self.env = dict(os.environ, XDG_CONFIG_HOME=str(self.config), LC_ALL="C.UTF-8", QT_QPA_PLATFORM="xcb",
                        QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1")
        self.mixer("clear", 1)
        for channel in range(4):
            self.mixer("set", 1, "selector", channel, 6)
        self.mixer("log", "clear")

    def start(self, *words, **env):
        program = SetupProgram(*words, env={**self.env, **env})
        self.addCleanup(program.stop)
        return program

    def mixer(self, *words):
        """Sends a command to the software mixers."""
        return subprocess.run([TRX_MIXER_CTL, *map(str, words)], check=True, text=True, stdout=subprocess.PIPE).stdout

    def trxctl(self, *words):
        return subprocess.run([TRXCTL, *words], check=True, text=True, stdout=subprocess.PIPE, env=self.env).stdout

    def written(self):
        """The values written to the mixers: "1 0300 8003" for unit, value and index."""
        lines = [line.split() for line in self.mixer("log").splitlines()]
        return [f"{line[1]} {line[6]} {line[8]}" for line in lines if line[2] == "OUT"]
