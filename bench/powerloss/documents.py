"""Documents for the trial, and what readers make of what is left of them."""

import functools
import os
import re
import subprocess
import sys
import tempfile

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), ".."))
import inputs  # noqa: E402

BLOCK = 4096
# How many bytes the documents end behind a block's boundary: the update then lies in one block, or in two, with its
# last lines in the one or the other.
ENDS = (0, 1, 300, 3300, 3600, 3840, 3900, 4000, 4060, 4095)


def make(path, number, size):
    """A document with a table, or with object streams. Returns the path."""
    inputs.document(path, 2, size, number)
    if number % 2:
        inputs.in_object_streams(path, path + ".new", "--static-id", "--compress-streams=n")
        os.replace(path + ".new", path)
    return path


def build(folder):
    """Documents that end where they should. Returns their names."""
    os.makedirs(folder)
    for number, end in enumerate(ENDS):
        path = os.path.join(folder, f"document{number}.pdf")
        size = 6000 + 5000 * (number % 3)
        while os.path.getsize(make(path, number, size)) % BLOCK != end:
            missing = (end - os.path.getsize(path)) % BLOCK
            size += missing if missing < BLOCK // 2 or size < BLOCK else missing - BLOCK
    return sorted(os.listdir(folder))


def complaints(text):
    return len(re.findall(r"^\s*(?:warning|error)", text, re.MULTILINE | re.IGNORECASE)) + text.count("WARNING")


def told(*command):
    done = subprocess.run(command, capture_output=True, text=True, errors="replace", check=False)
    return done.stdout, complaints(done.stderr)


@functools.cache
def view(data):
    """How qpdf and mutool open a document, and how often each complains."""
    with tempfile.NamedTemporaryFile(suffix=".pdf") as file:
        file.write(data)
        file.flush()
        trailer, _ = told("qpdf", "--show-object=trailer", file.name)
        root = re.search(r"/Root (\d+)", trailer)
        catalog, _ = told("qpdf", f"--show-object={root[1]}", file.name) if root else ("", 0)
        _, by_qpdf = told("qpdf", "--check", file.name)
        by_mutool, complained = told("mutool", "show", "-g", file.name, "trailer/Root")
        return catalog, by_qpdf, by_mutool, complained


def judge(data, old, new):
    """What a document is that was `old` and should become `new`: "old", "new", "old and a begin of the update", or None
    for anything else."""
    if data == old or data == new:
        return "old" if data == old else "new"
    if data is None or not data.startswith(old) or len(data) > len(new):
        return None
    before, now = view(old), view(data)
    sees_old = (now[0], now[2]) == (before[0], before[2]) and now[1] <= before[1] and now[3] <= before[3]
    return "old and a begin of the update" if sees_old else None
