"""Plants every mistake that scripts/reference.py is to find in a copy of contracts and pages, and wants each of them named."""

import pathlib
import shutil
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parents[2]
TRANS, SYMBOL, ENUM = "docs/classes/CTrans.md", "docs/classes/CSymbol.md", "docs/classes/SymElementTypeConstants.md"
# name: (file, what stands there, what then stands there instead, what must be said)
FAULTS = {
    "member without a row": ("idl/QMath.idl", "interface _CPt : IDispatch {",
                             "interface _CPt : IDispatch {\n    [id(9)] HRESULT Flip([in] long How);",
                             "CPt.md: slot 5, Y (let), has no row"),
    "row without a member": (TRANS, "| 11 | `OffsetY`", "| 12 | `OffsetZ` (get) | → Long | |\n| 11 | `OffsetY`",
                             "CTrans.md: slot 12, OffsetZ, is not in the contract"),
    "row gone": (SYMBOL, "| 12 | `DxfExport` |", "12 `DxfExport`", "CSymbol.md: slot 12, DxfExport (method), has no row"),
    "name": (TRANS, "`SetOffsetX`", "`SetOffset`", "slot 2 says SetOffset (method) value Long"),
    "kind": (SYMBOL, "`Name` (get)", "`Name` (let)", "slot 3 says Name (let)"),
    "slot": (TRANS, "| 3 | `SetOffsetY`", "| 33 | `SetOffsetY`", "slot 3, SetOffsetY (method), has no row"),
    "slots for kinds": (SYMBOL, "| 1, 2 | `FilePath`", "| 1 | `FilePath`", "FilePath: 1 slots for 2 kinds"),
    "argument": (TRANS, "`factor` Double, `size` Integer", "`size` Integer", "slot 7 says FontSizeToScreen (method) size"),
    "type": (TRANS, "`size` Integer", "`size` Long", "the contract FontSizeToScreen (method) factor Double, size Integer"),
    "by reference": (TRANS, "ByRef `length`", "`length`", "the contract LengthToScreen (method) ByRef length Long"),
    "optional": (SYMBOL, "optional ByRef `lMarkColor`", "ByRef `lMarkColor`", "optional ByRef lMarkColor Long"),
    "result": (TRANS, "→ Double", "→ Single", "slot 9 says Scale (get)  → Single"),
    "constant": (ENUM, "| `symArc` | 3 |", "| `symArc` | 5 |", "symArc is 5, in the contract 3"),
    "class without a page": ("idl/QMath.idl", "interface _CPt : IDispatch", "interface _CPoint : IDispatch", "QMath.CPoint has no page"),
    "page without a class": ("idl/QMath.idl", "interface _CPt : IDispatch", "interface _CPoint : IDispatch", "CPt.md is of no class"),
}


def said(change=None):
    with tempfile.TemporaryDirectory() as folder:
        for part in ("idl", "docs/classes"):
            shutil.copytree(ROOT / part, pathlib.Path(folder) / part)
        if change:
            path, old, new = pathlib.Path(folder) / change[0], change[1], change[2]
            text = path.read_text(encoding="utf-8")
            assert old in text, f"nothing to change in {change[0]}: {old}"
            path.write_text(text.replace(old, new, 1), encoding="utf-8")
        run = subprocess.run([sys.executable, ROOT / "scripts/reference.py", folder], text=True, capture_output=True)
        return run.returncode, run.stdout + run.stderr


passed = failed = 0
cases = {"as it is": (None, "reference: complete")} | {name: (fault[:3], fault[3]) for name, fault in FAULTS.items()}
for name, (change, wanted) in cases.items():
    status, text = said(change)
    good = wanted in text and status == bool(change)
    passed, failed = passed + good, failed + (not good)
    if not good:
        print(f"FAILED: {name}: wanted {wanted!r}, got {status}: {text}")
print(f"{passed} passed, {failed} failed, 0 skipped")
