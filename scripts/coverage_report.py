"""Says how much of src/ the tests reach, from what llvm-cov exports of each build, and fails when
that is not all of it.

    coverage_report.py EXPORT.json...

A line is reached when all code on it is; a branch is one outcome of a condition, also of one side
of && and ||. Counts of a template's instantiations are summed, and each must have been entered.

What cannot be reached says so where it stands: `// not counted: reason`, behind the first line of
the code or condition that is left out. Files that no build here compiles say it in any line.
"""

import collections
import json
import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
EXCLUSION = re.compile(r"//.*\bnot counted: \S")
CODE = 0  # the kind of region that is not a gap, a macro or skipped by the preprocessor


class Source:
    """What is known of one file."""

    def __init__(self, path):
        self.text = path.read_text().splitlines()
        self.excluded = {number for number, line in enumerate(self.text, 1)
                         if EXCLUSION.search(line)}
        self.regions = collections.Counter()  # by (line, column, last line, end column)
        self.branches = {}  # times true and times false, by the same of the condition
        self.instances = collections.Counter()  # entries, by (place, name)

    def at(self, place):
        """The text of a place, line by line."""
        line, column, last, end = place
        lines = self.text[line - 1:last]
        lines[-1] = lines[-1][:end - 1]
        lines[0] = lines[0][column - 1:]
        return " ".join(part.strip() for part in lines)

    def around(self, place):
        """The regions that hold a place and more."""
        return [region for region in self.regions
                if region != place and region[:2] <= place[:2] and place[2:] <= region[2:]]

    def is_counted(self, place):
        """Not what is left out, nor the nothing that remains of what `if constexpr` dropped."""
        return self.at(place).strip(" {") != "" and not any(
            region[0] in self.excluded for region in [place, *self.around(place)])

    def is_constant(self, place):
        """A condition in code that runs, which is itself never evaluated: the compiler knows its
        value, or that of the other side of && or ||. One that is not constant shows as missed.
        Where it drops the whole condition, no outcomes are recorded."""
        operator = self.text[place[0] - 1][:place[1] - 1].rstrip()[-2:]
        dropped = place not in self.branches and operator in ("&&", "||")
        if not dropped and self.branches.get(place) != [0, 0]:
            return False
        inner = max(self.around(place), key=lambda region: (region[:2], -region[2], -region[3]))
        return self.regions[inner] > 0

    def lines(self):
        """Whether each line with code on it is reached."""
        reached = {}
        for place, count in self.regions.items():
            if self.is_counted(place) and not self.is_constant(place):
                for line in range(place[0], place[2] + 1):
                    reached[line] = reached.get(line, True) and count > 0
        return {line: value for line, value in reached.items() if line not in self.excluded}

    def outcomes(self):
        """Whether each outcome of each condition was seen, by (place, outcome)."""
        seen = {}
        for place, counts in self.branches.items():
            if self.is_counted(place) and not self.is_constant(place):
                for outcome, count in zip(("true", "false"), counts):
                    seen[place, outcome] = count > 0
        return seen

    def unentered(self):
        """Instantiations that nothing calls though others of their template are called."""
        return [(place, name) for (place, name), count in self.instances.items()
                if count == 0 and self.is_counted(place)]


def add_export(sources, path):
    for function in json.loads(pathlib.Path(path).read_text())["data"][0]["functions"]:
        files = [pathlib.Path(name).resolve() for name in function["filenames"]]
        inside = [file.is_relative_to(ROOT / "src") for file in files]
        if not any(inside):
            continue
        for file in files:
            if file.is_relative_to(ROOT / "src") and file not in sources:
                sources[file] = Source(file)
        for *place, count, file, _, kind in function["regions"]:
            if inside[file] and kind == CODE:
                sources[files[file]].regions[tuple(place)] += count
        for *place, true, false, file, _, _ in function["branches"]:
            if inside[file]:
                counts = sources[files[file]].branches.setdefault(tuple(place), [0, 0])
                counts[0] += true
                counts[1] += false
        if inside[0]:
            # The clones of a function for several processors are one.
            name = re.sub(r"\.(default|avx2)\.\d+$", "", function["name"])
            place = tuple(function["regions"][0][:4])
            sources[files[0]].instances[place, name] += function["count"]


def main(exports):
    sources = {}
    for path in exports:
        add_export(sources, path)

    complete = True
    sums = [0, 0, 0, 0]
    print(f"{'':44}{'lines':>8}{'reached':>9}{'branches':>10}{'taken':>8}")
    for path in sorted((ROOT / "src").rglob("*.cpp")) + sorted((ROOT / "src").rglob("*.h")):
        name = path.relative_to(ROOT)
        source = sources.get(path)
        if source is None:
            text = path.read_text()
            if path.suffix == ".cpp" and not EXCLUSION.search(text):
                complete = False
                print(f"{str(name):44} is in no build")
            continue
        lines = source.lines()
        outcomes = source.outcomes()
        row = [len(lines), sum(lines.values()), len(outcomes), sum(outcomes.values())]
        sums = [total + value for total, value in zip(sums, row)]
        print(f"{str(name):44}{row[0]:8}{row[1]:9}{row[2]:10}{row[3]:8}")
        for line in sorted(line for line, reached in lines.items() if not reached):
            print(f"    line {line}: {source.text[line - 1].strip()}")
        for place, outcome in sorted(key for key, seen in outcomes.items() if not seen):
            print(f"    line {place[0]} never {outcome}: {source.at(place)}")
        for place, instance in sorted(source.unentered()):
            print(f"    line {place[0]} never entered: {instance}")
        complete &= row[0] == row[1] and row[2] == row[3] and not source.unentered()

    print(f"{'src':44}{sums[0]:8}{sums[1]:9}{sums[2]:10}{sums[3]:8}")
    excluded = [(path, line) for path in sorted((ROOT / "src").rglob("*.*"))
                for line in path.read_text().splitlines() if EXCLUSION.search(line)]
    print(f"not counted: {len(excluded)}")
    for path, line in excluded:
        print(f"    {path.relative_to(ROOT)}: {line[line.index('not counted: ') + 13:]}")
    return 0 if complete else 1


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
