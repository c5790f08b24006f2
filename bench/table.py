"""table.py FOLDER: what scripts/bench ends with: operation, ours, peer, ratio, yardstick, from the programs' JSON files.

A row compares the medians of two benchmarks of one program, or the two counters "ours" and "peer" of one benchmark. Times
and bytes are better small, rates ("/s") better large; the yardstick says how the ratio ours : peer must be. A row whose
benchmark or peer did not run says so.
"""

import json
import pathlib
import sys

# Operation, program, our benchmark (less the share of the host, "A - B"), the peer's ("": counters of the first; a
# figure that was reached stands for itself), what is compared, yardstick.
ROWS = [
    ("hit test, one placement, M/s", "hit_test_bench", "HitTestByPoint/one_placement", 20e6, "items_per_second", ">= 1"),
    ("hit test, a new angle each, M/s", "hit_test_bench", "HitTestByPoint/any_placement", 20e6, "items_per_second", ">= 1"),
    ("rectangle hit, one placement, M/s", "hit_test_bench", "HitTestByRect/one_placement", 20e6, "items_per_second", ">= 1"),
    ("rectangle hit, a new angle each, M/s", "hit_test_bench", "HitTestByRect/any_placement", 20e6, "items_per_second", ">= 1"),
    ("snapping over 1,000 vertices", "hit_test_bench", "SnapOverVertices", "BareLoopOverVertices", "cpu_time", "<= 1.1"),
    ("snapping to far symbols beside hit tests", "hit_test_bench", "SnapToFarSymbols", "HitTestOfFarSymbols", "cpu_time", "<= 2"),
    ("drawing 100,000 : 1,000 symbols, symbols/s", "growth_bench", "GrowthOfDrawing/100000", "GrowthOfDrawing/1000", "items_per_second", ">= 0.91"),
    ("hit tests over them, symbols/s", "growth_bench", "GrowthOfHits/100000", "GrowthOfHits/1000", "items_per_second", ">= 0.91"),
    ("snaps over them, symbols/s", "growth_bench", "GrowthOfSnaps/100000", "GrowthOfSnaps/1000", "items_per_second", ">= 0.91"),
    ("DXF of them, symbols/s", "growth_bench", "GrowthOfDxf/100000", "GrowthOfDxf/1000", "items_per_second", ">= 0.91"),
    ("folder of 10,000 binary symbols, 3 elements", "catalog_bench", "CatalogBesidePlainReading/elements:3", "", "s", "<= 1.25"),
    ("the same, 4 elements", "catalog_bench", "CatalogBesidePlainReading/elements:4", "", "s", "<= 1.25"),
    ("the same, 8 elements", "catalog_bench", "CatalogBesidePlainReading/elements:8", "", "s", "<= 1.25"),
    ("the same, 20 elements", "catalog_bench", "CatalogBesidePlainReading/elements:20", "", "s", "<= 1.25"),
    ("memory of the loaded folder, 4 elements", "catalog_bench", "CatalogInMemory/elements:4", "", "B", "<= 3"),
    ("the same, 20 elements", "catalog_bench", "CatalogInMemory/elements:20", "", "B", "<= 3"),
    ("the same after all were drawn, 4 elements", "catalog_bench", "DrawnCatalogInMemory/elements:4", "", "B", "<= 3"),
    ("import format, text format's speed : its own", "import_parse_bench", "ImportBesideText/decimals:0", "", "s/B", "<= 1.4"),
    ("the same with two decimals", "import_parse_bench", "ImportBesideText/decimals:1", "", "s/B", "<= 1.4"),
    ("qsymbol info of 10,000 files", "cli_bench", "InfoBesidePlainReading", "", "s", "<= 2"),
    ("qsymbol info --json", "cli_bench", "JsonInfoBesidePlainReading", "", "s", "<= 2"),
    ("qsymbol check", "cli_bench", "CheckBesidePlainReading", "", "s", "<= 2"),
    ("qsymbol convert --to syb", "cli_bench", "ConvertBesidePlainCopying/binary", "", "s", "<= 2.5"),
    ("qsymbol convert --to syt", "cli_bench", "ConvertBesidePlainCopying/text", "", "s", "<= 2.5"),
    ("drawing the sample symbols", "draw_bench", "DrawThroughLibrary - HostCallsOfADraw", "BareGdiCalls", "real_time", "<= 1.2"),
    ("moving them with a tool", "draw_bench", "MoveThroughLibrary - HostCallsOfAMove", "BareGdiCallsOfAMove", "real_time", "<= 1.2"),
    ("GetBoundingRect", "object_bench", "GetBoundingRect", "RectFromClassObject", "cpu_time", "<= 1.5"),
    ("GetSymElements of 100 elements", "object_bench", "GetSymElements", "ElementsFromClassObjects", "cpu_time", "<= 1.5"),
    ("ten equal texts", "calls_bench", "TenTexts - HostCallsOfTenTexts", "BareTenTexts", "real_time", "<= 1.15"),
    ("GetBoundingRect", "calls_bench", "BoundingRects", "RectsFromAFactory", "real_time", "<= 1.5"),
    ("GetSymElements", "calls_bench", "SymElements", "ElementsFromFactories", "real_time", "<= 1.5"),
    ("CatchPt of far symbols beside ObjIdentByPt", "calls_bench", "SnapsFarAway", "HitsFarAway", "real_time", "<= 2"),
    ("hit test in a plan of 100,000, through COM", "plan_calls_bench", "Hits", 5e-6, "cpu_time", "<= 1"),
    ("the same, late bound, beside another call", "plan_calls_bench", "HitsLateBound - LookupsLateBound", 5e-6, "cpu_time", "<= 1"),
    ("snapping over its points", "plan_calls_bench", "Snaps", 10e-6, "cpu_time", "<= 1"),
    ("drawing the 200 of it in a window", "plan_calls_bench", "Draws", "DrawsOfTheVisibleAlone", "real_time", "<= 1.15"),
    ("ReadKatalog of 10,000 files", "catalogue_bench", "ReadKatalogBesideBareReading", "", "s", "<= 1.3"),
    ("DXF of 10,000 placed symbols", "catalogue_bench", "DxfExportSymBesideBareWriting", "", "s", "<= 1.2"),
    ("editor, 10,000 placed symbols: a step of zooming", "editor_bench", "EditorZoomStep", 0.06, "real_time", "<= 1"),
    ("the same: of panning", "editor_bench", "EditorPanStep", 0.06, "real_time", "<= 1"),
    ("the same: a tile of the picture", "editor_bench", "EditorDrawsATile", 0.06, "real_time", "<= 1"),
    ("the same: the mouse with a tool", "editor_bench", "EditorMoveWithTool", 0.016, "real_time", "<= 1"),
    ("the same: taking back a removal below all", "editor_bench", "EditorUndoesBelowAll", 0.06, "real_time", "<= 1"),
    ("the same: opening the plan", "editor_bench", "EditorOpens10000", 2.0, "real_time", "<= 1"),
    ("palette over 10,000 symbols: a filter step", "palette_bench", "FilterStep", 0.05, "real_time", "<= 1"),
    ("the same: a step of the wheel", "palette_bench", "ScrollStep", 0.016, "real_time", "<= 1"),
    ("the same: a page further", "palette_bench", "PageStep", 0.05, "real_time", "<= 1"),
    ("hit test in a plan of 100,000", "plan_bench", "PlanHit/100000", 5e-6, "cpu_time", "<= 1"),
    ("the same beside a loop", "plan_bench", "PlanHit/100000", "LoopHit/100000", "cpu_time", "<= 0.1"),
    ("the same, 1,000,000 : 1,000 placements", "plan_bench", "PlanHit/1000000", "PlanHit/1000", "cpu_time", "<= 2"),
    ("snap in it", "plan_bench", "PlanSnap/100000", 10e-6, "cpu_time", "<= 1"),
    ("the same beside a loop", "plan_bench", "PlanSnap/100000", "LoopSnap/100000", "cpu_time", "<= 0.1"),
    ("the same, 1,000,000 : 1,000 placements", "plan_bench", "PlanSnap/1000000", "PlanSnap/1000", "cpu_time", "<= 2"),
    ("rectangle beside asking just its results", "plan_bench", "PlanRect", "JustItsResults", "cpu_time", "<= 1.2"),
    ("drawing a window beside just what shows", "plan_bench", "PlanDraw", "JustWhatShows", "cpu_time", "<= 1.15"),
    ("placing a symbol, index included", "plan_bench", "PlanAdd", 2e-6, "cpu_time", "<= 1"),
    ("plan file of 1,000,000 placements", "plan_bench", "PlanLoad", 2.0, "cpu_time", "<= 1"),
    ("memory of a placement, index included", "plan_bench", "PlanMemory", "", "B", "<= 1"),
    ("DXF, 100,000 entities beside dxflib, entities/s", "dxf_bench", "WriteWithQSymbol", "WriteWithDxflib", "items_per_second", ">= 10"),
    ("text symbols beside dime, bytes/s", "text_parse_bench", "ParseTextSymbol", "DimeReadsDxf", "bytes_per_second", ">= 4"),
]


