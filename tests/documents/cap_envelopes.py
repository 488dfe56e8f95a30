#!/usr/bin/env python3
"""Works out the envelope data file of a project from the files of the analysis alone.

usage: cap_envelopes.py BASE        prints it; BASE is the input file's path without its suffix

Written without the program's code and documents, so that the two can be compared. The way is another one: it collects all
places of the cap with the elements that meet there and finds the extremes of each place by itself.
"""
import pathlib
import sys

from analysis_files import PIER, read_project

MAX, MIN = 0, 1
F22, M33, DC = 0, 1, 2  # of an element's forces
LEFT, RIGHT = 1, 0  # the end of an element that is asked at a place: the left one ends there, the right one starts


def extreme_case(cases, value, extreme, tie=None):
    """The first case with the extreme value; where values are equal the greater tie value wins."""
    best = None
    for case in cases:
        v = value(case)
        if best is None or (v > best[0] if extreme == MAX else v < best[0]):
            best = (v, case)
        elif v == best[0] and tie is not None and tie(case) > tie(best[1]):
            best = (v, case)
    return best


class Question:
    """Which of the selected cases govern; a component and its rules."""

    def __init__(self, sub, cases, component, extreme):
        self.sub, self.cases, self.component, self.extreme = sub, cases, component, extreme

    # A candidate: value, D/C there, case; None where the element is missing. "none": no case takes part.
    def at_end(self, place, end):
        if not 0 <= place < len(self.sub.cap) or self.sub.cap[place].masked:
            return None
        e = self.sub.cap[place]
        tie = (lambda c: e.force(c, end, DC)) if self.component == M33 else None
        best = extreme_case(self.cases, lambda c: e.force(c, end, self.component), self.extreme, tie)
        return (best[0], e.force(best[1], end, DC), best[1]) if best else "none"

    def inside(self, place, t):
        e = self.sub.cap[place]
        if e.masked:
            return None
        tie = (lambda c: e.inside(c, t, DC)) if self.component == M33 else None
        best = extreme_case(self.cases, lambda c: e.inside(c, t, self.component), self.extreme, tie)
        return (best[0], e.inside(best[1], t, DC), best[1]) if best else "none"

    # Of the two elements that meet at a place. In shear a tie goes to the left one, in moment to the one
    # with the higher D/C and then to the right one.
    def of_both(self, a, b):
        if a is None or b is None or "none" in (a, b):
            return a if b is None else b
        if a[0] == b[0]:
            return a if self.component == F22 or a[1] > b[1] else b
        a_governs = a[0] > b[0] if self.extreme == MAX else a[0] < b[0]
        return a if a_governs else b

    def at_node(self, place):
        return self.of_both(self.at_end(place - 1, LEFT), self.at_end(place, RIGHT))

    # A face lies between its support and the next one, or on the arm.
    def at_x(self, x, first, last):
        for place in range(first, last + 1):
            if self.sub.x(place) == x:
                return self.at_node(place)
        for place in range(first, last):
            if self.sub.x(place) < x < self.sub.x(place + 1):
                return self.inside(place, (x - self.sub.x(place)) / (self.sub.x(place + 1) - self.sub.x(place)))
        return None


def support_rows(sub, question):
    """(x, label, answer) of every support section, in order of supports and kinds."""
    rows = []
    places = sub.support_places
    for c, place in enumerate(places):
        x, half = sub.x(place), sub.widths[c] / 2
        before = places[c - 1] if c > 0 else 0
        after = places[c + 1] if c + 1 < len(places) else len(sub.cap)
        outer_left, outer_right = c == 0, c + 1 == len(places)
        if not outer_left or (sub.cantilevers > 0 and sub.x(0) <= x - half):
            rows.append((x - half, f" {c + 1} LF", question.at_x(x - half, before, place)))
        # Kept as engineers know it: on columns without arms the second and later supports are asked one node
        # further right, and the last one, where no node follows, has no centreline.
        at = place + 1 if sub.type == PIER and sub.cantilevers < 1 and c > 0 else place
        if question.component == F22:
            rows.append((x, f" {c + 1} LCL", question.at_end(at - 1, LEFT) if at <= len(sub.cap) else None))
            rows.append((x, f" {c + 1} RCL", question.at_end(at, RIGHT)))
        else:
            rows.append((x, f" {c + 1} CL", question.at_node(at) if at <= len(sub.cap) else None))
        if not outer_right or (sub.cantilevers > 0 and x + half <= sub.x(len(sub.cap))):
            rows.append((x + half, f" {c + 1} RF", question.at_x(x + half, place, after)))
    # Without arms the list of the supports has no room for the last entries; where an arm ends inside its
    # support there is a place for a face that does not exist, and the entry reads as the first left face at 0.
    kinds = 4 if question.component == F22 else 3
    room = kinds * len(places) - (0 if sub.cantilevers > 0 else 4 if question.component == F22 else 2)
    rows = rows[:room]
    rows += [(0.0, " 1 LF", "unwritten")] * (room - len(rows))
    return rows


