"""Writes the pages of the manual from Doxygen's XML: one of each function, record and header.

    man_pages.py XML_FOLDER VERSION OUTPUT_FOLDER
"""
import pathlib
import re
import sys
import textwrap
import xml.etree.ElementTree as ElementTree

WIDTH = 78


def escaped(text):
    return text.replace("\\", "\\e").replace("-", "\\-").replace("'", "\\(aq").replace("`", "\\(ga")


def safe(text):
    """Text in which no line begins like a request."""
    return re.sub(r"^([.'])", r"\\&\1", text, flags=re.MULTILINE)


def plain(element):
    return " ".join("".join(element.itertext()).split()) if element is not None else ""


def inline(element):
    """The words of an element, names in bold and code in italics."""
    text = escaped(element.text or "")
    for child in element:
        if child.tag == "ref":
            text += f"\\fB{inline(child)}\\fR"
        elif child.tag == "computeroutput":
            text += f"\\fI{inline(child)}\\fR"
        elif child.tag == "ndash":
            text += "\\(en"
        elif child.tag not in BLOCKS:
            text += inline(child)
        text += escaped(child.tail or "")
    return re.sub(r"\s+", " ", text)


def code(block):
    """Lines as they stand."""
    for space in block.iter("sp"):
        space.text = " "
    lines = ["".join(line.itertext()) for line in block.iter("codeline")]
    if not lines:
        lines = "".join(block.itertext()).strip("\n").split("\n")
    shown = "\n".join(safe(escaped(line)) for line in lines)
    return f".PP\n.in +4n\n.nf\n{shown}\n.fi\n.in"


def bullets(block):
    return "\n".join(
        f".IP \\(bu 2\n{safe(' '.join(inline(part).strip() for part in item.iter('para')))}"
        for item in block.iterfind("listitem")
    )


BLOCKS = {
    "itemizedlist": bullets,
    "programlisting": code,
    "verbatim": code,
    "parameterlist": lambda block: "",
    "simplesect": lambda block: "",
}


def paragraphs(description):
    """The text of a description, without what stands in sections of its own."""
    parts = []
    for paragraph in description.iterfind("para"):
        words = inline(paragraph).strip()
        if words:
            parts.append(f".PP\n{safe(words)}")
        parts += [BLOCKS[child.tag](child) for child in paragraph if child.tag in BLOCKS]
    return [part for part in parts if part]


def sentence(element):
    """What a comment says first, as a page's name wants it."""
    text = re.sub(r"\\f[BIR]", "", inline(element.find("briefdescription")).strip().rstrip("."))
    text = re.sub(r"^Forwards to service [^:]*: ", "", text)
    text = re.split(r"[:;] ", text)[0]
    is_name = re.match(r"[A-Z]+[a-z]*[A-Z]", text)
    return text if is_name else text[:1].lower() + text[1:]


def type_name(element):
    return re.sub(r" \*", "*", plain(element))


def prototype(function):
    """A declaration as the headers write it, broken where it is long."""
    result = type_name(function.find("type"))
    arguments = []
    for argument in function.iterfind("param"):
        name = plain(argument.find("declname"))
        array = plain(argument.find("array"))
        text = f"{type_name(argument.find('type'))} {name}{array}".strip()
        arguments.append(text.replace(" ", "\u00a0"))  # broken between arguments only
    head = f"{result} {plain(function.find('name'))}("
    return textwrap.fill(
        f"{head}{', '.join(arguments) or 'void'});",
        WIDTH - 7, subsequent_indent=" " * len(head), break_long_words=False,
    ).replace("\u00a0", " ")


class Page:
    def __init__(self, name, summary, version):
        self.name = name
        self.parts = [
            '.\\" Written from the headers; changes belong there.',
            f'.TH {name.upper()} 3 "" "Quarlo {version}" "Quarlo"',
            ".nh",
            ".ad l",
            ".SH NAME",
            f"{name} \\- {summary}",
        ]

    def section(self, title, parts):
        parts = list(parts)
        if parts:
            self.parts += [f'.SH "{title}"', *parts]

    def write(self, folder):
        text = "\n".join(self.parts) + "\n"
        # A section's first paragraph needs no distance.
        text = re.sub(r"(\.SH .*\n)\.PP\n", r"\1", text)
        (folder / f"{self.name}.3").write_text(text, encoding="utf-8")


def listing(lines):
    return [".nf", *(safe(escaped(line)) for line in lines), ".fi"]


def items(pairs):
    """Terms and what they mean, both ready to print."""
    return [part for term, meaning in pairs for part in (".TP", term, safe(meaning))]


def description(element):
    brief = inline(element.find("briefdescription")).strip()
    first = [f".PP\n{safe(brief)}"] if brief else []
    return first + paragraphs(element.find("detaileddescription"))


