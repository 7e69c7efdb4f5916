"""Turns the figures of scripts/bench-peers into tables and a plot."""
import math
import statistics

RESULTS = "bench/results/peers.tsv"
PAGE = "docs/performance.md"
PLOT = "docs/images/scaling.svg"
BEGIN = "<!-- scripts/bench-peers writes from here -->"
END = "<!-- to here -->"
LIST, FLOOR, COMPONENT = "the list", "plain C++", "the component"
USUAL = "usual"
OTHER_DATA = {"long": "of names and cities of 40 to 200 letters", "few": "of 20 names, 5 cities, 20 amounts and 12 dates",
              "sorted": "with each column in ascending order", "reversed": "with each column in descending order",
              "organ": "whose columns ascend to the middle and descend from there", "ten": "of ten columns, in memory the first five"}
WIDGET = "the widget"  # the list again, which is no peer of itself
PLOTTED = ["load", "sort names", "sort numbers", "sort dates", "find nothing", "save a file", "load a file",
           "1,000 inserts at the front", "scroll by a page and repaint"]
COLORS = ["#1f4e9c", "#b03a2e", "#d68910", "#7d6608", "#1e8449", "#6c3483", "#117a65", "#5d6d7e", "#000000"]


def keep(where, results):
    with open(RESULTS, "w", encoding="utf-8") as file:
        file.write(f"# {where}\n# measure\tdata\trows\tlist\tround\tmilliseconds, or bytes\twhat came out\n")
        file.writelines("\t".join(line) + "\n" for line in results)


def read():
    """The machine, and by kind of data the values of each list by measure and rows, in the order in which they came."""
    with open(RESULTS, encoding="utf-8") as file:
        lines = file.read().splitlines()
    values = {}
    for line in lines[2:]:
        kind, data, rows, name, _, value, _ = line.split("\t")
        values.setdefault(data, {}).setdefault((kind, int(rows)), {}).setdefault(name, []).append(float(value))
    return lines[0][2:], values


def number(value):
    """Three digits, without an exponent."""
    if value >= 1000:
        return f"{float(f'{value:.3g}'):,.0f}"
    return f"{value:.3g}"


def spread(values):
    """Half the way from the least to the largest, in percent of the median."""
    middle = statistics.median(values)
    return f"±{(max(values) - min(values)) / 2 / middle * 100:.0f}" if len(values) > 1 and middle > 0 else ""


def table(values, rows, own, floor):
    """One line a measure, one column a list."""
    kinds = [kind for kind, size in values if size == rows and own in values[kind, size]]
    others = []
    for kind in kinds:
        others += [name for name in values[kind, rows] if name not in (own, floor, *others)]
    columns = [own] + ([floor] if floor else []) + others
    head = ["milliseconds"] + columns + ["to the best peer"] + (["to plain C++"] if floor else [])
    lines = ["| " + " | ".join(head) + " |", "|---|" + "--:|" * (len(head) - 1)]
    for kind in kinds:
        found = values[kind, rows]
        middle = {name: statistics.median(found[name]) for name in found}
        cells = [f"{number(middle[name])} {spread(found[name])}".strip() if name in found else "" for name in columns]
        peers = [middle[name] for name in others if name in middle and name != WIDGET]
        cells.append(f"{middle[own] / min(peers):.2g}" if peers and min(peers) > 0 else "")
        if floor:
            cells.append(f"{middle[own] / middle[floor]:.2g}" if middle.get(floor) else "")
        lines.append(f"| {kind} | " + " | ".join(cells) + " |")
    return lines


def sizes(values, own):
    return sorted({rows for kind, rows in values if own in values[kind, rows]})


def page(where, of_data):
    values = of_data.get(USUAL, {})
    lines = [f"{where}. `scripts/bench-peers`: medians of its rounds, behind them half the spread in percent; a million rows and more once.", ""]
    for rows in sizes(values, LIST):
        lines += [f"### {rows:,} rows", ""] + table(values, rows, LIST, FLOOR) + [""]
    for data in (data for data in of_data if data != USUAL):
        for rows in sizes(of_data[data], LIST):
            lines += [f"### {rows:,} rows {OTHER_DATA[data]}", ""] + table(of_data[data], rows, LIST, FLOOR) + [""]
    if sizes(values, COMPONENT):
        lines += ["### The component under Wine, beside the system's list", ""]
    for data in of_data:
        for rows in sizes(of_data[data], COMPONENT):
            like = f" {OTHER_DATA[data]}" if data in OTHER_DATA else ""
            lines += [f"With {rows:,} rows{like}:", ""] + table(of_data[data], rows, COMPONENT, None) + [""]
    return lines + ["![Milliseconds by rows](images/scaling.svg)"]


def curves(values):
    """By measure, its sizes and medians."""
    for kind in PLOTTED:
        points = [(rows, statistics.median(values[kind, rows][LIST])) for rows in sizes(values, LIST)
                  if LIST in values.get((kind, rows), {})]
        if points:
            yield kind, points


def plot(values):
    """Both axes by powers of ten; a straight line that rises by one square is in proportion to the rows."""
    width, height, left, top, unit = 740, 420, 84, 16, 62
    lowest, decades = -1, 6
    found = list(curves(values))
    first = min(math.log10(points[0][0]) for _, points in found)
    last = max(math.log10(points[-1][0]) for _, points in found)
    across = 380 / max(last - first, 1)

    def place(rows, value):
        x = left + (math.log10(rows) - first) * across
        return x, top + (decades - (math.log10(max(value, 0.1)) - lowest)) * unit

    parts = [f'<svg xmlns="http://www.w3.org/2000/svg" width="{width}" height="{height}" font-family="sans-serif" '
             'font-size="12">', f'<rect width="{width}" height="{height}" fill="#ffffff"/>']
    for power in range(lowest, lowest + decades + 1):
        y = top + (decades - (power - lowest)) * unit
        parts.append(f'<path d="M{left} {y}H{left + 380}" stroke="#dddddd"/>')
        parts.append(f'<text x="{left - 6}" y="{y + 4}" text-anchor="end">{10.0 ** power:,g} ms</text>')
    for power in range(round(first), round(last) + 1):
        x = left + (power - first) * across
        parts.append(f'<path d="M{x:.0f} {top}V{top + decades * unit}" stroke="#dddddd"/>')
        parts.append(f'<text x="{x:.0f}" y="{top + decades * unit + 18}" text-anchor="middle">{10 ** power:,}</text>')
    labels = -1e9
    for (kind, points), color in sorted(zip(found, COLORS), key=lambda entry: place(*entry[0][1][-1])[1]):
        line = " ".join(f"{x:.1f},{y:.1f}" for x, y in (place(*point) for point in points))
        x, y = place(*points[-1])
        labels = max(labels + 14, y)
        parts.append(f'<polyline points="{line}" fill="none" stroke="{color}" stroke-width="1.5"/>')
        parts.append(f'<text x="{x + 8:.0f}" y="{labels + 4:.0f}" fill="{color}">{kind}</text>')
    return "\n".join(parts + ["</svg>", ""])


def write_documents():
    where, of_data = read()
    with open(PAGE, encoding="utf-8") as file:
        text = file.read()
    before, rest = text.split(BEGIN)
    _, after = rest.split(END)
    with open(PAGE, "w", encoding="utf-8") as file:
        file.write("\n".join([before + BEGIN] + page(where, of_data) + [END]) + after)
    with open(PLOT, "w", encoding="utf-8") as file:
        file.write(plot(of_data[USUAL]))
