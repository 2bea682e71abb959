"""Draws the events of a sequence picture."""
from xml.sax.saxutils import escape

from svg_page import svg_page

LANES = ["User", "Host", "Plug-in", "Browser", "Authority", "Settings", "Keychain"]
MARGIN, HEAD, TITLE_LINE, LINE, INDENT = 48, 30, 16, 14, 12
# Between two lanes: at least so much, and what the texts there need, which are wrapped beyond the second.
NARROW, WIDE = 94, 300
BEFORE, BEHIND = 10, 8

STYLE = """
text { fill: #1d2330; font-size: 12.5px; stroke: #ffffff; stroke-width: 4px; paint-order: stroke }
.heading, .head + text { stroke: none }
.paper { fill: #ffffff }
.band { fill: #eef1f6 }
.heading { font-weight: 600; font-size: 13px }
.name { font-weight: 600 }
.detail, .note { fill: #4a5263; font-size: 11px }
.note { font-style: italic; font-size: 12px }
.lane { stroke: #c3c9d4; stroke-dasharray: 3 4 }
.head { fill: #e4e9f2; stroke: #9aa3b2 }
.head.own { fill: #e4efe0; stroke: #6f9560 }
.arrow { stroke: #3a4356; stroke-width: 1.4; fill: none }
.tip { fill: #3a4356 }
.user .arrow { stroke: #a05a12 } .user .tip { fill: #a05a12 }
.command .arrow { stroke: #1f5fc4 } .command .tip { fill: #1f5fc4 }
.notification .arrow { stroke: #7440b8 } .notification .tip { fill: #7440b8 }
.write .arrow { stroke: #3f7a33 } .write .tip { fill: #3f7a33 }
.answer .arrow { stroke-dasharray: 5 4 }
"""
DARK = """
text { fill: #e8eaef; stroke: #1b1f27 }
.paper { fill: #1b1f27 }
.band { fill: #272d38 }
.detail, .note { fill: #aab3c2 }
.lane { stroke: #4a5261 }
.head { fill: #2c3442; stroke: #667082 }
.head.own { fill: #2b3a29; stroke: #6f9560 }
.arrow { stroke: #b7c0cf } .tip { fill: #b7c0cf }
.user .arrow { stroke: #e0a05a } .user .tip { fill: #e0a05a }
.command .arrow { stroke: #76a9ff } .command .tip { fill: #76a9ff }
.notification .arrow { stroke: #c19bf2 } .notification .tip { fill: #c19bf2 }
.write .arrow { stroke: #8cc97e } .write .tip { fill: #8cc97e }
"""


def width_of(text, size):
    """About as wide as the widest of the usual fonts draws it."""
    narrow = sum(letter in "iljtfrI.,:;|()'“” " for letter in text)
    wide = sum(letter in "mwMW@…" for letter in text)
    return size * (0.34 * narrow + 0.9 * wide + 0.58 * (len(text) - narrow - wide))


def detail_lines(event):
    """Keys and values, as (indent, text), in as many lines as they need."""
    for depth, key, text in event.lines:
        together = f"{key}: {text}" if text else f"{key}:"
        if depth * INDENT + width_of(together, 11) <= WIDE:
            yield depth * INDENT, together
        else:
            yield depth * INDENT, f"{key}:"
            yield (depth + 1) * INDENT, text


class Picture:
    def __init__(self, title, events):
        self.title, self.events = title, events
        used = {lane for event in events for lane in (event.source, event.target)}
        self.lanes = [lane for lane in LANES if lane in used]
        self.places = self.placed()
        self.width = self.places[self.lanes[-1]] + MARGIN
        self.y = HEAD + 26
        self.drawn = []

    def lane_of_text(self, event):
        """The texts stand right of this lane."""
        left = min(event.source, event.target, key=self.lanes.index)
        # What a user does passes the host, who has no part in it.
        return "Host" if left == "User" and "Host" in self.lanes else left

    def placed(self):
        """Where each lane is, so that the texts between neighbours have room."""
        gaps = dict.fromkeys(self.lanes, NARROW)
        for event in self.events:
            if not event.source:
                continue
            left = self.lane_of_text(event)
            right = max(event.source, event.target, key=self.lanes.index)
            if self.lanes.index(right) == self.lanes.index(left) + 1:
                widths = [width_of(event.title, 13.4)] + [indent + width_of(text, 11)
                                                          for indent, text in detail_lines(event)]
                gaps[left] = max(gaps[left], BEFORE + max(widths) + BEHIND)
        places, at = {}, MARGIN
        for lane in self.lanes:
            places[lane] = at
            at += round(gaps[lane])
        return places

    def put(self, text):
        self.drawn.append(text)

    def text(self, x, y, text, style):
        self.put(f'<text x="{x:g}" y="{y:g}" class="{style}">{escape(text)}</text>')

    def heading(self, event):
        self.y += 8
        self.put(f'<rect x="8" y="{self.y:g}" width="{self.width - 16:g}" height="24" rx="5" class="band"/>')
        self.text(20, self.y + 16.5, event.title, "heading")
        self.y += 32

    def note(self, event):
        x = self.places[event.source]
        self.put(f'<circle cx="{x:g}" cy="{self.y + 8:g}" r="4" class="tip"/>')
        self.text(x + 12, self.y + 12, event.title, "note")
        self.y += 26

    def arrow(self, event):
        left = self.places[self.lane_of_text(event)] + BEFORE
        self.put(f'<g class="{event.kind}">')
        self.y += TITLE_LINE
        self.text(left, self.y - 4, event.title, "name")
        for indent, text in detail_lines(event):
            self.y += LINE
            self.text(left + indent, self.y - 4, text, "detail")
        start, end = self.places[event.source], self.places[event.target]
        back = 9 if start < end else -9
        y = self.y + 4
        self.put(f'<path d="M{start:g} {y:g}H{end - back:g}" class="arrow"/>')
        self.put(f'<path d="M{end:g} {y:g}l{-back:g} -4.5v9z" class="tip"/></g>')
        self.y += 20

    def events_drawn(self):
        for event in self.events:
            if not event.source:
                self.heading(event)
            elif event.source == event.target:
                self.note(event)
            else:
                self.arrow(event)

    def heads(self):
        for lane in self.lanes:
            half = max(38, width_of(lane, 12.5) / 2 + 10)
            x, style = self.places[lane], "head own" if lane == "Plug-in" else "head"
            yield f'<rect x="{x - half:g}" y="12" width="{2 * half:g}" height="{HEAD}" rx="6" class="{style}"/>'
            yield f'<text x="{x:g}" y="31.5" text-anchor="middle" class="name">{lane}</text>'

    def description(self):
        for event in self.events:
            what = "; ".join([event.title] + [f"{key} {text}".strip() for _, key, text in event.lines])
            if not event.source:
                yield f"{event.title}."
            elif event.source == event.target:
                yield f"{event.source} {what}."
            else:
                yield f"{event.source} to {event.target}: {what}."

    def svg(self):
        self.events_drawn()
        height = self.y + 8
        lanes = [f'<path d="M{x:g} {HEAD + 12}V{height - 12:g}" class="lane"/>' for x in self.places.values()]
        return svg_page(self.width, height, self.title, "\n".join(self.description()), STYLE, DARK,
                        [*lanes, *self.heads(), *self.drawn])
