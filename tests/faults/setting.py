"""What troubles.py works with: the six documents in a folder, runs over them, and file systems that are there for a
while."""

import collections
import ctypes
import os
import pathlib
import subprocess

import batch
from batch import CHANGE

CLONE_NEWNS, MS_REC, MS_PRIVATE = 0x20000, 0x4000, 1 << 18
MOMENTS = 24  # of a run, at which something else happens


class Untried(Exception):
    """Why something cannot be tried here."""


def system(*command):
    try:
        subprocess.run(command, capture_output=True, text=True, check=True)
    except OSError as problem:
        raise Untried(str(problem)) from problem
    except subprocess.CalledProcessError as problem:
        raise Untried(f"{' '.join(command)}: {problem.stderr.strip()}") from problem


class Setting:
    """A folder with the six documents in "in", and what a run makes of each."""

    def __init__(self, arguments, work):
        self.program, self.person, self.work = arguments.program, arguments.person, os.path.join(work, "work")
        self.shim = batch.Shim(arguments.shim, work)
        self.documents = batch.build(self.program, os.path.join(work, "documents"))
        self.set_up()
        self.run("-o", "out", "in")
        self.run("--in-place", "in")
        self.wanted = {name: [pathlib.Path(self.work, folder, name).read_bytes() for folder in ("out", "in")]
                       for name in self.documents}
        self.tried, self.wrong, self.name = collections.Counter(), 0, ""

    def set_up(self, folder="in"):
        batch.write(self.work, {f"{folder}/{name}": data for name, data in self.documents.items()})

    def put(self, folder):
        """The documents, elsewhere as well."""
        os.makedirs(folder, exist_ok=True)
        for name, data in self.documents.items():
            pathlib.Path(folder, name).write_bytes(data)

    def words(self, *words, report="report"):
        return ["run", *CHANGE, "--jobs", "2", "--signed", "append", "--report", report, *words]

    def run(self, *words, before=()):
        return batch.call([*before, self.program, *self.words(*words)], self.work)

    def run_with(self, number, then, *words):
        """A run at whose call of this number `then` happens."""
        variables = {"LD_PRELOAD": self.shim.library, "FAULTS_ORDERS": self.shim.file}
        surroundings = batch.surroundings(self.work, variables)
        return self.shim.stop_at([self.program, *self.words(*words)], surroundings, "any", number, lambda *_: then())

    def moments(self, *words):
        """Numbers of calls, spread over such a run."""
        self.run_with(batch.ALWAYS, lambda: None, *words)
        calls = self.shim.count("any")
        return range(1, calls, max(1, calls // MOMENTS))

    def judge(self, what, run, words):
        """Judges a run over all documents, by its report."""
        scenario = batch.Scenario(what, self.words(*words), {}, None)
        in_place = "--in-place" in words
        scenario.results = {("in/" if in_place else "out/") + name: (self.documents[name] if in_place else None, wanted)
                            for name, wanted in self.wanted.items()}
        self.tell(what, run, batch.judge(scenario, run, self.work))

    def tell(self, what, run, problems):
        self.tried[self.name] += 1
        if problems:
            self.wrong += 1
            print(f"{self.name}: {what}: {'; '.join(problems)}\n"
                  f"    {run.status} {run.stderr.decode(errors='replace')[-1500:]!r}", flush=True)

    def expect(self, what, run, status, words=""):
        problems = [] if run.status == status else [f"status {run.status}, not {status}"]
        problems += [] if words.encode() in run.stderr else [f"not told: {words}"]
        self.tell(what, run, problems)


class Mounted:
    """A file system in a folder, for a while."""

    def __init__(self, folder):
        self.folder = folder

    def __enter__(self):
        return self.folder

    def __exit__(self, *_):
        subprocess.run(["umount", "--lazy", self.folder], capture_output=True, check=False)


def mounted(folder, *words):
    os.makedirs(folder, exist_ok=True)
    system("mount", *words, folder)
    return Mounted(folder)


def in_memory(folder, options):
    return mounted(folder, "-t", "tmpfs", "-o", options, "none")


def folding_disk(kind, make, work):
    if make is None:
        os.mkdir(f"{work}-files")
        os.mkdir(f"{work}/out")
        system(os.path.join(os.path.dirname(__file__), "folding.py"), f"{work}-files", f"{work}/out")
        return Mounted(f"{work}/out")
    system("truncate", "-s", "320M", f"{work}-disk")
    system(*make, f"{work}-disk")
    disk = mounted(f"{work}/out", "-o", "loop", f"{work}-disk")
    if kind == "ext4":
        os.rmdir(f"{work}/out/lost+found")  # such a folder has to be empty
        system("chattr", "+F", f"{work}/out")
    return disk


def own_mounts():
    """What is mounted from here on is seen by nobody else, and goes with this process."""
    calls = ctypes.CDLL(None)
    if calls.unshare(CLONE_NEWNS) != 0 or calls.mount(b"none", b"/", None, MS_REC | MS_PRIVATE, None) != 0:
        print("nothing can be mounted here")
