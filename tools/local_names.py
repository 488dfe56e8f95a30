#!/usr/bin/env python3
"""tools/local_names.py SOURCE...: prints, apart by semicolons, those of the sources that cannot be compiled as one with the
others: they have a local name that another one or a header has too. The build and tools/lint ask it.
"""
import functools
import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
LOCAL_BLOCK = re.compile(r"^namespace \{$(.*?)^\}  // namespace$", re.M | re.S)
CONSTANTS = re.compile(r"^(?:constexpr|const|constinit|static) .*$", re.M)  # more than one of them in a line, perhaps
LOCAL_NAME = re.compile(r"^(?!template|extern|using |TEST|INSTANTIATE|MATCHER)[A-Za-z].*?(\w+)(?:\[.*?\])*(?: final)?(?: ?[=({;]| : |$)", re.M)


@functools.cache
def header_constants():
    """The constants and values of enumerations that headers declare; a local one of that name would be ambiguous."""
    texts = (path.read_text(encoding="utf-8") for folder in ("src", "samples") for path in (ROOT / folder).rglob("*.h"))
    return {word for text in texts for word in re.findall(r"\bk[A-Z]\w*", text)}


@functools.cache
def local_names(path):
    """The names that a source declares for itself: in a namespace without a name, or static."""
    text = pathlib.Path(path).read_text(encoding="utf-8")
    found = set(re.findall(r"^static .*?(\w+)\s*[=({;\[]", text, re.M))
    for block in LOCAL_BLOCK.findall(text):
        found |= {match.group(1) for match in LOCAL_NAME.finditer(block)}
        found |= {name for line in CONSTANTS.findall(block) for name in re.findall(r"(\w+) =", line)}
    return found


def alone(paths):
    """The sources that have a local name of an earlier one, or of a header."""
    taken = set()
    for path in paths:
        own = local_names(path)
        if own & taken or own & header_constants():
            yield path
        else:
            taken |= own


if __name__ == "__main__":
    print(";".join(alone(sys.argv[1:])), end="")
