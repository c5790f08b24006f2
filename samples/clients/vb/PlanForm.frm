VERSION 5.00
Begin VB.Form PlanForm
   Begin VB.PictureBox Box
      Height          =   6000
      ScaleMode       =   3
      Width           =   8000
   End
End
Attribute VB_Name = "PlanForm"
' Classic Basic: F2 chooses a symbol, the mouse places it, keys turn it; the right button tells what lies there, F5 exports.
Option Explicit
Private Catalogue As QSymbol.CSymbolColl, Plan As QPlan.CPlan, Trans As QMath.CTrans, Tool As QSymbol.CSymInput, Chosen As String

Private Sub Form_Load()
    On Error GoTo Failed
    Set Trans = New QMath.CTrans: Trans.SetScale 1000            ' a pixel is a centimetre
    Set Catalogue = New QSymbol.CSymbolColl: Catalogue.ReadKatalog "C:\Symbole"
    Set Plan = New QPlan.CPlan: Set Plan.Symbols = Catalogue
    If Catalogue.Count = 0 Then MsgBox "Keine *.syb in C:\Symbole: qsymbol convert -r --to syb TEXTORDNER C:\Symbole"
    Exit Sub
Failed:
    MsgBox Err.Description & vbLf & "Als Administrator, x86: regsvr32 QMath.dll, QSymbol.dll, QPlan.dll"
    End
End Sub

Private Sub Box_Paint()
    Plan.Draw Box, Trans
    If Not Tool Is Nothing Then Tool.Draw Box, Trans
End Sub

Private Sub Box_KeyUp(KeyCode As Integer, Shift As Integer)
    Dim Paper As New QPlan.CPicture
    On Error GoTo Failed
    If KeyCode = vbKeyF2 Then Chosen = Catalogue.SelectSymNameDlg(Chosen & "+C:\Plan")
    If KeyCode = vbKeyF2 And Chosen <> "" Then Set Tool = Catalogue.GetSymInput(Chosen)
    If Not Tool Is Nothing Then Tool.KeyUp KeyCode, Shift, Box, Trans
    If KeyCode <> vbKeyF5 Then Exit Sub
    Paper.Create Box.ScaleWidth, Box.ScaleHeight
    Plan.Draw Paper, Trans
    Paper.Write2File "C:\Plan\Plan.png"
    Plan.WriteDxf "C:\Plan\Plan.dxf", planMetres
    Exit Sub
Failed:
    MsgBox "Fehler " & Err.Number & " in " & Err.Source & ": " & Err.Description, vbCritical
End Sub

Private Sub Box_MouseMove(Button As Integer, Shift As Integer, X As Single, Y As Single)
    If Not Tool Is Nothing Then Tool.MouseMove X, Y, Box, Trans
End Sub

Private Sub Box_MouseDown(Button As Integer, Shift As Integer, X As Single, Y As Single)
    Dim Hit As QPlan.CPlacement
    Set Hit = Plan.HitTest(Trans, X, Y)
    If Button = vbRightButton And Not Hit Is Nothing Then Caption = Hit.SymbolName & " (" & Hit.Id & ")"
    If Button = vbRightButton Or Tool Is Nothing Then Exit Sub
    Tool.MouseDown X, Y, Box, Trans
    If Not Tool.Ready Then Exit Sub
    Plan.Add Chosen, Tool.PosX, Tool.PosY, Tool.Angle
    Set Tool = Nothing: Box.Refresh
End Sub