def shown(value, unit):
    if value is None:
        return "did not run"
    for factor, letter in ((1e9, "G"), (1e6, "M"), (1e3, "k"), (1, ""), (1e-3, "m"), (1e-6, "µ"), (1e-9, "n")):
        if abs(value) >= factor:
            return f"{value / factor:.3g} {letter}{unit}"
    return f"{value:.3g} {unit}"


def measured(results, program, name, what):
    """The median of a figure in the base unit, or None."""
    if " - " in name:
        parts = [measured(results, program, part, what) for part in name.split(" - ")]
        return None if None in parts else parts[0] - parts[1]
    for run in results.get(program, []):
        # A benchmark with a fixed number of rounds has that in its name.
        plain = run["run_name"].split("/iterations:")[0].split("/min_time:")[0].split("/real_time")[0]
        if plain == name and run.get("aggregate_name", "median") == "median" and what in run:
            factor = {"ns": 1e-9, "us": 1e-6, "ms": 1e-3, "s": 1}[run["time_unit"]] if what.endswith("_time") else 1
            return run[what] * factor
    return None


def kept(ratio, yardstick):
    sign, limit = yardstick.split()
    return ratio <= float(limit) if sign == "<=" else ratio >= float(limit)


def main(folder):
    results = {}
    for path in pathlib.Path(folder).glob("*.json"):
        try:
            results[path.stem] = json.loads(path.read_text(encoding="utf-8"))["benchmarks"]
        except ValueError:
            continue  # of a program that did not come to its end: its rows say so
    lines = [("operation", "ours", "peer", "ratio", "yardstick", "")]
    for operation, program, ours_name, peer_name, what, yardstick in ROWS:
        if peer_name == "":
            ours, peer = (measured(results, program, ours_name, side) for side in ("ours", "peer"))
            unit = what
        else:
            ours = measured(results, program, ours_name, what)
            peer = peer_name if isinstance(peer_name, float) else measured(results, program, peer_name, what)
            unit = {"cpu_time": "s", "real_time": "s", "items_per_second": "/s", "bytes_per_second": "B/s"}[what]
        ratio = ours / peer if ours is not None and peer else None
        lines.append((operation, shown(ours, unit), shown(peer, unit), "" if ratio is None else f"{ratio:.2f}", yardstick,
                      "" if ratio is None or kept(ratio, yardstick) else "MISSED"))
    widths = [max(len(line[i]) for line in lines) for i in range(6)]
    for line in lines:
        print("  ".join(cell.ljust(width) for cell, width in zip(line, widths)).rstrip())


if __name__ == "__main__":
    main(sys.argv[1])
