#!/usr/bin/env python3
"""Draws docs/pictures/floors.svg from the floors that tools/check-floors.py checks."""
import importlib.util
from xml.sax.saxutils import escape

from project_files import ROOT
from svg_page import svg_page

PICTURE = ROOT / "docs/pictures/floors.svg"
PLUGIN = "KZPreference/"
WHAT = {
    "companion": "companion, prefs-session, prefs-bench",
    "core": "entry, dispatch, what actions do",
    "windows": "toolbar, cross-fade, signed in and guest",
    "panes": "general, account, meetings, notifications, video devices",
    "authentication": "challenges, Office 365 tokens",
    "layout": "what panes share",
    "contract": "abstract classes",
    "adal": "sign-in",
    "host": "shared library",
    "platform": "points, look",
}
WIDTH, MARGIN, HEIGHT, GAP, PLUGIN_LEFT, COLUMN = 640, 10, 34, 6, 34, 178
STYLE = """
text { fill: #1d2330; font-size: 13px }
.name { font-weight: 600 }
.what { fill: #4a5263 }
.paper { fill: #ffffff }
rect { stroke: #9aa3b2 }
.paper, .plugin { stroke: none }
.top { fill: #dbe7fb }
.own { fill: #e4efe0 }
.base { fill: #f6e9d8 }
.plugin { fill: none; stroke: #6f9560; stroke-dasharray: 5 4 }
.pluginName { fill: #41653a; font-weight: 600 }
"""
DARK = """
text { fill: #e8eaef }
.what { fill: #aab3c2 }
.paper { fill: #1b1f27 }
rect { stroke: #667082 }
.top { fill: #26354f }
.own { fill: #2b3a29 }
.base { fill: #443523 }
.plugin { stroke: #6f9560 }
.pluginName { fill: #9ccb8f }
"""


def checked_floors():
    spec = importlib.util.spec_from_file_location("check_floors", ROOT / "tools/check-floors.py")
    module = importlib.util.module_from_spec(spec)
    spec.loader.exec_module(module)
    return [[folder for folder in floor if folder.removeprefix(PLUGIN) in WHAT] for floor in module.FLOORS]


def box(x, y, width, folder, style):
    name = folder.removeprefix(PLUGIN)
    label = f'<tspan class="name">{escape(name)}</tspan>'
    # Boxes that share a floor are too narrow for a column of names.
    place = f'x="{COLUMN}"' if width > WIDTH / 2 else 'dx="14"'
    return (f'<rect x="{x:g}" y="{y:g}" width="{width:g}" height="{HEIGHT}" rx="6" class="{style}"/>'
            f'<text x="{x + 12:g}" y="{y + 21.5:g}">{label}<tspan {place} class="what">{escape(WHAT[name])}</tspan></text>')


def style_of(floor, floors):
    if floor[0].startswith(PLUGIN):
        return "own"
    return "base" if floor is floors[-1] else "top"


def svg():
    floors = [floor for floor in checked_floors() if floor]
    shapes, plugin, y, below = [], [], MARGIN, None
    for floor in floors:
        style = style_of(floor, floors)
        y += 8 if below and style != below else 0
        below = style
        left = MARGIN + (PLUGIN_LEFT if style == "own" else 0)
        right = WIDTH - MARGIN - (8 if style == "own" else 0)
        width = (right - left - GAP * (len(floor) - 1)) / len(floor)
        for place, folder in enumerate(floor):
            shapes.append(box(round(left + place * (width + GAP), 1), y, round(width, 1), folder, style))
        if style == "own":
            plugin.append(y)
        y += HEIGHT + GAP
    top, bottom = plugin[0] - 7, plugin[-1] + HEIGHT + 7
    middle = (top + bottom) / 2
    shapes += [f'<rect x="{MARGIN}" y="{top}" width="{WIDTH - 2 * MARGIN}" height="{bottom - top}" rx="8" class="plugin"/>',
               f'<text transform="translate(29 {middle:g}) rotate(-90)" text-anchor="middle" class="pluginName">'
               'KZPreference</text>']
    told = "From top to bottom: " + "; ".join(", ".join(floor) for floor in floors) + "."
    return svg_page(WIDTH, y + MARGIN - GAP, "The floors of the system", told, STYLE, DARK, shapes)


if __name__ == "__main__":
    PICTURE.write_text(svg(), encoding="utf-8")
