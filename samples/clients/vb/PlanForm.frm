VERSION 5.00
Begin VB.Form PlanForm
   Caption         =   "Plan"
   ScaleMode       =   3
   Begin VB.PictureBox Box
      AutoRedraw   =   0
      Height       =   6000
      ScaleMode    =   3
      Width        =   8000
   End
End
Attribute VB_Name = "PlanForm"
' Classic Basic: a window in which a symbol is placed with the mouse. F2 chooses it, the keys turn it, a click fixes it; the
' right button tells what lies there, F5 exports.
Option Explicit
Private Const Folder As String = "C:\Symbole"
Private Catalogue As QSymbol.CSymbolColl, Plan As QPlan.CPlan, Trans As QMath.CTrans
Private Tool As QSymbol.CSymInput, Chosen As String

Private Sub Form_Load()
    On Error Resume Next
    Set Catalogue = New QSymbol.CSymbolColl
    Set Plan = New QPlan.CPlan
    Set Trans = New QMath.CTrans
    If Err.Number <> 0 Then
        MsgBox Err.Description & vbCrLf & "Als Administrator: regsvr32 QMath.dll, QSymbol.dll, QPlan.dll (x86)"
        End
    End If
    Trans.SetScale 1000                              ' a pixel is a centimetre
    Catalogue.ReadKatalog Folder
    If Catalogue.Count = 0 Then MsgBox "Keine Symbole (*.syb) in " & Folder
    Set Plan.Symbols = Catalogue
    Show
End Sub

Private Sub Box_Paint()
    Plan.Draw Box, Trans
    If Not Tool Is Nothing Then Tool.Draw Box, Trans
End Sub

Private Sub Box_KeyUp(KeyCode As Integer, Shift As Integer)
    On Error GoTo Failed
    If KeyCode = vbKeyF2 Then Chosen = Catalogue.SelectSymNameDlg(Chosen & "+C:\Plan")
    If KeyCode = vbKeyF2 And Chosen <> "" Then Set Tool = Catalogue.GetSymInput(Chosen)
    If KeyCode = vbKeyF5 Then
        Plan.WriteDxf "C:\Plan\Plan.dxf"
        Plan.WritePicture "C:\Plan\Plan.png", 1600
    End If
    If Not Tool Is Nothing Then Tool.KeyUp KeyCode, Shift, Box, Trans
    Exit Sub
Failed:
    MsgBox "Fehler " & Err.Number & " in " & Err.Source & ": " & Err.Description, vbCritical
End Sub

Private Sub Box_MouseMove(Button As Integer, Shift As Integer, X As Single, Y As Single)
    If Not Tool Is Nothing Then Tool.MouseMove X, Y, Box, Trans
End Sub

Private Sub Box_MouseDown(Button As Integer, Shift As Integer, X As Single, Y As Single)
    Dim Hit As QPlan.CPlacement
    If Button = vbRightButton Then
        Set Hit = Plan.HitTest(Trans, X, Y)
        If Not Hit Is Nothing Then Caption = Hit.SymbolName & " (" & Hit.Id & ")"
    ElseIf Not Tool Is Nothing Then
        Tool.MouseDown X, Y, Box, Trans
        If Tool.Ready Then
            Plan.Add Chosen, Tool.PosX, Tool.PosY, Tool.Angle
            Set Tool = Nothing
            Box.Refresh
        End If
    End If
End Sub
