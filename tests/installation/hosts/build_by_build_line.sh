#!/bin/sh
# Builds the hosts with the line that is told to host writers. Arguments: compiler, installation, folder for the programs,
# sources. CFLAGS are used as well.
set -eu
compiler=$1 installation=$2 programs=$3
shift 3

description=$(find "$installation" -name TRX-SELVASetup.pc)
PKG_CONFIG_PATH=$(dirname "$description")${PKG_CONFIG_PATH:+:$PKG_CONFIG_PATH}
export PKG_CONFIG_PATH

mkdir -p "$programs"
for source in "$@"; do
  others=
  if grep -q glib "$source"; then others=$(pkg-config --cflags --libs glib-2.0); fi
  # shellcheck disable=SC2046,SC2086
  "$compiler" ${CFLAGS-} -o "$programs/$(basename "$source" .c)" "$source" \
    $(pkg-config --cflags --libs TRX-SELVASetup) $others
done
