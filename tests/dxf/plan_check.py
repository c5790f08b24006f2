"""plan_check.py PLAN.dxf PLANFILE CATALOGUEFOLDER DXFLIB_DUMP: reads the sample host's DXF file with ezdxf and dxflib.

Symbols, walls and room names must be what the plan file says, in centimetres, not mirrored; and both readers must
find the same.
"""

import math
import pathlib
import subprocess
import sys

import ezdxf
from expected_entities import Mismatch, Placement, check_audit, check_symbols, close, read_symbol, require

UNITS_PER_MILLIMETRE = 100
SCALE = 100  # the host exports everything a hundred times as large


def read_plan(path):
    plan = {"WALL": [], "ROOM": [], "SYMBOL": []}
    for line in path.read_text(encoding="utf-8").splitlines():
        kind, *fields = line.split(";")
        if kind == "PLAN":
            plan["title"], plan["height"] = fields[0], int(fields[2])
        elif kind in plan:
            plan[kind].append(fields)
    return plan


def placement(fields, height):
    name, x, y, angle = fields[0], *map(int, fields[1:])
    scale = UNITS_PER_MILLIMETRE * SCALE
    return Placement(name, complex(x, -y) * scale, math.radians(angle), float(SCALE), height * scale)


def check_wall(entity, fields, height):
    x1, y1, x2, y2, thickness = map(int, fields)
    start, end = complex(x1, height - y1) / 10, complex(x2, height - y2) / 10
    side = (end - start) / abs(end - start) * 1j * thickness / 20
    corners = [start + side, end + side, end - side, start - side]
    require(entity.dxftype() == "POLYLINE" and entity.is_closed, "a wall that is no closed polyline")
    require(len(entity) == 4, "corners of a wall")
    for vertex in entity.vertices:
        require(any(close(vertex.dxf.location, corner, 1e-9) for corner in corners), "corner", vertex.dxf.location)


def check_host(document, plan):
    space = document.modelspace()
    walls = list(space.query('*[layer=="WAENDE"]'))
    require(len(walls) == len(plan["WALL"]), "walls", len(walls))
    for entity, fields in zip(walls, plan["WALL"]):
        check_wall(entity, fields, plan["height"])
    names = [entity.dxf.text for entity in space.query('TEXT[layer=="RAEUME"]')]
    require(names == [plan["title"]] + [fields[0] for fields in plan["ROOM"]], "names", names)


def summary(entity):
    """One line for an entity, as dxflib_dump writes it."""
    kind = entity.dxftype()
    if kind == "POLYLINE":
        points = [vertex.dxf.location for vertex in entity.vertices]
    else:
        points = [entity.dxf.center if kind == "ARC" else entity.dxf.insert]
    # dxflib tells a colour left to the layer by 256, as ezdxf does.
    return [kind, entity.dxf.layer, str(entity.dxf.color)], [value for point in points for value in (point.x, point.y)]


def check_dxflib(document, dump):
    lines = dump.splitlines()
    space = list(document.modelspace())
    require(len(lines) == len(space), "dxflib found", len(lines), "ezdxf", len(space))
    for line, entity in zip(lines, space):
        fields = line.split(";")
        names, numbers = summary(entity)
        require(fields[:3] == names, "dxflib read", line)
        found = [float(field) for field in fields[3:]]
        require(len(found) == len(numbers), "dxflib read", line)
        require(all(math.isclose(a, b, abs_tol=1e-9) for a, b in zip(found, numbers)), "dxflib read", line)


def main():
    source, plan_file, catalogue, dxflib_dump = sys.argv[1], pathlib.Path(sys.argv[2]), pathlib.Path(sys.argv[3]), sys.argv[4]
    document = ezdxf.readfile(source)
    check_audit(document)
    plan = read_plan(plan_file)
    placed = [placement(fields, plan["height"]) for fields in plan["SYMBOL"]]
    files = {file.stem: file for file in catalogue.rglob("*.syt")}
    symbols = {p.name: read_symbol(files[p.name]) for p in placed}
    counts = check_symbols(document.modelspace().query('*[layer=="SYMBOLE"]'), placed, symbols)
    check_host(document, plan)
    check_dxflib(document, subprocess.run([dxflib_dump, source], check=True, capture_output=True, text=True).stdout)
    print(f"{len(placed)} symbols, {counts}, {len(plan['WALL'])} walls, {len(plan['ROOM'])} rooms, audit clean")


if __name__ == "__main__":
    try:
        main()
    except Mismatch as error:
        sys.exit("plan_check: " + " ".join(map(str, error.args)))
