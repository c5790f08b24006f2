' The pictures of the classes' pages, drawn by the libraries themselves: scripts/pictures starts it.
' cscript //nologo classes.vbs CATALOGUEFOLDER OUTFOLDER
Option Explicit
Const Pixel = 100, Pi = 3.14159265358979         ' a pixel of the paper is a millimetre
Const Ink = &H604030, Red = &H3030C8, Blue = &HB06020, Pale = &HF4E8D8, Grey = &HB0B0B0, NoFill = -1
Const Poly = 1, Circle = 2, Arc = 3, Text = 4
Const Leftwards = 24, Centred = 30               ' on the baseline
Dim Catalogue, Maths, Paper, Picture

Set Catalogue = CreateObject("QSymbol.CSymbolColl")
Catalogue.ReadKatalog WScript.Arguments(0)
Set Maths = CreateObject("QMath.CMathUtil")
Trans: Points: Lists: Rects: Polygons: Matrices: Angles: Fields: Fonts: Units
Symbols: Kinds: Parts: Inputs: Groups: Placed: Found

' ---- what the sheets are drawn with: places in pixels

Sub Sheet(Height)
    Set Picture = CreateObject("QPlan.CPicture")
    Picture.Create 480, Height, &HFFFFFF
    Set Paper = Map(Pixel, 0, 0)
End Sub

' What a pixel is in logical units, and which pixel shows the world's origin.
Function Map(Scale, X, Y)
    Set Map = CreateObject("QMath.CTrans")
    Map.SetScale Scale
    Map.SetOffsetX -X * Scale
    Map.SetOffsetY -Y * Scale
End Function

Function Pt(X, Y)
    Set Pt = CreateObject("QMath.CPt")
    Pt.X = X
    Pt.Y = Y
End Function

Function Element(Kind, Places, Colour, Fill)
    Dim I
    Set Element = CreateObject("QSymbol.CSymElement")
    Element.ElementType = Kind
    Element.MainColor = Colour
    Element.FillColor = Fill
    Set Element.PtList = CreateObject("QMath.CPtList")
    For I = 0 To UBound(Places) Step 2
        Element.PtList.AddPoint Pt(Places(I) * Pixel, Places(I + 1) * Pixel)
    Next
    ' An element that draws itself leaves its last point out.
    I = UBound(Places)
    If Kind = Poly Then Element.PtList.AddPoint Pt(Places(I - 1) * Pixel, Places(I) * Pixel)
End Function

Sub Stroke(Places, Colour)
    Element(Poly, Places, Colour, NoFill).Draw Picture, Paper
End Sub

Sub Area(Places, Colour, Fill)
    Dim Shape
    Set Shape = Element(Poly, Places, Colour, Fill)
    Shape.LineClosed = True
    Shape.LineWidth = Pixel
    Shape.Draw Picture, Paper
End Sub

' One of several, for the interpreter indexes no result.
Function Nth(List, I)
    Nth = List(I)
End Function

Sub Box(Left, Top, Right, Bottom, Colour, Fill)
    Area Array(Left, Top, Right, Top, Right, Bottom, Left, Bottom), Colour, Fill
End Sub

Sub Dot(X, Y, Colour)
    Dim Disc
    Set Disc = Element(Circle, Array(X, Y), Colour, Colour)
    Disc.Radius = 3 * Pixel
    Disc.Draw Picture, Paper
End Sub

' Element(Circle, ...) keeps the points as they are.
Sub Track(Places)
    Element(Circle, Places, Ink, NoFill).DrawTracker Picture, Paper
End Sub

Function Lettering(Words, X, Y, Align, Size)
    Set Lettering = Element(Text, Array(X, Y), Ink, NoFill)
    Lettering.Text = Words
    Lettering.TxtAlign = Align
    Set Lettering.TxtFont = CreateObject("StdFont")
    Lettering.TxtFont.Name = "Arial"
    Lettering.TxtFont.Size = Size
End Function

Sub Label(Words, X, Y)
    Lettering(Words, X, Y, Leftwards, 36).Draw Picture, Paper
End Sub

Sub Title(Words, X, Y)
    Lettering(Words, X, Y, Centred, 36).Draw Picture, Paper
End Sub

Sub Show(Name, X, Y, Angle, Trans)
    Catalogue.ItemByIndex(Name).Draw X, Y, Angle, Picture, Trans, 1, 1
