' A script host of the symbol library: lists a catalogue, builds a symbol, stores it and reads it back.
' cscript //nologo katalog.vbs CATALOGUEFOLDER OUTFOLDER

Option Explicit

Const symPoly = 1, symCircle = 2, symArc = 3, symText = 4

' Logical units are hundredths of a millimetre.
Const Millimetre = 100
' Flags of the GDI: TA_CENTER + TA_BASELINE.
Const CentredOnBaseline = 30
' This script's own errors.
Const UsageError = 1001, DifferenceError = 1002

On Error Resume Next
Main
If Err.Number = 429 Or Err.Number = &H80040154 Then
    WScript.Echo "Die Bibliotheken sind fuer diesen Skripthost nicht registriert. In ihrem Ordner: " & _
        "regsvr32 QMath.dll, QSymbol.dll, QPlan.dll (" & Err.Description & ")"
    WScript.Quit 1
ElseIf Err.Number <> 0 Then
    WScript.Echo "Fehler " & Err.Number & " in " & Err.Source & ": " & Err.Description
    WScript.Quit 1
End If

Sub Main()
    If WScript.Arguments.Count <> 2 Then
        Err.Raise UsageError, "katalog.vbs", "Aufruf: katalog.vbs KATALOGORDNER AUSGABEORDNER"
    End If
    RequireFolder WScript.Arguments(0)
    RequireFolder WScript.Arguments(1)
    ListCatalogue WScript.Arguments(0)

    Dim Built
    Set Built = BuildWindSymbol()
    WScript.Echo "Neues Symbol aus " & Built.GetSymElements().Count & " Elementen"
    StoreAndCompare Built, WScript.Arguments(1) & "\Windrad.syt"
    StoreAndCompare Built, WScript.Arguments(1) & "\Windrad.syb"
End Sub

' The library takes a missing folder for an empty one.
Sub RequireFolder(Path)
    If Not CreateObject("Scripting.FileSystemObject").FolderExists(Path) Then
        Err.Raise 76, "katalog.vbs", "Ordner nicht gefunden: " & Path
    End If
End Sub

' Fills the catalogue from a folder and its subfolders.
Sub ReadFolders(Catalogue, Folder)
    Dim Subfolder
    Catalogue.ReadKatalog Folder
    For Each Subfolder In CreateObject("Scripting.FileSystemObject").GetFolder(Folder).SubFolders
        ReadFolders Catalogue, Subfolder.Path
    Next
End Sub

Sub ListCatalogue(Folder)
    Dim Catalogue, Symbol
    Set Catalogue = CreateObject("QSymbol.CSymbolColl")
    ReadFolders Catalogue, Folder
    If Catalogue.Count = 0 Then
        Err.Raise 53, "katalog.vbs", "Keine Symbole (*.syb) im Ordner " & Folder & _
            ". Aus Textdateien entstehen sie mit: qsymbol convert -r --to syb TEXTORDNER KATALOGORDNER"
    End If
    For Each Symbol In Catalogue
        WScript.Echo Symbol.Name & ": " & Symbol.Width / Millimetre & " x " & Symbol.Height / Millimetre & _
            " mm, " & Symbol.GetSymElements().Count & " Elemente"
    Next
    WScript.Echo Catalogue.Count & " Symbole"
End Sub

' A wind turbine: 2000 x 3000 mm, the insertion point in the middle of the lower edge.
Function BuildWindSymbol()
    Dim Elements, Element, Symbol
    Set Elements = CreateObject("QSymbol.CSymElementColl")

    Set Element = NewElement(symPoly, RGB(60, 60, 64), 20)
    Element.LineClosed = True
    Element.FillColor = RGB(222, 226, 232)
    AddPoint Element, 0, 0
    AddPoint Element, 2000, 0
    AddPoint Element, 2000, 3000
    AddPoint Element, 0, 3000
    Elements.AppendRef Element

    Set Element = NewElement(symCircle, RGB(30, 70, 130), 10)
    Element.Radius = 150 * Millimetre
    Element.FillColor = RGB(255, 214, 120)
    AddPoint Element, 1000, 1000
    Elements.AppendRef Element

    ' An arc has its centre, start and end, counter-clockwise.
    Set Element = NewElement(symArc, RGB(30, 70, 130), 10)
    Element.Radius = 800 * Millimetre
    AddPoint Element, 1000, 1000
    AddPoint Element, 1800, 1000
    AddPoint Element, 200, 1000
    Elements.AppendRef Element

    Set Element = NewElement(symText, RGB(150, 30, 30), 0)
    Element.Text = "Windrad f" & Chr(252) & "r zu Hause"
    Element.TxtAlign = CentredOnBaseline
    Element.TxtAngle = 0.5
    Set Element.TxtFont = NewFont("Arial", 300)
    AddPoint Element, 1000, 2600
    Elements.AppendRef Element

    Set Symbol = CreateObject("QSymbol.CSymbol")
    Symbol.CreateNew 1000 * Millimetre, 3000 * Millimetre, 2000 * Millimetre, 3000 * Millimetre, Elements
    Set BuildWindSymbol = Symbol
