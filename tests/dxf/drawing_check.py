"""drawing_check.py QSYMBOL READERS CATALOGUE: the complete drawing of a catalogue, read by everyone who reads drawings.

ezdxf audits it, dxflib, dime (both in READERS) and GDAL find the same entities, LibreCAD prints it. What ezdxf draws of a block and the SVG picture of the same symbol must agree: both are
rasterised 400 pixels wide, and a pixel agrees when the other picture has nearly its colour at most 2 pixels away. Pairs
of pictures are left in build/test-output."""

import collections
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

import ezdxf
import matplotlib

matplotlib.use("Agg")
import numpy
from ezdxf.addons.drawing import Frontend, RenderContext
from ezdxf.addons.drawing.matplotlib import MatplotlibBackend
from matplotlib import font_manager, pyplot
from osgeo import ogr

WIDTH = 400  # pixels of a picture
REACH = 2  # pixels that a line may lie beside itself
NEAR = 72  # of 255: what edges of lines differ in
MOST = 0.02  # of a picture's pixels may disagree: large letters of fonts that stand in, backgrounds of texts
OUTPUT = pathlib.Path("build/test-output")
SHOWN = ("Küchenzeile", "Wendeltreppe", "Flügel", "Brandschutztür")
ODD = {
    "a;b": 'STRING;"Zeile %%d ^ \\U+0041 100 % ü €"',
    "A_B": 'STRING;"' + "lang " * 300 + '"',
    "*Model_Space": 'STRING;"x"',
}
failures = []


def expect(condition, *what):
    if not condition:
        failures.append(" ".join(map(str, what)))
        print("failed:", *what)


def make_catalogue(source, folder):
    """The catalogue in two categories, and symbols with odd names and texts."""
    for index, path in enumerate(sorted(source.rglob("*.syt"), key=lambda path: path.name)):
        target = folder / ("Möbel", "Bad|WC")[index % 2]
        target.mkdir(parents=True, exist_ok=True)
        shutil.copy(path, target)
    for name, text in ODD.items():
        (folder / f"{name}.syt").write_text(
            "SYM;CNT=2;WID=100;HEI=100;RPX=10;RPY=20\r\n"
            "POLY;CNT=3;COL=255;WID=0;CLS=TRUE;FIL=65280\r\nPOINT;0;0\r\nPOINT;100;0\r\nPOINT;50;100\r\n"
            "TEXT;COL=0;ANG=0;NAM=Arial;HEI=100;BOL=FALSE;ITA=FALSE;UND=FALSE;STR=FALSE;ALI=24;BKM=1\r\n"
            f"POINT;0;50\r\n{text}\r\n", encoding="cp1252", newline="")  # fmt: skip


def check_structure(document, symbols):
    auditor = document.audit()
    expect(not auditor.errors and not auditor.fixes, "audit", auditor.errors + auditor.fixes)
    expect(document.dxfversion == "AC1018" and document.units == 4, "version and unit", document.dxfversion, document.units)
    inserts = document.modelspace().query("INSERT")
    expect(len(inserts) == symbols, "inserts", len(inserts), symbols)
    expect(collections.Counter(insert.dxf.layer for insert in inserts)["Möbel"] > 40, "layers of the categories")
    expect("Bad_WC" in document.layers, "a category's name made legal")
    names = [block.name for block in document.blocks if not block.is_any_layout]
    expect(len({name.casefold() for name in names}) == symbols, "names of blocks")
    expect({"a_b", "a_b_2", "_model_space"} <= {name.casefold() for name in names}, "odd names", names)
    door = document.blocks["Küchenzeile"]
    expect(door.base_point.isclose((1500, 0, 0)), "base point", door.base_point)
    texts = [text.dxf.text for block in document.blocks for text in block.query("TEXT")]
    expect("Zeile %%%%%%d ^  \\U+005CU+0041 100 % ü \\U+20AC" in texts, "odd text", [t for t in texts if "Zeile" in t])
    joined = ["".join(text.dxf.text for text in document.blocks[name].query("TEXT")) for name in names]
    expect("lang " * 300 in joined, "long text")


def entity_counts(document):
    counts = collections.Counter(e.dxftype() for block in document.blocks for e in block)
    counts["BLOCK"] = sum(not block.is_any_layout for block in document.blocks)
    return {kind: counts[kind] for kind in ("BLOCK", "INSERT", "LINE", "LWPOLYLINE", "ARC", "CIRCLE", "TEXT", "HATCH")}


