"""What placed symbols must be in a DXF file, worked out from the symbol files alone.

Own reader, own trigonometry, own colours: nothing here comes from the library.
"""

import cmath
import math

from ezdxf.math import arc_angle_span_deg

UNIT = 100000
HALF = 0.501 / UNIT  # coordinates were rounded to whole logical units


def plan_colours():
    """Colour of every colour number 1 to 255 in a plan."""
    def pack(*factors):
        red, green, blue = (round(255 * f) for f in factors)
        return red + 256 * green + 65536 * blue

    colours = dict(enumerate([255, 65535, 65280, 16776960, 16711680, 16711935, 0, 0, 0], 1))
    for n in range(10, 250):
        row, column = divmod(n - 10, 10)
        value = (1, 0.65, 0.5, 0.3, 0.15)[column // 2]
        pale = 0.5 if column % 2 else 1.0
        # Distance of the hue from red, green and blue: full within 60 degrees, gone from 120 on.
        rgb = []
        for primary in (0, 120, 240):
            away = abs((15 * row - primary + 180) % 360 - 180)
            rgb.append(value * (1 - pale * (1 - max(0, min(1, 2 - away / 60)))))
        if n == 46:
            rgb[1] = 0.255
        if n in (69, 79, 89, 99, 106):
            rgb[2] = 0.75
        if n == 108:
            rgb[2] = 0.375
        if n in (101, 111):
            rgb[2] = {101: 64, 111: 160}[n] / 255
        colours[n] = pack(*rgb)
    colours[14] = 128 * 256
    for n, level in ((250, 88), (251, 118), (252, 152), (253, 187), (254, 192), (255, 0)):
        colours[n] = level * 65793
    return colours


NUMBERS = {}
for number, colour in sorted(plan_colours().items(), reverse=True):
    NUMBERS[colour] = number  # the smallest number is the last to be entered


def read_symbol(path):
    """Reference point and elements of a text symbol in logical units, y upwards as complex numbers."""
    reference, elements = None, []
    for line in path.read_text(encoding="cp1252").splitlines():
        kind, *fields = line.split(";")
        keys = dict(field.split("=", 1) for field in fields if "=" in field)
        length = lambda key: 100 * float(keys[key])
        if kind == "SYM":
            reference = complex(length("RPX"), -length("RPY"))
        elif kind == "POINT":
            elements[-1]["points"].append(complex(100 * float(fields[0]), -100 * float(fields[1])))
        elif kind == "STRING":
            elements[-1]["text"] = line.split(";", 1)[1].strip('"')
        else:
            element = {"kind": kind, "keys": keys, "points": []}
            if "MPX" in keys:
                element["points"].append(complex(length("MPX"), -length("MPY")))
                element["radius"] = length("RAD")
            elements.append(element)
    for element in elements:
        if element["keys"].get("CLS") == "TRUE" and len(element["points"]) == 2:
            a, c = element["points"]  # opposite corners of a rectangle
            element["points"] = [a, complex(a.real, c.imag), c, complex(c.real, a.imag)]
    return reference, elements


class Placement:
    def __init__(self, name, at, angle, factor, mirror):
        self.name, self.at, self.angle, self.factor, self.mirror = name, at, angle, factor, mirror

    def line(self):
        return f"{self.name};{int(self.at.real)};{int(-self.at.imag)};{self.angle!r};{self.factor!r};{self.mirror}\n"

    def map(self, reference, point):
        turned = cmath.rect(self.factor or 1, self.angle) * (point - reference)
        return (self.at + turned + 1j * self.mirror) / UNIT


class Mismatch(Exception):
    pass


def require(condition, *what):
    if not condition:
        raise Mismatch(*what)


def close(found, expected, slack=HALF):
    return abs(complex(found[0], found[1]) - expected) <= slack * math.sqrt(2)


def same_direction(degrees, radians, slack):
    return abs(math.remainder(degrees - math.degrees(radians), 360)) <= math.degrees(slack)


def check_audit(document):
    auditor = document.audit()
    require(not auditor.errors and not auditor.fixes, "audit", auditor.errors, auditor.fixes)


def check_entity(entity, element, placement, reference):
    points = [placement.map(reference, p) for p in element["points"]]
    require(entity.dxf.layer == "SYMBOLE", "layer", entity.dxf.layer)
    require(entity.dxf.color == NUMBERS.get(int(element["keys"]["COL"]), 7), "colour", entity.dxf.color)
    if element["kind"] == "POLY":
        require(entity.dxftype() == "POLYLINE", entity.dxftype())
        if element["keys"]["CLS"] == "TRUE":
            points.append(points[0])
        require(len(entity) == len(points), "vertices", len(entity), len(points))
        for vertex, point in zip(entity.vertices, points):
            require(vertex.dxf.layer == "SYMBOLE", "layer of a vertex")
            require(close(vertex.dxf.location, point), vertex.dxf.location, point)
        require(entity.seqend.dxf.layer == "SYMBOLE", "layer of the end")
    elif element["kind"] == "TEXT":
        require(entity.dxftype() == "TEXT", entity.dxftype())
        require(close(entity.dxf.insert, points[0]), entity.dxf.insert, points[0])
        require(entity.dxf.text == element["text"], entity.dxf.text)
        height = float(element["keys"]["HEI"]) / 30
        require(math.isclose(entity.dxf.height, height, rel_tol=5e-14), "height", entity.dxf.height, height)
        degrees = math.degrees(placement.angle) + float(element["keys"]["ANG"])
        require(abs(entity.dxf.rotation - degrees) < 0.0501, "rotation", entity.dxf.rotation, degrees)
        require(round(entity.dxf.rotation, 1) == entity.dxf.rotation, "one decimal")
    else:
        require(entity.dxftype() == "ARC", entity.dxftype())
        require(entity.dxf.linetype == "CONTINUOUS", "linetype")
        require(close(entity.dxf.center, points[0]), entity.dxf.center, points[0])
        span = arc_angle_span_deg(entity.dxf.start_angle, entity.dxf.end_angle)
        if element["kind"] == "CIRCLE":
            radius = element["radius"] * (placement.factor or 1) / UNIT
            require(abs(entity.dxf.radius - radius) <= HALF, "radius", entity.dxf.radius, radius)
            require(span == 360, "a circle of", span)
        else:
            start, end = (point - points[0] for point in points[1:])
            require(abs(entity.dxf.radius - abs(start)) <= 4 * HALF, "radius", entity.dxf.radius, abs(start))
            require(same_direction(entity.dxf.start_angle, cmath.phase(start), 4 * HALF / abs(start)), "start")
            require(same_direction(entity.dxf.end_angle, cmath.phase(end), 4 * HALF / abs(end)), "end")


def check_symbols(entities, placements, symbols):
    """Compares entities, in order, with all elements of placed symbols; the number of each kind."""
    entities, counts = iter(entities), {}
    for placement in placements:
        reference, elements = symbols[placement.name]
        for index, element in enumerate(elements):
            entity = next(entities, None)
            require(entity is not None, "entities are missing")
            try:
                check_entity(entity, element, placement, reference)
            except Mismatch as mismatch:
                raise Mismatch(placement.line(), f"element {index}", *mismatch.args) from None
            counts[entity.dxftype()] = counts.get(entity.dxftype(), 0) + 1
    require(next(entities, None) is None, "more entities than elements")
    return counts
