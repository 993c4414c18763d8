"""The machine's files, as an archive that the kernel unpacks into its memory: in the format newc of cpio."""

import stat
import tarfile

END = "TRAILER!!!"


class Archive:
    """Written piece by piece; a file that comes later replaces one of the same name."""

    def __init__(self, file):
        self._file = file
        self._number = 0

    def _put(self, name, mode, owner, contents):
        self._number += 1
        encoded = name.encode() + b"\0"
        fields = [self._number, mode, *owner, 1, 0, len(contents), 0, 0, 0, 0, len(encoded), 0]
        self._file.write(b"070701" + b"".join(b"%08x" % field for field in fields) + encoded)
        self._pad()
        self._file.write(contents)
        self._pad()

    def _pad(self):
        self._file.write(b"\0" * (-self._file.tell() % 4))

    def put_folder(self, name):
        self._put(name, stat.S_IFDIR | 0o755, (0, 0), b"")

    def put_file(self, name, contents, mode=0o644):
        """A file, with the folders above it."""
        parts = name.split("/")
        for end in range(1, len(parts)):
            self.put_folder("/".join(parts[:end]))
        self._put(name, stat.S_IFREG | mode, (0, 0), contents)

    def put_link(self, name, target):
        self.put_folder(name.rpartition("/")[0])
        self._put(name, stat.S_IFLNK | 0o777, (0, 0), target.encode())

    def put_tar(self, path):
        """All of a tar archive but device nodes, with its owners and rights."""
        with tarfile.open(path) as source:
            for member in source:
                name = member.name.removeprefix("./")
                if member.isdir():
                    self._put(name, stat.S_IFDIR | member.mode, (member.uid, member.gid), b"")
                elif member.issym():
                    self._put(name, stat.S_IFLNK | 0o777, (member.uid, member.gid), member.linkname.encode())
                elif member.isfile() or member.islnk():
                    # A further name of a file gets a copy of it.
                    contents = source.extractfile(member).read()
                    self._put(name, stat.S_IFREG | member.mode, (member.uid, member.gid), contents)

    def end(self):
        self._put(END, 0, (0, 0), b"")
