"""Turns results of quarlo_bench into the tables of docs/performance.md."""

import dataclasses
import re

OURS = "quarlo"
LIMIT = "limit"

# A difference below this is a tie: two runs of one contender differ as much.
TIE = 1.05

# Glyphs of a line of text.
GLYPHS = 40

BEGIN = "<!-- tables: scripts/bench --write-docs -->"
END = "<!-- end of tables -->"

# Orders of the columns that name a workload.
SIZES = ["8", "16", "32", "98", "100", "101", "200", "201", "300", "320", "400", "full", "up",
         "down", "left", "right"]
MODES = ["copy", "and", "or", "xor"]

TITLES = {
    "fill": "Solid rectangles",
    "pattern": "Rectangles in an 8 x 8 pattern",
    "span": "Horizontal lines",
    "column": "Vertical lines",
    "line": "Thin lines of any direction",
    "lineto": "The same, with GDMoveTo and GDLineTo",
    "dash": "Dashed lines of any direction",
    "wideline": "Lines five pixels wide",
    "bezier": "Bezier curves",
    "triangle": "Filled triangles",
    "star": "Filled stars",
    "ragged": "Filled outlines of 1,000 vertices",
    "scribble": "Filled polygons of 1,000 random points",
    "oval": "Filled ovals",
    "ovalline": "Outlines of ovals",
    "roundrect": "Filled rounded rectangles",
    "roundrectline": "Outlines of rounded rectangles",
    "arc": "Arcs",
    "pie": "Filled pies",
    "transfer": "Block transfers",
    "scroll": "Scrolls by one pixel",
    "convert": "Conversions between formats",
    "text": "Lines of 40 glyphs of 8 x 16",
    "opaquetext": "The same with their background",
    "caption": "Captions of five such lines, 168 glyphs",
    "measure": "The width of 40 glyphs",
    "image": "Images of runs, half of them transparent",
    "imageright": "The right half of such an image",
    "imagelower": "The lower half",
    "imagezoom": "Stretched images",
}


@dataclasses.dataclass
class Row:
    """One workload: the median nanoseconds of one operation, by contender."""

    operation: str
    size: str
    format: str
    mode: str
    times: dict
    notes: dict

    @property
    def ours(self):
        return self.times.get(OURS)

    @property
    def limit(self):
        return self.times.get(LIMIT)

    @property
    def best_peer(self):
        peers = {name: time for name, time in self.times.items() if name not in (OURS, LIMIT)}
        return min(peers, key=peers.get) if peers else None

    @property
    def to_best(self):
        return ratio(self.ours, self.times.get(self.best_peer))

    @property
    def to_limit(self):
        return ratio(self.ours, self.limit)

    @property
    def order(self):
        formats = int(self.format) if self.format.isdigit() else self.format
        return SIZES.index(self.size), formats, MODES.index(self.mode)

    @property
    def name(self):
        return f"{self.operation}/{self.size}/{self.format}/{self.mode}"


@dataclasses.dataclass
class Aim:
    """A ratio that rows must not exceed."""

    text: str
    most: float
    ratios: dict

    def cells(self):
        if not self.ratios:
            return [self.text, "-", "-", "-"]
        kept = sum(value <= self.most for value in self.ratios.values())
        worst = max(self.ratios, key=self.ratios.get)
        return [self.text, f"{self.most:.2f}", f"{kept} of {len(self.ratios)}",
                f"{self.ratios[worst]:.2f} ({worst})"]


def ratio(ours, theirs):
    return ours / theirs if ours and theirs else None


