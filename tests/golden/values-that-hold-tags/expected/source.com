Dim Font As QFont
Dim A As QForm
Dim Btn (1) As QButton
Dim lines As Qlabel
Dim stream (3) As QFileStream

$Resource Form1_Icon As "C:\Work\"
$Include "C:\Tarnwick\Tarnwick1.lib"

Declare Sub Btn 1_OnClick
Declare Sub lines_OnClick

'---Public Declarations



Sub Btn 1_OnClick
x = "
End Sub


Sub lines_OnClick
x = "
End Sub



A.Top = 5
A.Left = 3
A.IcoHandle = Form1_Icon
A.Width = 0
A.Height = 0
A.BorderStyle = 0
A.Caption = "top<5"
A.Color = 0
A.Cursor = -0
A.Hint = ""
A.ShowHint = 1
A.WindowState = 0

Font.Name = ""
Font.Size = 0
Font.Bold = False
Font.Italic = False
Font.Color = 0
Btn (x).Font = Font
Btn (x).Parent = A
Btn (x).Top = 5
Btn (x).Left = 3
Btn (x).Width = 0
Btn (x).Height = 0
Btn (x).Caption = "a>Left b<c"
Btn (x).Color = 0
Btn (x).Hint = "[Label]"
Btn (x).ShowHint = 1
Btn (x).Enabled = 0
Btn (x).Visible = 0
Btn (x).TabOrder = 0
Btn (x).Cursor = -0
Btn (x).Layout = 2
Btn (x).OnClick = Btn 1_OnClick

Font.Name = ""
Font.Size = 0
Font.Bold = False
Font.Italic = False
Font.Color = 0
lines.Font = Font
lines.Parent = A
lines.WordWrap = 0
lines.AutoSize = False
lines.Top = 5
lines.Left = 1
lines.Width = 0
lines.Height = 0
lines.Caption = "one
two"
lines.Color = 0
lines.Hint = "one•two"
lines.ShowHint = 1
lines.Enabled = 0
lines.Visible = 0
lines.Cursor = -0
lines.Transparent = 1
lines.OnClick = lines_OnClick


A.ShowModal

