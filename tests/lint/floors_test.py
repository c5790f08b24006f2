"""Plants every mistake that scripts/floors.py is to find in a small tree, and wants each of them named."""

import pathlib
import subprocess
import sys
import tempfile

SCRIPT = pathlib.Path(__file__).resolve().parents[2] / "scripts/floors.py"
LIST = """
## Floor 0

- `base` [] the ground
- `seams` [] beside it

## Floor 1

- `upper` [base] above
- `windows` [base] (Windows) above, with windows
"""
GOOD = {
    "src/base/ground.h": '#pragma once\n\n#include "base/number.h"\n\n#include <vector>\n',
    "src/upper/roof.cpp": '#include "upper/roof.h"\n\n#include "base/ground.h"\n',
    "src/windows/pane.cpp": "#include <winbase.h>\n#ifdef _WIN32\n#endif\n",
}
# name: (file, its text or the list's, what must be said)
FAULTS = {
    "upwards": ("src/base/x.cpp", '#include "upper/roof.h"\n', "base must not include upper/roof.h"),
    "sideways": ("src/upper/x.cpp", '#include "seams/seam.h"\n', "upper must not include seams/seam.h"),
    "in angle brackets": ("src/base/x.cpp", "#include <upper/roof.h>\n", "base must not include upper/roof.h"),
    "brackets for quotes": ("src/upper/x.cpp", "#include <base/ground.h>\n", "belongs into quotes"),
    "indented": ("src/base/x.cpp", '  #  include "upper/roof.h"\n', "base must not include upper/roof.h"),
    "no floor": ("src/base/x.cpp", '#include "attic/box.h"\n', "base must not include attic/box.h"),
    "Windows header": ("src/upper/x.cpp", "#include <winbase.h>\n", "<winbase.h> is not of the standard library"),
    "POSIX header": ("src/upper/x.cpp", "#include <unistd.h>\n", "<unistd.h> is not of the standard library"),
    "package": ("src/upper/x.cpp", "#include <boost/geometry.hpp>\n", "is not of the standard library"),
    "asks for the system": ("src/upper/x.cpp", "#if defined(_WIN64)\n#endif\n", "does not ask for the system"),
    "no pragma": ("src/upper/x.h", "int x;\n", "no #pragma once"),
    "long file": ("src/upper/x.cpp", "\n" * 601, "more than 600 lines"),
    "unlisted folder": ("src/attic/x.cpp", "\n", "its folder is not in src/README.md"),
    "cycle": ("src/README.md", LIST.replace("`base` []", "`base` [upper]"), "which is not on a lower floor"),
    "level": ("src/README.md", LIST.replace("`upper` [base]", "`upper` [windows]"), "which is not on a lower floor"),
    "unknown floor": ("src/README.md", LIST.replace("`upper` [base]", "`upper` [cellar]"), "which is not in the list"),
    "torn line": ("src/README.md", LIST.replace("`seams` []", "`seams`"), "not a line of the list"),
    "windows below": ("src/README.md", LIST + "\n## Floor 2\n\n- `top` [windows] high\n", "which is for Windows only"),
    "old picture": ("docs/architecture.md", "<!-- floors -->\nold\n<!-- /floors -->\n", "the picture of the floors is old"),
    "no picture": ("docs/architecture.md", "\n", "the picture of the floors is old"),
}


def lint(files):
    with tempfile.TemporaryDirectory() as folder:
        base = {"src/README.md": LIST, "docs/architecture.md": "<!-- floors -->\n<!-- /floors -->\n", **GOOD}
        picture = subprocess.run([sys.executable, "-c", f"""
import sys; sys.path.insert(0, {str(SCRIPT.parent)!r})
import floors, pathlib
print(floors.picture(floors.read_floors(pathlib.Path(sys.argv[1]), [])), end="")""", _write(folder, base, "src/README.md")],
                                 capture_output=True, text=True, check=True).stdout
        base["docs/architecture.md"] = f"<!-- floors -->\n{picture}<!-- /floors -->\n"
        for name in {**base, **files}:
            _write(folder, {**base, **files}, name)
        result = subprocess.run([sys.executable, str(SCRIPT), "--check", folder], capture_output=True, text=True)
        return result.returncode, result.stdout + result.stderr


def _write(folder, files, name):
    path = pathlib.Path(folder) / name
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_text(files[name], encoding="utf-8")
    return str(path)


def main():
    failed = []
    if lint({}) != (0, "floors: kept\n"):
        failed.append(f"a tree without a mistake: {lint({})}")
    for name, (path, text, said) in FAULTS.items():
        status, output = lint({path: text})
        if status != 1 or said not in output:
            failed.append(f"{name}: status {status}, {output}")
    print("\n".join(failed))
    print(f"{len(FAULTS) + 1 - len(failed)} passed, {len(failed)} failed, 0 skipped")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
