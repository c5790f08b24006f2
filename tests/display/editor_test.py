"""editor_test.py SCENARIO: what a planner does with the plan editor, with mouse and keyboard, and what comes of it.

A scenario is a module of the folder scenarios with a function run. Without one it names them all."""

import importlib
import pathlib
import sys

from editor import PICTURES

HERE = pathlib.Path(__file__).resolve().parent


def main():
    if len(sys.argv) < 2:
        print("\n".join(sorted(module.stem for module in (HERE / "scenarios").glob("*.py"))))
        return
    name = sys.argv[1]
    for old in PICTURES.glob(f"{name}-*.png"):
        old.unlink()
    importlib.import_module(f"scenarios.{name}").run()
    print("1 passed, 0 failed, 0 skipped")


if __name__ == "__main__":
    main()
