"""Checks the links between the Markdown pages of a folder: each leads to a file or folder that there
is, and to a heading of its page where it names one; docs/README.md has a link to every page of docs/,
and README.md leads to all pages, over others.

    links.py FOLDER
"""
import pathlib
import re
import sys


def prose(page):
    """A page without its code."""
    text = page.read_text(encoding="utf-8")
    text = re.sub(r"^```.*?^```$", "", text, flags=re.M | re.S)
    text = re.sub(r"^(?:\n(?: {4}.*\n)+)+", "\n", text, flags=re.M)
    return re.sub(r"`[^`\n]*`", "code", text)


def links(page):
    """Targets of links and pictures within the folder: a path, a heading, or both."""
    for target in re.findall(r"\]\(([^)\s]*)\)", prose(page)):
        if not re.match(r"[a-z]+:", target):
            path, _, heading = target.partition("#")
            yield target, (page.parent / path if path else page).resolve(), heading


def headings(page):
    """What links call the headings of a page."""
    text = re.sub(r"^```.*?^```$", "", page.read_text(encoding="utf-8"), flags=re.M | re.S)
    for title in re.findall(r"^#+ +(.*)$", text, re.M):
        title = re.sub(r"\[([^]]*)\]\([^)]*\)", r"\1", title)
        yield re.sub(r"[^\w -]", "", title.lower()).replace(" ", "-")


def page_at(path):
    """The page that a link shows; a folder shows its README.md."""
    page = path / "README.md" if path.is_dir() else path
    return page if page.suffix == ".md" and page.is_file() else None


def reached_from(page):
    reached = set()
    todo = [page.resolve()]
    while todo:
        page = todo.pop()
        if page not in reached:
            reached.add(page)
            todo += filter(None, (page_at(path) for _, path, _ in links(page)))
    return reached


def faults(root):
    root = root.resolve()
    pages = sorted(page for page in root.rglob("*.md")
                   if page.relative_to(root).parts[0] != "build")
    for page in pages:
        for target, path, heading in links(page):
            if not path.exists():
                yield f"{page.relative_to(root)}: leads nowhere: {target}"
            elif heading and heading not in headings(path):
                yield f"{page.relative_to(root)}: no such heading: {target}"
    index = root / "docs/README.md"
    listed = {index, *(path for _, path, _ in links(index))}
    for page in pages:
        if root / "docs" in page.parents and page not in listed:
            yield f"docs/README.md: does not list {page.relative_to(root)}"
    reached = reached_from(root / "README.md")
    for page in pages:
        if page not in reached:
            yield f"README.md: does not lead to {page.relative_to(root)}"


if __name__ == "__main__":
    found = list(faults(pathlib.Path(sys.argv[1])))
    print("\n".join(found))
    sys.exit(1 if found else 0)