class Report:
    def __init__(self, result):
        self.context = result["context"]
        self.rows = {}
        for entry in result["benchmarks"]:
            if entry.get("aggregate_name") == "median":
                self._add(entry)

    def _add(self, entry):
        operation, size, pixel_format, mode, contender = entry["run_name"].split("/")
        key = (operation, size, pixel_format, mode)
        row = self.rows.setdefault(key, Row(*key, {}, {}))
        # A core that is shared for a moment costs elapsed time, not processor time.
        row.times[contender] = entry["cpu_time"]
        row.notes[contender] = entry.get("label", "")

    def own_copy(self, row):
        """A combining mode beside the library's own copy mode."""
        copy = self.rows.get((row.operation, row.size, row.format, "copy"))
        return ratio(row.ours, copy.ours) if copy and row.mode != "copy" else None

    def to_whole(self, row):
        """A clipped image beside the whole one."""
        whole = self.rows.get(("image", row.size, row.format, row.mode))
        return ratio(row.ours, whole.ours) if whole else None

    def aims(self):
        def collect(chosen, value):
            ratios = {row.name: value(row) for row in self.rows.values() if chosen(row)}
            return {name: number for name, number in ratios.items() if number is not None}

        return [
            Aim("ours / best peer, every row", 1.0,
                collect(lambda row: True, lambda row: row.to_best)),
            Aim("full-screen fills, copies and scrolls / limit", 1.1,
                collect(lambda row: row.mode == "copy" and (
                    row.operation == "scroll" or
                    row.size == "full" and row.operation in ("fill", "transfer")),
                        lambda row: row.to_limit)),
            Aim("a combining mode / the copy mode", 1.3, collect(lambda row: True, self.own_copy)),
            Aim("pattern 100 x 100 / best peer", 1 / 3,
                collect(lambda row: row.operation == "pattern" and row.size == "100",
                        lambda row: row.to_best)),
            Aim("conversions 555 to 24, 24 to 555, palette to 16 / best peer", 0.2,
                collect(lambda row: row.operation == "convert" and row.format in (
                    "555-888", "888-555", "palette-555", "palette-565"),
                        lambda row: row.to_best)),
            Aim("a rectangle of 8 x 8 / eight calls of memset", 1.5,
                collect(lambda row: row.operation == "fill" and row.size == "8",
                        lambda row: row.to_limit)),
            Aim("random thin lines / SDL and AGG", 1.0,
                collect(lambda row: row.operation == "line",
                        lambda row: ratio(row.ours, min(
                            (row.times[name] for name in ("sdl2", "agg") if name in row.times),
                            default=None)))),
            Aim("filled triangle / bare spans", 3.0,
                collect(lambda row: row.operation == "triangle", lambda row: row.to_limit)),
            Aim("1,000 vertices, ragged or random / Cairo", 1.0,
                collect(lambda row: row.operation in ("ragged", "scribble"),
                        lambda row: ratio(row.ours, row.times.get("cairo")))),
            Aim("filled oval / bare spans", 1.4,
                collect(lambda row: row.operation == "oval", lambda row: row.to_limit)),
            Aim("filled rounded rectangles and pies / Qt", 0.5,
                collect(lambda row: row.operation in ("roundrect", "pie"),
                        lambda row: ratio(row.ours, min(
                            (row.times[name] for name in ("qt5", "qt5-avx2") if name in row.times),
                            default=None)))),
            Aim("nanoseconds for a glyph of a line", 35,
                collect(lambda row: row.operation in ("text", "opaquetext"),
                        lambda row: row.ours and row.ours / GLYPHS)),
            Aim("image of runs / memcpy of the opaque ones", 1.3,
                collect(lambda row: row.operation == "image", lambda row: row.to_limit)),
            Aim("half an image / the whole", 1.0,
                collect(lambda row: row.operation in ("imageright", "imagelower"), self.to_whole)),
        ]

    def machine(self):
        context = self.context
        cores = f"core {context['core']}" if "core" in context else "one core"
        load = ", ".join(f"{value:.1f}" for value in context.get("load_avg", []))
        return (f"{context.get('processor', 'unknown processor')}, {cores} of "
                f"{context.get('num_cpus', '?')}, {context.get('compiler', '')}, "
                f"{context.get('build', '')}; load when it began {load}.")

    def markdown(self):
        parts = [self.machine(), "", "### Aims", "",
                 table(["aim", "at most", "rows that keep it", "worst"],
                       [aim.cells() for aim in self.aims()], "lrrl")]
        for operation, title in TITLES.items():
            rows = [row for row in self.rows.values() if row.operation == operation]
            rows.sort(key=lambda row: row.order)
            if rows:
                parts += ["", f"### {title}", "", self._rows_table(rows)]
        parts += ["", "### Whether peers draw the same", "", self._notes_table()]
        return "\n".join(parts)

    def _rows_table(self, rows):
        header = ["workload", "format", "mode", "ours ns", "best peer ns", "limit ns",
                  "ours / best", "ours / limit", "ours / copy", ""]
        return table(header, [self._cells(row) for row in rows], "lllrrrrrrl")

    def _cells(self, row):
        best = row.best_peer
        return [f"{row.operation}/{row.size}", row.format, row.mode, time_text(row.ours),
                f"{time_text(row.times[best])} ({best})" if best else "-", time_text(row.limit),
                ratio_text(row.to_best), ratio_text(row.to_limit),
                ratio_text(self.own_copy(row)), verdict(row.to_best)]

    def _notes_table(self):
        """What the check at the start said, by operation and contender."""
        notes = {}
        for row in self.rows.values():
            for contender, note in row.notes.items():
                if note:
                    kept = notes.setdefault((row.operation, contender), {})
                    kept[note] = kept.get(note, 0) + 1
        lines = [[operation, contender, summary(kept)]
                 for (operation, contender), kept in sorted(notes.items())]
        return table(["operation", "peer", "picture beside ours"], lines, "lll")


def summary(notes):
    """Line notes differ from row to row in their figures; one of them stands for all."""
    if len(notes) > 3:
        return f"{next(iter(notes))} (and the like)"
    return "; ".join(notes)


def time_text(nanoseconds):
    if nanoseconds is None:
        return "-"
    return f"{nanoseconds:,.1f}" if nanoseconds < 100 else f"{nanoseconds:,.0f}"


def ratio_text(value):
    return "-" if value is None else f"{value:.2f}"


def verdict(value):
    if value is None or value <= 1:
        return ""
    return "tie" if value <= TIE else "**lost**"


def table(header, lines, alignment):
    rules = ["---:" if side == "r" else "---" for side in alignment]
    return "\n".join("| " + " | ".join(cells) + " |" for cells in [header, rules, *lines])


def replace_tables(path, report):
    """Puts the tables between the two marks of a document."""
    text = path.read_text()
    tables = f"{BEGIN}\n\n{report.markdown()}\n\n{END}"
    changed, count = re.subn(re.escape(BEGIN) + ".*?" + re.escape(END), lambda _: tables, text,
                             flags=re.DOTALL)
    if count != 1:
        raise SystemExit(f"{path.name}: the marks for the tables are missing")
    path.write_text(changed)
