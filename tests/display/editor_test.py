"""editor_test.py SCENARIO: what a planner does with the plan editor, with mouse and keyboard, and what comes of it."""

import shutil
import sys

from desktop import Desktop, wait_for, windows_path
from editor import MARK, PICTURES, PROGRAM, ROOT, WALL, Editor, copy_of, folder, symbols_of, turned

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
        for name, picture, x, y in (("Auto", "car", 15000, 8000), ("Maßstab", "scale", 13300, 13450)):
            editor.click_at(editor.pixel(x, y))
            editor.wait_for_count("107 Symbole, 1 markiert")
            editor.key("F3")
            editor.wait_for_hint(name + ": Klick setzt")
            wander(editor, ["Prior", "Home", "0", "Up", "End", "Next", "Down", "Prior", "ctrl+Home"])
            editor.save_picture("placing-" + picture)
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


def choose(desktop, width, height):
    """Goes down the list until the preview has this size."""

    def shown():
        texts = [control[1] for control in desktop.window("#32770", "Symbol auswählen").controls]
        entries = [text for text in texts if text.isdecimal()]
        return (entries[0], width in texts and height in texts) if entries else None

    now = wait_for("the list", shown)
    while not now[1]:
        desktop.key("Down")
        now = wait_for("the next entry", lambda: (next_ := shown()) and next_[0] != now[0] and next_)


def choosing():
    """A symbol chosen in the library's dialog comes into a new plan, which is saved under a name."""
    with Editor() as editor:
        editor.wait_for_count("0 Symbole")
        editor.key("F2")
        choose(editor.desktop, "1600.00", "900.00")
        editor.save_picture("dialog")
        editor.key("Return")
        editor.wait_for_hint("Sofa zweisitzig: Klick setzt")
        target = editor.pixel(4000, 3000)
        editor.click_at(target)
        editor.wait_for_count("1 Symbol")
        editor.park()
        editor.save_picture("placed")

        # Given up, nothing comes of it; the dialog opens at the last choice.
        editor.key("F2")
        editor.answer("1600.00", "Escape")
        editor.wait_for_hint("markiert Symbole")

        editor.plan = folder() / "neu.plan"
        editor.key("ctrl+s")
        editor.answer_with_file("Save", editor.plan)
        editor.wait_for_window("neu.plan – Planhost")
        require(len(symbols_of(editor.plan)) == 1, "symbols")
        require_symbol(symbols_of(editor.plan)[0], "Sofa zweisitzig", editor.place(target), 0)

        # Pictures of the whole catalogue come beside the plan.
        editor.key("F2")
        editor.answer("Symbol auswählen", "alt+j")
        wait_for("95 pictures", lambda: len(list(folder().glob("*.JPG"))) == 95)
        editor.answer("Symbol auswählen", "Escape")
        editor.wait_for_hint("markiert Symbole")
        editor.quit()


def files():
    """What is deleted is deleted in the file, and only that; what is not saved is asked about."""
    plan = copy_of(FLAT)
    lines = plan.read_text(encoding="utf-8").splitlines()
    car = next(line for line in lines if line.startswith("SYMBOL;Auto;"))
    with Editor(plan) as editor:
        editor.click_at(editor.pixel(15000, 8000))
        editor.wait_for_count("107 Symbole, 1 markiert")
        editor.key("Delete")
        editor.wait_for_count("106 Symbole")
        editor.wait_for_window("wohnung.plan* – Planhost")
        editor.key("alt+F4")
        editor.desktop.window("#32770", "\"wohnung.plan\" ist geändert. Änderungen speichern?")
        editor.save_picture("question")
        editor.key("Escape")
        editor.wait_for_window("wohnung.plan* – Planhost")
        editor.save()
        editor.park()
        editor.wait_for_picture("the lawn", lambda picture: picture.at(*editor.pixel(15000, 8000)) == (226, 226, 224))
        saved = editor.picture()
        editor.save_picture("saved")
        editor.quit()
    lines.remove(car)
    require(plan.read_text(encoding="utf-8").splitlines() == lines, "more than the car has changed")

    for keys, is_saved in ((("n",), False), (("Return",), True)):
        with Editor(plan) as editor:
            editor.wait_for_count("106 Symbole")
            editor.park()
            editor.wait_for_same("the saved plan", saved)
            editor.click_at(editor.pixel(13300, 13450))
            editor.wait_for_count("106 Symbole, 1 markiert")
            editor.key("Delete")
            editor.wait_for_count("105 Symbole")
            editor.key("alt+F4")
            editor.answer("Änderungen speichern?", *keys)
            editor.desktop.wait_for_end()
        require(len(symbols_of(plan)) == (105 if is_saved else 106), "saved or not", keys)


