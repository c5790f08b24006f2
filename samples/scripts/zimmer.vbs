' A dozen lines: a furnished room as a picture, from a catalogue's folder of furniture. Lengths are hundredths of a millimetre.
' cscript //nologo zimmer.vbs CATALOGUEFOLDER PICTURE.png

On Error Resume Next
Set Trans = CreateObject("QMath.CTrans"): Trans.SetScale 500 ' 5 mm a pixel
Set Catalogue = CreateObject("QSymbol.CSymbolColl"): Catalogue.ReadKatalog WScript.Arguments(0)
If Err.Number <> 0 Then Fail "Es fehlt, im Ordner der Bibliotheken: regsvr32 QMath.dll, QSymbol.dll, QPlan.dll"
If Catalogue.Count = 0 Then Fail "Keine *.syb dort: qsymbol convert -r --to syb TEXTORDNER KATALOGORDNER"
On Error GoTo 0
Set Plan = CreateObject("QPlan.CPlan"): Set Plan.Symbols = Catalogue
Plan.Add "Teppich", 240000, 180000, 0
Plan.Add "Sofa", 240000, 340000, 3.14159265358979
Plan.Add "Couchtisch", 240000, 190000, 0
Plan.Add "Sessel", 60000, 130000, 1.0471975511966
Plan.Add "Fernseher", 240000, 10000, 0
Set Picture = CreateObject("QPlan.CPicture"): Picture.Create 960, 720, RGB(250, 243, 230)
Plan.Draw Picture, Trans: Picture.Write2File WScript.Arguments(1)

Sub Fail(Text): WScript.Echo Text: WScript.Quit 1: End Sub
