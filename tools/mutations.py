"""The changes that tools/mutate makes in a source text, and the places that a seed draws."""
import collections
import random
import re

# Of a hundred places so many of each kind, as far as there are any.
WEIGHTS = {"deleted statement": 30, "relation": 20, "count": 18, "sign": 10, "condition": 16, "constant": 6}

# The text from `begin` to `end` gives way to `text`.
Change = collections.namedtuple("Change", "kind begin end text")


def masked(text):
    """The text with comments blank, the insides of literals as underscores, and no preprocessor lines."""
    token = re.compile(r'//[^\n]*|/\*.*?\*/|R"(\w*)\(.*?\)\1"|"(?:\\.|[^"\\\n])*"|(?<!\w)\'(?:\\.|[^\'\\\n])+\'|'
                       r"^[ \t]*#(?:\\\n|[^\n])*", re.S | re.M)

    def blank(match):
        found = match.group(0)
        if found[0] in "\"'":
            return found[0] + "_" * (len(found) - 2) + found[-1]
        return re.sub(r"[^\n]", "_" if found.startswith("R") else " ", found)

    return token.sub(blank, text)


def closing(text, at):
    """The place after the bracket that closes the one at `at`; -1 where there is none."""
    depth = 0
    for i in range(at, len(text)):
        depth += {"(": 1, "[": 1, "{": 1, ")": -1, "]": -1, "}": -1}.get(text[i], 0)
        if depth == 0:
            return i + 1
    return -1


SWAPS = {"<": "<=", "<=": "<", ">": ">=", ">=": ">", "==": "!=", "!=": "==", "+": "-", "-": "+", "+=": "-=", "-=": "+=",
         "&&": "||", "||": "&&", "true": "false", "false": "true"}
# An assignment, a call, a step or a jump; declarations have a type and a blank before the name.
STATEMENT = re.compile(r"(?:break|continue);|(?:\+\+|--)[^;\s]+;|[*(]?[A-Za-z_][\w:.]*(?:->|[\w:.\[\]()*])*"
                       r"(?: (?:[-+*/|&]?=|<<) |\(|\+\+;|--;)")
NO_STATEMENT = re.compile(r"(?:if|for|while|switch|return|case|catch|sizeof|static_assert|else|using|decltype)\b")


def statements(code):
    starts = [m.start(1) for m in re.finditer(r"(?<=[;{}:)\n])\n[ \t]+(?=\S)()", code)]
    starts += [m.start(1) for m in re.finditer(r"\bif \(.*\) (?=[\w+*-])()", code)]
    for begin in starts:
        if NO_STATEMENT.match(code, begin) or not STATEMENT.match(code, begin):
            after_condition = code.startswith("return", begin) and re.search(r"\bif \(.*\) $", code[:begin][-200:])
            if not after_condition:
                continue
        end = begin
        while end < len(code) and code[end] not in ";}":
            if code[end] == "{" and "=" not in code[begin:end]:
                break  # the body of a function that looks like a call
            end = closing(code, end) if code[end] in "([{" else end + 1
            if end <= 0:
                break
        if 0 < end < len(code) and code[end] == ";":
            yield Change("deleted statement", begin, end + 1, ";")


def changes(text):
    """Every change that can be made to a source text, in order of their places."""
    code = masked(text)
    found = list(statements(code))
    for m in re.finditer(r"(?<!template) (<=|>=|==|!=|<|>)(?=\s)", code):
        found.append(Change("relation", *m.span(1), SWAPS[m.group(1)]))
    for m in re.finditer(r"(?<=[\w)\]]) (\+=|-=|\+|-)(?= )", code):
        found.append(Change("sign", *m.span(1), SWAPS[m.group(1)]))
    for m in re.finditer(r"(?:(?<=[=(,?:{] )|(?<=\()|(?<=return ))-(?=[\w(])", code):
        found.append(Change("sign", *m.span(), ""))
    for m in re.finditer(r"(?<![\w.])\d+(?![\w.'])", code):
        number = int(m.group(0))
        found += [Change("count", *m.span(), str(number + step)) for step in (1, -1) if number + step >= 0]
    for m in re.finditer(r"(?<![\w.])\d+\.\d+(?![\w.])", code):
        found.append(Change("constant", *m.span(), repr(float(m.group(0)) * 1.5 or 1.0)))
    for m in re.finditer(r"\b(true|false)\b|(?<= )(&&|\|\|)(?=\s)", code):
        kind = "constant" if m.group(1) else "condition"
        found.append(Change(kind, *m.span(), SWAPS[m.group(0)]))
    for m in re.finditer(r"\b(?:if|while) \(", code):
        end = closing(code, m.end() - 1)
        if end > 0:
            found.append(Change("condition", m.end() - 1, end, "(!" + text[m.end() - 1:end] + ")"))
    for m in re.finditer(r"!(?=[\w(])", code):
        found.append(Change("condition", *m.span(), ""))
    return sorted(found, key=lambda c: (c.begin, c.end, c.text))


def draw_places(files, count, seed):
    """`count` changes of all kinds, no two of them in one line. `files` maps names to texts."""
    choice = random.Random(seed)
    by_kind = {kind: [] for kind in WEIGHTS}
    for name in sorted(files):
        for change in changes(files[name]):
            by_kind[change.kind].append((name, change))
    for places in by_kind.values():
        choice.shuffle(places)
    drawn, taken = [], set()
    while len(drawn) < count and any(by_kind.values()):
        kind = choice.choices(list(WEIGHTS), list(WEIGHTS.values()))[0]
        if not by_kind[kind]:
            continue
        name, change = by_kind[kind].pop()
        text = files[name]
        line = text.count("\n", 0, change.begin) + 1
        if (name, line) in taken:
            continue
        taken.add((name, line))
        start = text.rfind("\n", 0, change.begin) + 1
        stop = text.find("\n", change.end)
        drawn.append({"place": len(drawn) + 1, "file": name, "line": line, "kind": kind,
                      "from": text[start:stop], "to": text[start:change.begin] + change.text + text[change.end:stop]})
    return drawn


def locate(text, place):
    """Where the place's text is now: the nearest to its line; -1 where it has gone."""
    at = [m.start() for m in re.finditer("^" + re.escape(place["from"]) + "$", text, re.M)]
    return min(at, key=lambda a: abs(text.count("\n", 0, a) + 1 - place["line"])) if at else -1


def layers(text):
    """cmake/layers.txt: the library of each folder of src/, and for each library those that it links itself."""
    library, links = {}, {}
    for line in text.splitlines():
        words = line.split("#")[0].split()
        if words:
            name, *_ = folders = words[1].split("+")
            library.update({folder: name for folder in folders})
            links[name] = words[2:]
    return library, links


def test_folders(layers_text, tests_text, source):
    """The folders of tests/ whose programs have the code of a file of src/, by however many steps; the file's own first,
    then those of the lowest libraries. `tests_text` is tests/CMakeLists.txt."""
    library, links = layers(layers_text)
    folder = source.split("/", 1)[1]
    while folder not in library:
        folder = folder.rpartition("/")[0]
        if not folder:
            return []
    order = list(links)
    users = {library[folder]}
    for name in order:  # a library comes after all that it links
        if users.intersection(links[name]):
            users.add(name)
    found = []
    for name, linked in re.findall(r"^lumerin_test\((\w+) ([\w -]+)\)", tests_text, re.M):
        places = [order.index(l) for l in (w.removeprefix("lumerin-") for w in linked.split()) if l in users]
        if places:
            found.append((name != folder.replace("/", "_"), min(places), name))
    return [name for _, _, name in sorted(found, key=lambda f: f[:2])]
