#!/usr/bin/env python3
"""Makes one small slip after the other in the sources and looks whether a test notices.

    mutate.py BUILD                          all mutants of the sources that BUILD is made from
    mutate.py BUILD --sample 500 --seed 1    that many of them, at random
    mutate.py BUILD --only 'raster/*'        of some files
    mutate.py BUILD --again                  those that survived, once more
    mutate.py BUILD --report                 what is known so far

BUILD is a CMake build by ninja. Results stand in BUILD/mutation/results, a line a mutant as it was
judged; a campaign that was stopped goes on there. A mutant is

    killed      a test failed, or took ten times as long as usual
    survived    no test noticed
    equivalent  its machine code is that of the source
    invalid     it does not compile

With --coverage BUILD, a build that counts what is reached, only programs that reach a line are
asked about it.
"""

import argparse
import concurrent.futures
import fnmatch
import hashlib
import itertools
import json
import math
import pathlib
import random
import resource
import signal
import subprocess
import sys
import tempfile
import threading

import suites
from build_tree import BuildTree
from mutants import mutants_of

ROOT = pathlib.Path(__file__).resolve().parents[2]
MOST_MEMORY = 4 << 30
LATE = 10  # times as long as usual


def identity(name, text, mutant):
    """The same as long as the line of the mutant stays as it is, wherever it stands."""
    begin = text.rfind("\n", 0, mutant.begin) + 1
    end = text.find("\n", mutant.end)
    same = text.count(text[begin:end], 0, begin)
    key = [name, text[begin:end], same, mutant.begin - begin, mutant.old, mutant.new]
    return hashlib.sha1(json.dumps(key).encode()).hexdigest()[:12]


class Campaign:
    """Judges mutants, many at a time."""

    def __init__(self, tree, folder, known):
        self.tree = tree
        self.folder = folder
        self.known = known  # Suites
        self.lock = threading.Lock()
        self.originals = {}
        self.compiling = threading.Lock()

    def original(self, target):
        """The machine code of an object's source as it is, compiled like a mutant."""
        with self.compiling:
            if target not in self.originals:
                output = self.folder / "original" / target
                if not self.tree.compile(target, self.folder / "original-source", output):
                    raise RuntimeError(f"{target} does not compile")
                self.originals[target] = output.read_bytes()
            return self.originals[target]

    def judge(self, name, mutant):
        """What becomes of a mutant, and what killed it. Of a header the tests have their own code
        too; they are compiled anew only when nothing else notices."""
        path = self.tree.sources / name
        text = path.read_text()
        with tempfile.TemporaryDirectory(dir=self.folder) as workplace:
            workplace = pathlib.Path(workplace)
            shadow = workplace / "source" / name
            shadow.parent.mkdir(parents=True)
            shadow.write_text(mutant.apply(text))
            asked = self.known.about(name, text.count("\n", 0, mutant.begin) + 1)
            verdict = "equivalent", ""
            replaced = {}
            for own in (True, False):
                targets = [target for target in sorted(self.tree.users[path])
                           if self.tree.is_own(target) == own]
                changed = self.changed(targets, workplace)
                if changed is None:
                    return "invalid", ""
                if changed:
                    replaced.update(changed)
                    verdict = self.ask(asked, replaced, workplace)
                    if verdict[0] != "survived":
                        break
            return verdict

    def changed(self, targets, workplace):
        """The objects whose machine code is another; None when one does not compile."""
        found = {}
        for target in targets:
            output = workplace / "objects" / target
            if not self.tree.compile(target, workplace / "source", output):
                return None
            if output.read_bytes() != self.original(target):
                found[target] = output
        return found

    def ask(self, asked, replaced, workplace):
        """Runs suites, neighbours of one program together, until one fails."""
        linked = {}
        folder = pathlib.Path(tempfile.mkdtemp(dir=workplace))
        for program, group in itertools.groupby(asked, key=lambda suite: suite[0]):
            if not any(word in replaced for word in self.tree.links[program]):
                continue
            if program not in linked:
                linked[program] = folder / f"program{len(linked)}"
                try:
                    self.tree.link(program, replaced, linked[program])
                except subprocess.CalledProcessError:
                    return "invalid", ""
            group = list(group)
            usual = sum(self.known.seconds[suite] for suite in group)
            command = [linked[program], "--gtest_fail_fast", "--gtest_brief=1",
                       "--gtest_filter=" + ":".join(f"{suite}.*" for _, suite in group)]
            run = runs(command, folder, 3 + math.ceil(LATE * usual))
            if run is not None:
                return "killed", f"{pathlib.Path(program).name}: {run}"
        return "survived", ""


def runs(command, folder, limit):
    """None when a program ends well within so many seconds of the processor, else what it died of.
    One that waits for ever is ended too."""
    def confine():
        resource.setrlimit(resource.RLIMIT_CPU, (limit, limit + 1))
        resource.setrlimit(resource.RLIMIT_AS, (MOST_MEMORY, MOST_MEMORY))
        resource.setrlimit(resource.RLIMIT_CORE, (0, 0))

    try:
        ended = subprocess.run(command, cwd=folder, stdout=subprocess.PIPE,
                               stderr=subprocess.DEVNULL, timeout=120 + 50 * limit,
                               preexec_fn=confine)
    except subprocess.TimeoutExpired:
        return "too late"
    if ended.returncode in (-signal.SIGXCPU, -signal.SIGKILL):
        return "too late"
    if ended.returncode == 0:
        return None
    if ended.returncode < 0:
        return f"signal {-ended.returncode}"
    failed = [line.split()[3] if line.split()[2:3] == ["]"] else line.split("] ")[1].split()[0]
              for line in ended.stdout.decode(errors="replace").splitlines()
              if line.startswith("[  FAILED  ] ") and "." in line]
    return failed[0].rstrip(",") if failed else f"exit {ended.returncode}"


