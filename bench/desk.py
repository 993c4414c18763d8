"""The desk on which everything is measured: what is plugged in, and a settings file with one value for each setting."""

import os
import pathlib
import plistlib
import subprocess
import tempfile

TRX_MIXER_CTL = os.environ["TRX_MIXER_CTL"]
STRANGER = "1234:0001"

SETTINGS = {"Input0": 1, "Input1": 1, "Input2": 1, "MaxLevel": 1, "Output0": 0, "Output1": 0, "Output2": 0}


def mixer_control(*words):
    return subprocess.run([TRX_MIXER_CTL, *words], check=True, text=True, stdout=subprocess.PIPE).stdout


def plugged():
    """The kinds of all plugged units, by number."""
    rows = (line.split() for line in mixer_control("units").splitlines())
    return {row[0]: row[1] for row in rows if row[3] == "plugged"}


def plug(mixers, strangers):
    """Leaves so many mixers and so many other devices on the bus."""
    for kind, wanted, words in (("TRX-SELVA", mixers, ()), ("other", strangers, (STRANGER,))):
        numbers = [number for number, other in plugged().items() if other == kind]
        for number in numbers[wanted:]:
            mixer_control("unplug", number)
        for _ in range(wanted - len(numbers)):
            mixer_control("plug", *words)


def make_settings():
    """A settings folder in memory, named in the environment; the caller keeps the result alive."""
    memory = pathlib.Path("/dev/shm")
    # The simulator leaves no such folder to the programs that run with what it loads into them.
    writable = "LD_PRELOAD" not in os.environ and os.access(memory, os.W_OK)
    folder = tempfile.TemporaryDirectory(dir=memory if writable else None)
    preferences = pathlib.Path(folder.name) / "orvikaudio" / "Preferences"
    preferences.mkdir(parents=True)
    file = preferences / "com.orvikaudio.TRX-SELVAautosetup.plist"
    file.touch(0o600)  # as the library makes it
    file.write_bytes(plistlib.dumps(SETTINGS))
    os.environ["XDG_CONFIG_HOME"] = folder.name
    return folder
