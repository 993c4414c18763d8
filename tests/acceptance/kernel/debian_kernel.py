"""Debian's own kernel: downloaded once, unpacked and never installed, opened so that QEMU starts it without a boot loader."""

import bz2
import gzip
import lzma
import os
import pathlib
import re
import shutil
import struct
import subprocess
import tempfile

META_PACKAGE = "linux-image-amd64"
# Each module needs some of those before it. The audio driver's wait for the case that wants them: with them, every plug takes
# longer.
USB_MODULES = ["usb-common", "usbcore", "usbip-core", "vhci-hcd"]
AUDIO_MODULES = ["soundcore", "snd", "snd-timer", "snd-pcm", "snd-seq-device", "snd-rawmidi", "snd-hwdep", "mc",
                 "snd-usbmidi-lib", "snd-usb-audio"]
MODULES = USB_MODULES + AUDIO_MODULES


class KernelError(Exception):
    """Why there is no kernel to start, in words for whoever runs the tests."""


class Kernel:
    """An opened kernel: a folder with vmlinux and the modules."""

    def __init__(self, folder):
        self.name = folder.name
        self.vmlinux = folder / "vmlinux"
        self.modules = [folder / f"{module}.ko" for module in MODULES]

    def is_whole(self):
        return all(file.is_file() for file in [self.vmlinux, *self.modules])


def cache_folder():
    caches = os.environ.get("XDG_CACHE_HOME", "")
    if not os.path.isabs(caches):
        caches = os.path.expanduser("~/.cache")
    return pathlib.Path(caches) / "trx-selva"


def find_kernel(say):
    """The newest kernel of the cache; without one, what Debian offers today. `say` gets a line about what takes long."""
    cache = cache_folder()
    cache.mkdir(parents=True, exist_ok=True)
    package = newest_package(cache) or download(cache, say)
    kernel = Kernel(cache / package.stem)
    if not kernel.is_whole():
        say(f"Unpacking {package.name}")
        unpack(package, cache / package.stem)
    if not kernel.is_whole():
        raise KernelError(f"{package} lacks a module of {', '.join(MODULES)}.")
    return kernel


# --- The package ------------------------------------------------------------------------------------------------------


def newest_package(cache):
    def version(package):
        return [int(number) for number in re.findall(r"\d+", package.name)]

    return max(cache.glob("linux-image-*.deb"), key=version, default=None)


def apt(*words):
    # What apt prints must be read, not understood in the user's language.
    return subprocess.run(words, env={**os.environ, "LC_ALL": "C"}, capture_output=True, text=True, check=False)


def versioned_package():
    """The package that the meta package names, such as linux-image-6.1.0-1-amd64; nothing when apt knows none."""
    found = re.search(r"Depends: (linux-image-\S+)", apt("apt-cache", "depends", META_PACKAGE).stdout)
    return found and found[1]


def download(cache, say):
    say(f"Downloading Debian's kernel (about 70 MB) into {cache}")
    with tempfile.TemporaryDirectory(dir=cache) as folder:
        answer = apt_download(folder)
        if answer and os.geteuid() == 0:  # the lists may be missing, or may name a package that has been replaced since
            apt("apt-get", "update")
            answer = apt_download(folder)
        if answer:
            raise KernelError(
                f"There is no kernel in {cache}, and none could be downloaded: {answer}\n"
                f"With a network, `apt-get update` as root may help. Without one, put a linux-image package of Debian there.")
        package = newest_package(pathlib.Path(folder))
        return package.rename(cache / package.name)


def apt_download(folder):
    """Downloads the package; returns what went wrong."""
    package = versioned_package()
    if not package:
        return f"apt knows no package {META_PACKAGE}."
    answer = subprocess.run(["apt-get", "download", package], cwd=folder, capture_output=True, text=True, check=False)
    if answer.returncode == 0:
        return ""
    errors = [line for line in answer.stderr.splitlines() if line.startswith("E:")]
    return "\n".join(errors) or "apt-get says nothing about it."


# --- Its contents -----------------------------------------------------------------------------------------------------


def unpack(package, folder):
    """Leaves vmlinux and the modules in `folder`, all of them or nothing."""
    with tempfile.TemporaryDirectory(dir=folder.parent) as temporary:
        opened = pathlib.Path(temporary) / "opened"
        opened.mkdir()
        tree = pathlib.Path(temporary) / "tree"
        tree.mkdir()
        wanted = ["./boot/vmlinuz-*", *(f"*/{module}.ko" for module in MODULES)]
        with subprocess.Popen(["dpkg-deb", "--fsys-tarfile", package], stdout=subprocess.PIPE) as contents:
            subprocess.run(["tar", "-x", "-C", tree, "--wildcards", *wanted], stdin=contents.stdout, check=True)
        for module in tree.rglob("*.ko"):
            module.rename(opened / module.name)
        images = list(tree.glob("boot/vmlinuz-*"))
        if not images:
            raise KernelError(f"{package} has no kernel image.")
        (opened / "vmlinux").write_bytes(extract_vmlinux(images[0].read_bytes()))
        shutil.rmtree(folder, ignore_errors=True)
        opened.rename(folder)


def extract_vmlinux(image):
    """The kernel proper, an ELF file, out of the self-extracting image. The places are those of the x86 boot protocol: the
    number of 512-byte set-up sectors at 0x1f1, where the payload begins behind them at 0x248, its length at 0x24c."""
    setup_sectors = image[0x1F1] or 4
    offset, length = struct.unpack_from("<II", image, 0x248)
    begin = (setup_sectors + 1) * 512 + offset
    payload = image[begin:begin + length]
    for magic, decompress in DECOMPRESSORS.items():
        if payload.startswith(magic):
            vmlinux = decompress(payload)
            break
    else:
        raise KernelError(f"The kernel is compressed in an unknown way; it begins with {payload[:6].hex(' ')}.")
    if not vmlinux.startswith(b"\x7fELF"):
        raise KernelError("What was extracted from the kernel image is no ELF file.")
    return vmlinux


# Behind the compressed data the image has four bytes with the extracted size, which a decompressor must not trip over.
SIZE_BYTES = 4


def with_program(*words):
    def decompress(payload):
        result = subprocess.run(words, input=payload[:-SIZE_BYTES], stdout=subprocess.PIPE, check=False)
        if result.returncode != 0:
            raise KernelError(f"`{' '.join(words)}` does not extract the kernel.")
        return result.stdout
    return decompress


DECOMPRESSORS = {
    b"\xfd7zXZ\0": lambda payload: lzma.decompress(payload[:-SIZE_BYTES]),
    b"\x1f\x8b": lambda payload: gzip.decompress(payload[:-SIZE_BYTES]),
    b"BZh": lambda payload: bz2.decompress(payload[:-SIZE_BYTES]),
    b"\x28\xb5\x2f\xfd": with_program("zstd", "-dc"),
    b"\x02\x21\x4c\x18": with_program("lz4", "-dc"),
}
