"""A click marks the topmost symbol, a rectangle all; Ctrl adds and takes away; marks are seen."""

from checks import require
from editor import MARK, ROOM, Editor, copy_of


def run():
    with Editor(copy_of(ROOM)) as editor:
        inside = {"Kommode": editor.pixel(2000, 1600), "Sessel": editor.pixel(4350, 4050), "Hocker": editor.pixel(6500, 2300)}

        def marked(picture, name):
            """Its frame is drawn, and its own colours are to be seen in it."""
            x, y = inside[name]
            row = [picture.at(x + i, y) for i in range(-90, 91)]
            return MARK in row[:90] and MARK in row[90:] and row[90] == opened.at(x, y)

        editor.park()
        opened = editor.picture()
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
        editor.point_at(editor.pixel(5450, 4400))
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
