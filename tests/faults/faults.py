#!/usr/bin/python3
"""Makes every call of a kind that a run makes fail, fall short or be its last one, one after the other, and looks at
what became of the documents: none may be torn, none called what it is not, the exit status has to fit, and the next run
has to do all that is left and leave no stray file. Tells how much was tried, and what went wrong; status 1 then.

    faults.py --program quintar --shim faultsshim.so --person faultsperson.so [--every N] [--kills N] [KIND ...]"""

import argparse
import collections
import errno
import itertools
import os
import pathlib
import signal
import sys
import tempfile
import time

import batch
from batch import ALL_THE_SAME, ALWAYS, CHANGE, SHORT, WAIT

# How calls of a kind fail: once, or from then on.
ONCE, EVER = False, True
MANNERS = {
    "open": [(errno.EIO, ONCE), (errno.EMFILE, EVER)],
    "read": [(errno.EIO, ONCE), (errno.EINTR, ONCE), (SHORT, EVER)],
    "write": [(errno.ENOSPC, ONCE), (errno.ENOSPC, EVER), (errno.EINTR, ONCE), (SHORT, ONCE)],
    "copy": [(errno.EIO, ONCE), (errno.EXDEV, EVER), (SHORT, EVER)],
    "clone": [(errno.EOPNOTSUPP, EVER), (errno.EIO, ONCE)],
    "sync": [(errno.EIO, ONCE), (errno.EIO, EVER)],
    "rename": [(errno.EIO, ONCE), (ALL_THE_SAME + errno.EIO, ONCE), (errno.EACCES, EVER)],
    "close": [(ALL_THE_SAME + errno.EIO, ONCE), (ALL_THE_SAME + errno.EIO, EVER)],
    "chmod": [(errno.EPERM, ONCE), (errno.EPERM, EVER)],
    "truncate": [(errno.EIO, ONCE), (errno.EPERM, EVER)],
    "mmap": [(errno.ENOMEM, ONCE), (errno.ENOMEM, EVER)],
    "malloc": [(errno.ENOMEM, ONCE)],
    "fork": [(errno.EAGAIN, ONCE), (errno.EAGAIN, EVER)],
    "pipe": [(errno.EMFILE, ONCE), (errno.EMFILE, EVER)],
    "poll": [(errno.EINTR, ONCE), (errno.ENOMEM, EVER)],
    "mkdir": [(errno.EACCES, ONCE)],
    "unlink": [(errno.EIO, EVER)],
    "flock": [(errno.ENOLCK, ONCE), (errno.EWOULDBLOCK, ONCE)],
    "stat": [(errno.EIO, ONCE)],
}
MALLOCS = 200  # of the thousands of allocations, so many are tried


