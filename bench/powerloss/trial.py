"""Cuts the power of a disk while `quintar run --in-place` changes documents on it: mounts what can be on it then, for
every prefix of what was written and every reordering that the flushes allow, and looks at every document. A document has
to be what it was or what it should become; what it was, with a begin of the update behind it, has to open as before with
no more warnings; one of which the program said "changed" has to be what it should become. Nothing else may differ. Blocks
of 4,096 bytes come and go as a whole, those with parts of documents also by sectors of 512 bytes. Between two flushes
with up to seven blocks every subset is tried, of more of them --most, by --seed, and half as many torn by sectors.

Status 1 when a state is wrong."""

import argparse
import collections
import os
import shutil
import subprocess
import sys
import time

import documents
import journal

SECTOR = journal.SECTOR
# Size of the disk, how it is made, and how it is mounted.
FILE_SYSTEMS = {
    "ext4": ("64M", ["mkfs.ext4", "-q", "-b", "4096"], "rw"),
    "ext4, data=writeback": ("64M", ["mkfs.ext4", "-q", "-b", "4096"], "data=writeback"),
    "ext4, data=journal": ("64M", ["mkfs.ext4", "-q", "-b", "4096"], "data=journal"),
    "xfs": ("320M", ["mkfs.xfs", "-q"], "rw"),
    "btrfs": ("128M", ["mkfs.btrfs", "-q"], "rw"),
}
WAYS = {"in place": [], "replaced": ["--replace"]}
CHANGE = ["--page-mode", "bookmarks", "--open-page", "2"]


class Failed(Exception):
    pass


def call(*command):
    done = subprocess.run(command, capture_output=True, text=True, check=False)
    if done.returncode != 0:
        raise Failed(f"{' '.join(command)}: {done.stderr.strip()}")
    return done.stdout


class Mounted:
    """A disk that is mounted for a while."""

    def __init__(self, disk, place, options):
        self.disk, self.place, self.options = disk, place, options

    def __enter__(self):
        call("mount", "-o", f"loop,{self.options}", self.disk, self.place)
        return self.place

    def __exit__(self, *_):
        for _ in range(50):
            if subprocess.run(["umount", self.place], capture_output=True, check=False).returncode == 0:
                return
            time.sleep(0.1)
        raise Failed(f"{self.place} stays mounted")


class RecordingDisk:
    def __init__(self, program, image, log, folder):
        os.makedirs(folder, exist_ok=True)
        self.folder, self.disk = folder, os.path.join(folder, "disk")
        self.process = subprocess.Popen([program, image, log, folder])
        while not os.path.exists(self.disk):
            if self.process.poll() is not None:
                raise Failed("the recording disk cannot be served")
            time.sleep(0.05)

    def mark(self, text):
        with open(os.path.join(self.folder, "mark"), "w", encoding="utf-8") as file:
            file.write(text)

    def end(self):
        call("fusermount3", "-u", self.folder)
        self.process.wait()


def contents(folder):
    """All files but those that a killed run leaves, and how many these are."""
    found, left = {}, 0
    for place, folders, files in os.walk(folder):
        folders[:] = [name for name in folders if name != "lost+found"]
        for name in files:
            if name.startswith(".quintar-"):
                left += 1
                continue
            with open(os.path.join(place, name), "rb") as file:
                found[os.path.relpath(os.path.join(place, name), folder)] = file.read()
    return found, left


