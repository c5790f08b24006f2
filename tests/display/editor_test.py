"""editor_test.py SCENARIO: what a planner does with the plan editor, with mouse and keyboard, and what comes of it."""

import sys

from editor import MARK, ROOT, WALL, Editor, copy_of, symbols_of, turned

ROOM = ROOT / "tests/display/zimmer.plan"
FLAT = ROOT / "samples/planhost/wohnung.plan"


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


def placing():
    """A symbol turned by every key, placed by a click, is in the saved plan; the next one gets a guide line."""
    with Editor(copy_of(ROOM)) as editor:
        editor.wait_for_count("4 Symbole")
        require_map(editor)
        editor.park()
        empty = editor.picture()
        editor.save_picture("opened")

        editor.click_at(editor.pixel(4500, 4100))
        editor.wait_for_count("4 Symbole, 1 markiert")
        editor.key("F3")
        editor.wait_for_hint("Sessel: Klick setzt")
        target = editor.pixel(6000, 4400)
        editor.point_at(target)
        editor.wait_for_direction(30)
        for key, degrees in (("Prior", 40), ("Up", 41), ("Down", 40), ("Next", 30), ("End", 300), ("Home", 30),
                             ("0", 30), ("Left", 30)):  # fmt: skip
            editor.key(key)
            editor.wait_for_direction(degrees)
        editor.desktop.hold("ctrl")
        editor.key("Home")
        editor.wait_for_direction(0)
        editor.key("Prior")
        editor.wait_for_direction(10)
        editor.desktop.let_go("ctrl")
        for key, degrees in (("Next", 0), ("Down", 359), ("Home", 89), ("Next", 79)):
            editor.key(key)
            editor.wait_for_direction(degrees)
        editor.save_picture("following")
        editor.desktop.click()
        editor.wait_for_count("5 Symbole")
        editor.park()
        editor.wait_for_picture("the new symbol", lambda picture: picture != empty)
        editor.save_picture("placed")
        editor.save()
        symbols = symbols_of(editor.plan)
        require(len(symbols) == 5, symbols)
        require_symbol(symbols[4], "Sessel", editor.place(target), 79)

        # Once more, from there, with a guide line; and away again.
        placed = editor.picture()
        editor.key("F3")
        editor.wait_for_hint("Sessel: Klick setzt")
        far = editor.pixel(1500, 3500)
        editor.point_at(far)
        middle = ((target[0] + far[0]) // 2, (target[1] + far[1]) // 2)
        around = range(middle[1] - 2, middle[1] + 3)
        editor.wait_for_picture("the guide line", lambda now: any(
            now.at(middle[0], y) != placed.at(middle[0], y) for y in around))  # fmt: skip
        editor.save_picture("guide-line")
        editor.key("Escape")
        editor.wait_for_hint("markiert Symbole")
        editor.park()
        editor.wait_for_same("the picture after Escape", placed)

        # Shift catches the middle of the stool from some pixels beside it.
        editor.key("F3")
        editor.wait_for_hint("Sessel: Klick setzt")
        stool = editor.pixel(6500, 2300)
        editor.desktop.hold("shift")
        editor.point_at((stool[0] + 7, stool[1] - 6))
        editor.save_picture("caught")
        editor.desktop.click()
        editor.wait_for_count("6 Symbole")
        editor.desktop.let_go("shift")
        editor.save()
        require_symbol(symbols_of(editor.plan)[5], "Sessel", (6500, 2300), 79)
        editor.quit()


def marking():
    """A click marks the topmost symbol, a rectangle all; Ctrl adds and takes away; marks are seen."""
    with Editor(copy_of(ROOM)) as editor:
        inside = {"Kommode": editor.pixel(2000, 1600), "Sessel": editor.pixel(4350, 4050), "Hocker": editor.pixel(6500, 2300)}
        marked = lambda picture, name: picture.at(*inside[name]) == MARK
        editor.click_at(inside["Kommode"])
        editor.wait_for_count("4 Symbole, 1 markiert")
        editor.park()
        picture = editor.picture()
        editor.wait_for_picture("one mark", lambda now: marked(now, "Kommode") and not marked(now, "Hocker"))
        editor.save_picture("one")

        editor.desktop.hold("ctrl")
        editor.click_at(inside["Hocker"])
        editor.wait_for_count("4 Symbole, 2 markiert")
        editor.click_at(inside["Kommode"])
        editor.wait_for_count("4 Symbole, 1 markiert")
        editor.desktop.let_go("ctrl")
        editor.park()
        editor.wait_for_picture("the other mark", lambda now: marked(now, "Hocker") and not marked(now, "Kommode"))

        # From the lower right to the upper left, over the chest and the armchair.
        editor.point_at(editor.pixel(4800, 4200))
        editor.desktop.press()
        editor.point_at(editor.pixel(3000, 2800))
        editor.point_at(editor.pixel(1000, 1500))
        editor.save_picture("rubber-band")
        editor.desktop.release()
        editor.wait_for_count("4 Symbole, 2 markiert")
        editor.park()
        editor.wait_for_picture("two marks", lambda now: marked(now, "Kommode") and marked(now, "Sessel"))
        editor.save_picture("two")

        editor.key("ctrl+a")
        editor.wait_for_count("4 Symbole, 4 markiert")
        editor.key("Escape")
        editor.wait_for_count("4 Symbole")
        editor.park()
        editor.wait_for_picture("no marks", lambda now: now.count(MARK) == 0)
        require(editor.picture() != picture, "marks that are not seen")
        require(editor.wait_for_window().text == "zimmer.plan – Planhost", "marking is no change")
        editor.quit()


def grouped(symbols, base, degrees):
    """The symbols as a group whose first one is moved to base, the whole turned by degrees."""
    _, x0, y0, _ = symbols[0]
    for name, x, y, angle in symbols:
        dx, dy = turned((x - x0, y - y0), degrees)
        yield name, (base[0] + dx, base[1] + dy), (angle + degrees) % 360


def require_group(actual, expected):
    for symbol, (name, at, degrees) in zip(actual, expected, strict=True):
        require_symbol(symbol, name, at, degrees)


def moving():
    """A group is moved by the mouse, turned by the keypad in both of its forms, moved by typed numbers, copied."""
    with Editor(copy_of(ROOM)) as editor:
        before = symbols_of(editor.plan)
        # Chest and armchair: the chest, standing at 0°, is the first.
        editor.drag(editor.pixel(1000, 1500), editor.pixel(4800, 4200))
        editor.wait_for_count("4 Symbole, 2 markiert")
        editor.key("ctrl+m")
        editor.wait_for_hint("Verschieben: Klick setzt")
        target = editor.pixel(4000, 4300)
        editor.point_at(target)
        editor.wait_for_direction(0)
        # With Num Lock, without it, the signs of the keypad and those beside the letters.
        for key, degrees in (("KP_4", 90), ("KP_Page_Up", 315), ("KP_Up", 0), ("KP_9", 315), ("KP_Add", 314),
                             ("KP_Multiply", 304), ("KP_Divide", 314), ("KP_Subtract", 315), ("minus", 316),
                             ("KP_8", 0), ("KP_Begin", 0), ("Up", 0), ("KP_7", 45), ("KP_Subtract", 46)):  # fmt: skip
            editor.key(key)
            editor.wait_for_direction(degrees)
        editor.save_picture("turned")
        editor.desktop.click()
        editor.wait_for_hint("Strg+M verschiebt")
        editor.park()
        editor.save_picture("fixed")
        editor.save()
        moved = symbols_of(editor.plan)
        require_group(moved[:2], grouped(before[:2], editor.place(target), 46))
        require(moved[2:] == before[2:], moved[2:])

        # The same two by typed numbers, relative to where they are.
        editor.key("ctrl+u")
        editor.desktop.window("#32770", "Verschieben")
        editor.desktop.type("-250,5\t100.25")
        editor.save_picture("typed")
        editor.key("Return")
        editor.wait_for_window("zimmer.plan* – Planhost")
        editor.save()
        typed = symbols_of(editor.plan)
        _, x, y, _ = moved[0]
        require_group(typed[:2], grouped(moved[:2], (x - 250.5, y + 100.25), 0))

        # And to a place of the plan: the base point of the group comes there.
        editor.key("ctrl+u")
        editor.desktop.window("#32770", "Verschieben")
        editor.key("alt+a")
        editor.key("alt+x")
        editor.desktop.type("2000\t600")
        editor.key("Return")
        editor.wait_for_window("zimmer.plan* – Planhost")
        editor.save()
        require_group(symbols_of(editor.plan)[:2], grouped(typed[:2], (2000, 600), 0))

        # What is no number is said, and the dialog stays.
        editor.key("ctrl+u")
        editor.desktop.window("#32770", "um eine Strecke")
        editor.desktop.type("zwei")
        editor.key("Return")
        editor.desktop.window("#32770", "\"zwei\" ist keine Länge in Millimetern.")
        editor.save_picture("no-number")
        editor.key("Return")
        editor.desktop.window("#32770", "um eine Strecke")
        editor.key("Escape")
        editor.wait_for_window("zimmer.plan – Planhost")

        # A copy; then everything is taken back, step by step.
        editor.key("ctrl+d")
        editor.wait_for_hint("Duplizieren: Klick setzt")
        copy = editor.pixel(5000, 4800)
        editor.click_at(copy)
        editor.wait_for_count("6 Symbole, 2 markiert")
        editor.save()
        copied = symbols_of(editor.plan)
        require_group(copied[4:], grouped(copied[:2], editor.place(copy), 0))
        editor.key("ctrl+z")
        editor.wait_for_count("4 Symbole")
        editor.key("ctrl+z", "ctrl+z", "ctrl+z")
        editor.wait_for_window("zimmer.plan* – Planhost")
        editor.key("ctrl+s")
        editor.wait_for_window("zimmer.plan – Planhost")
        require(editor.plan.read_text(encoding="utf-8") == ROOM.read_text(encoding="utf-8"), "not taken back")
        editor.quit()


def wander(editor, keys):
    """Moves the mouse all over the plan, with a key at every stop."""
    for i, key in enumerate(keys):
        editor.point_at(editor.pixel(1500 + 1730 * i % 13000, 1300 + 2390 * i % 11000))
        editor.key(key)


def traces():
    """Nothing stays behind of what tools and rubber band showed, texts and thick lines included."""
    with Editor(copy_of(FLAT)) as editor:
        editor.wait_for_count("107 Symbole")
        editor.park()
        clean = editor.picture()

        # The car and the scale with its numbers, one after the other.
        for name, x, y in (("Auto", 15000, 8000), ("Maßstab", 13300, 13450)):
            editor.click_at(editor.pixel(x, y))
            editor.wait_for_count("107 Symbole, 1 markiert")
            editor.key("F3")
            editor.wait_for_hint(name + ": Klick setzt")
            wander(editor, ["Prior", "Home", "0", "Up", "End", "Next", "Down", "Prior", "ctrl+Home"])
            editor.save_picture("placing-" + name)
            editor.key("Escape")
            editor.wait_for_hint("markiert Symbole")
            editor.park()
            editor.wait_for_same("after placing " + name, clean)

        # The whole kitchen, with a menu opened over it on the way.
        editor.drag(editor.pixel(760, 760), editor.pixel(4200, 4200))
        wait_marked = editor.status()[2]
        require("markiert" in wait_marked, wait_marked)
        editor.park()
        marked = editor.picture()
        editor.key("ctrl+m")
        editor.wait_for_hint("Verschieben: Klick setzt")
        wander(editor, ["KP_4", "KP_Add", "KP_9", "KP_Divide"])
        editor.key("alt+b")
        editor.desktop.window("#32768")
        editor.save_picture("menu")
        editor.key("Escape", "Escape")
        editor.wait_for_hint("Verschieben: Klick setzt")
        wander(editor, ["KP_1", "KP_Multiply", "minus"])
        editor.save_picture("moving")
        editor.key("Escape")
        editor.wait_for_hint("Strg+M verschiebt")
        editor.park()
        editor.wait_for_same("after moving", marked)

        # A rubber band, given up.
        editor.point_at(editor.pixel(5000, 5000))
        editor.desktop.press()
        wander(editor, ["Shift_L"] * 6)
        editor.key("Escape")
        editor.desktop.release()
        editor.park()
        editor.wait_for_same("after the rubber band", marked)
        require(editor.wait_for_window().text == "wohnung.plan – Planhost", "nothing has changed")
        editor.quit()


SCENARIOS = {scenario.__name__: scenario for scenario in (placing, marking, moving, traces)}

if __name__ == "__main__":
    SCENARIOS[sys.argv[1]]()
    print(f"{sys.argv[1]}: passed")
