"""Fresh Debian roots in which packages are installed, tried and removed.

A root is made once by mmdebstrap, from where this machine's apt has its packages, and kept as an archive in
$XDG_CACHE_HOME/trx-selva, with the packages that were downloaded into it. After a week it is made anew, if that can be done. Each
test lays one out anew and throws it away.

debian_root.py NAME...   makes the archives of these roots, if they are not there yet
"""

import hashlib
import os
import pathlib
import pwd
import shutil
import stat
import subprocess
import sys
import tempfile
import time
import typing

RELEASE = "bookworm"
SUITES = [RELEASE, f"{RELEASE}-updates", f"{RELEASE}-security"]


class Recipe(typing.NamedTuple):
    """How a root is made."""
    # Besides those of every Debian.
    packages: typing.Sequence[str] = ()
    # Further options of mmdebstrap.
    options: typing.Sequence[str] = ()


# A machine has all of its root in memory, so it does without what no case reads.
UNREAD = ["/usr/share/doc/*", "/usr/share/man/*", "/usr/share/locale/*", "/usr/share/info/*", "/usr/share/lintian/*",
          "/usr/share/i18n/*", "/usr/share/zoneinfo/*", "/usr/lib/*/dri/*", "/usr/lib/*/libLLVM*"]
ROOTS = {
    "minimal": Recipe(),
    "desk": Recipe(["gcc", "g++", "cmake", "make", "pkg-config", "dbus-daemon", "bash-completion", "man-db", "udev"]),
    # With all that the project's packages depend on: the machine has no network.
    "machine": Recipe(
        ["systemd-sysv", "udev", "dbus", "libpam-systemd", "dbus-user-session", "acl", "kmod", "passwd",
         "libplist3", "umockdev", "libumockdev0", "xvfb", "x11-utils", "libqt6widgets6", "qt6-qpa-plugins"],
        [*[f"--dpkgopt=path-exclude={path}" for path in UNREAD],
         "--customize-hook=for user in dj eva remote; do chroot \"$1\" useradd --create-home --shell /bin/bash $user; done"]),
}
KEPT_FOR = 7 * 24 * 3600  # seconds
CACHE = pathlib.Path(os.environ.get("XDG_CACHE_HOME") or pathlib.Path.home() / ".cache") / "trx-selva"
DOWNLOADED = CACHE / "downloaded-packages"

# The records of dpkg, apt and the dynamic linker.
RECORDS = ["var/lib/dpkg", "var/lib/apt", "var/cache/apt", "var/cache/ldconfig", "var/cache/debconf",
           "etc/ld.so.cache", "var/log"]
# Only the command sees the mounts, and they end with it, however it ends. Nothing else sees them, especially not the
# removal of the root.
ENTER = """set -e
root=$1; downloaded=$2; shift 2
mount --rbind /dev "$root/dev"
mount --rbind /sys "$root/sys"
mount -t proc proc "$root/proc"
mount --bind "$downloaded" "$root/var/cache/apt/archives"
exec chroot "$@"
"""


def sources():
    """The source lines with which this machine's apt gets the packages of the release."""
    lines = subprocess.run(
        ["apt-get", "indextargets", "--format", "$(CODENAME) deb $(REPO_URI) $(RELEASE) $(COMPONENT)",
         "Created-By: Packages", "Component: main"],
        check=True, capture_output=True, text=True).stdout
    return sources_of_release(lines.splitlines())


def sources_of_release(lines):
    """Those lines, each after its codename, that are of the release, whatever name apt's own lists give it ("oldstable")."""
    found = {}
    for line in lines:
        codename, source = line.split(maxsplit=1)
        if codename in SUITES:
            found.setdefault(codename, set()).add(source)
    if RELEASE not in found:
        sys.exit(f"This machine's apt has no source of Debian's {RELEASE}, which the packages are tried on.")
    return sorted(set().union(*found.values()))


def archive(name):
    contents = hashlib.sha256(" ".join([RELEASE, *ROOTS[name].packages, *ROOTS[name].options]).encode()).hexdigest()[:12]
    return CACHE / f"{RELEASE}-{name}-{contents}.tar"


def make(name):
    """Makes the archive of a root, unless there is a recent one. An old one is better than none."""
    made = archive(name)
    if made.exists() and time.time() - made.stat().st_mtime < KEPT_FOR:
        return
    (DOWNLOADED / "partial").mkdir(parents=True, exist_ok=True)
    try:
        bootstrap(name, made)
    except subprocess.CalledProcessError as failure:
        if not made.exists():
            raise
        print(f"{made} is older than {KEPT_FOR // 86400} days and stays in use: making a new one failed ({failure})")


