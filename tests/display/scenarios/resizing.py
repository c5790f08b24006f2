"""The plan is fitted into every size, with the image of the tool that is at work."""

from checks import require, require_map
from editor import ROOM, Editor, copy_of


def run():
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
