"""ezdxf_check.py PLACED_SYMBOLS CATALOGUEFOLDER: reads exported symbols with ezdxf and compares every entity."""

import math
import pathlib
import random
import shutil
import subprocess
import sys
import tempfile

import ezdxf
from ezdxf.lldxf.encoding import decode_dxf_unicode
from ezdxf.tools.text import caret_decode
from expected_entities import NUMBERS, Mismatch, Placement, check_audit, check_symbols, plan_colours, read_symbol, require



def placements(names):
    """Every symbol upright, at right angles, and three times at any place, angle, factor and mirror value."""
    chance = random.Random(20)
    place = lambda: complex(chance.randint(-2000000, 3000000), chance.randint(-2000000, 3000000))
    for name in names:
        for quarter in range(4):
            yield Placement(name, place(), quarter * math.pi / 2, 1.0, 1380000)
        yield Placement(name, place(), 0.0, 0.0, 0)
        for _ in range(3):
            yield Placement(name, place(), chance.uniform(-7, 7), chance.uniform(0.2, 5), chance.randint(-10**6, 10**7))


def write_colour_chart(path):
    """A symbol with a line in the colour of every number, and in the colours beside them."""
    colours = [max(0, colour + offset) for colour in plan_colours().values() for offset in (0, 1, -1)]
    lines = [f"SYM;CNT={len(colours)};WID=500;HEI=500;RPX=0;RPY=0"]
    for index, colour in enumerate(colours):
        lines += [f"POLY;CNT=2;COL={colour};WID=0;CLS=FALSE;FIL=-1", f"POINT;0;{index}", f"POINT;500;{index}"]
    path.write_text("\r\n".join(lines) + "\r\n", encoding="cp1252", newline="")


def check_odd_texts(path):
    """The texts of odd_texts.cpp, decoded; every circle tells that nothing was lost on the way to it."""
    document = ezdxf.readfile(path)
    check_audit(document)
    texts = [entity.plain_text() if entity.dxftype() == "TEXT" else entity.dxf.radius for entity in document.modelspace()]
    require(texts[1::2] == list(range(1, len(texts) // 2 + 1)), "circles between the texts", texts[1::2])
    raw = [entity.dxf.text for entity in document.modelspace().query("TEXT")]
    decoded = [caret_decode(decode_dxf_unicode(text)) for text in raw]
    require(decoded[:12] == [
        "Küche 5 m²", "", " ", "     ", "Zeile 1\nZeile 2\r\nZeile 3\r",
        "a\r\n  0\r\nLINE\r\n  8\r\n0\r\n 10\r\n0.0\r\n 20\r\n0.0\r\n 11\r\n9.0\r\n 21\r\n9.0",
        "\0vorn, in der \0 Mitte und hinten\0", "\t\x1a\x1b^J^ ^", "≤ 90 cm, √2, \ud83d\ude00", "\x7f\x85\u2028",
        "  0", "EOF"], "odd texts", decoded[:12])
    require(decoded[12:] == ["x" * 1020, "≤" * 145, "\0" * 510], "long texts", [len(text) for text in decoded[12:]])
    return len(raw)


def main():
    program, sample = sys.argv[1], pathlib.Path(sys.argv[2])
    with tempfile.TemporaryDirectory() as folder:
        catalogue = pathlib.Path(folder, "katalog")
        catalogue.mkdir()
        for symbol in sample.rglob("*.syt"):
            shutil.copy(symbol, catalogue)
        write_colour_chart(catalogue / "Farbtafel.syt")
        names = sorted(path.stem for path in catalogue.glob("*.syt"))
        placed = list(placements(names))
        listing, dxf = pathlib.Path(folder, "placements.txt"), pathlib.Path(folder, "placed.dxf")
        listing.write_text("".join(p.line() for p in placed), encoding="utf-8")
        subprocess.run([program, catalogue, listing, dxf], check=True)
        document = ezdxf.readfile(dxf)
        subprocess.run([program, pathlib.Path(folder, "texts.dxf")], check=True)
        odd_texts = check_odd_texts(pathlib.Path(folder, "texts.dxf"))
        symbols = {name: read_symbol(catalogue / f"{name}.syt") for name in names}
    check_audit(document)
    counts = check_symbols(document.modelspace(), placed, symbols)
    require({"POLYLINE", "ARC", "TEXT"} <= counts.keys(), "kinds of entity", counts)
    colours = {entity.dxf.color for entity in document.modelspace()}
    require(colours == set(NUMBERS.values()), "colours")
    print(f"{len(placed)} symbols, {counts}, {len(colours)} colours, {odd_texts} odd texts, audit clean")
    print("1 passed, 0 failed, 0 skipped")


if __name__ == "__main__":
    try:
        main()
    except Mismatch as error:
        sys.exit("ezdxf_check: " + " ".join(map(str, error.args)))
