"""Turns gcovr's counts into a report by room: scripts/coverage.py COUNTS.json REPORT.md; fails as scripts/coverage says."""

import json
import sys
from collections import defaultdict
from pathlib import Path

ROOMS = ["guards", "records", "drawing", "bars", "about", "tips", "helpers", "ordering", "content",
         "model", "render", "interaction", "sortfind", "persistence", "scroll"]
ENOUGH = 97.0  # of 100 lines of a room
REASONS = "scripts/uncovered.txt"


def percent(part, whole):
    return 100.0 * part / whole if whole else 100.0


def merged(lines):
    """One entry a line: a template's instances each have their own."""
    counts = defaultdict(int)
    branches = defaultdict(dict)
    for line in lines:
        if line.get("gcovr/noncode"):
            continue
        number = line["line_number"]
        counts[number] += line["count"]
        for place, branch in enumerate(line["branches"]):
            branches[number][place] = branches[number].get(place, 0) + branch["count"]
    return counts, branches


def read_entries(file):
    """By file: how a line begins, and why no test reaches it."""
    entries = defaultdict(list)
    for line in Path(file).read_text(encoding="utf-8").splitlines():
        if line and not line.startswith("#"):
            name, beginning, reason = line.split("\t")
            entries[name].append((beginning, reason))
    return entries


def justifications(lines, entries):
    """Line numbers with the reason that holds for each, and the entries that fit no line."""
    reasons, idle = {}, []
    for beginning, reason in entries:
        found = [number for number, line in enumerate(lines, 1) if line.strip().startswith(beginning)]
        if not found:
            idle.append(beginning)
        for number in found:
            depth = len(lines[number - 1]) - len(lines[number - 1].lstrip())
            reasons[number] = reason
            while number < len(lines) and len(lines[number]) - len(lines[number].lstrip()) > depth:
                number += 1
                reasons[number] = reason
    return reasons, idle


def main(counts_file, report_file):
    files = json.loads(Path(counts_file).read_text(encoding="utf-8"))["files"]
    totals = {room: [0, 0, 0, 0] for room in ROOMS}  # lines reached, lines, branches reached, branches
    entries = read_entries(REASONS)
    explained, unexplained = [], []
    needless = [f"{name}: there is no such file" for name in entries if not Path(name).exists()]
    for file in sorted(files, key=lambda entry: entry["file"]):
        room = Path(file["file"]).parts[1]
        counts, branches = merged(file["lines"])
        total = totals[room]
        total[0] += sum(1 for count in counts.values() if count > 0)
        total[1] += len(counts)
        for line in branches.values():
            total[2] += sum(1 for count in line.values() if count > 0)
            total[3] += len(line)
        source = Path(file["file"]).read_text(encoding="utf-8").splitlines()
        reasons, idle = justifications(source, entries[file["file"]])
        needless += [f"{file['file']}: no line begins with `{beginning}`" for beginning in idle]
        for number, count in sorted(counts.items()):
            if count == 0:
                place = f"{file['file']}:{number}: `{source[number - 1].strip()}`"
                if number in reasons:
                    explained.append(f"{place}: {reasons[number]}")
                else:
                    unexplained.append(place)
        if reasons and not any(counts.get(number, 1) == 0 for number in reasons):
            needless.append(f"{file['file']}: every line that is said to be out of reach was reached")

    report = ["# Coverage", "", "| room | lines | of | % | branches | of | % |", "|---|--:|--:|--:|--:|--:|--:|"]
    low = []
    for room, (lines, all_lines, taken, all_branches) in totals.items():
        share = percent(lines, all_lines)
        report.append(f"| {room} | {lines} | {all_lines} | {share:.1f} "
                      f"| {taken} | {all_branches} | {percent(taken, all_branches):.1f} |")
        if share < ENOUGH:
            low.append(f"{room}: {share:.1f} % of its lines are reached, {ENOUGH:.0f} % are wanted")
    sums = [sum(column) for column in zip(*totals.values())]
    report.append(f"| all | {sums[0]} | {sums[1]} | {percent(sums[0], sums[1]):.1f} "
                  f"| {sums[2]} | {sums[3]} | {percent(sums[2], sums[3]):.1f} |")
    for title, entries in [("Not reached, and why", explained), ("Not reached, without a reason", unexplained),
                           ("Reasons without need", needless)]:
        if entries:
            report += ["", f"## {title}", ""] + [f"- {entry}" for entry in entries]
    Path(report_file).write_text("\n".join(report) + "\n", encoding="utf-8")
    print("\n".join(report))
    for complaint in low:
        print(f"coverage: {complaint}", file=sys.stderr)
    return 1 if low or unexplained or needless else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