def menus():
    """Save under another name, open, export, start anew; after the export symbols are hit as before."""
    with Editor(copy_of(ROOM)) as editor:
        other = folder() / "zwei.plan"
        editor.key("ctrl+shift+s")
        editor.answer_with_file("Save", other)
        editor.wait_for_window("zwei.plan – Planhost")
        require(other.read_bytes() == editor.plan.read_bytes(), "not the same plan")

        drawing = folder() / "zimmer.dxf"
        editor.key("ctrl+e")
        editor.answer_with_file("Save", drawing)
        wait_for("the drawing", lambda: drawing.exists() and drawing.read_bytes().endswith(b"EOF\r\n"))
        editor.wait_for_hint("markiert Symbole")
        editor.click_at(editor.pixel(6500, 2300))
        editor.wait_for_count("4 Symbole, 1 markiert")
        editor.click_at(editor.pixel(6500, 2300 + 250))  # just below the stool
        editor.wait_for_count("4 Symbole")

        editor.key("ctrl+n")
        editor.wait_for_window("Unbenannt – Planhost")
        editor.wait_for_count("0 Symbole")
        editor.key("ctrl+o")
        editor.answer_with_file("Open", other)
        editor.wait_for_window("zwei.plan – Planhost")
        editor.wait_for_count("4 Symbole")

        # By the menu alone: everything marked, then the program left.
        editor.key("alt+b")
        editor.desktop.window("#32768")
        editor.key("a")
        editor.wait_for_count("4 Symbole, 4 markiert")
        editor.key("alt+p")
        editor.desktop.window("#32768")
        editor.key("b")
        editor.desktop.wait_for_end()


def resizing():
    """The plan is fitted into every size, with the image of the tool that is at work."""
    with Editor(copy_of(ROOM)) as editor:
        editor.park()
        small = editor.picture()
        editor.click_at(editor.pixel(4500, 4100))
        editor.wait_for_count("4 Symbole, 1 markiert")
        editor.key("F3")
        editor.wait_for_hint("Sessel: Klick setzt")
        editor.point_at(editor.pixel(2000, 3000))
        editor.double_click_caption()
        require(editor.area[2] > 1200, editor.area)
        require_map(editor)
        editor.point_at(editor.pixel(6000, 5000))
        editor.save_picture("maximised")
        editor.key("Escape")
        editor.wait_for_hint("markiert Symbole")
        editor.double_click_caption()
        editor.park()
        editor.wait_for_same("the first size", small)
        editor.quit()


def failures():
    """What cannot be done is said, and the editor goes on with what it had."""
    missing = folder() / "fehlt.plan"
    with Editor(copy_of(ROOM)) as editor:
        editor.key("ctrl+o")
        broken = folder() / "kaputt.plan"
        broken.write_text("PLAN;Kaputt;5000;5000\nSYMBOL;Einhorn;10;20;0\n", encoding="utf-8")
        editor.answer_with_file("Open", broken)
        editor.answer("Zeile 2: Das Symbol \"Einhorn\" ist nicht im Katalog.", "Return")
        editor.wait_for_window("zimmer.plan – Planhost")
        editor.wait_for_count("4 Symbole")

        # The folder of the plan is gone when it is to be saved.
        place = folder() / "weg"
        place.mkdir()
        editor.key("ctrl+shift+s")
        editor.answer_with_file("Save", place / "zimmer.plan")
        wait_for("the plan", lambda: (place / "zimmer.plan").exists())
        editor.wait_for_window("zimmer.plan – Planhost")
        editor.key("ctrl+a", "Delete")
        editor.wait_for_count("0 Symbole")
        shutil.rmtree(place)
        editor.key("ctrl+s")
        editor.answer("Der Plan kann nicht geschrieben werden", "Return")
        editor.wait_for_window("zimmer.plan* – Planhost")
        editor.key("ctrl+z")
        editor.wait_for_count("4 Symbole")
        editor.quit()

    with Desktop(str(PROGRAM), "edit", windows_path(folder() / "katalog"), windows_path(missing)) as desktop:
        desktop.window("#32770", "Plan nicht gefunden")
        desktop.key("Return")
        desktop.window("PlanhostEditor", "Unbenannt – Planhost")
        desktop.key("alt+F4")
        desktop.wait_for_end()

    with Desktop(str(PROGRAM), "edit", windows_path(missing)) as desktop:
        desktop.window("#32770", "Ordner nicht gefunden")
        desktop.key("Return")
        desktop.wait_for_end()


SCENARIOS = {f.__name__: f for f in (placing, marking, moving, traces, choosing, files, menus, resizing, failures)}

if __name__ == "__main__":
    for old in PICTURES.glob(f"{sys.argv[1]}-*.png"):
        old.unlink()
    SCENARIOS[sys.argv[1]]()
    print(f"{sys.argv[1]}: passed")
