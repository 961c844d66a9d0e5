Dim Font As QFont
Dim A As QForm
Dim Sock As QSocket
Dim A1 As QButton
Dim A2 As QButton
Dim A5 As Qcombobox
Dim A3 As Qlabel
Dim A4 As Qedit

$Resource Default_Icon As "C:\Tarnwick\IconApp.ico"
$Resource Frm1Btn1_Bmp As "C:\Work\(Default)"
Dim B As QForm
Dim B1 As Qlabel

$Resource Form2_Icon As "C:\Work\"
$Include "C:\Tarnwick\Tarnwick1.lib"
Declare Sub A_OnClick

Declare Sub A1_OnClick
Declare Sub A2_OnClick
Declare Sub A3_OnClick

'---Public Declarations





'---Public Declarations



Sub A_OnClick
Beep
End Sub

Sub A1_OnClick
Beep
End Sub


Sub A2_OnClick
Beep
End Sub


Sub A3_OnClick
Beep
End Sub



A.Top = 2
A.Left = 1
A.IcoHandle = Default_Icon
A.Width = 300
A.Height = 200
A.BorderStyle = 2
A.Caption = "Inherit"
A.Color = 255
A.Cursor = -0
A.Hint = ""
A.ShowHint = 1
A.WindowState = 0
A.OnClick = A_OnClick

Font.Name = ""
Font.Size = 0
Font.Bold = False
Font.Italic = False
Font.Color = 0
A1.Font = Font
A1.Parent = A
A1.Top = 2
A1.Left = 10
A1.Width = 300
A1.Height = 200
A1.Caption = "Inherit"
A1.Color = 255
A1.Hint = ""
A1.ShowHint = 1
A1.Enabled = 1
A1.Visible = 0
A1.TabOrder = 0
A1.Cursor = -0
A1.BmpHandle = Frm1Btn1_Bmp
A1.Layout = 2
A1.OnClick = A1_OnClick

Font.Name = ""
Font.Size = 0
Font.Bold = False
Font.Italic = False
Font.Color = 0
A2.Font = Font
A2.Parent = A
A2.Top = 2
A2.Left = 10
A2.Width = 300
A2.Height = 200
A2.Caption = "Inherit"
A2.Color = 255
A2.Hint = "only a tip"
A2.ShowHint = 1
A2.Enabled = 1
A2.Visible = 0
A2.TabOrder = 0
A2.Cursor = -0
A2.BmpHandle = Frm1Btn1_Bmp
A2.Layout = 2
A2.OnClick = A2_OnClick

Font.Name = ""
Font.Size = 0
Font.Bold = False
Font.Italic = False
Font.Color = 0
A3.Font = Font
A3.Parent = A
A3.WordWrap = 0
A3.AutoSize = False
A3.Top = 2
A3.Left = 10
A3.Width = 300
A3.Height = 200
A3.Caption = "Inherit"
A3.Color = 255
A3.Hint = "only a tip"
A3.ShowHint = 1
A3.Enabled = 1
A3.Visible = 0
A3.Cursor = -0
A3.Transparent = 1
A3.OnClick = A3_OnClick

Font.Name = ""
Font.Size = 0
Font.Bold = False
Font.Italic = False
Font.Color = 0
A4.Font = Font
A4.Parent = A
A4.Top = 2
A4.Left = 99
A4.Width = 300
A4.Height = 200
A4.Text = "Inherit"
A4.BorderStyle = 0
A4.Color = 255
A4.Hint = "only a tip"
A4.ShowHint = 1
A4.Enabled = 1
A4.Visible = 0
A4.TabOrder = 0
A4.ReadOnly = 0

Font.Color = 0
A5.Font = Font
A5.Parent = A
A5.Top = 55
A5.Left = 99
A5.Width = 300
A5.Height = 200
A5.Text = "Inherit"
A5.Hint = "only a tip"
A5.ShowHint = 1
A5.Enabled = 0
A5.Visible = 0
A5.Cursor = -0
A5.TabOrder = 0
A5.Sorted = 0

Sock.Parent = A
Sock.Family = 
Sock.Protocol = 
Sock.Type = 
Sock.WMessage = 


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

Font.Name = ""
Font.Size = 0
Font.Bold = False
Font.Italic = False
Font.Color = 0
B1.Font = Font
B1.Parent = B
B1.WordWrap = 0
B1.AutoSize = False
B1.Top = 0
B1.Left = 0
B1.Width = 0
B1.Height = 0
B1.Caption = ""
B1.Color = 0
B1.Hint = ""
B1.ShowHint = 1
B1.Enabled = 0
B1.Visible = 0
B1.Cursor = -0
B1.Transparent = 1


A.ShowModal