class Trial:
    def __init__(self, arguments, work):
        self.arguments, self.work = arguments, work
        self.sources = os.path.join(work, "documents")
        self.names = documents.build(self.sources)
        self.mount_point = os.path.join(work, "mounted")
        os.makedirs(self.mount_point)

    def path(self, name):
        return os.path.join(self.work, name)

    def run(self, kind, way):
        """One file system, and one way of saving. Returns whether all is well."""
        size, make, options = FILE_SYSTEMS[kind]
        for name in ("base", "log"):
            if os.path.exists(self.path(name)):
                os.remove(self.path(name))
        call("truncate", "-s", size, self.path("base"))
        call(*make, self.path("base"))
        with Mounted(self.path("base"), self.mount_point, options) as folder:
            for name in self.names:
                shutil.copyfile(os.path.join(self.sources, name), os.path.join(folder, name))
            with open(os.path.join(folder, "bystander"), "wb") as file:
                file.write(b"nobody changes this" * 1000)
        begin = time.monotonic()
        before, after = self.record(options, WAYS[way])
        return self.replay(kind, way, options, before, after, begin)

    def record(self, options, words):
        """Changes the documents one after the other. Returns all files before and after."""
        disk = RecordingDisk(self.arguments.disk, self.path("base"), self.path("log"), self.path("fuse"))
        with Mounted(disk.disk, self.mount_point, options) as folder:
            before, _ = contents(folder)
            for name in self.names:
                told = call(self.arguments.program, "run", "--in-place", *words, *CHANGE, os.path.join(folder, name))
                if not told.startswith("changed"):
                    raise Failed(told)
                if not words and not told.startswith("changed (appended in place)"):
                    raise Failed(f"{name} is not changed in place: {told}")
                disk.mark(name)
            after, _ = contents(folder)
        disk.end()
        return before, after

    def replay(self, kind, way, options, before, after, begin):
        data = {content[at:at + SECTOR].ljust(SECTOR, b"\0") for file in (before, after) for content in file.values()
                for at in range(0, len(content), SECTOR)}
        sound, states, count = True, 0, collections.Counter()
        with open(self.path("base"), "rb") as base:
            for blocks, what, marks in journal.crashes(self.path("log"), base,
                                                       lambda write: any(each.data in data for each in write.sectors()),
                                                       self.arguments):
                if blocks is None:
                    break
                states += 1
                wrong = self.look(blocks, options, before, after, marks, count)
                if wrong:
                    print(f"{kind}, {way}: {what}: {wrong}", flush=True)
                    sound = False
        print(f"{kind}, {way}: {states} states, {what}, {time.monotonic() - begin:.0f} s")
        for verdict, number in sorted(count.items()):
            print(f"    {verdict}: {number}", flush=True)
        return sound

    def look(self, blocks, options, before, after, marks, count):
        """Mounts a state and judges it. Returns what is wrong."""
        call("cp", "--sparse=always", self.path("base"), self.path("state"))
        with open(self.path("state"), "r+b") as state:
            for number, block in blocks.items():
                state.seek(number * journal.BLOCK)
                state.write(block)
        try:
            with Mounted(self.path("state"), self.mount_point, options) as folder:
                found, left = contents(folder)
        except (Failed, OSError) as problem:
            count["states that cannot be mounted or read"] += 1
            return str(problem)
        if left:
            count["states with an unfinished copy left"] += 1
        if found.keys() != before.keys():
            return f"files are {sorted(found)}"
        for name, content in found.items():
            verdict = documents.judge(content, before[name], after[name])
            if verdict is None or (name in marks and verdict != "new"):
                return f"{name} is {verdict or 'neither old nor new'}, {len(content)} bytes of {len(before[name])}, " \
                       f"{len(after[name])}; told as changed: {name in marks}"
            if name in self.names:
                count["documents: " + verdict] += 1
        return None


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--program", required=True, help="quintar")
    parser.add_argument("--disk", required=True, help="the recording disk's program")
    parser.add_argument("--most", type=int, default=60, help="states between two flushes where there are many")
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--heed", type=int, default=1, metavar="N",
                        help="the disk heeds every N-th flush only: shows that the trial finds what goes wrong then")
    parser.add_argument("--file-systems", nargs="*", choices=list(FILE_SYSTEMS), default=list(FILE_SYSTEMS))
    parser.add_argument("--ways", nargs="*", choices=list(WAYS), default=list(WAYS))
    parser.add_argument("--work", required=True, help="an empty folder, in memory")
    arguments = parser.parse_args()
    trial = Trial(arguments, arguments.work)
    sound = True
    for kind in arguments.file_systems:
        for way in arguments.ways:
            try:
                sound = trial.run(kind, way) and sound
            except Failed as problem:
                print(f"{kind}, {way}: not tried: {problem}", flush=True)
                sound = False
    return 0 if sound else 1


if __name__ == "__main__":
    sys.exit(main())
