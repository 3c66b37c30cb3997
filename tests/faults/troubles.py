#!/usr/bin/python3
"""What may happen around a run: file systems that are full, read-only or gone, folders and documents that others change
meanwhile, limits, very many or very long names, runs at the same time. Documents have to be whole, what is told of them
true, and the exit status has to fit. Tells how often each was tried, what went wrong, and what could not be tried here;
status 1 when something went wrong.

    troubles.py --program quintar --shim faultsshim.so --person faultsperson.so [TROUBLE ...]"""

import argparse
import collections
import functools
import os
import pathlib
import resource
import shutil
import subprocess
import sys
import tempfile
import time

import batch
from setting import Setting, Untried, folding_disk, in_memory, mounted, own_mounts, system

NOBODY = 65534
TROUBLES = {}


def trouble(function):
    TROUBLES[function.__name__.replace("_", " ")] = function
    return function


@trouble
def full_disk(setting):
    for size in range(64, 2048, 64):
        setting.set_up()
        with in_memory(f"{setting.work}/out", f"size={size}k"):
            setting.judge(f"{size} KiB for results", setting.run("-o", "out", "in"), ["-o"])
    for words in (["--in-place"], ["--in-place", "--replace"]):
        for pages in (0, 1, 2, 3, 5, 8, 60, 300):
            setting.set_up()
            with in_memory(f"{setting.work}/in", "size=4m") as disk:
                setting.put(disk)
                free = os.statvfs(disk)
                pathlib.Path(disk, "filler").write_bytes(bytes((free.f_bavail - pages) * free.f_bsize))
                setting.judge(f"{pages} pages left, {words}", setting.run(*words, "in"), words)


@trouble
def read_only_disk(setting):
    for words in (["--in-place"], ["-o", "in/out"], ["-o", "out"]):
        setting.set_up()
        with in_memory(f"{setting.work}/in", "size=4m") as disk:
            setting.put(disk)
            system("mount", "-o", "remount,ro", disk)
            setting.expect(words, setting.run(*words, "in"), {"--in-place": 1, "in/out": 2, "out": 0}[words[-1]])


@trouble
def disk_that_vanishes(setting):
    for words, place in ((["--in-place", "in"], "in"), (["-o", "out", "in"], "out"), (["-o", "out", "in"], "in")):
        setting.set_up()
        for moment in setting.moments(*words):
            setting.set_up()
            shutil.rmtree(f"{setting.work}/{place}", ignore_errors=True)
            with in_memory(f"{setting.work}/{place}", "size=8m") as disk:
                if place == "in":
                    setting.put(disk)
                held = os.open(disk, os.O_RDONLY)
                run, _ = setting.run_with(moment, lambda: system("umount", "--lazy", disk), *words)
                below = batch.contents(disk)  # where the rest of the results goes
                batch.write(disk, batch.contents(f"/proc/self/fd/{held}") | below)
                os.close(held)
                if b"no PDF documents in in" in run.stderr:
                    setting.expect(f"{place} at call {moment}", run, 0)
                else:
                    setting.judge(f"{place} at call {moment}", run, words)


@trouble
def quota(setting):
    image = f"{setting.work}-disk"
    system("truncate", "-s", "128M", image)
    system("mkfs.btrfs", "-q", image)
    with mounted(f"{setting.work}-mounted", "-o", "loop", image) as disk:
        system("btrfs", "quota", "enable", disk)
        for words in (["-o", "out", "in"], ["--in-place", "--replace", "in"], ["--in-place", "in"]):
            folder = "out" if words[0] == "-o" else "in"
            for room in range(0, 1800, 200):
                setting.set_up()
                volume = f"{disk}/{words[0]}{len(words)}{room}"
                system("btrfs", "subvolume", "create", volume)
                shutil.rmtree(f"{setting.work}/{folder}", ignore_errors=True)
                os.symlink(volume, f"{setting.work}/{folder}")
                if folder == "in":
                    setting.put(volume)
                used = sum(path.stat().st_size for path in pathlib.Path(volume).iterdir())
                system("btrfs", "qgroup", "limit", f"{(used >> 10) + room + 16}k", volume)
                run = setting.run(*words)
                os.unlink(f"{setting.work}/{folder}")
                shutil.copytree(volume, f"{setting.work}/{folder}")
                setting.judge(f"room for {room} KiB, {words}", run, words)
    os.unlink(image)


