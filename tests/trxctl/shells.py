"""Shells at a terminal, as people type into them."""

import fcntl
import os
import pathlib
import pty
import re
import select
import subprocess
import termios
import time

from host import PATIENCE, TRXCTL

COMPLETIONS = pathlib.Path(os.environ["TRXCTL_COMPLETIONS"])
TAB = "\t"
TO_BEGIN = "\x01"  # Ctrl-A
TO_END = "\x05"  # Ctrl-E
PROMPT = "READY>"
ESCAPES = re.compile(r"\x1b(\[[0-9;?>=]*[a-zA-Z]|[()][A-Z0-9]|[=>]|\][^\x07]*\x07)")


def take_terminal():
    """Makes standard input the terminal of the process, as a login does."""
    fcntl.ioctl(0, termios.TIOCSCTTY, 0)


class Shell:
    """One interactive shell that has the completion of trxctl."""

    def __init__(self, argv, begin, env, folder):
        ours, its = pty.openpty()
        env = dict(env, PATH=f"{os.path.dirname(TRXCTL)}:{env['PATH']}", HOME=str(folder),
                   PS1=PROMPT, TERM="dumb", COLUMNS="200", INPUTRC="/dev/null", HISTFILE="")
        # Completing needs no mixers, and fish, which has threads and forks, may hang with what stands
        # before its open().
        env.pop("LD_PRELOAD", None)
        self._process = subprocess.Popen(argv, env=env, stdin=its, stdout=its, stderr=its,
                                         start_new_session=True, cwd=folder,
                                         preexec_fn=take_terminal)
        os.close(its)
        self._terminal = ours
        self._text = ""
        self.run(begin)
        # What is typed before the shell reads its line may be lost, too.
        self.wait_for(PROMPT)

    def type(self, keys):
        os.write(self._terminal, keys.encode())

    def wait_for(self, text):
        """Waits until the shell has written a text, and gives all up to its end."""
        deadline = time.monotonic() + PATIENCE
        while text not in self._text:
            ready, _, _ = select.select([self._terminal], [], [],
                                        max(0, deadline - time.monotonic()))
            if not ready:
                raise AssertionError(f"no {text!r} in {self._text!r}")
            self._text += os.read(self._terminal, 4096).decode(errors="replace")
            self._text = ESCAPES.sub("", self._text)
        before, self._text = self._text.split(text, 1)
        return before + text

    def run(self, line):
        """Types a line and waits until it is done."""
        self.type(line + TO_END + "; echo DO''NE\n")
        return self.wait_for("DONE")

    def complete(self, keys, shown):
        """Types, asks for completion, and waits until the end of what was meant is there.

        What is typed on while a shell runs trxctl may be lost.
        """
        self.type(keys + TAB)
        self.wait_for(shown)

    def words(self):
        """The words that the shell makes of the line as it is now."""
        self.type(TO_BEGIN + "printf '<%s>' ")
        return re.findall("<([^<>]*)>", self.run("").split("DO''NE")[-1])

    def stop(self):
        if self._process.poll() is None:
            self._process.kill()
        self._process.wait()
        os.close(self._terminal)


def bash(env, folder):
    return Shell(["bash", "--norc", "--noprofile", "-i"],
                 f"source {COMPLETIONS}/trxctl.bash", env, folder)


def zsh(env, folder):
    return Shell(["zsh", "-f", "-i"],
                 f"fpath=({COMPLETIONS} $fpath); autoload -Uz compinit; compinit -u -D",
                 env, folder)


def fish(env, folder):
    return Shell(["fish", "--no-config", "-i"],
                 f"function fish_prompt; echo -n '{PROMPT}'; end; source {COMPLETIONS}/trxctl.fish",
                 env, folder)
