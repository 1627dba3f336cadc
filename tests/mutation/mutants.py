"""The mutants of a source: each differs from it by one small slip."""

import dataclasses
import re

from cpp_tokens import closing, tokens_of

# What each operator between spaces becomes.
BINARY = {
    "<": ["<=", ">="], "<=": ["<", ">"], ">": [">=", "<="], ">=": [">", "<"],
    "==": ["!="], "!=": ["=="], "&&": ["||"], "||": ["&&"],
    "+": ["-"], "-": ["+"], "*": ["/"], "/": ["*"], "%": ["*"],
    "&": ["|"], "|": ["&"], "^": ["|"], "<<": [">>"], ">>": ["<<"],
    "+=": ["-="], "-=": ["+="], "*=": ["/="], "/=": ["*="], "%=": ["*="],
    "&=": ["|="], "|=": ["&="], "^=": ["|="], "<<=": [">>="], ">>=": ["<<="],
}

WORDS = {"true": "false", "false": "true", "min": "max", "max": "min",
         "front": "back", "back": "front", "break": "continue", "all_of": "any_of",
         "any_of": "all_of"}

# Words that begin a declaration or control what follows, so that no statement of theirs is taken
# out.
KEYWORDS = {
    "alignas", "auto", "bool", "case", "char", "class", "const", "constexpr", "consteval",
    "default", "delete", "do", "double", "else", "enum", "explicit", "extern", "float", "for",
    "friend", "goto", "if", "inline", "int", "long", "namespace", "operator", "private",
    "protected", "public", "return", "short", "signed", "static", "struct", "switch", "template",
    "throw", "typedef", "typename", "union", "unsigned", "using", "virtual", "void", "volatile",
    "while"}

CALL_OR_ASSIGNMENT = {"(", ".", "->", "[", "=", "++", "--", "+=", "-=", "*=", "/=", "%=", "&=",
                      "|=", "^=", "<<=", ">>="}


@dataclasses.dataclass(frozen=True)
class Mutant:
    """A replacement of [begin, end) of a text."""

    begin: int
    end: int
    old: str
    new: str

    def apply(self, text):
        return text[:self.begin] + self.new + text[self.end:]


def mutants_of(text):
    """All mutants of a text, in its order."""
    tokens = tokens_of(text)
    found = []
    for index, token in enumerate(tokens):
        found += of_token(tokens, index)
        if token.text in ("if", "while"):
            found += of_condition(text, tokens, index)
        if begins_statement(tokens, index):
            found += of_statement(text, tokens, index)
    return found


def replaced(token, new):
    return Mutant(token.begin, token.end, token.text, new)


def of_token(tokens, index):
    token = tokens[index]
    before = tokens[index - 1] if index > 0 else None
    if token.kind == "number":
        return of_number(token)
    if token.kind == "word":
        return [replaced(token, WORDS[token.text])] if token.text in WORDS else []
    if token.spaced and token.text in BINARY and before.text not in ("operator", "[", "("):
        return [replaced(token, new) for new in BINARY[token.text]]
    if token.text in ("++", "--"):
        return [replaced(token, "--" if token.text == "++" else "++")]
    if token.text in ("!", "~", "-") and not token.spaced and before.text != "operator":
        return [replaced(token, "")]
    return []


def of_number(token):
    """One more and one less; of floating point, twice as much."""
    match = re.fullmatch(r"(0[xXbB])?([\da-fA-F']+?)([uUlL]*)", token.text)
    digits = match and match[2].replace("'", "")
    if not match or (not match[1] and not digits.isdigit()):
        return [replaced(token, f"2 * {token.text}")]
    base = {None: 10, "0x": 16, "0b": 2}[match[1] and match[1].lower()]
    value = int(digits, base)
    form = {10: "{:d}", 16: "0x{:X}", 2: "0b{:b}"}[base]
    return [replaced(token, form.format(value + step) + match[3])
            for step in (1, -1) if value + step >= 0]


def of_condition(text, tokens, index):
    """if (condition) and while (condition), also of if constexpr."""
    opening = index + 2 if tokens[index + 1].text == "constexpr" else index + 1
    close = closing(tokens, opening)
    begin, end = tokens[opening].end, tokens[close].begin
    if any(token.text == ";" for token in tokens[opening:close]):
        return []
    condition = text[begin:end]
    return [Mutant(begin, end, condition, f"!({condition})")]


def begins_statement(tokens, index):
    return index > 0 and tokens[index - 1].text in (";", "{", "}", ")", "else", "do", ":")


def of_statement(text, tokens, index):
    """A call or an assignment that is a statement of its own is left out."""
    if not is_expression(tokens, index):
        return []
    last = index
    while tokens[last].text != ";":
        if tokens[last].text in ")]}":
            return []
        last = closing(tokens, last) + 1 if tokens[last].text in "([{" else last + 1
        if last >= len(tokens):
            return []
    before = tokens[index - 1]
    if before.text == ")" and not ends_control(tokens, index - 1):
        return []
    if before.text == ":" and any(token.text == "?" for token in tokens[max(0, index - 12):index]):
        return []
    begin, end = tokens[index].begin, tokens[last].begin
    return [Mutant(begin, end, text[begin:end], "")]


def is_expression(tokens, index):
    """Whether a statement begins here with a name, or ++ or *, and goes on as a call or an
    assignment. A name that follows a name is a declaration."""
    if tokens[index].text in ("++", "--", "*"):
        return tokens[index + 1].kind == "word"
    if tokens[index].kind != "word" or tokens[index].text in KEYWORDS:
        return False
    while tokens[index + 1].text == "::":
        index += 2
    return tokens[index + 1].text in CALL_OR_ASSIGNMENT


def ends_control(tokens, close):
    """Whether a bracket closes the head of if, for, while or switch."""
    depth = 0
    for index in range(close, 0, -1):
        depth += {")": 1, "(": -1}.get(tokens[index].text, 0)
        if depth == 0:
            return tokens[index - 1].text in ("if", "for", "while", "switch", "constexpr")
    return False
