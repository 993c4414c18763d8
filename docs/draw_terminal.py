"""Draws the text on standard input as a terminal window, in SVG, to standard output. Lines that begin with "$ " are commands."""

import sys
from xml.sax.saxutils import escape

FONT_SIZE = 14
CHARACTER_WIDTH = 8.43  # of the usual monospaced fonts at this size
LINE_HEIGHT = 19
MARGIN = 20
TITLE_BAR = 32

lines = sys.stdin.read().expandtabs().rstrip("\n").split("\n")
width = round(max(map(len, lines)) * CHARACTER_WIDTH + 2 * MARGIN)
height = TITLE_BAR + len(lines) * LINE_HEIGHT + MARGIN

print(f"""<svg xmlns="http://www.w3.org/2000/svg" width="{width}" height="{height}" viewBox="0 0 {width} {height}">
<rect width="{width}" height="{height}" rx="8" fill="#1e2127"/>
<circle cx="20" cy="17" r="5" fill="#e06c75"/>
<circle cx="38" cy="17" r="5" fill="#e5c07b"/>
<circle cx="56" cy="17" r="5" fill="#98c379"/>
<g font-family="ui-monospace, 'DejaVu Sans Mono', Menlo, Consolas, monospace" font-size="{FONT_SIZE}" fill="#d7dae0"
   xml:space="preserve">""")
for number, line in enumerate(lines, start=1):
    if not line:
        continue
    y = TITLE_BAR + number * LINE_HEIGHT - 5
    look = ' fill="#98c379" font-weight="bold"' if line.startswith("$ ") else ""
    print(f'<text x="{MARGIN}" y="{y}"{look}>{escape(line)}</text>')
print("</g>\n</svg>")
