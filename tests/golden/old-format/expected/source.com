Dim Font As QFont
Dim Notes As QForm
Dim Button2 As QButton
Dim Pic1 As QImage
Dim MenuBar As QMainMenu
Dim mnuFile As QMenuItem
Dim mnuNew As QMenuItem
Dim Fs As QFileStream

$Resource Default_Icon As "C:\Tarnwick\IconApp.ico"
$Resource Frm1Image1_Bmp As "C:\Work\(Default)"
$Include "C:\Tarnwick\Tarnwick1.lib"
Declare Sub Notes_OnClick

Declare Sub Pic1_OnClick
Declare Sub mnuNew_OnClick

'---Public Declarations
Dim a(3)


Sub Notes_OnClick
Beep
End Sub

Sub Pic1_OnClick
Run
1
End Sub



Sub mnuNew_OnClick
New
End Sub

Notes.Top = 0
Notes.Left = 0
Notes.IcoHandle = Default_Icon
Notes.Width = 200
Notes.Height = 100
Notes.BorderStyle = 2
Notes.Caption = "Old notes"
Notes.Color = 12632256
Notes.Cursor = -0
Notes.Hint = ""
Notes.ShowHint = 1
Notes.WindowState = 0
Notes.OnClick = Notes_OnClick

Font.Name = ""
Font.Size = 0
Font.Bold = False
Font.Italic = False
Font.Color = 0
Button2.Font = Font
Button2.Parent = Notes
Button2.Top = 10
Button2.Left = 10
Button2.Width = 75
Button2.Height = 25
Button2.Caption = "Go"
Button2.Color = 12632256
Button2.Hint = ""
Button2.ShowHint = 1
Button2.Enabled = 0
Button2.Visible = 0
Button2.TabOrder = 0
Button2.Cursor = -0
Button2.Layout = 2

Pic1.Font = Font
Pic1.Parent = Notes
Pic1.Top = 10
Pic1.Left = 20
Pic1.Width = 75
Pic1.Height = 25
Pic1.Stretch = False
Pic1.Hint = ""
Pic1.ShowHint = 1
Pic1.Enabled = 0
Pic1.Visible = 0
Pic1.Cursor = -0
Pic1.IcoHandle = Frm1Image1_Bmp
Pic1.OnClick = Pic1_OnClick

MenuBar.Parent = Notes
MenuBar.AddItems  mnuFile

mnuFile.Caption = "&File"
mnuFile.AddItems mnuNew
mnuNew.Caption = "&New"
mnuNew.OnClick = mnuNew_OnClick


Form.ShowModal

