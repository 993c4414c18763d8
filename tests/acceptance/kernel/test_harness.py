"""What passes for a pass, and how a kernel is opened."""

import bz2
import gzip
import lzma
import pathlib
import struct
import subprocess
import tempfile
import unittest

import debian_kernel
from guest import judge

PASS = 33
ALL_RIGHT = ["GUEST up after 2.5 s", "7 cases run, 0 failed", "GUEST done with 0"]


class Judge(unittest.TestCase):
    def test_status_and_count_together_are_a_pass(self):
        self.assertEqual(judge(PASS, ALL_RIGHT, 7), "")

    def test_a_guest_that_does_not_end_fails(self):
        self.assertIn("time was over", judge(None, ALL_RIGHT, 7))

    def test_a_guest_that_says_nothing_fails(self):
        self.assertIn("did not say", judge(PASS, [], 7))

    def test_a_panic_fails(self):
        self.assertIn("did not say", judge(0, ["GUEST up", "[ 2.6] Kernel panic - not syncing: Oops"], 7))

    def test_a_panic_behind_the_count_fails(self):
        self.assertIn("status 0 ", judge(0, ALL_RIGHT, 7))

    def test_a_machine_that_cannot_start_fails(self):
        self.assertIn("status 1", judge(1, ["qemu-system-x86_64: could not load kernel"], 7))

    def test_a_failed_case_fails(self):
        self.assertEqual(judge(PASS, ["7 cases run, 1 failed"], 7), "1 of 7 cases failed")

    def test_cases_that_did_not_run_fail(self):
        self.assertEqual(judge(PASS, ["6 cases run, 0 failed"], 7), "it ran 6 cases instead of 7")

    def test_a_count_inside_of_another_line_is_none(self):
        self.assertIn("did not say", judge(PASS, ["expected: 7 cases run, 0 failed"], 7))

    def test_the_status_of_a_failure_fails(self):
        self.assertIn("status 35", judge(35, ALL_RIGHT, 7))


class KernelImage(unittest.TestCase):
    ELF = b"\x7fELF" + bytes(range(256)) * 64

    def image(self, payload):
        """An image as the boot protocol lays it out, with one set-up sector and the payload 32 bytes behind it."""
        head = bytearray(1024 + 32)
        head[0x1F1] = 1
        packed = payload + struct.pack("<I", len(self.ELF))
        struct.pack_into("<II", head, 0x248, 32, len(packed))
        return bytes(head) + packed + b"what follows"

    def compressed_by(self, *words):
        return subprocess.run(words, input=self.ELF, stdout=subprocess.PIPE, check=True).stdout

    def test_every_compression_is_undone(self):
        # The check sum is the one that the kernel's build chooses.
        payloads = {
            "xz": lzma.compress(self.ELF, check=lzma.CHECK_CRC32),
            "gzip": gzip.compress(self.ELF),
            "bzip2": bz2.compress(self.ELF),
            "zstd": self.compressed_by("zstd", "-q", "-c"),
            "lz4": self.compressed_by("lz4", "-q", "-l", "-c"),
        }
        for name, payload in payloads.items():
            with self.subTest(name):
                self.assertEqual(debian_kernel.extract_vmlinux(self.image(payload)), self.ELF)

    def test_another_compression_is_refused_by_name(self):
        with self.assertRaisesRegex(debian_kernel.KernelError, "begins with 00 01 02 03 04 05"):
            debian_kernel.extract_vmlinux(self.image(bytes(range(16))))

    def test_what_is_no_kernel_is_refused(self):
        with self.assertRaisesRegex(debian_kernel.KernelError, "no ELF file"):
            debian_kernel.extract_vmlinux(self.image(gzip.compress(b"something else")))


class Cache(unittest.TestCase):
    def test_the_newest_package_is_taken_by_its_numbers_and_not_by_its_digits(self):
        names = [f"linux-image-6.1.0-{number}-amd64_6.1.{number}-1_amd64.deb" for number in (9, 56, 10)]
        with tempfile.TemporaryDirectory() as folder:
            cache = pathlib.Path(folder)
            self.assertIsNone(debian_kernel.newest_package(cache))
            for name in names:
                (cache / name).touch()
            self.assertEqual(debian_kernel.newest_package(cache).name, names[1])


if __name__ == "__main__":
    unittest.main()
