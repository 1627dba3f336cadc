"""Hands a public header to Doxygen, with its comments made complete: parameters and results that
are the same everywhere are described from parameters.ini, a function that is named by its result
has that as its result, and a lone constant has the comment of its enumeration. No line moves.

    header_filter.py HEADER
"""
import configparser
import pathlib
import re
import sys

COMMENT = r"/\*\*(?:(?!\*/).)*?\*/"
FUNCTION = re.compile(
    rf"({COMMENT})(\s*(?:QUARLO_API|GPI_API|static inline) ([^;{{(]*?) ?\b\w+)\(([^;{{]*?)\)",
    re.DOTALL,
)
SIGNATURE = re.compile(rf"({COMMENT})(\s*typedef ([^;{{(]*?) ?\(\*\w+\))\(([^;{{]*?)\)", re.DOTALL)
LONE_CONSTANT = re.compile(rf"({COMMENT})(\s*enum \{{ )(\w+ = [^,}}/]+)( \}};)", re.DOTALL)
PARAMETER = re.compile(r"(?:const )?(.+?) ?(\w+)(?:\[\d*\])?")
RESULT = re.compile(
    r"(?:Forwards to service [^:]*: )?"
    r"((?:[Tt]he|Number|Sum|Advance|Cell|Bytes|Pixels|Whether|A) [^@]*)"
)


def read_meanings(header):
    table = configparser.ConfigParser(delimiters="=", interpolation=None)
    table.optionxform = str
    table.read(pathlib.Path(__file__).with_name("parameters.ini"), encoding="utf-8")
    own = table[header] if table.has_section(header) else {}
    return {**table["all"], **own}


def words(comment):
    return " ".join(re.sub(r"^\s*\* ?", "", comment[3:-2], flags=re.MULTILINE).split())


def described(comment):
    """The parameters that a comment describes."""
    names = re.findall(r"@param\s+([\w,]+)", comment)
    return {name for group in names for name in group.split(",")}


def missing_parameters(comment, arguments, meanings):
    for argument in arguments.split(","):
        match = PARAMETER.fullmatch(" ".join(argument.split()))
        if match and match[2] not in described(comment):
            meaning = meanings.get(f"{match[1]} {match[2]}")
            if meaning:
                yield f"@param {match[2]} {meaning} "


def missing_result(comment, result, meanings):
    if result == "void" or "@return" in comment:
        return ""
    named = RESULT.match(words(comment))
    if named:
        text = named[1][0].lower() + named[1][1:].split(". ")[0]
        return f"@return {text.replace('whether', '1 or 0: whether')} "
    meaning = meanings.get(f"{result} return")
    return f"@return {meaning} " if meaning else ""


def complete_function(match, meanings):
    comment, head, result, arguments = match.groups()
    added = "".join(missing_parameters(comment, arguments, meanings))
    added += missing_result(comment, result.removeprefix("const "), meanings)
    return f"{comment[:-2]}{added}*/{head}({arguments})"


def complete_signature(match, meanings):
    """A function of the platform: one that is as another, or describes no parameter, stays so."""
    comment, head, _, arguments = match.groups()
    added = "".join(missing_parameters(comment, arguments, meanings)) if described(comment) else ""
    return f"{comment[:-2]}{added}*/{head}({arguments})"


def filtered(text, meanings):
    text = FUNCTION.sub(lambda match: complete_function(match, meanings), text)
    text = SIGNATURE.sub(lambda match: complete_signature(match, meanings), text)
    return LONE_CONSTANT.sub(lambda m: f"{m[1]}{m[2]}{m[3]} /**< {words(m[1])} */{m[4]}", text)


path = pathlib.Path(sys.argv[1])
sys.stdout.reconfigure(encoding="utf-8")
sys.stdout.write(filtered(path.read_text(encoding="utf-8"), read_meanings(path.name)))
