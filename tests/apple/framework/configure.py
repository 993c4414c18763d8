"""Makes the build files of a Mac, with all that the preset says, and the part of the framework that is copied."""

import os
import pathlib
import shutil

import mac_build

shutil.rmtree(mac_build.BUILD, ignore_errors=True)
# What launches the compilers of this build has no part in that one.
for variable in ("CMAKE_C_COMPILER_LAUNCHER", "CMAKE_CXX_COMPILER_LAUNCHER",
                 "CMAKE_OBJCXX_COMPILER_LAUNCHER"):
    os.environ.pop(variable, None)
macos = mac_build.preset("macos")
definitions = [f"-D{name}={value}" for name, value in macos["cacheVariables"].items()]
toolchain = pathlib.Path(__file__).with_name("pretended-mac.cmake")
mac_build.run(os.environ["CMAKE"], "-S", mac_build.SOURCE, "-B", mac_build.BUILD,
              "-G", macos["generator"], f"-DCMAKE_TOOLCHAIN_FILE={toolchain}", *definitions)
mac_build.run("ninja", "-C", mac_build.BUILD, *mac_build.contents())
