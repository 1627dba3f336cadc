"""Writes quarlo/raw.py from the public headers: their constants, records and functions for ctypes.

    generate_raw.py INCLUDE_FOLDER [OUTPUT]

What clang makes of the headers is read, so that layouts and values are the compiler's own.
"""
import json
import pathlib
import re
import subprocess
import sys
import textwrap

HEADERS = ("quarlo/quarlo.h", "quarlo/grf_file.h", "gpi/host.h", "gpi/nc.h")
NAME = re.compile(r"G[A-Z]\w*|G_\w+|Get\w+")

PLAIN = {
    "void": "None", "char": "ctypes.c_char", "int": "ctypes.c_int", "double": "ctypes.c_double",
    "float": "ctypes.c_float", "size_t": "ctypes.c_size_t", "GWord": "ctypes.c_size_t",
    "char16_t": "ctypes.c_uint16",
    **{f"{sign}int{bits}_t": f"ctypes.c_{sign}int{bits}"
       for sign in ("", "u") for bits in (8, 16, 32)},
}
CHECKED = {
    "GWord": "Word",
    **{f"{sign}int{bits}_t": f"{'Unsigned' if sign else 'Signed'}{bits}"
       for sign in ("", "u") for bits in (8, 16, 32)},
}

HEADING = '''\
"""Every function, record and constant of the library and of its host platform, as in C.

Written from the headers by generate_raw.py; changes belong there. The manual has a page of each
function and record: `man GDLineTo`. Types, ranges of numbers and draw handles are checked; results,
and what must not be null beside handles, are C's.
"""
import ctypes

from quarlo.binding import (
    Address, Handle, Signed8, Signed16, Signed32, Text, Unsigned8, Unsigned16, Unsigned32, Word,
    bind, string, units,
)

P = ctypes.POINTER
'''


def declarations(include):
    source = "".join(f"#include <{header}>\n" for header in HEADERS)
    done = subprocess.run(
        ["clang", "-x", "c", "-std=c11", f"-I{include}", "-fsyntax-only", "-Xclang",
         "-ast-dump=json", "-"],
        input=source, capture_output=True, encoding="utf-8", check=True,
    )
    return [
        node for node in json.loads(done.stdout)["inner"]
        if node["kind"] == "EnumDecl" or NAME.fullmatch(node.get("name", ""))
    ]


def function_type(text, pointers):
    """A function pointer, for instance "int32_t (*)(void)"."""
    result, arguments = re.fullmatch(r"(.*?) ?(?:\(\*\))?\((.*)\)", text).groups()
    kinds = [] if arguments == "void" else split(arguments)
    return f"ctypes.CFUNCTYPE({', '.join(stored(kind, pointers) for kind in [result, *kinds])})"


def split(arguments):
    """Arguments, which may be functions with arguments of their own."""
    return re.split(r", (?![^(]*\))", arguments) if arguments else []


def stored(text, callbacks):
    """The type of a field or a result."""
    text = re.sub(r"\bconst ?", "", text).strip()
    array = re.fullmatch(r"([^[]+?) ?((?:\[\d+\])+)", text)
    if array:
        kind = stored(array[1], callbacks)
        for size in reversed(re.findall(r"\d+", array[2])):
            kind = f"{kind} * {size}" if " * " not in kind else f"({kind}) * {size}"
        return kind
    if text.endswith(")"):
        return function_type(text, callbacks)
    if text.endswith("*"):
        target = text[:-1].strip()
        if target == "void" or target.startswith("struct "):  # one that is nowhere defined
            return "ctypes.c_void_p"
        if target == "char":
            return "ctypes.c_char_p"
        return f"P({stored(target, callbacks)})"
    return PLAIN.get(text, text)


