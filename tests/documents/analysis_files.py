"""Reads the result files of a project, as far as the cap's envelopes need them.

Written without the program's code, so that the two can be compared.
"""
import pathlib
import re
import struct

WORDS = 17  # of a force record
NO_FRAME = (1, 2, 6, 8)
PIER, BENT = 0, 7


def single(value):
    return struct.unpack("<f", struct.pack("<f", value))[0]


class Framed:
    """A file of framed records, read by the number of bytes asked for."""

    def __init__(self, path):
        self.data = path.read_bytes()
        assert self.data[0] == 0x4B, path
        self.at = 1

    def take(self, count):
        got = b""
        while len(got) < count:
            length = self.data[self.at] if self.at < len(self.data) else 0x82
            if length == 0x82:
                return None
            block = min(length, 128, count - len(got))
            got += self.data[self.at + 1:self.at + 1 + block]
            self.at += 2 + block
        return got

    def ints(self, count):
        return list(struct.unpack(f"<{count}i", self.take(4 * count))) if count > 0 else []

    def reals(self, count):
        return list(struct.unpack(f"<{count}d", self.take(8 * count))) if count > 0 else []


def keyed(line, key, kind=float):
    match = re.search(re.escape(key) + r"=\s*([-+.\deE]+)", line, re.IGNORECASE)
    return kind(match.group(1)) if match else None


def numbered(base, suffix, k):
    return base.with_name(base.name + suffix + (str(k + 1) if k else ""))


class Element:
    """A cap element: its nodes, whether the model leaves it out, and its forces by case and end."""

    def __init__(self):
        self.node = [0, 0]
        self.masked = False
        self.forces = {}  # case: ((F22, M33, DC) at I, the same at J)

    def force(self, case, end, component):
        return self.forces.get(case, ((0.0,) * 3,) * 2)[end][component]

    def inside(self, case, t, component):
        i, j = self.force(case, 0, component), self.force(case, 1, component)
        return i - single(i - j) * t


