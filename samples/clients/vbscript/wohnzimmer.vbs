' A host in VBScript: furnishes a living room, draws it, asks what lies under a pixel, exports it and shows an error.
' cscript //nologo wohnzimmer.vbs CATALOGUE OUTFOLDER
Option Explicit
Const Metre = 100000                             ' logical units are hundredths of a millimetre
Const HalfTurn = 3.14159265358979                ' angles are radians, counter-clockwise
Dim Catalogue, Plan, Trans, Picture, Hit, Target

If WScript.Arguments.Count <> 2 Then Fail "Aufruf: cscript //nologo wohnzimmer.vbs KATALOGORDNER AUSGABEORDNER"
Set Trans = Make("QMath.CTrans")                 ' first: the other libraries need this one
Set Catalogue = Make("QSymbol.CSymbolColl")
ReadFolder CreateObject("Scripting.FileSystemObject").GetFolder(WScript.Arguments(0))
If Catalogue.Count = 0 Then Fail "Keine Symbole (*.syb) in " & WScript.Arguments(0) & _
    ". Aus Textdateien entstehen sie mit: qsymbol convert -r --to syb TEXTORDNER KATALOGORDNER"

Set Plan = Make("QPlan.CPlan")
Set Plan.Symbols = Catalogue
Plan.Add "Teppich", 2.5 * Metre, 2 * Metre, 0
Plan.Add "Sofa", 2.5 * Metre, 0.3 * Metre, 0
Plan.Add "Couchtisch", 2.5 * Metre, 2 * Metre, 0
Plan.Add "Sessel", 2.5 * Metre, 3.7 * Metre, HalfTurn
Plan.Add "Stehleuchte", 0.6 * Metre, 0.6 * Metre, 0

Target = WScript.Arguments(1) & "\wohnzimmer"
Trans.SetScale Metre / 160                       ' 160 pixels to a metre
Set Picture = Make("QPlan.CPicture")
Picture.Create 800, 640
Plan.Draw Picture, Trans
Picture.Write2File Target & ".png"
Plan.WriteDxf Target & ".dxf"

Set Hit = Plan.HitTest(Trans, 400, 120)
If Hit Is Nothing Then WScript.Echo "Dort liegt nichts." Else WScript.Echo "Dort liegt: " & Hit.SymbolName

On Error Resume Next
Plan.Add "Einhorn", 0, 0, 0
WScript.Echo "Fehler " & Err.Number & " in " & Err.Source & ": " & Err.Description

' A catalogue may be one folder or have subfolders.
Sub ReadFolder(Folder)
    Dim Inner
    Catalogue.ReadKatalog Folder.Path
    For Each Inner In Folder.SubFolders
        ReadFolder Inner
    Next
End Sub

Function Make(ProgId)
    On Error Resume Next
    Set Make = CreateObject(ProgId)
    If Err.Number <> 0 Then Fail ProgId & " fehlt fuer diesen Skripthost (" & Err.Description & _
        "). Im Ordner der DLLs, mit dem regsvr32 derselben Bitzahl: regsvr32 QMath.dll, QSymbol.dll, QPlan.dll"
End Function

Sub Fail(Text)
    WScript.Echo Text
    WScript.Quit 1
End Sub