@trouble
def folder_renamed_or_removed(setting):
    def rename(folder):
        os.rename(folder, folder + ".moved")

    for words, folder in ((["--in-place", "in"], "in"), (["-o", "out", "in"], "in"), (["-o", "out", "in"], "out")):
        for act in (rename, functools.partial(shutil.rmtree, ignore_errors=True)):
            setting.set_up()
            path = os.path.join(setting.work, folder)
            for moment in setting.moments(*words):
                setting.set_up()
                run, _ = setting.run_with(moment, lambda: os.path.exists(path) and act(path), *words)
                what = f"{folder} {'renamed' if act is rename else 'removed'} at call {moment}, {words[0]}"
                if act is rename and os.path.exists(path + ".moved"):
                    shutil.copytree(path + ".moved", path, dirs_exist_ok=True)
                    setting.judge(what, run, words)
                else:
                    setting.tell(what, run, [] if run.status in (0, 1, 2) else [f"status {run.status}"])


def meddle(folder, act):
    """Does something to all documents. Returns what they are then."""
    for path in pathlib.Path(folder).glob("*.pdf"):
        if act == "truncated":
            os.truncate(path, path.stat().st_size // 2)
        elif act == "grown":
            with open(path, "ab") as file:
                file.write(b"% somebody else's\n")
        else:
            new = path.with_suffix(".new")
            new.write_bytes(b"%PDF-1.4\n% somebody else's\n")
            os.replace(new, path)
    return {path.name: path.read_bytes() for path in pathlib.Path(folder).glob("*.pdf")}


@trouble
def documents_changed_meanwhile(setting):
    for words in (["--in-place", "in"], ["--in-place", "--replace", "in"], ["-o", "out", "in"]):
        setting.set_up()
        moments = setting.moments(*words)
        for act in ("truncated", "grown", "replaced"):
            for moment in moments:
                setting.set_up()
                theirs = {}
                run, _ = setting.run_with(moment, lambda: theirs.update(meddle(f"{setting.work}/in", act)), *words)
                setting.tell(f"{act} at call {moment}, {words}", run, about_meddled(setting, run, words, theirs))


def about_meddled(setting, run, words, theirs):
    """Nothing of what the other program left may be gone, and what is told has to be so."""
    now = batch.contents(setting.work)
    told = batch.Scenario("", setting.words(*words), {}, None).told(run, setting.work)
    wrong = [] if run.status in (0, 1) else [f"status {run.status}"]
    for name, left in theirs.items():
        result = now.get(("out/" if "-o" in words else "in/") + name)
        status, _ = told.get(("out/" if "-o" in words else "in/") + name, ("nothing", ""))
        if "-o" not in words and not now["in/" + name].startswith(left):
            wrong.append(f"{name} lost what another program wrote")
        if "-o" in words and (result is not None) != (status in batch.DONE):
            wrong.append(f"{name} is called {status}")
        if "-o" in words and result is not None and not result.startswith((left, setting.documents[name])):
            wrong.append(f"{name} is torn")
        if "-o" not in words and status == "failed" and result != left:
            wrong.append(f"{name} is called failed and was changed")
    return wrong


@trouble
def many_files(setting):
    batch.write(setting.work, {f"in/{number}.pdf": setting.documents["signed.pdf"] for number in range(20_000)})
    for words, counts in ((["-o", "out"], "20000 changed, 0 un"), (["--in-place"], "20000 changed, 0 un"),
                          (["--in-place"], "0 changed, 20000 un")):
        run = setting.run(*words, "in")
        results = [path.read_bytes() for path in pathlib.Path(setting.work, "out").glob("*.pdf")]
        done = sum(each in setting.wanted["signed.pdf"] for each in results)
        wrong = [] if done == len(results) == 20_000 else [f"{done} are done"]
        setting.tell(words, run, wrong + ([] if counts.encode() in run.stdout else [f"not {counts}"]))


@trouble
def paths_beyond_the_limit(setting):
    setting.set_up()
    folder = os.open(f"{setting.work}/in", os.O_RDONLY)
    for _ in range(24):
        os.mkdir("n" * 200, dir_fd=folder)
        folder = os.open("n" * 200, os.O_RDONLY, dir_fd=folder)
        with os.fdopen(os.open("deep.pdf", os.O_WRONLY | os.O_CREAT, dir_fd=folder), "wb") as file:
            file.write(setting.documents["signed.pdf"])
    for words in (["-o", "out"], ["--in-place"]):
        run = setting.run(*words, "in")
        setting.expect(words, run, 1, "name too long")
        changed = sum(line.startswith(b"changed") for line in run.stdout.splitlines())
        if changed < 20:
            setting.tell(words, run, [f"only {changed} documents are changed"])


@trouble
def million_names(setting):
    setting.set_up()
    names = [f"in/{number:07}.pdf" for number in range(1_000_000)]
    names[500_000] = "in/plain.pdf"
    pathlib.Path(setting.work, "list").write_text("\n".join(names))
    run = setting.run("-q", "-o", "out", "--files-from", "list")
    setting.expect("names that are missing", run, 1, "in/0999999.pdf: no such file")
    whole = batch.contents(setting.work).get("out/plain.pdf") in setting.wanted["plain.pdf"]
    setting.tell("the one that is there", run, [] if whole else ["it is not done"])


@trouble
def limits(setting):
    others = ["setpriv", f"--reuid={NOBODY}", "--clear-groups"]
    cases = [f"-n {count}" for count in range(3, 25)] + [f"-v {size}" for size in range(20_000, 400_000, 20_000)] + \
            [f"-f {size}" for size in (0, 1, 2, 4, 8, 50, 200, 300, 1000, 3000)] + [f"-u {count}" for count in range(5)]
    for limit in cases:
        for words in (["-o", "out", "in"], ["--in-place", "in"]):
            setting.set_up()
            for place, _, names in os.walk(setting.work):
                for name in ["", *names]:
                    os.chown(os.path.join(place, name), NOBODY, NOBODY)
            before = [*(others if "-u" in limit else []), "bash", "-c", f"ulimit {limit} && exec \"$@\"", "bash"]
            run = setting.run(*words, before=before)
            if b"error while loading shared libraries" in run.stderr:
                setting.expect(limit, run, 127)  # that was not yet the program
            else:
                setting.judge(f"{limit}, {words[0]}", run, words)


@trouble
def results_on_another_file_system(setting):
    with tempfile.TemporaryDirectory(dir="/var/tmp") as other:
        setting.set_up()
        os.symlink(other, f"{setting.work}/out")
        run = setting.run("-o", "out", "in")
        os.unlink(f"{setting.work}/out")
        shutil.copytree(other, f"{setting.work}/out")
        setting.judge("a folder there", run, ["-o"])


@trouble
def names_that_differ_in_case(setting):
    """The first of the file systems that can be had here."""
    ways = [("ext4", ["mkfs.ext4", "-q", "-O", "casefold"]), ("xfs", ["mkfs.xfs", "-q", "-n", "version=ci"]),
            ("fuse", None)]
    problems = []
    for kind, make in ways:
        names = ("A.PDF", "a.pdf", "b.pdf", "sub/c.pdf", "Sub/C.pdf")
        batch.write(setting.work, {f"in/{name}": setting.documents["plain.pdf"] for name in names})
        try:
            with folding_disk(kind, make, setting.work) as folder:
                for output in ("out", "out/new/er"):
                    for documents in (["in"], ["in/A.PDF", "in/a.pdf"], ["--base", "in", "in/sub/c.pdf", "in/Sub"]):
                        run = setting.run("-o", output, *documents)
                        setting.expect(f"{kind}, {output}, {documents}", run, 2, "would have the same output")
                        setting.tell(kind, run, os.listdir(folder))
                run = setting.run("-o", "out", "in/A.PDF", "in/b.pdf", "in/Sub")
                setting.expect(f"{kind}, others", run, 0)
                return
        except Untried as why:
            problems.append(str(why))
    raise Untried("; ".join(problems))


@trouble
def settings_folders(setting):
    """Homes in which no settings can be stored: the program says so and does its work all the same."""
    home, lists = f"{setting.work}-home", ".local/share/kelvane software/Plexor/Actions"
    setting.set_up()
    shutil.copy(pathlib.Path(__file__).parents[1].joinpath("data/manuals.xqq"), f"{setting.work}/list.xqq")

    def commands(what, words, status):
        for command, wanted in ((["lists"], status), (["configure", "--list", "list.xqq", "-o", "list.xqq"], 0)):
            loaded = setting.person if command[0] == "configure" else ""
            run = batch.call([setting.program, *command], setting.work, {"LD_PRELOAD": loaded, "HOME": home})
            setting.expect(f"{what}, {command[0]}", run, wanted, words)

    def link(target):
        def make():
            os.makedirs(os.path.dirname(f"{home}/{lists}"))
            os.symlink(target, f"{home}/{lists}")
        return make

    for what, make, words, status in (
            ("a link to a folder", link("/var"), "", 0),
            ("a link to nowhere", link("nowhere/at/all"), "leads nowhere", 1),
            ("a link to itself", link("Actions"), "", 1),
            ("a link to a file", link("/etc/passwd"), "not a folder", 1),
            ("foreign", lambda: os.chown(home, NOBODY, NOBODY), "another user's", 1)):
        shutil.rmtree(home, ignore_errors=True)
        os.mkdir(home)
        make()
        commands(what, words, status)
    shutil.rmtree(home)
    for options, words in (("size=4k,nr_inodes=2", "no space left"), ("ro", "read-only file system")):
        with in_memory(home, options):
            commands(options, words, 1)
        shutil.rmtree(home)


@trouble
def runs_at_the_same_time(setting):
    plans = {"into a folder that another run changes": [["-o", "out", "in"], ["--in-place", "out"]],
             "into a folder that another run reads": [["-o", "out", "in"], ["-o", "further", "out"]],
             "sixteen in place": [["--in-place", "in"]] * 16,
             "sixteen into one folder": [["-o", "out", "in"]] * 16}
    for what, commands in list(plans.items()) * 10:
        setting.set_up()
        setting.put(f"{setting.work}/out")
        runs = together(setting, commands)
        reports = [json_lines(pathlib.Path(setting.work, f"report{number}")) for number in range(len(runs))]
        changed = collections.Counter(line["file"] for line in sum(reports, []) if line.get("status") == "changed")
        for number, (run, words) in enumerate(zip(runs, commands)):
            folder = {"in": "in", "--in-place": words[-1]}.get(words[0], words[1])
            found = {name: pathlib.Path(setting.work, folder, name).read_bytes() for name in setting.documents}
            wrong = [f"{name} is not as asked" for name in found if found[name] not in setting.wanted[name]]
            wrong += [] if run.status in (0, 1) else [f"status {run.status}"]
            wrong += [f"{name} is changed {count} times" for name, count in changed.items()
                      if what == "sixteen in place" and count > 1]
            setting.tell(f"{what}, {number}", run, wrong)


def json_lines(path):
    return list(batch.json_lines(path.read_bytes())) if path.exists() else []


def together(setting, commands):
    """Runs them at the same time."""
    started = [subprocess.Popen([setting.program, *setting.words(*words, report=f"report{number}")],
                                **batch.surroundings(setting.work, {}), stdout=subprocess.PIPE, stderr=subprocess.PIPE)
               for number, words in enumerate(commands)]
    outputs = [each.communicate(timeout=batch.SECONDS) for each in started]
    return [batch.Run(each.returncode, *output) for each, output in zip(started, outputs)]


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--program", required=True, type=os.path.abspath)
    parser.add_argument("--shim", required=True, type=os.path.abspath)
    parser.add_argument("--person", required=True, type=os.path.abspath)
    parser.add_argument("troubles", nargs="*", metavar="TROUBLE", help="all by default")
    arguments = parser.parse_args()
    own_mounts()
    batch.adopt_workers()
    memory = "/dev/shm" if os.access("/dev/shm", os.W_OK) else None
    with tempfile.TemporaryDirectory(dir=memory) as work:
        os.chmod(work, 0o755)
        setting = Setting(arguments, work)
        for name in arguments.troubles or TROUBLES:
            setting.name, begin = name, time.monotonic()
            try:
                TROUBLES[name](setting)
                untried = ""
            except Untried as why:
                untried = f", not tried: {why}"
            print(f"{name}: {setting.tried[name]} runs, {time.monotonic() - begin:.0f} s{untried}", flush=True)
    print(f"{sum(setting.tried.values())} runs, {setting.wrong} with something wrong; at most "
          f"{resource.getrusage(resource.RUSAGE_CHILDREN).ru_maxrss // 1024} MiB")
    return 1 if setting.wrong else 0


if __name__ == "__main__":
    sys.exit(main())