def bootstrap(name, made):
    # No reader sees an incomplete archive, and two that are made at the same time are the same.
    with tempfile.TemporaryDirectory(dir=CACHE) as folder:
        new = pathlib.Path(folder, made.name)
        recipe = ROOTS[name]
        packages = [f"--include={','.join(recipe.packages)}"] if recipe.packages else []
        # With apt's lists, so that installing into the root needs no update.
        subprocess.run(["mmdebstrap", "--quiet", "--variant=minbase", "--skip=cleanup/apt/lists",
                        "--dpkgopt=force-unsafe-io", *recipe.options, *packages,
                        RELEASE, new, *sources()], check=True)
        new.rename(made)


def clear():
    """Removes what will not be used again: archives with other contents, and packages not downloaded recently."""
    wanted = [archive(name) for name in ROOTS]
    for name in ROOTS:
        for other in CACHE.glob(f"*-{name}-*.tar"):
            if other not in wanted:
                other.unlink(missing_ok=True)
    # A package that a kept root still needs may be the only copy available.
    oldest = min((made.stat().st_mtime for made in wanted if made.exists()), default=time.time())
    for package in DOWNLOADED.glob("*.deb"):
        if package.stat().st_ctime < min(oldest, time.time() - KEPT_FOR):
            package.unlink(missing_ok=True)


def tell_of_missing_ids():
    """Explains the problem when this user's namespace would have only one user in it."""
    user = pwd.getpwuid(os.getuid()).pw_name
    owners = (user, str(os.getuid()))
    for file in map(pathlib.Path, ("/etc/subuid", "/etc/subgid")):
        lines = file.read_text().splitlines() if file.exists() else []
        if not any(line.split(":")[0] in owners for line in lines):
            sys.exit(f"{file} has no entry for {user}, which a Debian below a user without privileges takes. Hint: run this as "
                     f"root, or once `sudo usermod --add-subuids 100000-165535 --add-subgids 100000-165535 {user}`")


def become_root():
    """Runs this program again as root of a new user namespace, unless it is root already."""
    if os.getuid() != 0:
        tell_of_missing_ids()
        os.execvp("unshare", ["unshare", "--map-root-user", "--map-auto", sys.executable, "-B", *sys.argv])


class DebianRoot:
    """A separate Debian, below a temporary folder."""

    def __init__(self, name):
        self._folder = tempfile.TemporaryDirectory()
        self.path = pathlib.Path(self._folder.name)
        subprocess.run(["tar", "--extract", "--file", archive(name), "--directory", self.path,
                        "--numeric-owner", "--exclude=./dev/*"], check=True)
        shutil.copy("/etc/resolv.conf", self.path / "etc/resolv.conf")

    def remove(self):
        self._folder.cleanup()

    def run(self, *command, user=None, check=True):
        """Runs a command in the root. Its output and errors are kept together."""
        as_user = [f"--userspec={user}"] if user else []
        done = subprocess.run(
            ["unshare", "--mount", "--pid", "--fork", "--kill-child", "--",
             "sh", "-c", ENTER, "enter", self.path, DOWNLOADED, *as_user, self.path, *command],
            env={"PATH": "/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin", "HOME": "/tmp/home",
                 "LC_ALL": "C.UTF-8", "DEBIAN_FRONTEND": "noninteractive"},
            stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)
        if check and done.returncode != 0:
            raise AssertionError(f"{' '.join(command)}: exit code {done.returncode}\n{done.stdout}")
        return done

    def install(self, packages):
        """Installs package files as a user would, with what they depend on."""
        for package in packages:
            shutil.copy(package, self.path / "tmp")
        files = [f"/tmp/{package.name}" for package in packages]
        self.run("apt-get", "install", "--yes", "--no-install-recommends", *files)
        for file in files:
            (self.path / file[1:]).unlink()

    def contents(self):
        """Every file, with its kind, rights and contents, except RECORDS."""
        found = {}
        for folder, folders, files in os.walk(self.path):
            inside = pathlib.Path(folder).relative_to(self.path)
            folders[:] = [name for name in folders if str(inside / name) not in RECORDS]
            for name in [*folders, *files]:
                if str(inside / name) not in RECORDS:
                    found[str(inside / name)] = self._looks(inside / name)
        return found

    def _looks(self, name):
        path = self.path / name
        about = path.lstat()
        if stat.S_ISLNK(about.st_mode):
            text = os.readlink(path)
        elif stat.S_ISREG(about.st_mode):
            with path.open("rb") as file:
                text = hashlib.file_digest(file, "sha256").hexdigest()
        else:
            text = ""
        return stat.filemode(about.st_mode), about.st_uid, about.st_gid, text


if __name__ == "__main__":
    if os.getuid() != 0:
        tell_of_missing_ids()
    for root in sys.argv[1:]:
        make(root)
    clear()
