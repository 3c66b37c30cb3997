"""Six documents of different kinds, what commands make of them, and whether a run that met a fault told the truth."""

import ctypes
import json
import mmap
import os
import pathlib
import shutil
import struct
import subprocess
import sys
import tempfile
import time

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "bench"))
sys.dont_write_bytecode = True
import inputs  # noqa: E402

# As shim.cpp has them.
KINDS = ["any", "any of workers", "open", "read", "write", "copy", "clone", "sync", "rename", "close", "chmod",
         "truncate", "mmap", "malloc", "fork", "pipe", "poll", "mkdir", "unlink", "flock", "stat"]
SHORT, WAIT, ALL_THE_SAME = -1, -2, 1000
ALWAYS = 0xffffffff
PR_SET_CHILD_SUBREAPER = 36

CHANGE = ["--page-mode", "bookmarks", "--open-page", "2"]
EARLIER = b"%PDF-1.4\n% an earlier result\n"
SECONDS = 300  # after which a run hangs; a machine may be busy


class Shim:
    """What the program is to meet, and how many calls it has made."""

    def __init__(self, library, folder):
        self.file = os.path.join(folder, "orders")
        with open(self.file, "wb") as file:
            file.write(bytes(mmap.PAGESIZE))
        with open(self.file, "r+b") as file:
            self.memory = mmap.mmap(file.fileno(), mmap.PAGESIZE)
        self.library = library

    def order(self, kind, first, last, manner):
        self.memory[:] = struct.pack("=IIIi", KINDS.index(kind), first, last, manner).ljust(mmap.PAGESIZE, b"\0")

    def word(self, number):
        return struct.unpack_from("=I", self.memory, 4 * number)[0]

    def waiting(self):
        return self.word(4)

    def release(self):
        struct.pack_into("=I", self.memory, 20, 1)

    def count(self, kind):
        return self.word(7 + KINDS.index(kind))

    def stop_at(self, command, surroundings, kind, number, then):
        """Runs the command; at the call of that number `then` gets the ids of the program and of the process that makes
        the call, which waits for it. Returns the run, and whether it came so far."""
        self.order(kind, number, number, WAIT)
        with tempfile.TemporaryFile() as out, tempfile.TemporaryFile() as err:
            child = subprocess.Popen(command, **surroundings, stdout=out, stderr=err)
            deadline = time.monotonic() + SECONDS
            while not self.waiting() and child.poll() is None and time.monotonic() < deadline:
                time.sleep(0.0005)
            reached = self.waiting() != 0
            if reached:
                then(child.pid, self.waiting())
            self.release()
            status = waited(child, deadline)
            out.seek(0)
            err.seek(0)
            return Run(status, out.read(), err.read()), reached


def waited(child, deadline):
    """The status of the program. Its workers, who are this process's then, are waited for as well."""
    try:
        status = child.wait(max(1, deadline - time.monotonic()))
    except subprocess.TimeoutExpired:
        child.kill()
        status = "hangs"
    try:
        while True:
            os.waitpid(-1, 0)
    except ChildProcessError:
        return status


def adopt_workers():
    """So that workers of programs that were killed are waited for here."""
    ctypes.CDLL(None).prctl(PR_SET_CHILD_SUBREAPER, 1)


def signed(path):
    writer = inputs.Writer(path)
    writer.add(1, b"<< /Type /Catalog /Pages 2 0 R /AcroForm << /SigFlags 3 /Fields [ 5 0 R ] >> >>")
    writer.add(2, b"<< /Type /Pages /Count 2 /Kids [ 3 0 R 4 0 R ] /MediaBox [ 0 0 612 792 ] >>")
    for number in (3, 4):
        writer.add(number, b"<< /Type /Page /Parent 2 0 R >>")
    writer.add(5, b"<< /FT /Sig /T (Signature) /V 6 0 R >>")
    writer.add(6, b"<< /Type /Sig /Filter /Adobe.PPKLite /ByteRange [ 0 10 20 30 ] /Contents <00> >>")
    writer.close()


def build(program, folder):
    """The six documents."""
    os.makedirs(folder)
    path = {name: os.path.join(folder, name + ".pdf")
            for name in ("asked", "damaged", "encrypted", "plain", "signed", "streams")}
    inputs.document(path["plain"], 2, 3000, 1)
    inputs.document(path["damaged"], 2, 1_100_000, 2)  # so large that it is cloned where that can be
    inputs.in_object_streams(path["damaged"], path["streams"], "--static-id")
    inputs.document(path["damaged"], 2, 200_000, 3)
    subprocess.run(["qpdf", "--encrypt", "", "owner", "256", "--", path["plain"], path["encrypted"]], check=True)
    signed(path["signed"])
    data = pathlib.Path(path["damaged"]).read_bytes()
    pathlib.Path(path["damaged"]).write_bytes(data.replace(b"startxref\n", b"startxref\n7"))
    subprocess.run([program, "run", *CHANGE, "-q", "-o", path["asked"], path["plain"]], check=True)
    return {name + ".pdf": pathlib.Path(file).read_bytes() for name, file in path.items()}


def contents(folder):
    """The files below it by their paths, except report, settings and the like."""
    found = {}
    for place, _, names in os.walk(folder):
        for name in names:
            path = os.path.join(place, name)
            found[os.path.relpath(path, folder)] = pathlib.Path(path).read_bytes()
    return found