def check_readers(readers, path, counts):
    result = subprocess.run([readers, path], capture_output=True, text=True, encoding="latin-1")
    expect(result.returncode == 0, "dxflib or dime", result.stderr)
    for reader, spaces in (("dxflib", 0), ("dime", 2)):
        found = {kind: int(n) for kind, n in re.findall(rf"^{reader} (\w+) (\d+)$", result.stdout, re.M) if kind in counts}
        wanted = {**counts, "BLOCK": counts["BLOCK"] + spaces}
        expect(found == wanted, reader, found, wanted)
    source = ogr.Open(str(path))  # a layer lives no longer than its source
    layer = source.GetLayer(0)
    fields = [(feature.GetField("SubClasses") or "", feature.GetField("Layer")) for feature in layer]
    expect(any("Möbel" == layer for _, layer in fields), "GDAL: layers")
    expect(layer.GetFeatureCount() >= counts["INSERT"] * 2, "GDAL: features", layer.GetFeatureCount())


def check_librecad(path, folder):
    """LibreCAD prints the drawing on one page, with lines and with colours. It prints nothing of a drawing that it cannot read."""
    home = {**os.environ, "HOME": str(folder), "XDG_RUNTIME_DIR": str(folder), "QT_QPA_PLATFORM": "offscreen"}
    subprocess.run(["librecad", "dxf2pdf", "-a", "-t", folder, path], env=home, check=True, capture_output=True, timeout=120)
    subprocess.run(["pdftoppm", "-r", "72", "-png", "-singlefile", path.with_suffix(".pdf"), folder / "page"], check=True)
    page = pyplot.imread(folder / "page.png")[:, :, :3]
    ink, coloured = (page.min(axis=2) < 0.9).mean(), (page.max(axis=2) - page.min(axis=2) > 0.1).mean()
    print(f"LibreCAD prints {100 * ink:.1f} % ink, {100 * coloured:.1f} % of the page in colours")
    expect(ink > 0.08 and coloured > 0.04, "LibreCAD", ink, coloured)
    OUTPUT.mkdir(parents=True, exist_ok=True)
    pyplot.imsave(OUTPUT / "drawing-librecad.png", page)


def know_arial():
    """The fonts that stand in for Arial and Times New Roman have their widths."""
    for entry in list(font_manager.fontManager.ttflist):
        for liberation, wanted in (("Liberation Sans", "Arial"), ("Liberation Serif", "Times New Roman")):
            if entry.name == liberation:
                font_manager.fontManager.ttflist.append(
                    font_manager.FontEntry(entry.fname, wanted, entry.style, entry.variant, entry.weight, entry.stretch,
                                           entry.size))  # fmt: skip


def drawn_by_ezdxf(document, block, box, height):
    left, top, width, tall = box
    figure = pyplot.figure(figsize=((WIDTH + 0.1) / 100, (height + 0.1) / 100), dpi=100)  # never rounded down
    axes = figure.add_axes([0, 0, 1, 1])
    context = RenderContext(document)
    context.set_current_layout(document.modelspace())
    context.current_layout_properties.set_colors("#ffffff")
    backend = MatplotlibBackend(axes, adjust_figure=False)
    backend.set_background("#ffffff")
    Frontend(context, backend).draw_entities(block)
    backend.finalize()
    axes.set_xlim(left, left + width)
    axes.set_ylim(-top - tall, -top)
    figure.canvas.draw()
    picture = numpy.array(figure.canvas.buffer_rgba())[:, :, :3]
    pyplot.close(figure)
    return picture


def rasterised(svg, box, target):
    """The rasteriser does not know strokes that do not scale, so they are told their width: a pixel. ezdxf does not
    underline, and a wide polyline ends bluntly, so the picture does the same."""
    text = svg.read_text(encoding="utf-8").replace('vector-effect="non-scaling-stroke"', f'stroke-width="{box[2] / WIDTH}"')
    text = re.sub(' text-decoration="[^"]*"', "", text).replace('stroke-linecap="round"', "")
    subprocess.run(["rsvg-convert", "-w", str(WIDTH), "-b", "white", "-o", target], input=text.encode(), check=True)
    return (pyplot.imread(target)[:, :, :3] * 255).round().astype(numpy.uint8)


def strangers(picture, other):
    """The part of a picture's pixels for which the other has nothing alike in reach."""
    tall, wide = picture.shape[:2]
    padded = numpy.pad(other, ((REACH, REACH), (REACH, REACH), (0, 0)), mode="edge")
    best = numpy.full((tall, wide), 255, numpy.uint8)
    for y in range(2 * REACH + 1):
        for x in range(2 * REACH + 1):
            moved = padded[y:y + tall, x:x + wide]
            away = numpy.maximum(moved, picture) - numpy.minimum(moved, picture)
            best = numpy.minimum(best, away.max(axis=2))
    # Lines on the very edge are cut off, by each in its own way.
    return (best[REACH:-REACH, REACH:-REACH] > NEAR).mean()


