"""No work is lost: what cannot be drawn does not come into the plan, a crash leaves a minute's work at most, and the editor
begins where its user left it."""

import subprocess

from checks import require
from desktop import Desktop, wait_for, windows_path
from editor import PROGRAM, ROOM, Editor, copy_of, folder, symbols_of

GIANT = "SYM;CNT=1;WID=1000;HEI=1000;RPX=0;RPY=0\nPOLY;CNT=2;WID=10\nPOINT;0;0\nPOINT;15000000;0\n"


def add_giant(catalogue):
    """A symbol of 15 km: far out on the largest sheet its end leaves the 32 bits."""
    texts = folder() / "riese"
    texts.mkdir()
    (texts / "Riese.syt").write_text(GIANT, encoding="latin-1")
    subprocess.run(["wine", PROGRAM, "convert", windows_path(texts), windows_path(catalogue)], check=True,
                   stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)  # fmt: skip


def run():
    plan = copy_of(ROOM)
    kept = plan.with_name(plan.name + ".auto")
    with Editor(plan, settings="[Ansicht]\nFangen=0\nWeitersetzen=0\n[Plan]\nSicherung=1\n", prepare=add_giant) as editor:
        editor.click_at(editor.pixel(6500, 2300))
        editor.wait_for_count("4 Symbole, 1 markiert")
        # The stool becomes a giant, which is well here and nowhere near the edge of what can be drawn.
        editor.key("F4", "shift+Tab")
        editor.desktop.type("Riese")
        editor.key("Return")
        editor.wait_for_window("zimmer.plan* – Planhost")
        editor.key("F4")
        editor.desktop.type("9000000")
        editor.key("Return")
        editor.answer("Das Symbol \"Riese\" lässt sich an dieser Stelle nicht zeichnen", "Return")
        editor.wait_for_count("4 Symbole, 1 markiert")
        editor.save()
        require(symbols_of(plan)[2] == ("Riese", 6500.0, 2300.0, 0.0), symbols_of(plan))

        # A plan that has it there is not opened; the old one stays.
        far = folder() / "fern.plan"
        far.write_text("PLAN;Fern;9500000;9500000\nSYMBOL;Riese;9000000;1000;0\n", encoding="utf-8")
        editor.key("ctrl+o")
        editor.answer_with_file("Plan öffnen", far)
        editor.answer("Das Symbol \"Riese\"", "Return")
        editor.wait_for_window("zimmer.plan – Planhost")
        editor.wait_for_count("4 Symbole, 1 markiert")

        # Work that is not saved is kept; then the program is gone.
        editor.key("Delete")
        editor.wait_for_count("3 Symbole")
        wait_for("the kept plan", lambda: kept.exists() and len(symbols_of(kept)) == 3)
        subprocess.run(["wine", "taskkill", "/F", "/IM", "planhost.exe"], stdout=subprocess.DEVNULL,
                       stderr=subprocess.DEVNULL)  # fmt: skip
        editor.desktop.wait_for_end()
    require(len(symbols_of(plan)) == 4, "saved unasked")

    # Without arguments: the last plan, and what was kept of it.
    with Desktop(str(PROGRAM)) as desktop:
        desktop.window("#32770", "nicht mehr gespeichert")
        desktop.key("Return")
        window = desktop.window("PlanhostEditor", "zimmer.plan* – Planhost")
        require(window.status[2] == "3 Symbole", window.status)
        desktop.key("ctrl+s")
        desktop.window("PlanhostEditor", "zimmer.plan – Planhost")
        wait_for("nothing kept", lambda: not kept.exists())
        require(len(symbols_of(plan)) == 3, "not recovered")
        desktop.key("F1")
        desktop.window("#32770", "Alle Tasten")
        editor.save_picture_of(desktop, "keys")
        desktop.key("Escape")
        desktop.window("PlanhostEditor")
        desktop.key("alt+F4")
        desktop.wait_for_end()

    # The first time: a copy of the sample plan, with the sample catalogue.
    editor.settings.unlink()
    with Desktop(str(PROGRAM)) as desktop:
        window = desktop.window("PlanhostEditor", "wohnung.plan – Planhost")
        require(window.status[2] == "107 Symbole", window.status)
        desktop.key("alt+F4")
        desktop.wait_for_end()
    require((folder() / "wohnung.plan").exists(), "no copy of the sample plan")
