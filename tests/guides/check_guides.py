"""Checks the pages for those who program panels: what they print as C stands so in the example that
they name, and a step of the tutorial prints all that is new in it.

    check_guides.py SOURCE_FOLDER
"""
import pathlib
import re
import sys
import textwrap

root = pathlib.Path(sys.argv[1])
faults = []


def chunks(page):
    """The code blocks of a page, each with the example that the text before it names last."""
    source = None
    block = None
    for line in page.read_text(encoding="utf-8").splitlines():
        if block is None:
            for link in re.findall(r"\]\(([^)#]+\.[ch])\)", line):
                source = (page.parent / link).resolve()
            if line == "```c":
                block = []
        elif line == "```":
            yield source, block
            block = None
        else:
            block.append(line)


def stands_in(block, lines):
    """Whether consecutive lines are a block, but for an indentation that all of them share."""
    wanted = textwrap.dedent("\n".join(block))
    size = len(block)
    return any(
        textwrap.dedent("\n".join(lines[i : i + size])) == wanted
        for i in range(len(lines) - size + 1)
    )


def check_code(page):
    for source, block in chunks(page):
        if source is None or not source.is_file():
            faults.append(f"{page}: code without an example: {block[0]}")
        elif not stands_in(block, source.read_text(encoding="utf-8").splitlines()):
            faults.append(f"{page}: not so in {source.name}: {block[0]}")


def check_steps(page):
    """Each line of a step that no step before it has is printed under that step."""
    shown = {}
    for source, block in chunks(page):
        shown.setdefault(source, set()).update(line.strip() for line in block)
    known = set()
    if not shown:
        faults.append(f"{page}: no steps")
    for source, printed in shown.items():
        lines = [line.strip() for line in source.read_text(encoding="utf-8").splitlines()]
        for line in lines[1:]:
            if len(line) > 1 and line not in known and line not in printed:
                faults.append(f"{page}: new in {source.name} and not shown: {line}")
        known.update(lines)


guides = [root / "docs/tutorial.md", *sorted((root / "docs/howto").glob("*.md"))]
for guide in guides:
    check_code(guide)
check_steps(guides[0])
print("\n".join(faults))
sys.exit(1 if faults else 0)