def compare_pictures(document, pictures, folder):
    # The capitals of the fonts that stand in are lower than those of Arial and Times New Roman, for which 40 is meant.
    for text in (text for block in document.blocks for text in block.query("TEXT")):
        text.dxf.height *= 0.655 / 0.662 if text.dxf.style.startswith("Times") else 0.688 / 0.716
    worst = []
    for svg in sorted(pictures.rglob("*.svg")):
        if svg.stem in ODD:
            continue
        box = [float(v) for v in re.search(r'viewBox="([^"]+)"', svg.read_text(encoding="utf-8")).group(1).split()]
        ours = rasterised(svg, box, folder / "ours.png")
        height = ours.shape[0]
        theirs = drawn_by_ezdxf(document, document.blocks[svg.stem], box, height)
        expect(ours.shape == theirs.shape, svg.stem, ours.shape, theirs.shape)
        worst.append((max(strangers(ours, theirs), strangers(theirs, ours)), svg.stem))
        # A picture without ink would agree with another one.
        expect((ours.min(axis=2) < 200).mean() > 0.001, svg.stem, "no ink")
        if svg.stem in SHOWN or worst[-1][0] > MOST:
            OUTPUT.mkdir(parents=True, exist_ok=True)
            pyplot.imsave(OUTPUT / f"drawing-{svg.stem}.png",
                          numpy.concatenate([ours, numpy.full((height, 20, 3), 128, numpy.uint8), theirs], axis=1))
    worst.sort(reverse=True)
    print("pixels that disagree, worst five:", ", ".join(f"{name} {100 * part:.2f} %" for part, name in worst[:5]))
    for part, name in worst:
        expect(part < MOST, name, f"SVG and DXF disagree in {100 * part:.2f} % of the pixels")
    # The comparison itself can tell: a picture and its mirror image must not agree.
    expect(strangers(ours, ours[:, ::-1]) > 0.01, "the comparison sees a mirror image")
    return len(worst)


def check_plan(program, source, folder):
    """A whole plan: its symbols, each where the plan file says, as blocks of the same file."""
    plan = source.parent / "planhost/wohnung.plan"
    placed = [line.split(";")[1:] for line in plan.read_text(encoding="utf-8").splitlines() if line.startswith("SYMBOL")]
    drawing = folder / "plan.dxf"
    subprocess.run([program, "plan", "-q", "-r", "--decimal", "comma", plan, source, "--dxf", drawing], check=True)
    document = ezdxf.readfile(drawing)
    expect(not document.audit().errors, "the plan's audit")
    inserts = list(document.modelspace().query('INSERT[layer=="SYMBOLE"]'))
    expect(len(inserts) == len(placed) > 100, "symbols of the plan", len(inserts))
    for insert, (name, x, y, angle) in zip(inserts, placed):
        apart = insert.dxf.insert.distance((float(x), -float(y), 0))
        expect(insert.dxf.name == name and apart < 1e-6 and abs(insert.dxf.rotation - float(angle)) < 1e-6, name, x, y)
    names = {text.dxf.text for text in document.modelspace().query('TEXT[layer=="RAEUME"]')}
    expect({"Küche", "Erdgeschosswohnung mit Terrasse"} <= names, names)


def main():
    program, readers, source = pathlib.Path(sys.argv[1]).resolve(), sys.argv[2], pathlib.Path(sys.argv[3])
    know_arial()
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        make_catalogue(source, folder / "katalog")
        drawing = folder / "katalog.dxf"
        common = ["-q", "-r", "--decimal", "comma"]
        subprocess.run([program, "dxf", *common, folder / "katalog", drawing], check=True)
        subprocess.run([program, "svg", *common, folder / "katalog", folder / "svg"], check=True)
        document = ezdxf.readfile(drawing)
        symbols = len(list((folder / "katalog").rglob("*.syt")))
        check_structure(document, symbols)
        counts = entity_counts(document)
        print(symbols, "symbols,", counts)
        check_readers(readers, drawing, counts)
        check_librecad(drawing, folder)
        compared = compare_pictures(document, folder / "svg", folder)
        for unit, number in (("cm", 5), ("m", 6)):
            subprocess.run([program, "dxf", "-f", *common, "--units", unit, source / "Bad/WC.syt", drawing], check=True)
            small = ezdxf.readfile(drawing)
            scale = {"cm": 10, "m": 1000}[unit]
            expect(small.units == number and not small.audit().errors, unit)
            expect(small.blocks["WC"].base_point.isclose(document.blocks["WC"].base_point / scale), unit, "scale")
        check_plan(program, source, folder)
    print(f"{compared + 5 - len(failures)} passed, {len(failures)} failed, 0 skipped")
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