End Sub

Sub Save(Name)
    Picture.Write2File WScript.Arguments(1) & "\" & Name & ".png"
End Sub

' ---- one sheet a class

Sub Trans()
    Dim I, X, Scale
    Sheet 180
    For I = 0 To 2
        X = Nth(Array(60, 170, 355), I)
        Scale = Nth(Array(4000, 2000, 1000), I)
        Show "Sofa", 0, 0, 0, Map(Scale, X, 40)
        Dot X, 40, Red
        Title "SetScale " & Scale, X, 160
    Next
    Save "CTrans"
End Sub

Sub Points()
    Sheet 180
    Stroke Array(60, 30, 440, 30), Ink
    Stroke Array(60, 30, 60, 160), Ink
    Stroke Array(300, 30, 300, 120, 60, 120), Grey
    Dot 300, 120, Red
    Label "X: to the right", 340, 22
    Label "Y: downwards", 70, 155
    Label "CPt: X = 24000, Y = 9000", 312, 124
    Save "CPt"
End Sub

Sub Lists()
    Dim Line, I, Places
    Sheet 180
    Places = Array(40, 140, 130, 50, 220, 110, 310, 60, 430, 130)
    Set Line = Element(Poly, Places, Blue, NoFill)
    Line.LineWidth = 2 * Pixel
    Line.Draw Picture, Paper
    Track Places
    For I = 1 To Line.PtList.Count - 1
        Title "Item(" & I & ")", Line.PtList.Item(I).X / Pixel, Line.PtList.Item(I).Y / Pixel + 6 + 19 * (-1) ^ (I + 1)
    Next
    Save "CPtList"
End Sub

Sub Rects()
    Dim Window, Around
    Sheet 240
    Set Window = Map(800, 240, 60)
    Show "Sessel", 0, 0, 0.6, Window
    Set Around = CreateObject("QMath.CRect")
    Catalogue.ItemByIndex("Sessel").GetBoundingRect 0, 0, 0.6, Around
    Dim L, T, R, B
    L = 240 + Around.Left / 800: T = 60 + Around.Top / 800: R = 240 + Around.Right / 800: B = 60 + Around.Bottom / 800
    Box L, T, R, B, Red, NoFill
    Title "Left", L - 30, (T + B) / 2
    Title "Right", R + 30, (T + B) / 2
    Title "Top", (L + R) / 2, T - 8
    Title "Bottom", (L + R) / 2, B + 18
    Save "CRect"
End Sub

Sub Polygons()
    Dim Shape, Tests, X, Y
    Sheet 220
    Set Shape = Element(Poly, Array(40, 190, 90, 30, 180, 120, 330, 20, 440, 180, 260, 140), Ink, Pale)
    Shape.LineClosed = True
    Shape.Draw Picture, Paper
    Set Tests = CreateObject("QMath.CPolygon")
    Tests.SetPoints Shape.PtList
    For X = 30 To 450 Step 20
        For Y = 20 To 200 Step 20
            If Tests.PtInside(X * Pixel, Y * Pixel) Then Dot X, Y, Red Else Dot X, Y, Grey
        Next
    Next
    Save "CPolygon"
End Sub

Sub Matrices()
    Dim Matrix
    Sheet 200
    Set Matrix = CreateObject("QMath.CMatrix")
    Mapped Matrix, 60, "the identity"
    Matrix.Rotate Sin(Pi / 6), Cos(Pi / 6)
    Mapped Matrix, 170, "Rotate 30" & Chr(176)
    Matrix.Scale 1.5, 0.75
    Mapped Matrix, 290, "Scale 1.5, 0.75"
    Matrix.Translate 20, 30
    Mapped Matrix, 410, "Translate 20, 30"
    Save "CMatrix"
End Sub

Sub Mapped(Matrix, X, Words)
    Dim House, Places(9), I
    House = Array(-25, 25, -25, -10, 0, -35, 25, -10, 25, 25)
    For I = 0 To 8 Step 2
        Places(I) = X + Matrix.ApplyX(House(I), House(I + 1))
        Places(I + 1) = 80 + Matrix.ApplyY(House(I), House(I + 1))
    Next
    Area Places, Blue, Pale
    Dot X, 80, Red
    Title Words, X, 180
End Sub

