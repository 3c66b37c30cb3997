"""Changes in place of documents with few and many pages, flushed. What starting a program costs is taken off: each is
run over one document and over all, and the difference counts."""

import os
import shutil
import statistics
import subprocess
import time

import inputs

HERE = os.path.dirname(os.path.abspath(__file__))
VIEW = ["--page-mode", "use-outlines", "--page-layout", "two-page-right", "--hide-toolbar", "yes", "--in-place",
        "--jobs", "1", "--quiet"]
PAGES = (2, 19_999)


def quintar_run(program, page, files):
    return [program, "run", *VIEW, "--open-page", str(page), *files]


def mutool_run(page, files):
    """Appends as well, and does not flush."""
    return ["mutool", "run", "edit.js", "incremental", os.path.dirname(files[0]), str(page), *files]


def seconds(command, files, sizes):
    """Runs a command, and cuts the documents back."""
    begin = time.perf_counter()
    subprocess.run(command, check=True, cwd=HERE, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    taken = time.perf_counter() - begin
    for path in files:
        os.truncate(path, sizes[path])
    os.sync()
    return taken


def for_one(command, files, sizes):
    """Seconds that a document takes, without the start."""
    return (seconds(command(files), files, sizes) - seconds(command(files[:1]), files, sizes)) / (len(files) - 1)


def contenders(program, page):
    found = {"quintar": lambda files: quintar_run(program, page, files)}
    if shutil.which("mutool"):
        found["mutool"] = lambda files: mutool_run(page, files)
    return found


def measure(program, folder, rounds):
    """A table of all documents: milliseconds, and how many times those of two pages, within a round."""
    books = inputs.build_books(folder)
    sizes = {path: os.path.getsize(path) for files in books.values() for path in files}
    cases = [(book, kind, page) for book, kind in books for page in PAGES if page <= inputs.BOOKS[book][0]]
    taken = {}
    for number in range(rounds + 1):
        for book, kind, page in cases:
            for who, command in contenders(program, page).items():
                time_taken = for_one(command, books[book, kind], sizes)
                if number > 0:  # the first one warms up
                    taken.setdefault((book, kind, page, who), []).append(time_taken)
    return table(cases, taken)


def table(cases, taken):
    lines = ["### In place, flushed; a document, the start of the program not counted", "",
             "| | page | ms | times 2 pages | mutool, ms | times quintar |", "|---|---|---|---|---|---|"]
    for book, kind, page in cases:
        own, few = taken[book, kind, page, "quintar"], taken["2 pages", kind, 2, "quintar"]
        ratio = statistics.median(many / two for many, two in zip(own, few))
        others = taken.get((book, kind, page, "mutool"))
        beside = f"{statistics.median(others) * 1e3:.2f} | " \
                 f"{statistics.median(other / mine for other, mine in zip(others, own)):.2f}" if others else "- | -"
        lines.append(f"| {book}, {kind} | {page:,} | {statistics.median(own) * 1e3:.2f} | {ratio:.2f} | {beside} |")
    return lines + [""]
