#!/bin/sh
# Builds hosts with the build lines that the documentation gives. Arguments: C compiler, C++ compiler, installation, folder for
# the programs, sources. CFLAGS and CXXFLAGS are used as well.
set -eu
c_compiler=$1 cpp_compiler=$2 installation=$3 programs=$4
shift 4

description=$(find "$installation" -name TRX-SELVASetup.pc)
PKG_CONFIG_PATH=$(dirname "$description")${PKG_CONFIG_PATH:+:$PKG_CONFIG_PATH}
export PKG_CONFIG_PATH

mkdir -p "$programs"
for source in "$@"; do
  name=$(basename "$source") modules=TRX-SELVASetup
  case $name in
    poll-host.c) modules="$modules libudev" ;;
    glib-host.c) modules="$modules libudev glib-2.0" ;;
    qt-host.cpp) modules="$modules libudev Qt6Core" ;;
  esac
  case $name in
    *.c) build="$c_compiler ${CFLAGS-}" ;;
    *.cpp) build="$cpp_compiler ${CXXFLAGS-} -fPIC" ;;
  esac
  # shellcheck disable=SC2046,SC2086
  $build -o "$programs/${name%.*}" "$source" $(pkg-config --cflags --libs $modules)
done
