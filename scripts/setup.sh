# shellcheck shell=bash disable=SC2034
# Shared by the other scripts: the Debian packages that the project needs, their installation, and the build.

build_packages=(
  cmake g++ ninja-build pkg-config
  libplist-dev libsystemd-dev
  libcli11-dev nlohmann-json3-dev
  libumockdev-dev umockdev libglib2.0-dev
  dbus-daemon
)

bench_packages=(
  libbenchmark-dev libusb-1.0-0-dev python3 python3-usb strace valgrind gnuplot-nox
)

# For the setup application, which is left out where Qt is missing.
setup_packages=(
  qt6-base-dev qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools
)

test_packages=(
  "${bench_packages[@]}"
  "${setup_packages[@]}"
  ccache
  libgtest-dev libgmock-dev
  clang libclang-rt-dev dbus-bin doxygen locales binutils util-linux procps
  libglib2.0-bin mandoc zsh fish libgnustep-base-dev gnustep-base-runtime gobjc
  e2fsprogs mount libudev-dev qemu-system-x86
  busybox-static cpio zstd lz4 abigail-tools mmdebstrap debian-archive-keyring uidmap lintian
  kmod
  xvfb at-spi2-core python3-gi gir1.2-atspi-2.0 fonts-inter fonts-noto-cjk
)

package_packages=(
  "${setup_packages[@]}"
  dpkg-dev fakeroot file binutils gzip doxygen
)

lint_packages=(
  clang-format clang-tidy cppcheck shellcheck appstream desktop-file-utils
)

# Installs the missing ones of the named packages. When none is missing, it needs no network and no rights.
install_missing() {
  local missing=() package
  for package in "$@"; do
    [ "$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null)" = installed ] || missing+=("$package")
  done
  [ ${#missing[@]} -eq 0 ] && return
  local as_root=()
  if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || {
      echo "These packages are missing, and installing them needs root or sudo: ${missing[*]}" >&2
      return 1
    }
    as_root=(sudo)
  fi
  echo "Installing ${missing[*]}"
  "${as_root[@]}" apt-get update -qq
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
    apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}

# Uses ccache if it is installed. Without the second line it does not cache what uses precompiled headers.
if command -v ccache >/dev/null; then
  export CMAKE_C_COMPILER_LAUNCHER=ccache CMAKE_CXX_COMPILER_LAUNCHER=ccache CMAKE_OBJCXX_COMPILER_LAUNCHER=ccache
  export CCACHE_SLOPPINESS=${CCACHE_SLOPPINESS-pch_defines,time_macros}
fi

# Configures a preset, with or without the tests and the setup application (ON or OFF), and builds it.
build_preset() {
  cmake --preset "$1" -DBUILD_TESTING="$2" -DTRX_BUILD_SETUP="${3-ON}" --log-level=WARNING >/dev/null
  cmake --build --preset "$1"
}

# Runs a command on software mixers with the programs of the release build; the first argument is the number of mixers. Session bus,
# settings and runtime folder are temporary.
on_software_mixers() (
  units=$1
  shift
  stage=$(mktemp -d)
  trap 'rm -rf "$stage"' EXIT

  # The bus's own messages, for example that it may not raise its descriptor limit, are shown only after a failure.
  # shellcheck disable=SC2016
  env XDG_CONFIG_HOME="$stage/settings" XDG_RUNTIME_DIR="$stage" \
    PATH="$PWD/build/release/bin:$PATH" TRX_SYSTEM_ROOT="$PWD/build/release/share/orvikaudio" \
    dbus-run-session -- bash -c 'exec "$@" 2>&3 3>&-' session \
    trx-mixer-sim --units "$units" -- "$@" 3>&2 2>"$stage/bus" || {
    status=$?
    cat "$stage/bus" >&2
    exit "$status"
  }
)