def read_results(path):
    """The last word on each mutant. A line that a stopped campaign left unfinished is none."""
    results = {}
    if path.exists():
        for line in path.read_text().splitlines():
            try:
                result = json.loads(line)
            except ValueError:
                continue
            results[result["id"]] = result
    return results


def report(entries, results):
    """Prints figures by folder, and the survivors; the share that was killed."""
    kinds = ["killed", "survived", "equivalent", "invalid", "open"]
    table = {}
    for entry in entries:
        folder = str(pathlib.Path(entry["file"]).parent)
        row = table.setdefault(folder, dict.fromkeys(kinds, 0))
        row[results.get(entry["id"], {"verdict": "open"})["verdict"]] += 1
    table["all"] = {kind: sum(row[kind] for row in table.values()) for kind in kinds}
    print(f"{'':20}" + "".join(f"{kind:>12}" for kind in kinds) + f"{'killed':>9}")
    for folder, row in table.items():
        judged = row["killed"] + row["survived"]
        share = f"{100 * row['killed'] / judged:.1f} %" if judged else ""
        print(f"{folder:20}" + "".join(f"{row[kind]:12}" for kind in kinds) + f"{share:>9}")
    for entry in entries:
        if results.get(entry["id"], {}).get("verdict") == "survived":
            print(f"{entry['file']}:{entry['line']}: {describe(entry)}")


def describe(entry):
    old, new = (" ".join(entry[key].split()) for key in ("old", "new"))
    return f"{entry['text']}    {old} -> {new or '(nothing)'}"


def entries_of(tree, only):
    """All mutants of the files, with where they stand."""
    entries = []
    for path in tree.files():
        name = str(path.relative_to(tree.sources))
        if not any(fnmatch.fnmatch(name, pattern) for pattern in only):
            continue
        text = path.read_text()
        lines = text.splitlines()
        for mutant in mutants_of(text):
            line = text.count("\n", 0, mutant.begin) + 1
            entries.append({"id": identity(name, text, mutant), "file": name, "line": line,
                            "text": lines[line - 1].strip(), "old": mutant.old,
                            "new": mutant.new, "mutant": mutant})
    return entries


def known_suites(options, tree, folder):
    """Measured once a build. Test programs are those that ctest runs without arguments."""
    path = folder / "suites.json"
    if not path.exists():
        programs = [program for program in tree.links if tree.is_test(program)]
        counted = {}
        if options.coverage:
            other = pathlib.Path(options.coverage).resolve()
            counted = {program: str(other / pathlib.Path(program).relative_to(tree.build))
                       for program in programs}
        suites.measure(programs, counted, tree.sources, options.jobs).save(path)
    return suites.Suites.load(path)


def main(arguments):
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("build")
    parser.add_argument("--sources", default=ROOT / "src", help="the folder that is mutated")
    parser.add_argument("--coverage", help="a build for coverage of the same tests")
    parser.add_argument("--only", action="append", help="files, as patterns below the sources")
    parser.add_argument("--sample", type=int, help="so many mutants, at random")
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--jobs", type=int, default=2)
    parser.add_argument("--again", action="store_true", help="judge survivors anew")
    parser.add_argument("--report", action="store_true")
    options = parser.parse_args(arguments)

    tree = BuildTree(options.build, options.sources)
    folder = tree.build / "mutation"
    folder.mkdir(exist_ok=True)
    entries = entries_of(tree, options.only or ["*"])
    if options.sample and options.sample < len(entries):
        entries = random.Random(options.seed).sample(entries, options.sample)
    path = folder / "results"
    results = read_results(path)
    if options.report:
        report(sorted(entries, key=lambda entry: (entry["file"], entry["line"])), results)
        return 0

    def is_open(entry):
        verdict = results.get(entry["id"], {}).get("verdict")
        return verdict == "survived" if options.again else verdict is None

    campaign = Campaign(tree, folder, known_suites(options, tree, folder))
    if path.exists() and not path.read_text().endswith("\n"):
        path.write_text(path.read_text() + "\n")
    with path.open("a") as out, concurrent.futures.ThreadPoolExecutor(options.jobs) as pool:
        def judge(entry):
            verdict, by = campaign.judge(entry["file"], entry["mutant"])
            result = {key: entry[key] for key in ("id", "file", "line", "text", "old", "new")}
            with campaign.lock:
                out.write(json.dumps({**result, "verdict": verdict, "by": by}) + "\n")
                out.flush()
                results[entry["id"]] = {**result, "verdict": verdict}

        todo = [entry for entry in entries if is_open(entry)]
        for future in [pool.submit(judge, entry) for entry in todo]:
            future.result()
    report(sorted(entries, key=lambda entry: (entry["file"], entry["line"])), results)
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
