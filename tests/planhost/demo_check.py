"""demo_check.py: runs scripts/demo, looks for what it promises to leave, and reads its DXF file with ezdxf.

What the sample host leaves to the library of plans is held against the samples that do it with the symbol library alone."""

import math
import pathlib
import re
import shutil
import subprocess
import sys

OUT = pathlib.Path("build/demo")
WOHNUNG = pathlib.Path("samples/planhost/wohnung.plan")


def promised():
    """The files that the demo's own last lines name."""
    script = pathlib.Path("scripts/demo").read_text(encoding="utf-8")
    return re.findall(r"\$demo/([\w.]+\.\w+)", script.split("<<END")[1])


def left(names):
    missing = [name for name in names if not (OUT / name).is_file() or (OUT / name).stat().st_size == 0]
    symbols = len(list((OUT / "katalog").rglob("*.syb")))
    if len(names) < 7 or missing or symbols != len(list(pathlib.Path("samples/katalog").rglob("*.syt"))):
        raise AssertionError(f"{symbols} symbols; missing of {names}: {missing}")


def windows_program(program, *arguments):
    """What a program says, and its exit status; paths become those of Windows."""
    run = '. scripts/common.sh; words=(); for word in "${@:2}"; do case $word in */*) word=$(windows "$word") ;; esac; words+=("$word"); done; wine_run "$1" "${words[@]}"'
    ran = subprocess.run(["bash", "-c", run, "-", program, *map(str, arguments)], capture_output=True)
    return ran.returncode, ran.stdout.decode(errors="replace").split("\n"), ran.stderr.decode(errors="replace")


def with_symbols_alone(sample, *arguments):
    status, said, failure = windows_program(f"build/mingw-x64/bin/symbols_{sample}.exe", "build/demo/katalog", *arguments)
    if status != 0:
        raise AssertionError(f"{sample}: {failure}")
    return [line.strip() for line in said if line.strip()]


def draws_as_symbols_alone():
    """The same encoder writes the pictures of both, so that equal files are equal pixels."""
    with_symbols_alone("draw", WOHNUNG, OUT / "wohnung-symbole.png")
    if (OUT / "wohnung-symbole.png").read_bytes() != (OUT / "wohnung.png").read_bytes():
        raise AssertionError("wohnung.png is another picture")


def finds_as_symbols_alone():
    for at in ([700, 600], [5, 5], [120, 620, 450, 830], [0, 0, 1999, 1651]):
        alone = with_symbols_alone("hit", WOHNUNG, 2000, *at)
        status, said, failure = windows_program(
            "dist/x64/planhost.exe", "mark", "build/demo/katalog", WOHNUNG, OUT / "treffer.png", *at)
        marked = [line.strip() for line in said[1:] if line.strip()]
        if status != 0 or marked != alone or (len(at) == 4 and len(alone) < 3):
            raise AssertionError(f"at {at}: {marked}, alone {alone}; {failure}")


def exports_with_symbols_alone():
    with_symbols_alone("export", WOHNUNG, OUT / "wohnung-symbole.dxf")
    subprocess.run([sys.executable, "tests/dxf/plan_check.py", OUT / "wohnung-symbole.dxf", WOHNUNG, "samples/katalog",
                    "build/native/tests/dxf/dxflib_dump"], check=True)


def places_with_symbols_alone():
    if with_symbols_alone("place", "Herd", 300, 200) != ["Herd;3000;2000;90"]:
        raise AssertionError("another place")


def keeps_the_old_plan():
    """An export that fails in its middle leaves the file of before, and nothing beside it."""
    plan, target = OUT / "zu weit.plan", OUT / "zu weit.dxf"
    plan.write_text("PLAN;Haus;5000;4000\nSYMBOL;Herd;100;100;0\nSYMBOL;Herd;900000;100;0\n", encoding="utf-8")
    target.write_text("the old plan")
    status, _, failure = windows_program("build/mingw-x64/bin/symbols_export.exe", "build/demo/katalog", plan, target)
    if status != 1 or "zu weit" not in failure:
        raise AssertionError(f"status {status}: {failure}")
    # The sample host, for a symbol that nobody has.
    plan.write_text("PLAN;Haus;5000;4000\nSYMBOL;Einhorn;100;100;0\n", encoding="utf-8")
    status, _, failure = windows_program("dist/x64/planhost.exe", "dxf", "build/demo/katalog", plan, target)
    if status != 1 or "Zeile 2" not in failure or "Einhorn" not in failure:
        raise AssertionError(f"status {status}: {failure}")
    if target.read_text() != "the old plan" or len(list(OUT.glob("zu weit.dxf*"))) != 1:
        raise AssertionError(f"{sorted(OUT.glob('zu weit*'))}")


