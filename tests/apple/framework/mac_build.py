"""The build of a Mac, as CMake makes it on this machine."""

import json
import os
import pathlib
import subprocess

SOURCE = pathlib.Path(os.environ["SOURCE"])
BUILD = pathlib.Path(os.environ["MAC_BUILD"])
BUNDLE = BUILD / "lib/TRX-SELVASetup.framework"


def run(*words):
    """What a program writes; it must succeed."""
    return subprocess.run(words, check=True, text=True, stdout=subprocess.PIPE).stdout


def preset(name):
    """A configure preset with what it inherits."""
    presets = json.loads((SOURCE / "CMakePresets.json").read_text())["configurePresets"]
    found = next(one for one in presets if one["name"] == name)
    whole = preset(found["inherits"]) if "inherits" in found else {"cacheVariables": {}}
    variables = whole["cacheVariables"] | found.get("cacheVariables", {})
    return whole | found | {"cacheVariables": variables}


def commands(*targets):
    """The commands that make the targets, one a line, as the Mac would run them."""
    return run("ninja", "-C", BUILD, "-t", "commands", *targets).splitlines()


def contents():
    """The files of the framework that are copied and not compiled, as targets."""
    rules = run("ninja", "-C", BUILD, "-t", "targets", "rule", "COPY_OSX_CONTENT").split()
    assert rules, "nothing is copied into the framework"
    return rules
