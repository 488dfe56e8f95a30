#!/usr/bin/env python3
"""tools/local_names.py SIZE SOURCE...: says which of the sources can be compiled as one, at most SIZE of them together: a
line for each group, its sources apart by semicolons. Two sources that have a local name in common, and a source and a
header that have, are never together. The build and tools/lint ask it.
"""
import collections
import functools
import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
LOCAL_BLOCK = re.compile(r"^namespace \{$(.*?)^\}  // namespace$", re.M | re.S)
SCOPED = re.compile(r"^enum class .*?\};", re.M | re.S)
CONSTANTS = re.compile(r"^(?:constexpr|const|constinit|static) .*$", re.M)  # more than one of them in a line, perhaps
# An alias such as fs is the same in each of them, or the compiler says so.
LOCAL_NAME = re.compile(r"^(?!template|extern|using |namespace |TEST|INSTANTIATE|MATCHER)[A-Za-z].*?(\w+)(?:\[.*?\])*(?: final)?(?: ?[=({;]| : |$)", re.M)


@functools.cache
def included(path):
    """The headers of this repository that a file names itself."""
    folders = (path.parent, ROOT / "src", ROOT / "tests", ROOT)
    names = re.findall(r'^#include "(.*)"', path.read_text(encoding="utf-8"), re.M)
    return [header for name in names for header in [next((f / name for f in folders if (f / name).is_file()), None)] if header]


@functools.cache
def names_in(header):
    """Its types, functions, constants and values of enumerations, but for those written with the enumeration's name."""
    text = header.read_text(encoding="utf-8")
    types = set(re.findall(r"^(?:struct|class|enum|enum class|using) (\w+)", text, re.M))
    text = SCOPED.sub("", text)
    return types | set(re.findall(r"\bk[A-Z]\w*", text)) | set(re.findall(r"^[a-zA-Z][\w:<>,&*\[\] ]*?[ &*](\w+)\(", text, re.M))


@functools.cache
def header_names(path):
    """The names of all headers that a file includes; a local one of that name would be ambiguous or hide the other."""
    found, seen, wanted = set(), set(), [pathlib.Path(path).absolute()]
    while wanted:
        for header in included(wanted.pop()):
            if header not in seen:
                seen.add(header)
                wanted.append(header)
                found |= names_in(header)
    return found


@functools.cache
def local_names(path):
    """The names that a source declares for itself: in a namespace without a name, or static."""
    text = pathlib.Path(path).read_text(encoding="utf-8")
    found = set(re.findall(r"^static .*?(\w+)\s*[=({;\[]|^int main\(", text, re.M))
    for block in LOCAL_BLOCK.findall(text):
        found |= {match.group(1) for match in LOCAL_NAME.finditer(block)}
        found |= {name for line in CONSTANTS.findall(block) for name in re.findall(r"(\w+) =", line)}
    return found


def has_local_fixture(path):
    """Whether a test outside of the namespace without a name has its fixture in it: GCC warns of that in any file but the
    one that it compiles."""
    text = pathlib.Path(path).read_text(encoding="utf-8")
    fixtures = set(re.findall(r"^TEST_[FP]\((\w+)", LOCAL_BLOCK.sub("", text), re.M))
    return any(re.search(rf"\b(?:class|struct|using) {name}\b", block)
               for block in LOCAL_BLOCK.findall(text) for name in fixtures)


def groups(paths, size, kind=lambda path: None):
    """Lists of at most `size` paths of one kind, which is whatever the caller sees as different."""
    count = collections.Counter(name for path in paths for name in local_names(path))
    found = []  # kind, paths, their local names, the names of their headers
    # Those that have a name which many have come first, so that each of them begins a group.
    for path in sorted(paths, key=lambda path: -max((count[name] for name in local_names(path)), default=0)):
        own, others = local_names(path), header_names(path)
        alone = has_local_fixture(path)
        for other, together, taken, known in found:
            if (not alone and other == (kind(path),) and len(together) < size and not own & taken and not own & known
                    and not taken & others):
                together.append(path)
                taken |= own
                known |= others
                break
        else:
            found.append((None if alone else (kind(path),), [path], set(own), set(others)))
    return [together for _, together, *_ in found]


def sources_of_unit(path):
    """The sources that the build compiles as the one of this path: where that is a source, itself alone."""
    if not pathlib.Path(path).name.startswith("unity_"):
        return [path]
    return re.findall(r'^#include "(.*)"', pathlib.Path(path).read_text(encoding="utf-8"), re.M)


if __name__ == "__main__":
    for group in groups(sys.argv[2:], int(sys.argv[1])):
        print(";".join(group))
