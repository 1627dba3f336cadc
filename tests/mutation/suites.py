"""Test suites: what they reach, how long they take, and which to ask first about a line.

A suite is a program and the first half of its tests' names.
"""

import collections
import concurrent.futures
import json
import os
import pathlib
import re
import subprocess
import tempfile


class Suites:
    """Seconds by (program, suite), and by program the lines that are reached of each file."""

    def __init__(self, seconds, reached):
        self.seconds = seconds
        self.reached = reached

    def save(self, path):
        pathlib.Path(path).write_text(json.dumps({
            "seconds": [[*suite, seconds] for suite, seconds in self.seconds.items()],
            "reached": {program: {name: sorted(lines) for name, lines in files.items()}
                        for program, files in self.reached.items()}}))

    @staticmethod
    def load(path):
        kept = json.loads(pathlib.Path(path).read_text())
        return Suites({(program, suite): seconds for program, suite, seconds in kept["seconds"]},
                      {program: {name: set(lines) for name, lines in files.items()}
                       for program, files in kept["reached"].items()})

    def about(self, name, line):
        """The suites whose programs reach a line of a file. Those that are called like the file
        come first, then those of the fastest program. Where none does, since the compiler runs the
        line or it holds data, those that reach anything of the file, or all."""
        asked = [program for program, files in self.reached.items() if line in files.get(name, ())]
        if not asked:
            asked = [program for program, files in self.reached.items() if files.get(name)]
        if not asked:
            asked = list({program: None for program, _ in self.seconds})
        usual = {program: sum(seconds for (other, _), seconds in self.seconds.items()
                              if other == program) for program in asked}
        key = re.sub(r"[^a-z]", "", pathlib.Path(name).stem)
        return sorted((suite for suite in self.seconds if suite[0] in usual),
                      key=lambda suite: (key not in suite[1].lower(), usual[suite[0]],
                                         self.seconds[suite]))


def measure(programs, counted, sources, jobs):
    """Runs each program once. `counted` names the program that counts for each program, in a build
    for coverage; without it nothing is known of lines, and all suites are asked about each."""
    seconds = {}
    reached = {}

    def run(program):
        with tempfile.TemporaryDirectory() as folder:
            profile = pathlib.Path(folder, "profile")
            ran = subprocess.run([counted.get(program, program)], cwd=folder, check=True,
                                 env={**os.environ, "LLVM_PROFILE_FILE": str(profile)},
                                 capture_output=True, text=True)
            found = re.findall(r"^\[-+\] \d+ tests? from (\S+) \((\d+) ms total\)$", ran.stdout,
                               re.MULTILINE)
            seconds[program] = {suite: int(time) / 1000 for suite, time in found}
            if program in counted:
                reached[program] = reached_lines(counted[program], profile, sources)

    with concurrent.futures.ThreadPoolExecutor(jobs) as pool:
        list(pool.map(run, programs))
    return Suites({(program, suite): seconds[program][suite]
                   for program in programs for suite in seconds[program]},
                  {program: reached[program] for program in programs if program in reached})


def reached_lines(program, profile, sources):
    merged = profile.with_suffix(".merged")
    subprocess.run(["llvm-profdata", "merge", "-o", merged, profile], check=True)
    exported = subprocess.run(
        ["llvm-cov", "export", "-format=lcov", "-skip-expansions", f"-instr-profile={merged}",
         program], check=True, capture_output=True, text=True).stdout
    lines = collections.defaultdict(set)
    name = None
    for line in exported.splitlines():
        if line.startswith("SF:"):
            path = pathlib.Path(line[3:]).resolve()
            name = str(path.relative_to(sources)) if path.is_relative_to(sources) else None
        elif name and line.startswith("DA:"):
            number, count = line[3:].split(",")[:2]
            if count != "0":
                lines[name].add(int(number))
    return lines
