"""Every record of the public headers has its size and the place of each field asserted.

    check_complete.py SOURCE_FOLDER
"""
import pathlib
import re
import sys

RECORD = re.compile(r"struct (\w+) \{(.*?)^\}", re.DOTALL | re.MULTILINE)
COMMENT = re.compile(r"/\*.*?\*/", re.DOTALL)
FUNCTION = re.compile(r"\(\*(\w+)\)")


def fields(body):
    """The names that a record's declarations end in."""
    for declaration in filter(str.strip, body.split(";")):
        function = FUNCTION.search(declaration)
        if function:
            yield function[1]
        else:
            yield from re.findall(r"(\w+)(?:\[[^]]*\])*\s*(?:,|$)", declaration.rstrip())


def main(folder):
    asserted = "".join(file.read_text() for file in (folder / "tests/layout").glob("records*.c"))
    wanted = []
    for header in sorted((folder / "include").rglob("*.h")):
        for name, body in RECORD.findall(COMMENT.sub("", header.read_text())):
            wanted.append(f"sizeof({name})")
            wanted += [f"offsetof({name}, {field})" for field in fields(body)]
    missing = [place for place in wanted if f"static_assert({place} == " not in asserted]
    for place in missing:
        print(f"not asserted: {place}")
    print(f"{len(wanted) - len(missing)} of {len(wanted)} asserted")
    return 1 if missing or not wanted else 0


if __name__ == "__main__":
    sys.exit(main(pathlib.Path(sys.argv[1])))