def tells_of_a_name_in_two_folders():
    for category in ("Bad", "Küche"):
        (OUT / "doppelt" / category).mkdir(parents=True, exist_ok=True)
        shutil.copy(OUT / "katalog/Küche/Herd.syb", OUT / "doppelt" / category)
    sheet = '. scripts/common.sh; wine_run dist/x64/planhost.exe sheet "$(windows build/demo/doppelt)" "$(windows build/demo/doppelt.png)"'
    ran = subprocess.run(["bash", "-c", sheet], capture_output=True)
    if ran.returncode != 1 or b'Das Symbol "Herd" gibt es in mehreren Ordnern' not in ran.stderr:
        raise AssertionError(f"status {ran.returncode}: {ran.stderr}")


def planhost_draws(plan, width):
    """The bytes of the picture that the sample host draws of a plan file."""
    picture = OUT / f"{plan.stem}-host.png"
    draw = ('. scripts/common.sh; wine_run dist/x64/planhost.exe plan "$(windows build/demo/katalog)" "$(windows "$1")" '
            '"$(windows "$2")" "$3"')
    subprocess.run(["bash", "-c", draw, "-", plan, picture, str(width)], check=True, stdout=subprocess.DEVNULL)
    return picture.read_bytes()


def draws_what_the_host_draws():
    """The same encoder writes the pictures of both, so that equal files are equal pixels."""
    script = pathlib.Path("samples/scripts/zimmer.vbs").read_text(encoding="utf-8")
    furniture = OUT / "moebel.plan"
    lines = ["PLAN;;4800;3600", f"FLOOR;{250 + 243 * 256 + 230 * 65536};0;0;4800;3600"]
    for name, x, y, angle in re.findall(r'Plan.Add "(\w+)", (\d+), (\d+), ([\d.]+)', script):
        lines.append(f"SYMBOL;{name};{int(x) // 100};{int(y) // 100};{round(math.degrees(float(angle)), 6)}")
    furniture.write_text("\n".join(lines) + "\n", encoding="utf-8")
    if len(lines) < 7 or planhost_draws(furniture, 960) != (OUT / "moebel.png").read_bytes():
        raise AssertionError(f"moebel.png is another picture of {lines}")
    if planhost_draws(pathlib.Path("samples/scripts/zimmer.plan"), 1000) != (OUT / "zimmer.png").read_bytes():
        raise AssertionError("zimmer.png is another picture")


def runs_the_example_for_jscript():
    """What the documentation shows says what the comment behind it promises."""
    text = pathlib.Path("docs/automation.md").read_text(encoding="utf-8")
    (example,) = re.findall(r"^ *```js\n(.*?)```", text, re.M | re.S)
    script = OUT / "beispiel.js"
    script.write_text(example, encoding="ascii")
    run = '. scripts/common.sh; own_home; wine_run cscript //nologo "$(windows "$1")"'
    said = subprocess.run(["bash", "-c", run, "-", script], capture_output=True, text=True).stdout.strip()
    if said != example.rsplit("//", 1)[1].strip():
        raise AssertionError(f"the example says {said}")


def main():
    cases = {
        "demo": lambda: subprocess.run(["scripts/demo"], check=True),
        "what it leaves": lambda: left(promised()),
        "its DXF file": lambda: subprocess.run(
            [sys.executable, "tests/dxf/plan_blocks_check.py", OUT / "wohnung.dxf", WOHNUNG], check=True),
        "drawing with symbols alone": draws_as_symbols_alone,
        "hits with symbols alone": finds_as_symbols_alone,
        "DXF with symbols alone": exports_with_symbols_alone,
        "placing with symbols alone": places_with_symbols_alone,
        "pictures of scripts": draws_what_the_host_draws,
        "a failed export": keeps_the_old_plan,
        "the example for JScript": runs_the_example_for_jscript,
        "a name in two folders": tells_of_a_name_in_two_folders,
    }  # fmt: skip
    failed = 0
    for name, case in cases.items():
        try:
            case()
        except (AssertionError, subprocess.CalledProcessError) as error:
            failed += 1
            print(f"failed: {name}: {error}")
    print(f"{len(cases) - failed} passed, {failed} failed, 0 skipped")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
