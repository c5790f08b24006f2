"""What cannot be done is said, and the editor goes on with what it had."""

import shutil

from desktop import Desktop, wait_for, windows_path
from editor import PROGRAM, ROOM, Editor, copy_of, folder


def run():
    missing = folder() / "fehlt.plan"
    with Editor(copy_of(ROOM)) as editor:
        editor.key("ctrl+o")
        broken = folder() / "kaputt.plan"
        broken.write_text("PLAN;Kaputt;5000;5000\nSYMBOL;Einhorn;10;20;0\n", encoding="utf-8")
        editor.answer_with_file("Plan öffnen", broken)
        editor.answer("Zeile 2: Das Symbol \"Einhorn\" ist nicht im Katalog.", "Return")
        editor.wait_for_window("zimmer.plan – Planhost")
        editor.wait_for_count("4 Symbole")

        # The folder of the plan is gone when it is to be saved.
        place = folder() / "weg"
        place.mkdir()
        editor.key("ctrl+shift+s")
        editor.answer_with_file("Plan speichern", place / "zimmer.plan")
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