class Trials:
    def __init__(self, arguments, work):
        self.arguments, self.work = arguments, os.path.join(work, "work")
        self.shim = batch.Shim(arguments.shim, work)
        self.documents = batch.build(arguments.program, os.path.join(work, "documents"))
        self.scenarios = self.make_scenarios()
        self.calls = {}
        self.count_calls()
        self.tried = collections.Counter()
        self.wrong = self.ended = 0
        self.tickets = itertools.count()

    def make_scenarios(self):
        given = {"in/" + name: data for name, data in self.documents.items()}
        earlier = {"out/plain.pdf": batch.EARLIER, "out/streams.pdf": batch.EARLIER}
        run = ["run", *CHANGE, "--jobs", "1", "--signed", "append", "--report", "report"]
        resuming = [*run, "--resume", "report", "-o", "out"]
        in_place = self.learnt("--in-place", [*run, "--in-place", "in"], given)
        replaced = self.learnt("--replace", [*run, "--in-place", "--replace", "in"], given)
        in_place.allow(replaced)
        settings = pathlib.Path(__file__).parents[1] / "data/manuals.xqq"
        return [self.learnt("-o", [*run, "-o", "out", "in"], {**given, **earlier}), in_place, replaced,
                self.learnt("undo", ["undo", "--events", "report"], given, [*run, "--in-place", "in"]),
                self.learnt("configure", ["configure", "--list", "in/list.xqq", "-o", "in/list.xqq"],
                            {"in/list.xqq": settings.read_bytes()}),
                self.learnt("--resume", [*resuming, "in"], given,
                            [*resuming, "in/asked.pdf", "in/plain.pdf", "in/signed.pdf"])]

    def learnt(self, name, words, start, before=None):
        """Runs it without faults, after the command `before`."""
        batch.write(self.work, start)
        if before:
            self.call(before)
            start = batch.contents(self.work)
        scenario = batch.Scenario(name, words, start, batch.times(self.work))
        run = self.call(words)
        if run.status != 0:
            sys.exit(f"{name} fails without faults: {run.stdout.decode()}{run.stderr.decode()}")
        scenario.learn(batch.contents(self.work))
        return scenario

    def call(self, words, faulty=False):
        return batch.call([self.arguments.program, *words], self.work, self.environment(words, faulty))

    def environment(self, words, faulty=True):
        """Who is loaded into the program."""
        in_window = words[0] == "configure"
        loaded = [self.shim.library] * faulty + [self.arguments.person] * in_window
        variables = {"LD_PRELOAD": " ".join(loaded), "FAULTS_ORDERS": self.shim.file}
        return variables | ({"FAULTS_LATER": "1"} if in_window else {})

    def set_up(self, scenario):
        batch.write(self.work, scenario.start, scenario.times)

    def tell(self, scenario, what, problems, run):
        if not problems:
            return
        self.wrong += 1
        print(f"{scenario.name}, {what}: {'; '.join(problems)}\n"
              f"    {run.status} {run.stderr.decode(errors='replace')!r}", flush=True)

    def look(self, scenario, what, run, killed=False):
        """Judges a run, and the next one, without faults."""
        problems = batch.judge(scenario, run, self.work, killed)
        after = self.call(scenario.words)
        problems += [f"the next run: {each}" for each in batch.judge(scenario, after, self.work)]
        if after.status != 0:
            problems.append(f"the next run: status {after.status} {after.stderr.decode(errors='replace')}")
        strays = set(batch.contents(self.work)) - set(scenario.start) - set(scenario.results) - set(scenario.spared)
        if what.startswith("malloc"):  # an exception leaves the lock of a settings file, which is passed over later
            strays.discard("in/list.xqq.lock")
        problems += [f"stray {name}" for name in sorted(strays)]
        self.tell(scenario, what, problems, run)

    def count_calls(self):
        """Of runs without faults, by scenario and kind."""
        for scenario in self.scenarios:
            self.set_up(scenario)
            self.shim.order("any", ALWAYS, ALWAYS, WAIT)
            self.call(scenario.words, faulty=True)
            self.calls.update({(scenario.name, kind): self.shim.count(kind) for kind in batch.KINDS})

    def sweep(self, kinds):
        """Every call of each kind."""
        for scenario, kind in itertools.product(self.scenarios, kinds):
            calls = self.calls[scenario.name, kind]
            step = max(1, calls // MALLOCS) if kind == "malloc" else 1
            for manner, ever in MANNERS[kind]:
                self.fail_each(scenario, kind, manner, ever, range(1, calls + 1, step))

    def fail_each(self, scenario, kind, manner, ever, numbers):
        for number in numbers:
            if next(self.tickets) % self.arguments.every == 0:
                self.fail(scenario, kind, manner, ever, number)
        further = len(numbers) + 1
        while self.arguments.every == 1 and kind != "malloc" and self.fail(scenario, kind, manner, ever, further):
            further += 1

    def fail(self, scenario, kind, manner, ever, number):
        """One trial. Returns whether the run came so far."""
        self.set_up(scenario)
        self.shim.order(kind, number, ALWAYS if ever else number, manner)
        run = self.call(scenario.words, faulty=True)
        reached = self.shim.count(kind) >= number
        if reached:
            self.tried[scenario.name, kind] += 1
            name = "falls short" if manner == SHORT else errno.errorcode[manner % ALL_THE_SAME]
            what = f"{kind} {number}{' and all behind it' if ever else ''}: {name}"
            ended = kind == "malloc" and run.status not in (0, 1, 2)  # as if it were killed: the C library ends it, too
            self.ended += ended
            self.look(scenario, what, run, killed=ended)
        return reached

    def kill_all(self, number):
        """So many kills, of the program, a worker, or both, spread over the calls of all scenarios."""
        scenarios = [scenario for scenario in self.scenarios if scenario.words[0] == "run"]
        ways = list(itertools.product(scenarios, ("program", "worker", "both")))
        for turn in range(number):
            scenario, victim = ways[turn % len(ways)]
            kind = "any of workers" if victim == "worker" else "any"
            of_all = self.calls[scenario.name, kind]
            self.kill(scenario, victim, kind, 1 + turn * of_all // number)

    def kill(self, scenario, victim, kind, number):
        def end(program, waiting):
            if victim != "program" and waiting != program:
                os.kill(waiting, signal.SIGKILL)
            self.shim.release()
            if victim != "worker":
                os.kill(program, signal.SIGKILL)

        self.set_up(scenario)
        surroundings = batch.surroundings(self.work, self.environment(scenario.words))
        run, reached = self.shim.stop_at([self.arguments.program, *scenario.words], surroundings, kind, number, end)
        self.tried[scenario.name, "kill of " + victim] += reached
        what = f"kill of {victim} at call {number} ({kind})"
        if scenario.name == "--in-place" and number % 2:
            self.take_back(scenario, what, run)
        else:
            self.look(scenario, what, run, killed=victim != "worker")

    def take_back(self, scenario, what, run):
        """What a killed run has done in place is undone by its report, or nothing is there to be undone."""
        problems = batch.judge(scenario, run, self.work, killed=True)
        undo = self.call(["undo", "report"])
        if undo.status not in (0, 2):
            problems.append(f"undo: status {undo.status} {undo.stderr.decode(errors='replace')}")
        found, times = batch.contents(self.work), batch.times(self.work)
        problems += [f"undo: {name} is not as it was" for name, data in scenario.start.items()
                     if found.get(name) != data or times[name] != scenario.times[name]]
        self.tell(scenario, what, problems, run)


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--program", required=True, type=os.path.abspath)
    parser.add_argument("--shim", required=True, type=os.path.abspath)
    parser.add_argument("--person", required=True, type=os.path.abspath)
    parser.add_argument("--every", type=int, default=1, metavar="N", help="tries every N-th fault only")
    parser.add_argument("--kills", type=int, default=0, metavar="N", help="how often somebody is killed")
    parser.add_argument("kinds", nargs="*", metavar="KIND", help="kinds of calls, all by default")
    arguments = parser.parse_args()
    begin = time.monotonic()
    batch.adopt_workers()
    memory = "/dev/shm" if os.access("/dev/shm", os.W_OK) else None
    with tempfile.TemporaryDirectory(dir=memory) as work:
        os.mkdir(os.path.join(work, "work-home"))
        trials = Trials(arguments, work)
        trials.sweep(arguments.kinds or list(MANNERS))
        trials.kill_all(arguments.kills)
    for (scenario, kind), count in sorted(trials.tried.items()):
        print(f"{scenario}: {kind}: {count} faults")
    print(f"{sum(trials.tried.values())} faults, {trials.wrong} of them with something wrong; {trials.ended} ended the "
          f"program for want of memory; {time.monotonic() - begin:.0f} s")
    return 1 if trials.wrong else 0


if __name__ == "__main__":
    sys.exit(main())
