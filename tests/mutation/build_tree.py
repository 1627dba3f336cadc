"""A CMake build by ninja, taken apart: how its objects are compiled and its test programs linked.

Mutants are compiled from a folder of their own that is searched before the source, so that neither
the source nor the build is touched.
"""

import functools
import json
import os
import pathlib
import resource
import shlex
import shutil
import subprocess

COMPILE_TIME = 120  # seconds of the processor: a busy machine takes longer


class BuildTree:
    """The objects of a folder of sources, those of its tests, and the programs of both."""

    def __init__(self, build, sources):
        self.build = pathlib.Path(build).resolve()
        self.sources = pathlib.Path(sources).resolve()
        self.commands = {}  # of each object: arguments without source and object
        self.source_of = {}  # of each object
        self.users = {}  # objects of each file, also of a header
        for entry in json.loads((self.build / "compile_commands.json").read_text()):
            source = pathlib.Path(entry["directory"], entry["file"]).resolve()
            self.add_object(source, without_launcher(shlex.split(entry["command"])))
        self.find_users()
        self.links = {}
        self.archives = {}
        for line in self.output("ninja", "-t", "commands").splitlines():
            self.add_link(shlex.split(line))
        tests = json.loads(self.output("ctest", "--show-only=json-v1"))["tests"]
        commands = [test.get("command", []) for test in tests]
        self.tests = {command[0] for command in commands
                      if command and all(word.startswith("--gtest_") for word in command[1:])}

    def output(self, *command):
        return subprocess.run(command, cwd=self.build, check=True, capture_output=True,
                              text=True).stdout

    def add_object(self, source, words):
        target = words[words.index("-o") + 1]
        dropped = {"-o", target, "-c", words[words.index("-c") + 1]}
        self.commands[target] = [word for word in words if word not in dropped]
        self.source_of[target] = source

    def find_users(self):
        """What ninja noted of the files that each object was made from."""
        target = None
        for line in self.output("ninja", "-t", "deps").splitlines():
            if line and not line[0].isspace():
                target = line.split(":")[0]
            elif line.strip() and target in self.commands:
                self.users.setdefault(self.path_of(line.strip()), set()).add(target)

    @functools.lru_cache(maxsize=None)
    def path_of(self, name):
        return pathlib.Path(os.path.normpath(self.build / name))

    def add_link(self, words):
        """Of a program archives are replaced by their objects, and those of the sources come first:
        so the code of a header is theirs in the whole program."""
        if "qc" in words:
            at = words.index("qc") + 1
            self.archives[words[at]] = [word for word in words[at + 1:] if word.endswith(".o")]
            return
        if "-c" in words or "-o" not in words or "-shared" in words:
            return
        out = words.index("-o")
        program = words[out + 1]
        words = without_launcher(words[2:out]) + words[out + 2:-2]  # : && ... && :
        expanded = [part for word in words for part in self.archives.get(word, [word])]
        own = [word for word in dict.fromkeys(expanded) if self.is_own(word)]
        if own:
            rest = [word for word in expanded if word not in own]
            self.links[str(self.build / program)] = [rest[0], *own, *rest[1:]]

    def is_own(self, target):
        """Whether an object is made from the sources themselves."""
        return target in self.source_of and self.source_of[target].is_relative_to(self.sources)

    def is_test(self, program):
        return program in self.tests

    def files(self):
        """The files of the sources that this build is made from."""
        return sorted(path for path, targets in self.users.items()
                      if path.is_relative_to(self.sources) and any(map(self.is_own, targets)))

    def compile(self, target, overlay, output):
        """Compiles an object with the files of an overlay in place of their originals. False when
        they do not compile."""
        source = self.source_of[target]
        if self.is_own(target):
            # A file looks for others beside itself first.
            shadow = overlay / source.relative_to(self.sources)
            if not shadow.exists():
                shadow.parent.mkdir(parents=True, exist_ok=True)
                shadow.write_bytes(source.read_bytes())
            source = shadow
        command = self.commands[target]
        command = [command[0], f"-I{overlay}", *command[1:], "-w", "-o", str(output), "-c",
                   str(source)]
        output.parent.mkdir(parents=True, exist_ok=True)
        return subprocess.run(command, cwd=self.build, capture_output=True,
                              preexec_fn=confine).returncode == 0

    def link(self, program, replaced, output):
        """Links a program with some of its objects replaced."""
        compiler, *words = [str(replaced.get(word, word)) for word in self.links[program]]
        fast = ["-fuse-ld=lld"] if shutil.which("ld.lld") else []
        subprocess.run([compiler, *fast, *words, "-o", str(output)],
                       cwd=self.build, check=True, capture_output=True)


def confine():
    resource.setrlimit(resource.RLIMIT_CPU, (COMPILE_TIME, COMPILE_TIME))


def without_launcher(words):
    """A command without ccache before it."""
    return words[1:] if pathlib.Path(words[0]).name == "ccache" else words
