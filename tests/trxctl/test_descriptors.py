"""A system that gives no more descriptors."""

import resource
import unittest

from host import HostTest


def leave_one():
    """Leaves room for one descriptor beyond the standard streams: enough to load the program."""
    resource.setrlimit(resource.RLIMIT_NOFILE, (4, 4))


class WithoutDescriptors(HostTest):
    def test_watch_cannot_begin(self):
        self.assert_fails(1, ["watch"], "the system gives this process no more descriptors",
                          "close other programs, or raise the limit with ulimit -n",
                          preexec_fn=leave_one)


if __name__ == "__main__":
    unittest.main()
