"""A bar chart of time relative to `cp`, as SVG."""

from xml.sax.saxutils import escape

ROW, LEFT, SCALE_WIDTH, WIDTH = 20, 310, 420, 810
COLOURS = {"quintar --jobs 1": "#2f6db5", "quintar --jobs 1, view options": "#2f6db5", "quintar --jobs 2": "#6aa0dc",
           "quintar --jobs 2, view options": "#6aa0dc", "cp": "#9a9a9a"}


def rows_of(bars):
    for title, medians in bars:
        yield title, None
        for who, seconds in medians.items():
            yield who, seconds / medians["cp"]
        yield "", None


def write(path, bars):
    """`bars` is a list of (title, {contender: seconds}); "cp" is among the contenders."""
    rows = list(rows_of(bars))
    largest = max((ratio for _, ratio in rows if ratio), default=1)
    height = ROW * len(rows) + 50
    svg = [f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {WIDTH} {height}" width="{WIDTH}" '
           f'height="{height}" font-family="sans-serif" font-size="13">',
           f'<rect width="{WIDTH}" height="{height}" fill="white"/>',
           '<text x="12" y="24" font-size="15" font-weight="bold">Time to change how documents open, '
           'as a multiple of copying them</text>']
    for number, (label, ratio) in enumerate(rows):
        y = 50 + number * ROW
        if ratio is None:
            svg.append(f'<text x="12" y="{y}" font-weight="bold">{escape(label)}</text>')
            continue
        length = max(2.0, SCALE_WIDTH * ratio / largest)
        svg.append(f'<text x="24" y="{y}">{escape(label)}</text>')
        svg.append(f'<rect x="{LEFT - 60}" y="{y - 11}" width="{length:.1f}" height="13" '
                   f'fill="{COLOURS.get(label, "#d0a060")}"/>')
        svg.append(f'<text x="{LEFT - 54 + length:.1f}" y="{y}">{ratio:.2f}</text>')
    svg.append("</svg>")
    with open(path, "w") as output:
        output.write("\n".join(svg) + "\n")