def parameters(function):
    for item in function.iterfind(".//parameterlist[@kind='param']/parameteritem"):
        names = ", ".join(f"\\fI{escaped(plain(name))}\\fR" for name in item.iter("parametername"))
        yield names, " ".join(inline(p).strip() for p in item.iterfind("parameterdescription/para"))


def in_order(function):
    """Parameters by their places in the declaration."""
    places = [plain(name) for name in function.iterfind("param/declname")]
    return sorted(parameters(function), key=lambda p: places.index(re.split(r"\\f[IR]", p[0])[1]))


def results(function):
    for section in function.iterfind(".//simplesect[@kind='return']"):
        for paragraph in section.iterfind("para"):
            words = inline(paragraph).strip()
            yield f".PP\n{safe(words[:1].upper() + words[1:])}."


def see_also(element, header, known, own):
    """The pages that a description names, and the header's."""
    names = {plain(reference).rstrip("()") for reference in element.iter("ref")}
    names = sorted(names & known - {own}) + [page_of_header(header)]
    return [", ".join(f"\\fB{escaped(name)}\\fR(3)" for name in names)]


def page_of_header(header):
    return header.replace("/", "_")


def function_page(function, header, known, version):
    name = plain(function.find("name"))
    file = header.find("location").get("file")
    page = Page(name, sentence(function), version)
    page.section("SYNOPSIS", listing([f"#include <{file}>", "", *prototype(function).split("\n")]))
    page.section("DESCRIPTION", description(function))
    page.section("PARAMETERS", items(in_order(function)))
    page.section("RETURN VALUE", results(function))
    if file.startswith("quarlo/"):  # gpi/host.h says more than a page of a function bears
        page.section("NOTES", paragraphs(header.find("detaileddescription")))
    page.section("SEE ALSO", see_also(function, file, known, name))
    return page


def field_line(field):
    kind = type_name(field.find("type"))
    return f"    {kind} {plain(field.find('name'))}{plain(field.find('argsstring'))};"


def meaning(element):
    """What stands before or behind a declaration, as one text."""
    texts = (element.find(place) for place in ("briefdescription", "detaileddescription"))
    return " ".join(inline(p).strip() for text in texts for p in text.iterfind("para")).strip()


def record_page(record, header, known, version):
    name = plain(record.find("compoundname"))
    fields = list(record.iter("memberdef"))
    page = Page(name, sentence(record), version)
    lines = [f"#include <{header}>", "", f"struct {name} {{", *map(field_line, fields), "};"]
    page.section("SYNOPSIS", listing(lines))
    page.section("DESCRIPTION", description(record))
    page.section("FIELDS", items(
        (f"\\fI{plain(field.find('name'))}\\fR", meaning(field)) for field in fields))
    page.section("SEE ALSO", see_also(record, header, known, name))
    return page


def constants(header):
    for enumeration in header.iterfind(".//memberdef[@kind='enum']"):
        title = sentence(enumeration)
        yield f'.SS "{title[:1].upper()}{title[1:]}"'
        for value in enumeration.iterfind("enumvalue"):
            term = f"{plain(value.find('name'))} {plain(value.find('initializer'))}".strip()
            yield from items([(f"\\fB{escaped(term)}\\fR", meaning(value))])


def header_page(header, name, version):
    page = Page(page_of_header(name), sentence(header), version)
    page.section("SYNOPSIS", listing([f"#include <{name}>"]))
    page.section("DESCRIPTION", description(header))
    functions = header.iterfind(".//memberdef[@kind='function']")
    page.section("FUNCTIONS", items(
        (f"\\fB{plain(f.find('name'))}\\fR(3)", sentence(f)) for f in functions))
    signatures = [t for t in header.iterfind(".//memberdef[@kind='typedef']")
                  if "(*" in plain(t.find("type"))]
    page.section("SIGNATURES", items(
        (f"\\fB{plain(t.find('name'))}\\fR", meaning(t)) for t in signatures))
    page.section("CONSTANTS", constants(header))
    return page


def read(folder, kind):
    for path in sorted(folder.glob("*.xml")):
        compound = ElementTree.parse(path).getroot().find("compounddef")
        if compound is not None and compound.get("kind") == kind:
            yield compound


def main(xml, version, output):
    output.mkdir(parents=True, exist_ok=True)
    headers = list(read(xml, "file"))
    records = list(read(xml, "struct"))
    functions = [(function, header) for header in headers
                 for function in header.iterfind(".//memberdef[@kind='function']")]
    known = {plain(function.find("name")) for function, _ in functions}
    known |= {plain(record.find("compoundname")) for record in records}
    pages = [function_page(function, header, known, version) for function, header in functions]
    pages += [record_page(record, record.find("location").get("file"), known, version)
              for record in records]
    pages += [header_page(header, header.find("location").get("file"), version)
              for header in headers]
    for page in pages:
        page.write(output)


main(pathlib.Path(sys.argv[1]), sys.argv[2], pathlib.Path(sys.argv[3]))