def passed(text, callbacks):
    """The type of an argument."""
    bare = re.sub(r"\bconst ?", "", text).strip()
    if bare in CHECKED:
        return CHECKED[bare]
    if text == "const char16_t *":
        return "Text"
    if bare == "char16_t":
        return "Unsigned16"
    if bare == "void *":
        return "Address"
    if bare == "GDrawHandle *":
        return "Handle"
    if text == "char *":
        return "P(ctypes.c_char)"
    return stored(text, callbacks)


def constants(nodes):
    yield "G_NO_COLOR = 0xFFFFFFFF"
    for enumeration in (node for node in nodes if node["kind"] == "EnumDecl"):
        value = -1
        for constant in enumeration.get("inner", []):
            if constant["kind"] == "EnumConstantDecl" and NAME.fullmatch(constant["name"]):
                value = int(constant["inner"][0]["value"]) if has_value(constant) else value + 1
                yield f"{constant['name']} = {value}"


def has_value(constant):
    return any("value" in node for node in constant.get("inner", [])[:1])


def is_function(node):
    return node["kind"] == "FunctionDecl" and node.get("storageClass") != "static"


def callback_types(nodes):
    """Types of functions by name."""
    for node in nodes:
        if node["kind"] == "TypedefDecl" and node["type"]["qualType"].endswith(")"):
            yield node["name"], node["type"]["qualType"]


def fields(record, callbacks):
    for field in record["inner"]:
        if field["kind"] == "FieldDecl":
            kind = stored(field["type"]["qualType"], callbacks)
            yield indented(f'("{field["name"]}", {kind}),')


def prototype(function):
    result = re.match(r"(.*?) ?\(", function["type"]["qualType"])[1]
    arguments = [f"{a['type']['qualType']} {a['name']}".replace(" *", "*")
                 for a in parameters(function)]
    return f"{result.replace(' *', '*')} {function['name']}({', '.join(arguments) or 'void'})"


def parameters(function):
    return [node for node in function.get("inner", []) if node["kind"] == "ParmVarDecl"]


def binding(function, callbacks):
    result = stored(re.match(r"(.*?) ?\(", function["type"]["qualType"])[1], callbacks)
    kinds = [passed(node["type"]["qualType"], callbacks) for node in parameters(function)]
    head = [f"{function['name']} = bind("]
    quoted = textwrap.wrap(prototype(function), 92, drop_whitespace=False)
    head += [f'    "{part}"' for part in quoted]
    return "\n".join(head) + ",\n" + indented(", ".join([result, *kinds])) + ",\n)"


def indented(text):
    return textwrap.fill(text, 100, initial_indent="    ", subsequent_indent="    ")


def used_callbacks(callbacks, functions):
    """What programs hand to functions or get from them; the others are between library and
    platform."""
    words = {word for node in functions for word in re.findall(r"\w+", json.dumps(node))}
    return {name: kind for name, kind in callbacks.items() if name in words}


def module(include):
    nodes = declarations(include)
    functions = [node for node in nodes if is_function(node)]
    callbacks = used_callbacks(dict(callback_types(nodes)), functions)
    records = {}
    for node in nodes:  # in the order of their definitions: what holds another comes behind it
        if node["kind"] == "RecordDecl" and node["name"] != "GGrfInspection":
            records.pop(node["name"], None)
            records[node["name"]] = node
    lines = [HEADING, *constants(nodes)]
    for name in records:
        lines.append(f'\n\nclass {name}(ctypes.Structure):\n    """See `man {name}`."""')
    lines.append("\n")
    lines += [f"{name} = {function_type(kind, callbacks)}" for name, kind in callbacks.items()]
    for name, record in records.items():
        if record.get("completeDefinition"):
            lines += ["", f"{name}._fields_ = [", *fields(record, callbacks), "]"]
    lines.append("")
    lines += [binding(function, callbacks) for function in functions]
    return "\n".join(lines) + "\n"


text = module(pathlib.Path(sys.argv[1]))
if len(sys.argv) > 2:
    pathlib.Path(sys.argv[2]).write_text(text, encoding="utf-8")
else:
    sys.stdout.write(text)
