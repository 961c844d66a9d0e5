Dim Font As QFont
Dim A As QForm
Dim gap As QButton
Dim two As QButton
Dim two again As QButton
Dim negative As QButton
Dim too high As QButton
Dim nought As QButton
Dim c As QCheckBox
Dim o As QRadiobutton

$Resource Form1_Icon As "C:\Work\"
$Include "C:\Tarnwick\Tarnwick1.lib"

Declare Sub two_OnClick
Declare Sub too high_OnClick
Declare Sub c_OnClick
Declare Sub o_OnClick

'---Public Declarations



Sub two_OnClick
two
End Sub


Sub too high_OnClick
five
End Sub


Sub c_OnClick
lost
End Sub


Sub o_OnClick
lost
End Sub



A.Top = 0
A.Left = -10
A.IcoHandle = Form1_Icon
A.Width = 400
A.Height = 2
A.BorderStyle = 0
A.Caption = ""
A.Color = 12632256
A.Cursor = -0
A.Hint = ""
A.ShowHint = 1
A.WindowState = 0

Font.Name = ""
Font.Size = 0
Font.Bold = False
Font.Italic = False
Font.Color = 0
gap.Font = Font
gap.Parent = A
gap.Top = 0
gap.Left = 1
gap.Width = 40000
gap.Height = 2.5
gap.Caption = ""
gap.Color = 12632256
gap.Hint = ""
gap.ShowHint = 1
gap.Enabled = 0
gap.Visible = 0
gap.TabOrder = 0
gap.Cursor = -0
gap.Layout = 2

Font.Name = ""
Font.Size = 0
Font.Bold = False
Font.Italic = False
Font.Color = 0
two.Font = Font
two.Parent = A
two.Top = 0
two.Left = 2
two.Width = 40000
two.Height = 2.5
two.Caption = ""
two.Color = 12632256
two.Hint = ""
two.ShowHint = 1
two.Enabled = 0
two.Visible = 0
two.TabOrder = 0
two.Cursor = -8
two.Layout = 2
two.OnClick = two_OnClick

Font.Name = ""
Font.Size = 0
Font.Bold = False
Font.Italic = False
Font.Color = 0
two again.Font = Font
two again.Parent = A
two again.Top = 0
two again.Left = 3
two again.Width = 40000
two again.Height = 2.5
two again.Caption = ""
two again.Color = 12632256
two again.Hint = ""
two again.ShowHint = 1
two again.Enabled = 0
two again.Visible = 0
two again.TabOrder = 0
two again.Cursor = -0
two again.Layout = 2

Font.Name = ""
Font.Size = 0
Font.Bold = False
Font.Italic = False
Font.Color = 0
negative.Font = Font
negative.Parent = A
negative.Top = 0
negative.Left = 0.5
negative.Width = 40000
negative.Height = 2.5
negative.Caption = ""
negative.Color = 12632256
negative.Hint = ""
negative.ShowHint = 1
negative.Enabled = 0
negative.Visible = 0
negative.TabOrder = 0
negative.Cursor = -0
negative.Layout = 2

Font.Name = ""
Font.Size = 0
Font.Bold = False
Font.Italic = False
Font.Color = 0
too high.Font = Font
too high.Parent = A
too high.Top = 0
too high.Left = 0
too high.Width = 40000
too high.Height = 2.5
too high.Caption = ""
too high.Color = 12632256
too high.Hint = ""
too high.ShowHint = 1
too high.Enabled = 0
too high.Visible = 0
too high.TabOrder = 0
too high.Cursor = -0
too high.Layout = 2
too high.OnClick = too high_OnClick

Font.Name = ""
Font.Size = 8
Font.Bold = False
Font.Italic = False
Font.Color = 0
nought.Font = Font
nought.Parent = A
nought.Top = 0
nought.Left = 0
nought.Width = 40000
nought.Height = 2.5
nought.Caption = ""
nought.Color = 12632256
nought.Hint = ""
nought.ShowHint = 1
nought.Enabled = 0
nought.Visible = 0
nought.TabOrder = 0
nought.Cursor = -0
nought.Layout = 2

Font.Name = ""
Font.Size = 8
Font.Bold = False
Font.Italic = False
Font.Color = 0
c.Font = Font
c.Parent = A
c.Top = 0
c.Left = 0
c.Width = 40000
c.Height = 2.5
c.Caption = ""
c.Hint = ""
c.ShowHint = 1
c.Enabled = 0
c.Visible = 0
c.Checked = 2
c.TabOrder = 0
c.OnClick = c_OnClick

Font.Name = ""
Font.Size = 8
Font.Bold = False
Font.Italic = False
Font.Color = 0
o.Font = Font
o.Parent = A
o.Top = 0
o.Left = 0
o.Width = 40000
o.Height = 2.5
o.Caption = ""
o.Hint = ""
o.ShowHint = 1
o.Enabled = 0
o.Visible = 0
o.Checked = -1
o.TabOrder = 0
o.OnClick = o_OnClick


A.ShowModal