class Substructure:
    def __init__(self, base, k, first_type=None):
        self.read_model(base, k)
        first = self.type if first_type is None else first_type
        self.first_type = first
        self.location = 0.0
        self.classes = [0] * self.cases
        self.family = None
        self.build_cap()
        if self.type not in NO_FRAME:
            self.read_forces(numbered(base, ".vmd", k))
        self.bearing_rows = self.read_bearings(base, k) if first in (PIER, BENT) else []
        ash = numbered(base, ".ash", k)
        if ash.exists():
            self.family = Framed(ash).ints(1)[0]
            self.family = None if self.family == -1 else self.family

    def read_model(self, base, k):
        plf, pil = Framed(numbered(base, ".PLF", k)), Framed(numbered(base, ".PIL", k))
        blocks = plf.ints(plf.ints(1)[0])
        self.section_records = [struct.unpack("<iddd", plf.take(28)) for _ in range(sum(blocks))]
        plf.take(256)
        self.nodes_in_list, _, self.type = plf.ints(3)
        file_type = self.type
        words = pil.ints(9)
        if self.type == -1:
            self.type = 2 if words[3] == 1 and words[4] == 1 else 1
        ncv = Framed(base.with_name(base.name + ".ncv"))
        self.cases = ncv.ints(1)[0]
        ncv.ints(4), ncv.ints(1), ncv.ints(1)
        mode = ncv.take(4)
        self.mode = struct.unpack("<i", mode)[0] if mode else 0
        header = plf.ints(13)
        self.columns, self.cantilevers, self.cantilever_nodes, self.extra = header[0:4]
        self.column_nodes, self.span_nodes = header[5:7]
        self.units = 0 if header[8] in (0, 3) else header[8]
        self.column_sections = header[11]
        plf.ints(10)
        coordinates = [plf.reals(3) for _ in range(self.nodes_in_list)]
        [plf.reals(3) for _ in range(self.nodes_in_list)]
        self.foundation = 0
        above = None
        if self.type == PIER:
            above = ((self.columns - 1) * self.span_nodes + (self.column_nodes + 2) * self.columns
                     + (self.cantilever_nodes + 1) * 2)
        elif self.type in (4, 5):
            above = (self.column_nodes + 2) * self.columns
        if above is not None:
            self.foundation = self.nodes_in_list - above
        self.x_of_node = {i + 1: c[0] for i, c in enumerate(coordinates) if i >= self.foundation}
        count = plf.ints(2)[1]
        self.rows = [plf.ints(7) for _ in range(count)]  # number, -, i, j, k, section, -
        if file_type != BENT:
            plf.ints(2)
        self.piles, self.pile_nodes = words[6], words[8]
        pil.take(8 * words[5])
        pil.ints(words[3] - 1), pil.ints(words[4] - 1)
        self.pile_sections = [pil.ints(self.pile_nodes - 1) for _ in range(self.piles)]
        self.numbers = {row[0] for row in self.rows}

    # The cap from left to right: nodes, the elements between neighbours, the place of each support.
    def build_cap(self):
        self.cap_nodes, self.cap, self.support_places = [], [], []
        if self.type not in (PIER, BENT):
            return
        arms = self.cantilever_nodes + 1 if self.cantilevers > 0 else 0
        if self.type == PIER:
            per_column, node = self.column_nodes + 2, self.foundation + 1
            tops, left, spans = [], [], []
            for c in range(self.columns):
                tops.append(node + per_column - 1)
                node += per_column
                if c == 0:
                    left = list(range(node, node + arms))
                    node += arms
                if c + 1 < self.columns:
                    spans.append(list(range(node, node + self.span_nodes)))
                    node += self.span_nodes
            right = list(range(node, node + arms))
        else:
            tops = list(range(1, self.columns + 1))
            node = self.columns + 1
            left = list(range(node, node + arms))
            node += arms
            spans = []
            for _ in range(self.columns - 1):
                spans.append(list(range(node, node + self.span_nodes)))
                node += self.span_nodes
            right = list(range(node, node + arms))
        self.cap_nodes = list(left)
        for c, top in enumerate(tops):
            self.support_places.append(len(self.cap_nodes))
            self.cap_nodes.append(top)
            if c + 1 < self.columns:
                self.cap_nodes += spans[c]
        self.cap_nodes += right
        for i, j in zip(self.cap_nodes, self.cap_nodes[1:]):
            element = Element()
            element.node = [i, j]
            self.cap.append(element)
        self.number_cap(arms)

    # Element numbers run through connectors, the first column, the left arm, the first span, the next
    # column and so on; a number without a row is an element that the model leaves out.
    def number_cap(self, arms):
        number = 4 * self.columns if self.type == PIER and self.foundation >= 2 else 0
        per_column = self.column_nodes + 1 if self.type == PIER else 0
        order = []
        for c in range(self.columns):
            number += per_column
            stretch = [(0, arms)] if c == 0 else []
            begin = self.support_places[c]
            end = self.support_places[c + 1] if c + 1 < self.columns else len(self.cap)
            for first, last in stretch + [(begin, end)]:
                for place in range(first, last):
                    number += 1
                    order.append((place, number))
        for place, number in order:
            self.cap[place].masked = number not in self.numbers
            self.cap[place].number = number

    def read_forces(self, path):
        data = path.read_bytes()
        piles = (self.pile_nodes - 1) * self.piles
        per_case = piles + len(self.rows)
        assert len(data) == per_case * self.cases * WORDS * 4, path
        position = {row[0]: i for i, row in enumerate(self.rows)}
        for element in self.cap:
            if element.masked:
                continue
            for case in range(self.cases):
                record = case * per_case + piles + position[element.number]
                w = struct.unpack_from(f"<{WORDS}f", data, record * WORDS * 4)
                # The file has the forces on the element's ends; a section's own forces turn some of them.
                element.forces[case] = ((-w[1], w[5], w[11]), (w[3], -w[7], w[12]))

    def read_bearings(self, base, k):
        pls = Framed(numbered(base, ".pls", k))
        left, right = pls.ints(12)[0:2]
        entries = [[pls.reals(3) for _ in range(n)] for n in (left, right)]
        rows = 2
        if left == right and any(r[1] - l[1] <= 2.4 for l, r in zip(*entries)):
            rows = 1
        nodes = [[pls.ints(3)[1] for _ in range(max(n - 1, 0))] for n in (left, right)]
        return [nodes[r][:(left, right)[r] // 2] for r in range(rows)]

    def x(self, place):
        return self.x_of_node[self.cap_nodes[place]]


def read_keyed(base, substructures):
    """The project's texts; places and column widths go to the substructures."""
    for sub in substructures:
        sub.widths = [0.0] * sub.columns
        if sub.type == BENT:
            records = [sub.section_records[sections[0] - 1] for sections in sub.pile_sections]
            sub.widths = [first if kind == 1 else second for kind, first, second, _ in records]
    lines = [line.strip() for line in base.with_name(base.name + ".MIS").read_text("cp1252").split("\n")]
    texts = []
    at = lines.index("PROJECTDATA") + 1
    for line, key in zip(lines[at:], "NDTC"):
        texts.append(line.split(key + "= ", 1)[1].strip()[:keyed(line, "L", int)])
    at = lines.index("PIERDATA") + 1
    for line in lines[at + 1:at + 1 + keyed(lines[at], "N", int)]:
        substructures[keyed(line, "P", int) - 1].location = keyed(line, "X")
    if substructures[0].type not in NO_FRAME:
        read_sections(lines, substructures)
    return texts


def read_sections(lines, substructures):
    at = lines.index("PIERXSEC") + 1
    header = lines[at]
    flags = {"C": 0, "B": 0, "R": 0}
    at += 1
    for sub in substructures[:keyed(header, "P", int)]:
        for key in flags:
            value = keyed(lines[at + 2], key, int)
            flags[key] = flags[key] if value is None else value
        at = read_block(lines, at + 3, sub, flags, keyed(header, "L", int) == 1)


def read_block(lines, at, sub, flags, root):
    """Takes the width at the top of the columns, passes the cap's lines, and gives the next block's first line."""
    widths = []
    for e in range(sub.column_nodes + 1 if sub.column_nodes > 0 and sub.columns > 0 else 0):
        at += 1 if e > 0 and flags["C"] else 0
        width = keyed(lines[at], "W")
        widths.append(width ** 0.5 if root and keyed(lines[at], "Z") is not None else width)
    if 1 < flags["C"] <= len(widths):  # the column widens on, half an element further
        top, below = widths[flags["C"] - 1], widths[flags["C"] - 2]
        widths[flags["C"] - 1] = top + (top - below) * 0.5
    if sub.type == PIER and widths:
        sub.widths = [widths[-1]] * sub.columns
    spans = (sub.span_nodes + 1) * (sub.columns - 1)
    arm = sub.cantilever_nodes + 1 if sub.cantilevers > 0 else 0
    if spans > 0:
        at += spans if flags["B"] else 1
    if arm > 0:
        at += arm if flags["R"] else 1
    if flags["R"]:
        at += max(arm, 1)
    return at + 1


def read_limit_states(base, substructures):
    codes = {0: [(101, 105, 0), (106, 107, 2), (108, 111, 1), (112, 113, 3)], 2: [(301, 310, 0), (311, 318, 1)]}
    path = base.with_name(base.name + ".LIM")
    lines = path.read_text("cp1252").split("\n") if path.exists() else ["", ""]
    if keyed(lines[1], "A", int) != 1:
        return
    taken = 0
    for line in lines[3:]:
        if line.strip() == ":":
            break
        row = re.match(r"\s*(-?\d+)[\s,]+-?\d+[\s,]+(-?\d+)", line)
        if row is None:
            continue
        code, count = map(int, row.groups())
        for case in range(taken, taken + count):
            for sub in substructures:
                for first, last, limit_class in codes.get(sub.family, []):
                    if first <= code <= last:
                        sub.classes[case] = limit_class
        taken += count


def read_project(base):
    """The substructures and the four texts of a project; `base` is its input file's path without the suffix."""
    count = Framed(base.with_name(base.name + ".TWR")).ints(1)[0]
    substructures = []
    for k in range(count):
        substructures.append(Substructure(base, k, substructures[0].type if substructures else None))
    texts = read_keyed(base, substructures)
    read_limit_states(base, substructures)
    return substructures, texts
