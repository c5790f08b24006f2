"""demo_check.py: runs scripts/demo, looks for what it promises to leave, and reads its DXF file with ezdxf and dxflib."""

import pathlib
import re
import subprocess
import sys

OUT = pathlib.Path("build/demo")


def promised():
    """The files that the demo's own last lines name."""
    script = pathlib.Path("scripts/demo").read_text(encoding="utf-8")
    return re.findall(r"\$demo/([\w.]+\.\w+)", script.split("<<END")[1])


def left(names):
    missing = [name for name in names if not (OUT / name).is_file() or (OUT / name).stat().st_size == 0]
    symbols = len(list((OUT / "katalog").glob("*.syb")))
    if len(names) < 7 or missing or symbols != len(list(pathlib.Path("samples/katalog").glob("*.syt"))):
        raise AssertionError(f"{symbols} symbols; missing of {names}: {missing}")


def main():
    cases = {
        "demo": lambda: subprocess.run(["scripts/demo"], check=True),
        "what it leaves": lambda: left(promised()),
        "its DXF file": lambda: subprocess.run(
            [sys.executable, "tests/dxf/plan_check.py", OUT / "wohnung.dxf", "samples/planhost/wohnung.plan",
             "samples/katalog", "build/native/tests/dxf/dxflib_dump"], check=True),
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