Sub Angles()
    Dim I, X, Y
    Sheet 260
    For I = 0 To 11
        X = 90: Y = 0
        Maths.RotatePoint X, Y, I * Pi / 6
        Stroke Array(240, 130, 240 + X, 130 + Y), Grey
        Dot 240 + X, 130 + Y, Red
        Title Maths.RoundToLong(Maths.RadToDeg(Maths.VectorAngle(X, Y))) & Chr(176), 240 + X * 1.22, 134 + Y * 1.22
    Next
    Save "CMathUtil"
End Sub

Sub Fields()
    Dim Words, Line, I, X
    Sheet 150
    Set Words = CreateObject("QMath.CStrUtil")
    Line = "SYM;CNT=4;WID=90000;HEI=12000"
    Label "GetToken(""" & Line & """, "";"", n)", 20, 30
    For I = 1 To Words.TokenCount(Line, ";")
        X = 20 + (I - 1) * 112
        Box X, 45, X + 106, 75, Blue, Pale
        Title Words.GetToken(Line, ";", I), X + 53, 65
        Title "n = " & I, X + 53, 92
    Next
    Line = "C:\Symbole\Sofa.syb"
    Label Line & ":   GetFileName " & Words.GetFileName(Line) & "   GetName " & Words.GetName(Words.GetFileName(Line)) & _
        "   GetExtension " & Words.GetExtension(Line), 20, 130
    Save "CStrUtil"
End Sub

Sub Fonts()
    Dim I, Words
    Sheet 220
    For I = 0 To 4
        Set Words = Lettering("escapement " & I * 150, 20 + 70 * Cos(I * Pi / 12), 200 - 70 * Sin(I * Pi / 12), Leftwards, 40)
        Words.TxtAngle = I * Pi / 12
        Words.Draw Picture, Paper
    Next
    For I = 0 To 3
        Set Words = Lettering(Nth(Array("height", "bold", "italic", "underline"), I), 300, 50 + 45 * I, Leftwards, 40 + 12 * I)
        Words.TxtFont.Bold = (I = 1)
        Words.TxtFont.Italic = (I = 2)
        Words.TxtFont.Underline = (I = 3)
        Words.Draw Picture, Paper
    Next
    Save "CFontSelector"
End Sub

Sub Units()
    Dim Settings, I, Sofa
    Sheet 170
    Set Settings = CreateObject("QMath.CSettings")
    Set Sofa = Catalogue.ItemByIndex("Sofa")
    Show "Sofa", 0, 0, 0, Map(1000, 140, 20)
    Stroke Array(140 - Sofa.Width / 2000, 130, 140 + Sofa.Width / 2000, 130), Red
    Title "Width " & Sofa.Width, 140, 150
    For I = 0 To 2
        Settings.UnitFactor = Nth(Array(100, 1000, 100000), I)
        Label "UnitFactor " & Settings.UnitFactor & ": " & Sofa.Width / Settings.UnitFactor & " " & Nth(Array("mm", "cm", "m"), I), 290, 50 + 40 * I
    Next
    Settings.UnitFactor = 100
    Save "CSettings"
End Sub

Sub Symbols()
    Dim Around, I, X, Sessel
    Sheet 200
    Set Sessel = Catalogue.ItemByIndex("Sessel")
    For I = 0 To 2
        X = 80 + 160 * I
        If I < 2 Then
            Sessel.Draw 0, 0, I * Pi / 6, Picture, Map(900, X, 50), 1, 1
        Else
            Sessel.Draw 0, 0, Pi / 2, Picture, Map(900, X - 40, 90), 1, 1, Red
        End If
        If I < 2 Then Dot X, 50, Red
        Title Nth(Array("LogX, LogY", "dAngle 30" & Chr(176), "lMarkColor"), I), X, 185
    Next
    Save "CSymbol"
End Sub

Sub Kinds()
    Dim Shape, I, Places
    Sheet 180
    For I = Poly To Text
        Places = Nth(Array(Array(30, 120, 60, 40, 110, 70, 95, 125), Array(180, 80), Array(300, 80, 340, 80, 260, 80), Array(410, 90)), I - 1)
        If I = Text Then Set Shape = Lettering("Text", 410, 90, Centred, 60) Else Set Shape = Element(I, Places, Blue, Pale)
        Shape.LineClosed = (I = Poly)
        Shape.Radius = 40 * Pixel
        Shape.LineWidth = 2 * Pixel
        Shape.Draw Picture, Paper
        Track Places
        Title Nth(Array("symPoly", "symCircle", "symArc", "symText"), I - 1) & " = " & I, Nth(Array(70, 180, 300, 410), I - 1), 165
    Next
    Save "CSymElement"
End Sub

Sub Parts()
    Dim Elements, I, X
    Sheet 120
    Set Elements = Catalogue.ItemByIndex("Sofa").GetSymElements()
    Show "Sofa", 0, 0, 0, Map(2200, 70, 20)
    Title "the symbol", 70, 100
    For I = 1 To 5
        If I <= Elements.Count Then
            X = 150 + (I - 1) * 65
            Elements.ItemByPos(I).Draw Picture, Map(3800, X, 25)
            Title "(" & I & ")", X + 28, 100
        End If
    Next
    Save "CSymElementColl"
End Sub

Sub Inputs()
    Dim Tool, View, I
    Sheet 220
    For I = 0 To 2
        Set View = Map(1000, 160 * I, 0)
        Set Tool = Catalogue.GetSymInput("Sessel")
        Tool.SetOldLogPos 20000, 180000
        Tool.MouseMove 160 * I + 80 - 40 * Sgn(I), 70, Picture, View
        If I > 0 Then Tool.KeyUp 36, 0, Picture, View
        If I = 2 Then Tool.MouseDown 160 * I + 50, 110, Picture, View
        Title Nth(Array("MouseMove", "KeyUp: Home", "MouseDown: Ready"), I), 160 * I + 80, 210
        If I > 0 Then Stroke Array(160 * I, 0, 160 * I, 220), Grey
    Next
    Save "CSymInput"
End Sub

Sub Groups()
    Dim Tool, View, I, Name
    Sheet 240
    Set View = Map(1400, 0, 0)
    Set Tool = CreateObject("QSymbol.CSymTool")
    For I = 0 To 2
        Name = Nth(Array("Stuhl", "Sessel", "Stuhl"), I)
        Tool.AddSymref I + 1, (I - 1) * 70000, 0, 0, Catalogue.ItemByIndex(Name)
        Show Name, 120000 + (I - 1) * 70000, 60000, 0, View
    Next
    Tool.SetMoveStartPos 120000, 60000
    Tool.MouseMove 340, 150, Picture, View
    Tool.KeyUp 111, 0, Picture, View
    Dot 86, 43, Red
    Dot 340, 150, Red
    Label "SetMoveStartPos", 40, 130
    Label "MouseMove, KeyUp", 330, 235
    Save "CSymTool"
End Sub

Sub Placed()
    Dim Plan, View, One
    Sheet 240
    Set View = Map(1200, 0, 0)
    Set Plan = CreateObject("QPlan.CPlan")
    Set Plan.Symbols = Catalogue
    Set One = Plan.Add("Sofa", 150000, 100000, Pi / 6)
    Plan.Draw Picture, View
    Stroke Array(125, 0, 125, 83, 0, 83), Grey
    Dot 125, 83, Red
    Label "LogX " & One.LogX, 130, 16
    Label "LogY " & One.LogY, 6, 78
    Label "Id " & One.Id & ", SymbolName " & One.SymbolName, 290, 120
    Label "Angle " & Maths.RoundToLong(Maths.RadToDeg(One.Angle)) & Chr(176), 290, 145
    Save "CPlacement"
End Sub

Sub Found()
    Dim Plan, View, Area, One, I
    Sheet 240
    Set View = Map(1400, 0, 0)
    Set Plan = CreateObject("QPlan.CPlan")
    Set Plan.Symbols = Catalogue
    For I = 0 To 9
        Plan.Add "Stuhl", 70000 + (I Mod 5) * 130000, 60000 + (I \ 5) * 160000, I * Pi / 5
    Next
    Plan.Draw Picture, View
    Set Area = CreateObject("QMath.CRect")
    Area.Left = 110: Area.Top = 20: Area.Right = 270: Area.Bottom = 180
    For Each One In Plan.HitRect(View, Area)
        One.Symbol.Draw One.LogX, One.LogY, One.Angle, Picture, View, 1, 1, Red
    Next
    Box 110, 20, 270, 180, Blue, NoFill
    Label "HitRect: " & Plan.HitRect(View, Area).Count & " of " & Plan.Count, 290, 225
    Save "CPlacementColl"
End Sub
