"""plan_blocks_check.py PLAN.dxf PLANFILE: reads the drawing that the sample host leaves to the library of plans with ezdxf.

In centimetres, y upwards: an insert for each placed symbol in their order, a block for each symbol, walls and names of rooms.
"""

import pathlib
import sys

import ezdxf
from expected_entities import Mismatch, check_audit, close, require
from plan_check import read_plan

PER_CENTIMETRE = 10


def check_inserts(space, placed, blocks):
    inserts = list(space.query('INSERT[layer=="SYMBOLE"]'))
    require([insert.dxf.name for insert in inserts] == [fields[0] for fields in placed], "names of inserts")
    for insert, (name, x, y, angle) in zip(inserts, placed):
        require(close(insert.dxf.insert, complex(float(x), -float(y)) / PER_CENTIMETRE, 1e-9), name, insert.dxf.insert)
        require(abs((insert.dxf.rotation - float(angle) + 180) % 360 - 180) < 1e-6, name, "turned by", insert.dxf.rotation)
        require(len(blocks.get(name)) > 0, "nothing in the block", name)


def check_walls(space, walls):
    outlines = list(space.query('LWPOLYLINE[layer=="WAENDE"]'))
    require(len(outlines) == len(walls), "walls", len(outlines))
    for outline, fields in zip(outlines, walls):
        x1, y1, x2, y2, thickness = map(int, fields)
        start, end = complex(x1, -y1), complex(x2, -y2)
        side = (end - start) / abs(end - start) * 1j * thickness / 2
        corners = [complex(*point) for point in outline.get_points("xy")]
        for corner in (start + side, end + side, end - side, start - side):
            require(min(abs(found - corner / PER_CENTIMETRE) for found in corners) < 1e-3, "corner", corner)


def main():
    document, plan = ezdxf.readfile(sys.argv[1]), read_plan(pathlib.Path(sys.argv[2]))
    check_audit(document)
    require(document.header["$INSUNITS"] == 5, "not in centimetres")
    space = document.modelspace()
    check_inserts(space, plan["SYMBOL"], document.blocks)
    check_walls(space, plan["WALL"])
    names = [entity.dxf.text for entity in space.query('TEXT[layer=="RAEUME"]')]
    require(names == [plan["title"]] + [fields[0] for fields in plan["ROOM"]], "names", names)
    print(f"{len(plan['SYMBOL'])} inserts, {len(plan['WALL'])} walls, {len(plan['ROOM'])} rooms, audit clean")


if __name__ == "__main__":
    try:
        main()
    except Mismatch as error:
        sys.exit("plan_blocks_check: " + " ".join(map(str, error.args)))
