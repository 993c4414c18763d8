"""The packages that scripts/package has made."""

import os
import pathlib

FOLDER = pathlib.Path(os.environ["PACKAGES"])
LIBRARY, DEVELOPMENT, TOOLS, SETUP, SIMULATOR = NAMES = [
    "libtrx-selvasetup1", "libtrx-selvasetup-dev", "trxctl", "trx-setup", "trx-mixer-sim"]


def files(*names):
    """The package files of these names, one each."""
    found = []
    for name in names:
        [file] = FOLDER.glob(f"{name}_*.deb")
        found.append(file)
    return found
