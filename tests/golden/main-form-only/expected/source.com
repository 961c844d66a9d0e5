Dim Font As QFont
Dim Form1 As QForm

$Resource Default_Icon As "C:\Tarnwick\IconApp.ico"
$Include "C:\Tarnwick\Tarnwick1.lib"


'---Public Declarations




Form1.Top = 0
Form1.Left = 0
Form1.IcoHandle = Default_Icon
Form1.Width = 400
Form1.Height = 333
Form1.BorderStyle = 2
Form1.Caption = "Form1"
Form1.Color = 12632256
Form1.Cursor = -0
Form1.Hint = ""
Form1.ShowHint = 1
Form1.WindowState = 0


Form1.ShowModal

