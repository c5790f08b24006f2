"""What scenarios require of the editor and of the plans that it leaves."""

from editor import WALL, turned


def require(condition, *what):
    if not condition:
        raise AssertionError(*what)


def require_symbol(actual, name, at, degrees):
    """at: in millimetres, to the hundredth."""
    require(actual[0] == name, actual, name)
    require(max(abs(actual[1] - at[0]), abs(actual[2] - at[1])) < 0.011, actual, at)
    require(abs(actual[3] - degrees) < 1e-5, actual, degrees)


def require_map(editor):
    """The picture shows the plan where this test believes it does: the outer corner of the room's walls."""
    corner = editor.pixel(280, 1080)
    picture = editor.picture()
    require(picture.at(corner[0] + 2, corner[1] + 2) == WALL, "no wall at", corner)
    for beside in ((corner[0] - 2, corner[1] + 2), (corner[0] + 2, corner[1] - 2)):
        require(picture.at(*beside) != WALL, "a wall at", beside)


def grouped(symbols, base, degrees):
    """The symbols as a group whose first one is moved to base, the whole turned by degrees."""
    _, x0, y0, _ = symbols[0]
    for name, x, y, angle in symbols:
        dx, dy = turned((x - x0, y - y0), degrees)
        yield name, (base[0] + dx, base[1] + dy), (angle + degrees) % 360


def require_group(actual, expected):
    for symbol, (name, at, degrees) in zip(actual, expected, strict=True):
        require_symbol(symbol, name, at, degrees)
