"""A host in Python with comtypes (early bound, from the registered type libraries): a sheet of previews.

python vorschau_comtypes.py CATALOGUE OUTFOLDER          after   pip install comtypes
"""

import pathlib
import sys

import comtypes
import comtypes.client


def sheet(symbols, plan, columns=8, cell=300_000):
    """Places every symbol of a catalogue in a grid."""
    plan.Symbols = symbols
    for number, symbol in enumerate(symbols):
        row, column = divmod(number, columns)
        plan.Add(symbol.Name, int((column + 0.5) * cell), int((row + 0.5) * cell), 0.0)


def main():
    catalogue, target = map(pathlib.Path, sys.argv[1:])
    try:
        symbols = comtypes.client.CreateObject("QSymbol.CSymbolColl")
        plan = comtypes.client.CreateObject("QPlan.CPlan")
        picture = comtypes.client.CreateObject("QPlan.CPicture")
        trans = comtypes.client.CreateObject("QMath.CTrans")
    except OSError as error:
        sys.exit(f"Not registered for this Python's bitness: regsvr32 QMath.dll, QSymbol.dll, QPlan.dll ({error})")
    for path in [catalogue, *catalogue.glob("*/")]:
        symbols.ReadKatalog(str(path))
    if not symbols.Count:
        sys.exit(f"{catalogue} has no *.syb")
    sheet(symbols, plan)

    trans.SetScale(2000)
    picture.Create(1200, 1800, 0xFFFFFF)
    plan.Draw(picture, trans)
    picture.Write2File(str(target / "vorschau.png"))
    plan.WriteDxf(str(target / "vorschau.dxf"), 0)
    found = plan.HitTest(trans, 80, 80)
    print(found.SymbolName if found else "nothing", "is at the left upper corner")
    try:
        symbols.RemoveOnIndex("Einhorn")
    except comtypes.COMError as error:  # details: text, source, help file, help context, progid
        print(f"error {error.hresult & 0xFFFF} in {error.details[1]}: {error.details[0]}")


if __name__ == "__main__":
    main()
