"""The tokens of C++ source that runs.

Comments, strings, characters, preprocessor lines, static_asserts and attributes are no tokens here:
they stay as they are. The source is trusted to be formatted: a binary operator stands between
spaces, the brackets of a template do not.
"""

import dataclasses
import re

SKIPPED = re.compile(
    r"""//[^\n]*(?:\\\n[^\n]*)*
      | /\*.*?\*/
      | (?<![^\n])[ \t]*\#(?:[^\\\n]|\\.|\\\n)*
      | (?:u8|[uUL])?R"(?P<mark>[^(\s]*)\(.*?\)(?P=mark)"
      | (?:u8|[uUL])?"(?:[^"\\\n]|\\.)*"
      | (?:u8|[uUL])?'(?:[^'\\\n]|\\.)+'
      | \s+""",
    re.VERBOSE | re.DOTALL)

TOKEN = re.compile(
    r"""(?P<number>(?:0[xX][\da-fA-F']+|0[bB][01']+|
                    (?:\d[\d']*)?\.?\d[\d']*(?:[eE][+-]?\d+)?)\w*\.?)
      | (?P<word>[A-Za-z_]\w*)
      | (?P<operator><=>|<<=|>>=|\.\.\.|->\*|->|\+\+|--|<<|>>|<=|>=|==|!=|&&|\|\||[-+*/%&|^]=|::
                    |[-+*/%&|^~!=<>?:;,.(){}\[\]])""",
    re.VERBOSE)


@dataclasses.dataclass(frozen=True)
class Token:
    """A token and where it stands: [begin, end) in the text."""

    text: str
    kind: str  # number, word or operator
    begin: int
    end: int
    spaced: bool  # white space on both sides


def tokens_of(text):
    """All tokens of a text, without what never runs."""
    return without(all_tokens(text))


def all_tokens(text):
    found = []
    at = 0
    while at < len(text):
        skipped = SKIPPED.match(text, at)
        if skipped:
            at = skipped.end()
            continue
        match = TOKEN.match(text, at)
        if not match:
            raise ValueError(f"no token at {text[at:at + 20]!r}")
        spaced = text[at - 1:at].isspace() and text[match.end():match.end() + 1].isspace()
        found.append(Token(match.group(), match.lastgroup, at, match.end(), spaced))
        at = match.end()
    return found


def without(tokens):
    """The tokens but static_assert(...) and [[...]]."""
    kept = []
    at = 0
    while at < len(tokens):
        if tokens[at].text == "static_assert":
            at = closing(tokens, at + 1) + 1
        elif [token.text for token in tokens[at:at + 2]] == ["[", "["]:
            at = closing(tokens, at) + 1
        else:
            kept.append(tokens[at])
            at += 1
    return kept


def closing(tokens, opening):
    """The index of the bracket that closes the one at an index."""
    depth = 0
    for index in range(opening, len(tokens)):
        depth += {"(": 1, "[": 1, "{": 1, ")": -1, "]": -1, "}": -1}.get(tokens[index].text, 0)
        if depth == 0:
            return index
    raise ValueError("a bracket is not closed")
