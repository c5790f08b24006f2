Attribute VB_Name = "Wohnung"
' Excel: places what columns A to D list (name, x and y in mm, degrees), shows the plan beside them, and what fails in column E.
' Tools, References: the three libraries "Tessera - ..."; a 32-bit Excel needs the x86 ones.
Option Explicit

Private Const CatalogueFolder As String = "C:\Users\Public\Documents\QSymbol\Katalog\"
Private Const UnitsPerMillimetre As Long = 100

Public Sub PlanAsPicture()
    Dim Plan As QPlan.CPlan, Trans As QMath.CTrans, Area As QMath.CRect, Picture As QPlan.CPicture, Path As String
    On Error GoTo Failed
    Set Plan = New QPlan.CPlan
    Set Plan.Symbols = Catalogue()
    PlaceRows Plan
    If Not Plan.Extent(Area) Then Exit Sub

    Set Trans = New QMath.CTrans
    Trans.SetScale (Area.Right - Area.Left) / 780        ' ten pixels of margin
    Trans.SetOffsetX Area.Left - 10 * Trans.Scale
    Trans.SetOffsetY Area.Top - 10 * Trans.Scale
    Set Picture = New QPlan.CPicture
    Picture.Create 800, 20 + (Area.Bottom - Area.Top) / Trans.Scale
    Plan.Draw Picture, Trans
    Path = Environ$("TEMP") & "\Wohnung.png"
    Picture.Write2File Path
    ActiveSheet.Shapes.AddPicture Path, False, True, ActiveSheet.Range("G2").Left, ActiveSheet.Range("G2").Top, -1, -1
    Plan.WriteDxf ThisWorkbook.Path & "\Wohnung.dxf"

    Dim Hit As QPlan.CPlacement
    Set Hit = Plan.HitTest(Trans, 400, Picture.ScaleHeight / 2)
    If Not Hit Is Nothing Then MsgBox "In der Mitte liegt: " & Hit.SymbolName
    Exit Sub
Failed:
    MsgBox "Fehler " & Err.Number & " in " & Err.Source & ": " & Err.Description & _
        IIf(Err.Number = 429, vbLf & "Fuer diese Bitzahl: regsvr32 QMath.dll, QSymbol.dll, QPlan.dll", "")
End Sub

Private Function Catalogue() As QSymbol.CSymbolColl
    Dim Folder As String
    Set Catalogue = New QSymbol.CSymbolColl
    Catalogue.ReadKatalog CatalogueFolder
    Folder = Dir$(CatalogueFolder, vbDirectory)
    Do While Folder <> ""
        If Left$(Folder, 1) <> "." Then Catalogue.ReadKatalog CatalogueFolder & Folder
        Folder = Dir$()
    Loop
    If Catalogue.Count = 0 Then Err.Raise 53, "Wohnung", "Keine Symbole (*.syb) in " & CatalogueFolder
End Function

Private Sub PlaceRows(ByVal Plan As QPlan.CPlan)
    Dim Row As Range
    On Error Resume Next                                  ' one bad row does not stop the others
    For Each Row In ActiveSheet.UsedRange.Rows
        Err.Clear
        Plan.Add Row.Cells(1).Value, Row.Cells(2).Value * UnitsPerMillimetre, Row.Cells(3).Value * UnitsPerMillimetre, _
            Row.Cells(4).Value * 3.14159265358979 / 180
        Row.Cells(5).Value = IIf(Err.Number = 0, "", Err.Number & " " & Err.Source & ": " & Err.Description)
    Next
End Sub
