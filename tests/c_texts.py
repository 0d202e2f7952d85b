"""Reads C++, flex and bison sources as far as the checks of the tests need it: the string literals,
and the arguments of calls."""

import re

# A raw string, a quoted text or character, a comment, a preprocessor line, a word or a number
# (whose digits may be parted by quotes), or any one character.
TOKEN = re.compile(
    r'R"(?P<mark>[^( ]*)\((?P<raw>.*?)\)(?P=mark)"'
    r'|"(?:[^"\\\n]|\\.)*"|\'(?:[^\'\\\n]|\\.)*\'|//[^\n]*|/\*.*?\*/|^[ \t]*#[^\n]*'
    r"|[0-9](?:'?[0-9A-Za-z_.])*|[A-Za-z_]\w*|.",
    re.DOTALL | re.MULTILINE)
ESCAPE = re.compile(r"\\(x[0-9A-Fa-f]+|[0-7]{1,3}|.)", re.DOTALL)
ESCAPES = {"n": "\n", "t": "\t", "v": "\v", "b": "\b", "f": "\f", "r": "\r", "a": "\a"}


def unescaped(escape):
    """The character that an escape stands for."""
    if escape[0] == "x":
        return chr(int(escape[1:], 16) & 0xFF)
    if escape[0] in "01234567":
        return chr(int(escape, 8) & 0xFF)
    return ESCAPES.get(escape, escape)


def unquoted(literal):
    """The text that a C string literal stands for."""
    if literal.startswith("R"):
        return TOKEN.fullmatch(literal)["raw"]
    return ESCAPE.sub(lambda match: unescaped(match[1]), literal[1:-1])


def is_literal(token):
    return token.startswith(('"', 'R"'))


def c_tokens(text):
    """The pieces of C text: literals, words and numbers whole, other characters singly, without
    comments and preprocessor lines."""
    for match in TOKEN.finditer(text):
        token = match[0]
        if not token.startswith(("//", "/*")) and not token.lstrip(" \t").startswith("#"):
            yield token


def literals(text):
    """The string literals of C text, adjacent ones joined."""
    joined, result = None, []
    for token in c_tokens(text):
        if is_literal(token):
            joined = (joined or "") + unquoted(token)
        elif not token.isspace():
            if joined is not None:
                result.append(joined)
            joined = None
    return result + ([joined] if joined is not None else [])


def arguments(text, start):
    """The arguments of the call whose opening parenthesis ends just before `start`."""
    result, depth = [""], 0
    for token in c_tokens(text[start:]):
        if token in ("(", "{", "["):
            depth += 1
        elif token in (")", "}", "]"):
            if depth == 0:
                break
            depth -= 1
        if token == "," and depth == 0:
            result.append("")
        else:
            result[-1] += token
    return [argument.strip() for argument in result]