def merged_bearings(sub):
    """(x, node, number, code): 0 left row, 1 right row, 2 the only row, 3 both rows at one place."""
    rows = [[(sub.x_of_node.get(node, 0.0), node, n + 1) for n, node in enumerate(row)] for row in sub.bearing_rows]
    if len(rows) == 1:
        return [bearing + (2,) for bearing in rows[0]]
    merged = []
    left, right = rows if rows else ([], [])
    while left and right:
        if left[0][0] == right[0][0]:
            merged.append(left.pop(0) + (3,))
            right.pop(0)
        elif left[0][0] < right[0][0]:
            merged.append(left.pop(0) + (0,))
        else:
            merged.append(right.pop(0) + (1,))
    return merged + [b + (0,) for b in left] + [b + (1,) for b in right]


def bearing_rows(sub, question):
    """For each bearing its rows: (x, label, answer), two in shear."""
    out = []
    for x, node, number, code in merged_bearings(sub):
        place = sub.cap_nodes.index(node) if node in sub.cap_nodes else None
        ends = place is not None and place > 0
        starts = place is not None and place < len(sub.cap)
        if question.component == M33:
            label = f"Brg {number}" + (" LR", " RR", "", "")[code]
            out.append([(x, label, question.at_node(place) if place is not None else None)])
            continue
        labels = [f"Brg {number}" + word for word in
                  ((" LR", " LR"), (" RR", " RR"), (" L", " R"), (" L", " R"))[code]]
        # A bearing reads the element as it is in the list, left out of the model or not.
        answers = [question_at_listed(question, place - 1, LEFT) if ends else None,
                   question_at_listed(question, place, RIGHT) if starts else None]
        # The left row asks for an element that starts here, the right row for one that ends.
        if answers[0] is not None and not starts:
            answers[0] = "none"
        if answers[1] is not None and not ends:
            answers[1] = "none"
        out.append([(x, label, answer) for label, answer in zip(labels, answers)])
    return out


def question_at_listed(question, place, end):
    e = question.sub.cap[place]
    best = extreme_case(question.cases, lambda c: e.force(c, end, question.component), question.extreme)
    return (best[0], 0.0, best[1]) if best else "none"


def block(sub, question, us):
    supports, bearings = support_rows(sub, question), bearing_rows(sub, question)
    text = ""
    while supports or bearings:
        take_bearing = bearings and (not supports or bearings[0][0][0] < supports[0][0])
        for x, label, answer in (bearings.pop(0) if take_bearing else [supports.pop(0)]):
            position = (x - sub.location) / 12.0 if us else x
            text += f"L= {label:<12}C=  {position:15.2f}"
            if answer == "none":
                text += "none\n"
            else:
                value, case = (0.0, 0) if answer in (None, "unwritten") else (answer[0], answer[2])
                text += f" E= {case:<12} F=  {value:15.2f}\n"
    return text + ":\n\n"


def shear_points(sub):
    return 4 * len(sub.support_places) - (0 if sub.cantilevers > 0 or not sub.cap else 4)


def work_out(base, chosen=None):
    """The whole file as text with plain line ends; `base` is the input file's path without its suffix."""
    subs, texts = read_project(pathlib.Path(base))
    first, last = subs[0], subs[-1]
    chosen = range(first.cases) if chosen is None else chosen
    combinations = first.family is not None
    present = [combinations and first.family != 1 and any(first.classes[c] == n for c in chosen) for n in range(4)]
    out = (f"GENERAL\nU= {last.units}\nP= {len(subs)}\nA= {int(combinations)}\nT= {first.mode}\n:\n\nPROJECTDATA\n"
           + "\n".join(texts) + "\n:\n\nSTRUCTURETYPE\n")
    for sub in subs:
        bearings = len(merged_bearings(sub)) if sub.cap else 0
        moment = (3 * len(sub.support_places) - (0 if sub.cantilevers > 0 else 2)) if sub.cap else 0
        shear = shear_points(sub) if sub.cap else 0
        out += f"S= {sub.type} N= {shear + 2 * bearings} M= {moment + bearings} B= {len(sub.bearing_rows)}\n"
    out += ":\n\n"
    if combinations:
        out += f"AASHTO_LIMITSTATE_STATUS\nD= {first.family}\n"
        keys = {0: [("SHSTR", 0), ("SHEXT", 2), ("SHSER", 1), ("MOSTR", 0), ("MOEXT", 2), ("MOSER", 1), ("MOFAT", 3)],
                2: [("SHLFD", 0), ("SHSLD", 1), ("MOLFD", 0), ("MOSLD", 1)]}.get(first.family, [])
        out += "".join(f"{key}= {int(present[n])}\n" for key, n in keys) + ":\n\n"
    slots = [(None, "")]
    if combinations and first.family in (0, 2):
        words = {0: ["STRENGTH_", "SERVICE_", "EXTREME_", "FATIGUE_"],
                 2: ["LOAD_FACTOR_DESIGN_", "SERVICE_LOAD_DESIGN_"]}[first.family]
        slots = [(n, word) for n, word in enumerate(words) if present[n]]
    for component, kind in ((F22, "SHEAR_"), (M33, "MOMENT_")):
        for p, sub in enumerate(subs):
            for extreme, word in ((MAX, "MAX"), (MIN, "MIN")):
                for slot, name in slots:
                    if component == F22 and slot == 3:
                        continue
                    cases = [c for c in chosen if slot is None or sub.classes[c] == slot]
                    out += f"{kind}{name}{word}_PIER{p}\n"
                    out += block(sub, Question(sub, cases, component, extreme), last.units == 0)
    return out


if __name__ == "__main__":
    sys.stdout.write(work_out(sys.argv[1]))