End Function

Function NewElement(Kind, Colour, LineWidth)
    Dim Element
    Set Element = CreateObject("QSymbol.CSymElement")
    Element.ElementType = Kind
    Element.MainColor = Colour
    Element.LineWidth = LineWidth * Millimetre
    Set Element.PtList = CreateObject("QMath.CPtList")
    Set NewElement = Element
End Function

Sub AddPoint(Element, X, Y)
    Dim Point
    Set Point = CreateObject("QMath.CPt")
    Point.X = X * Millimetre
    Point.Y = Y * Millimetre
    Element.PtList.AddPoint Point
End Sub

Function NewFont(Name, Size)
    Dim Font
    Set Font = CreateObject("StdFont")
    Font.Name = Name
    Font.Size = Size
    Font.Bold = True
    Set NewFont = Font
End Function

Sub StoreAndCompare(Symbol, Path)
    Dim Files, Reread
    Set Files = CreateObject("Scripting.FileSystemObject")
    ' The library would ask the user before it overwrites.
    If Files.FileExists(Path) Then Files.DeleteFile Path
    Symbol.FilePath = Path
    Symbol.Write2File

    Set Reread = CreateObject("QSymbol.CSymbol")
    Reread.FilePath = Path
    Reread.ReadFromFile
    CompareSymbols Symbol, Reread
    WScript.Echo "Geschrieben, gelesen und gleich: " & Path
End Sub

Sub CompareSymbols(Symbol, Reread)
    Dim Expected, Found, i
    Same "RefX", Symbol.RefX, Reread.RefX
    Same "RefY", Symbol.RefY, Reread.RefY
    Same "Width", Symbol.Width, Reread.Width
    Same "Height", Symbol.Height, Reread.Height
    Set Expected = Symbol.GetSymElements()
    Set Found = Reread.GetSymElements()
    Same "Count", Expected.Count, Found.Count
    For i = 1 To Expected.Count
        CompareElements Expected.ItemByPos(i), Found.ItemByPos(i)
    Next
End Sub

Sub CompareElements(Expected, Found)
    Dim i
    Same "ElementType", Expected.ElementType, Found.ElementType
    Same "MainColor", Expected.MainColor, Found.MainColor
    Same "FillColor", Expected.FillColor, Found.FillColor
    Same "LineWidth", Expected.LineWidth, Found.LineWidth
    Same "LineClosed", Expected.LineClosed, Found.LineClosed
    Same "Radius", Expected.Radius, Found.Radius
    Same "Points", Expected.PtList.Count, Found.PtList.Count
    For i = 1 To Expected.PtList.Count
        Same "X", Expected.PtList.Item(i).X, Found.PtList.Item(i).X
        Same "Y", Expected.PtList.Item(i).Y, Found.PtList.Item(i).Y
    Next
    If Expected.ElementType <> symText Then Exit Sub
    Same "Text", Expected.Text, Found.Text
    Same "TxtAlign", Expected.TxtAlign, Found.TxtAlign
    ' The text format keeps hundredths of a degree.
    If Abs(Expected.TxtAngle - Found.TxtAngle) > 0.0001 Then Same "TxtAngle", Expected.TxtAngle, Found.TxtAngle
    Same "Font.Name", Expected.TxtFont.Name, Found.TxtFont.Name
    Same "Font.Size", Expected.TxtFont.Size, Found.TxtFont.Size
    Same "Font.Bold", Expected.TxtFont.Bold, Found.TxtFont.Bold
End Sub

Sub Same(What, Expected, Found)
    If Expected <> Found Then
        Err.Raise DifferenceError, "katalog.vbs", What & " ist " & Found & " statt " & Expected
    End If
End Sub