def times(folder):
    """When the files were changed, which reports go by."""
    return {name: os.stat(os.path.join(folder, name)).st_mtime_ns for name in contents(folder)}


def write(folder, files, changed=None):
    shutil.rmtree(folder, ignore_errors=True)
    for name, data in files.items():
        path = os.path.join(folder, name)
        os.makedirs(os.path.dirname(path), exist_ok=True)
        with open(path, "wb") as file:
            file.write(data)
        if changed:
            os.utime(path, ns=(changed[name], changed[name]))


def json_lines(data):
    for line in data.splitlines():
        try:
            yield json.loads(line)
        except ValueError:
            pass  # cut off, by the fault


class Scenario:
    """A command over the documents. `start` are the files before, with `times` when they were changed; `results`
    those that it changes, each with what it is before (None for nothing) and what it may become. The `spared` are
    neither documents nor results."""

    def __init__(self, name, words, start, times):
        self.name, self.words, self.start, self.times = name, words, start, times
        self.spared = ("report",)
        self.results = {}

    def learn(self, end):
        """What a run without faults has left."""
        self.results = {name: (self.start.get(name), [data]) for name, data in end.items()
                        if name not in self.spared and (data != self.start.get(name) or self.is_result(name))}

    def allow(self, other):
        """What another way of saving makes of the documents is right, too."""
        for name, (_, wanted) in other.results.items():
            self.results[name][1].extend(wanted)

    def is_result(self, name):
        return name.startswith("out/") if "-o" in self.words else name.startswith("in/")

    def told(self, run, folder):
        """What the run said became of each result: its words, and why it failed. `told_all` is whether it said that
        that is all."""
        told = {}
        self.told_all = self.words[0] == "configure"
        if self.words[0] == "undo":
            names = {}
            for event in json_lines(run.stdout):
                self.told_all = event["event"] == "end"
                if event["event"] == "found":
                    names[event["number"]] = event["file"]
                elif event["event"] == "result":
                    told[os.path.relpath(names.get(event["number"], "?"), folder)] = (event["status"], event["reason"])
        elif "--report" in self.words and os.path.exists(os.path.join(folder, "report")):
            for line in json_lines(pathlib.Path(folder, "report").read_bytes()):
                self.told_all = line.get("event") == "end"
                if "file" in line and line["status"] != "begun":
                    name = os.path.join("out", os.path.basename(line["file"])) if "-o" in self.words else line["file"]
                    told[name] = (line["status"], line["reason"])
        return told


class Run:
    """A run that has ended."""

    def __init__(self, status, stdout, stderr):
        self.status, self.stdout, self.stderr = status, stdout, stderr


def surroundings(folder, further):
    own = {"PATH": os.environ["PATH"], "HOME": folder + "-home", "LC_ALL": "C.UTF-8", "QT_QPA_PLATFORM": "offscreen"}
    return {"cwd": folder, "env": {**own, **(further or {})}, "stdin": subprocess.DEVNULL}


def call(command, folder, environment=None):
    try:
        done = subprocess.run(command, **surroundings(folder, environment), capture_output=True, timeout=SECONDS,
                              check=False)
    except subprocess.TimeoutExpired as hanging:
        return Run("hangs", hanging.stdout or b"", hanging.stderr or b"")
    return Run(done.returncode, done.stdout, done.stderr)


DONE = ("changed", "unchanged", "undone", "undone already")


def about_result(now, old, wanted, told, killed):
    """What is wrong with a result, by its bytes and what was told of it."""
    status, reason = told or (None, None)
    is_begin = None not in (old, now) and now.startswith(old) and any(new.startswith(now) for new in wanted)
    if now != old and now not in wanted and not (is_begin and (killed or "behind its end" in (reason or ""))):
        return "is torn"
    if status in DONE and now not in wanted and not (status == "unchanged" and now == old):
        return f"is called {status} and is not"
    if status is not None and status not in DONE and now in wanted and old not in wanted:
        return f"is called {status} and is done"
    return None


def judge(scenario, run, folder, killed=False):
    """What is wrong after a run, in words."""
    wrong = []
    found = contents(folder)
    told = scenario.told(run, folder)
    for name, (old, wanted) in scenario.results.items():
        problem = about_result(found.get(name), old, wanted, told.get(name), killed)
        wrong += [f"{name} {problem}"] if problem else []
    wrong += [f"{name} was touched" for name, data in scenario.start.items()
              if name not in scenario.results and name not in scenario.spared and found.get(name) != data]
    if not killed:
        problem = about_status(scenario, run, found, told)
        wrong += [problem] if problem else []
    return wrong


def about_status(scenario, run, found, told):
    """What is wrong with the exit status."""
    done = [name for name, (_, wanted) in scenario.results.items() if found.get(name) in wanted]
    if run.status == 0 and len(done) < len(scenario.results):
        return "status 0, and not all is done"
    is_all_well = scenario.told_all and all(status in DONE for status, _ in told.values())
    is_explained = b"out of memory" in run.stderr or b"is incomplete" in run.stderr  # as a report may be
    if run.status == 1 and is_all_well and len(done) == len(scenario.results) and not is_explained:
        return "status 1, and all is done"
    if run.status == 2 and any(found.get(name) != old for name, (old, _) in scenario.results.items()):
        return "status 2, and something was begun"
    if run.status not in (0, 1, 2):
        return f"status {run.status}"
    return None
