"""A host in Python with pywin32 (late bound): a bedroom.

python schlafzimmer_pywin32.py CATALOGUE OUTFOLDER       after   pip install pywin32
"""

import math
import pathlib
import struct
import sys

import pywintypes
import win32com.client

METRE = 100_000  # logical units are hundredths of a millimetre


def create(prog_id):
    try:
        return win32com.client.Dispatch(prog_id)
    except pywintypes.com_error as error:
        bits = struct.calcsize("P") * 8
        sys.exit(f"{prog_id} is not there for {bits}-bit Python ({error.strerror}): regsvr32 QMath.dll, QSymbol.dll, QPlan.dll "
                 f"of {bits} bits")


def main(catalogue, target):
    symbols = create("QSymbol.CSymbolColl")
    for folder in [catalogue, *(path for path in sorted(catalogue.rglob("*")) if path.is_dir())]:
        symbols.ReadKatalog(str(folder))
    if symbols.Count == 0:
        sys.exit(f"No *.syb below {catalogue}: qsymbol convert -r --to syb SOURCE {catalogue}")

    plan = create("QPlan.CPlan")
    plan.Symbols = symbols
    plan.Add("Bett 180", 2 * METRE, 0.1 * METRE, 0)
    for side in (-1, 1):
        plan.Add("Nachttisch", (2 + side * 1.2) * METRE, 0.1 * METRE, 0)
    plan.Add("Kleiderschrank", 2 * METRE, 3.4 * METRE, math.pi)

    trans = create("QMath.CTrans")
    trans.SetScale(METRE / 200)
    picture = create("QPlan.CPicture")
    picture.Create(800, 720)
    plan.Draw(picture, trans)
    picture.Write2File(str(target / "schlafzimmer.png"))
    plan.WriteDxf(str(target / "schlafzimmer.dxf"))
    hit = plan.HitTest(trans, 400, 200)
    print("hit:", hit.SymbolName if hit else "nothing")
    try:
        plan.Add("Einhorn", 0, 0, 0)
    except pywintypes.com_error as error:  # the library's own words are in excepinfo
        _, source, text, _, _, code = error.excepinfo
        print(f"error {code & 0xFFFF} in {source}: {text}")


if __name__ == "__main__":
    main(*map(pathlib.Path, sys.argv[1:3]))
