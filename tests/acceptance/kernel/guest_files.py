"""The files of the guest: its whole system is an archive in memory, made for each run from what the build and the host have."""

import os
import pathlib
import re
import shutil
import subprocess

from debian_kernel import AUDIO_MODULES, USB_MODULES

HERE = pathlib.Path(__file__).resolve().parent
BUSYBOX = pathlib.Path("/bin/busybox")
# What a guest runs: from the build, and from the host's packages.
BUILT = ["acceptance-kernel", "acceptance-host", "trx-mixer-sim", "trx-mixer-ctl", "trxctl"]
INSTALLED = ["dbus-daemon"]
# Who there is in the guest. The message bus asks for the names of those who connect.
ACCOUNTS = {
    "etc/passwd": "root:x:0:0:root:/root:/bin/sh\nnobody:x:65534:65534:nobody:/:/bin/sh\n",
    "etc/group": "root:x:0:\nnogroup:x:65534:\n",
    "etc/nsswitch.conf": "passwd: files\ngroup: files\n",
}
ARGUMENTS = "guest/arguments"


def missing(programs):
    """Those of the programs that the host does not have."""
    absent = [name for name in [*programs, *INSTALLED] if not shutil.which(name)]
    return absent if BUSYBOX.exists() else [*absent, str(BUSYBOX)]


class GuestFiles:
    """The archive of all files, without what differs from guest to guest."""

    def __init__(self, build, kernel, folder):
        self._build = build
        self._tree = folder / "tree"
        self._put_programs()
        self._put_system(kernel)
        self._archive = pack(self._tree)

    def archive_for(self, arguments):
        """The archive of one guest, whose test program gets these arguments."""
        own = self._tree.parent / "own"
        shutil.rmtree(own, ignore_errors=True)
        put_text(own / ARGUMENTS, lines(arguments))
        return self._archive + pack(own)

    def _put_programs(self):
        programs = [self._build / "bin" / name for name in BUILT]
        programs += [pathlib.Path(shutil.which(name) or f"/usr/bin/{name}") for name in INSTALLED]
        for file in sorted({*programs, *libraries_of(programs)}):
            self._put_program(file)

    def _put_program(self, file):
        """At the path that it has here, because programs know each other by it; without what only a debugger reads."""
        place = self._tree / file.relative_to("/")
        place.parent.mkdir(parents=True, exist_ok=True)
        subprocess.run(["strip", "--strip-unneeded", "-o", place, file.resolve()], check=True)
        place.chmod(0o755)

    def _put_system(self, kernel):
        for folder in ["bin", "dev", "modules", "proc", "root", "run", "sys", "tmp", "usr/bin"]:
            (self._tree / folder).mkdir(parents=True, exist_ok=True)
        shutil.copy(BUSYBOX, self._tree / "bin/busybox")
        shutil.copy(HERE / "init", self._tree / "init")
        for module in kernel.modules:
            shutil.copy(module, self._tree / "modules")
        put_text(self._tree / "guest/usb-modules", lines(USB_MODULES))
        put_text(self._tree / "guest/audio-modules", lines(AUDIO_MODULES))
        put_text(self._tree / "guest/build", f"{self._build}\n")
        for path, text in ACCOUNTS.items():
            put_text(self._tree / path, text)
        texts = self._build / "share"
        shutil.copytree(texts, self._tree / texts.relative_to("/"), symlinks=True)


def lines(words):
    return "".join(f"{word}\n" for word in words)


def put_text(file, text):
    file.parent.mkdir(parents=True, exist_ok=True)
    file.write_text(text, encoding="utf-8")


def libraries_of(programs):
    """The shared libraries that the programs load, the loader itself included."""
    answer = subprocess.run(["ldd", *programs], capture_output=True, text=True, check=True)
    return {pathlib.Path(os.path.normpath(path)) for path in re.findall(r"(/\S+) \(0x", answer.stdout)}


def pack(tree):
    """A folder as an archive that the kernel unpacks into its root. Several may follow each other."""
    names = b"".join(bytes(file.relative_to(tree)) + b"\0" for file in sorted(tree.rglob("*")))
    return subprocess.run(["cpio", "--create", "--format=newc", "--owner=0:0", "--null", "--quiet"],
                          cwd=tree, input=names, stdout=subprocess.PIPE, check=True).stdout
