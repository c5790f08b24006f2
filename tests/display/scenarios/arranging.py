"""Align, distribute, to the front and to the back, by menu, keys and context menu: to the hundredth of a millimetre."""

import subprocess

from checks import require
from desktop import windows_path
from editor import PROGRAM, Editor, folder, symbols_of, turned

# Rectangles about the insertion point: left, top, right, bottom in millimetres.
BOXES = {"Brett": (0, 0, 600, 100), "Kiste": (-200, -100, 200, 100), "Klotz": (-300, -200, 0, 0)}
PLACED = [("Brett", 500, 700, 0), ("Kiste", 2300, 1500, 90), ("Klotz", 1900, 3900, 0), ("Kiste", 4100, 2600, 30)]


def add_boxes(catalogue):
    """One catalogue more, of symbols whose edges anybody can tell."""
    texts = folder() / "kisten"
    texts.mkdir()
    for name, (left, top, right, bottom) in BOXES.items():
        corners = ((left, top), (right, top), (right, bottom), (left, bottom), (left, top))
        points = "".join(f"POINT;{x};{y}\n" for x, y in corners)
        text = f"SYM;CNT=1;WID={right - left};HEI={bottom - top};RPX=0;RPY=0\nPOLY;CNT={len(corners)};WID=0\n{points}"
        (texts / f"{name}.syt").write_text(text, encoding="latin-1")
    subprocess.run(["wine", PROGRAM, "convert", windows_path(texts), windows_path(catalogue)], check=True,
                   stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)  # fmt: skip


def edges(symbol):
    """(from, to) of a placed box across, and down."""
    name, x, y, degrees = symbol
    left, top, right, bottom = BOXES[name]
    corners = [turned(corner, degrees) for corner in ((left, top), (right, top), (right, bottom), (left, bottom))]
    return tuple((min(c[i] for c in corners) + at, max(c[i] for c in corners) + at) for i, at in ((0, x), (1, y)))


def aligned(axis, target):
    """All go along an axis only; target: where an edge or a middle comes, out of (from, to) of one, and of all."""

    def places(symbols):
        spans = [edges(symbol)[axis] for symbol in symbols]
        whole = (min(span[0] for span in spans), max(span[1] for span in spans))
        return [target(span, whole) for span in spans]

    return axis, places


def distributed(axis):
    def places(symbols):
        spans = [edges(symbol)[axis] for symbol in symbols]
        order = sorted(range(len(spans)), key=lambda i: sum(spans[i]))
        gap = (spans[order[-1]][1] - spans[order[0]][0] - sum(b - a for a, b in spans)) / (len(spans) - 1)
        moves, at = [0.0] * len(spans), spans[order[0]][0]
        for i in order:
            moves[i] = at - spans[i][0]
            at += spans[i][1] - spans[i][0] + gap
        return moves

    return axis, places


# The letter in the menu, and how far each symbol goes.
ORDERS = {
    "l": aligned(0, lambda one, all_: all_[0] - one[0]),
    "r": aligned(0, lambda one, all_: all_[1] - one[1]),
    "o": aligned(1, lambda one, all_: all_[0] - one[0]),
    "t": aligned(1, lambda one, all_: all_[1] - one[1]),
    "m": aligned(0, lambda one, all_: sum(all_) / 2 - sum(one) / 2),
    "n": aligned(1, lambda one, all_: sum(all_) / 2 - sum(one) / 2),
    "w": distributed(0),
    "s": distributed(1),
}


def run():
    plan = folder() / "kisten.plan"
    plan.write_text("PLAN;Kisten;6000;5000\n" + "".join(f"SYMBOL;{';'.join(map(str, s))}\n" for s in PLACED), encoding="utf-8")
    with Editor(plan, prepare=add_boxes) as editor:

        def saved(change):
            change()
            editor.wait_for_window("kisten.plan* – Planhost")
            editor.save()
            return symbols_of(plan)

        def by_menu(letter):
            editor.key("alt+a")
            editor.desktop.window("#32768")
            editor.key(letter)

        before = symbols_of(plan)
        editor.key("ctrl+a")
        editor.wait_for_count("4 Symbole, 4 markiert")
        for letter, (axis, places) in ORDERS.items():
            now = saved(lambda: by_menu(letter))
            for was, is_, move in zip(before, now, places(before), strict=True):
                expected = [was[1], was[2]]
                expected[axis] += move
                require(is_[0] == was[0] and is_[3] == was[3], letter, was, is_)
                require(max(abs(is_[1] - expected[0]), abs(is_[2] - expected[1])) < 0.021, letter, was, is_, expected)
            editor.save_picture(f"order-{letter}")
            require(saved(lambda: editor.key("ctrl+z")) == before, letter, "not taken back")
            editor.key("ctrl+a")
            editor.wait_for_count("4 Symbole, 4 markiert")

        # To the front by keys, to the back by the menu, to the front by the context menu; what moved stays marked.
        editor.key("Escape")
        editor.wait_for_count("4 Symbole")
        editor.click_at(editor.pixel(600, 700))
        editor.wait_for_count("4 Symbole, 1 markiert")
        front = [*before[1:], before[0]]
        require(saved(lambda: editor.key("ctrl+shift+Prior")) == front, "not in front", symbols_of(plan))
        require(saved(lambda: by_menu("h")) == before, "not at the back", symbols_of(plan))
        require(saved(lambda: by_menu("a")) == front, "not in front", symbols_of(plan))
        editor.wait_for_count("4 Symbole, 1 markiert")
        editor.point_at(editor.pixel(600, 700))
        editor.desktop.click(3)
        editor.desktop.window("#32768")
        editor.save_picture("context-menu")
        require(saved(lambda: editor.key("h")) == before, "not at the back", symbols_of(plan))
        editor.quit()
