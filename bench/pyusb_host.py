"""What one would write in Python instead of "trxctl boost 1": finds the mixers with pyusb, sends the level, stores it.

It announces nothing, which would take a further library.
"""

import os
import pathlib
import plistlib
import sys

import usb.core

LEVEL = int(sys.argv[1])

mixers = list(usb.core.find(find_all=True, idVendor=int(sys.argv[2], 16), idProduct=0x001F))
if not mixers:
    sys.exit("no mixer is connected")
for mixer in mixers:
    try:
        mixer.ctrl_transfer(0x40, 3, (3 - LEVEL) << 8, 0x8003)
    except usb.core.USBError:
        pass

settings_file = (pathlib.Path(os.environ["XDG_CONFIG_HOME"]) /
                 "orvikaudio/Preferences/com.orvikaudio.TRX-SELVAautosetup.plist")
settings = plistlib.loads(settings_file.read_bytes())
settings["MaxLevel"] = LEVEL
new_file = settings_file.with_suffix(".new")
with new_file.open("wb") as file:
    plistlib.dump(settings, file)
    file.flush()
    os.fsync(file.fileno())
new_file.rename(settings_file)
