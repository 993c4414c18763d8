"""A whole Debian 12 in QEMU: systemd as process 1, udev, logind, and a user who is logged in at the machine."""

import base64
import pathlib
import queue
import shlex
import subprocess
import sys
import tempfile
import threading
import time

PROJECT = pathlib.Path(__file__).resolve().parents[2]
HERE = pathlib.Path(__file__).resolve().parent
sys.path += [str(PROJECT / "tests/acceptance/kernel"), str(PROJECT / "tests/installation/packages")]

import debian_kernel  # noqa: E402
import debian_root  # noqa: E402
from archive import Archive  # noqa: E402

ROOT = "machine"
PATIENCE = 240  # seconds until something that is waited for is given up: emulation on a busy host is slow

KERNEL_PARAMETERS = [
    "rdinit=/usr/lib/systemd/systemd", "console=ttyS0", "panic=-1", "oops=panic",
    # On a busy host the emulated clocks are too slow for what the kernel expects of them, and the time stamp counter runs ahead.
    "no_timer_check", "clocksource=acpi_pm", "tsc=unstable",
    "nokaslr", "norandmaps", "mitigations=off",
    "systemd.condition-needs-update=0", "systemd.firstboot=off", "systemd.show_status=no",
]

AUTOLOGIN = """[Service]
ExecStart=
ExecStart=-/sbin/agetty -o '-p -f -- \\\\u' --noclear --autologin {user} %I linux
"""
# Who logs in where: dj sits at the machine, eva comes with the second console, root has the serial line of `run`.
CONSOLES = {"getty@tty1": "dj", "getty@tty2": "eva", "serial-getty@ttyS0": "root"}


class Failed(AssertionError):
    """A command that failed in the machine."""


def write_files(file, packages):
    """Writes all files of the machine, with the packages that are to be installed in it."""
    kernel = debian_kernel.find_kernel(print)
    archive = Archive(file)
    archive.put_tar(debian_root.archive(ROOT))
    archive.put_file("etc/machine-id", b"0123456789abcdef0123456789abcdef\n")
    archive.put_file("etc/hostname", b"machine\n")
    put_modules(archive, kernel)
    for console, user in CONSOLES.items():
        archive.put_file(f"etc/systemd/system/{console}.service.d/autologin.conf", AUTOLOGIN.format(user=user).encode())
    archive.put_file("usr/local/bin/agent", (HERE / "guest/agent").read_bytes(), 0o755)
    archive.put_file("etc/systemd/system/agent.service", (HERE / "guest/agent.service").read_bytes())
    archive.put_link("etc/systemd/system/multi-user.target.wants/agent.service", "../agent.service")
    # The journal of each user is kept apart, which it is only when it is kept at all.
    archive.put_folder("var/log/journal")
    for package in packages:
        archive.put_file(f"packages/{package.name}", package.read_bytes())
    archive.end()
    return kernel


def put_modules(archive, kernel):
    """The modules of the kernel, where udev looks for them: below usr, because lib is a link to it."""
    version = kernel.name.split("_")[0].removeprefix("linux-image-")
    with tempfile.TemporaryDirectory() as name:
        modules = pathlib.Path(name, "lib/modules", version)
        modules.mkdir(parents=True)
        for module in kernel.modules:
            (modules / module.name).write_bytes(module.read_bytes())
        subprocess.run(["/sbin/depmod", "--basedir", name, version], check=True, stderr=subprocess.DEVNULL)
        for file in sorted(modules.iterdir()):
            archive.put_file(f"usr/lib/modules/{version}/{file.name}", file.read_bytes())
    archive.put_file("etc/modules-load.d/usbip.conf", b"vhci-hcd\n")


def qemu_words(kernel, files):
    return ["qemu-system-x86_64",
            "-M", "pc", "-accel", "tcg", "-cpu", "max", "-m", "1536",
            "-nodefaults", "-no-user-config", "-display", "none", "-no-reboot",
            "-kernel", str(kernel.vmlinux), "-initrd", str(files)]


class Machine:
    """A running machine. Commands run in it as root, one after the other."""

    def __init__(self, packages, log):
        self._folder = tempfile.TemporaryDirectory()
        files = pathlib.Path(self._folder.name, "files")
        with files.open("wb") as file:
            kernel = write_files(file, packages)
        parameters = " ".join([*KERNEL_PARAMETERS, "systemd.getty_auto=no"])
        self._errors = open(f"{log}.qemu", "wb")
        # When this process is killed, nobody is left to end the machine.
        self._process = subprocess.Popen(
            ["setpriv", "--pdeathsig", "KILL", *qemu_words(kernel, files), "-append", parameters,
             "-serial", f"file:{log}", "-serial", "stdio"],
            stdin=subprocess.PIPE, stdout=subprocess.PIPE, stderr=self._errors)
        self._answers = queue.Queue()
        threading.Thread(target=self._listen, daemon=True).start()
        self._answer("the machine to start", PATIENCE)

    def _listen(self):
        for line in self._process.stdout:
            self._answers.put(line.decode("ascii", "replace").strip())
        self._answers.put(None)

    def _answer(self, waited_for, patience):
        try:
            answer = self._answers.get(timeout=patience)
        except queue.Empty:
            raise Failed(f"waited {patience} s for {waited_for}") from None
        if answer is None:
            raise Failed(f"the machine ended during {waited_for}")
        return answer

    def tried(self, command, patience=PATIENCE):
        """Runs a command of the shell; gives its exit status and its output, errors included."""
        self._process.stdin.write(base64.b64encode(command.encode()) + b"\n")
        self._process.stdin.flush()
        status, _, output = self._answer(command, patience).partition(" ")
        return int(status), base64.b64decode(output).decode("utf-8", "replace")

    def run(self, command):
        """Runs a command that must succeed, and gives its output."""
        status, output = self.tried(command)
        if status != 0:
            raise Failed(f"{command}: exit status {status}\n{output}")
        return output

    def install_packages(self):
        """As a user would install package files. They are there, and so is all that they depend on."""
        self.run("cd /packages && apt-get install --yes --no-install-recommends ./*.deb")

    def tried_as(self, user, command):
        """Runs a command of a user's shell, outside of any session."""
        return self.tried(f"runuser -u {user} -- env -C / HOME=/home/{user} XDG_RUNTIME_DIR=/run/user/$(id -u {user}) "
                          f"DBUS_SESSION_BUS_ADDRESS=unix:path=/run/user/$(id -u {user})/bus bash -c {shlex.quote(command)}")

    def run_as(self, user, command):
        status, output = self.tried_as(user, command)
        if status != 0:
            raise Failed(f"{user}: {command}: exit status {status}\n{output}")
        return output

    def wait_for(self, command, about):
        """Waits until a command succeeds, and gives its output."""
        end = time.monotonic() + PATIENCE
        while True:
            status, output = self.tried(command)
            if status == 0:
                return output
            if time.monotonic() > end:
                raise Failed(f"waited {PATIENCE} s for {about}: {command}\n{output}")

    def end(self):
        self._process.kill()
        self._process.wait()
        self._errors.close()
        self._folder.cleanup()


def open_shell(packages):
    """Gives this terminal to a shell of root; Ctrl-A X ends the machine."""
    with tempfile.TemporaryDirectory() as folder:
        files = pathlib.Path(folder, "files")
        with files.open("wb") as file:
            kernel = write_files(file, packages)
        return subprocess.call([*qemu_words(kernel, files), "-append", " ".join(KERNEL_PARAMETERS), "-serial", "mon:stdio"])
