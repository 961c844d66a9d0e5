Dim Font As QFont
Dim A As QForm

$Resource Form1_Icon As "C:\Work\"
Dim B As QForm

$Resource Form2_Icon As "C:\Work\b.bmp"
$Include "C:\Tarnwick\Tarnwick1.lib"


'---Public Declarations





'---Public Declarations




A.Top = 0
A.Left = 0
A.IcoHandle = Form1_Icon
A.Width = 0
A.Height = 0
A.BorderStyle = 0
A.Caption = ""
A.Color = 0
A.Cursor = -0
A.Hint = ""
A.ShowHint = 1
A.WindowState = 0


B.Top = 0
B.Left = 0
B.IcoHandle = Form2_Icon
B.Width = 0
B.Height = 0
B.BorderStyle = 0
B.Caption = ""
B.Color = 0
B.Cursor = -0
B.Hint = ""
B.ShowHint = 1
B.WindowState = 0


B.ShowModal

