Dim Font As QFont
Dim A As QForm
Dim APop As QPopupmenu
Dim pShared As QMenuItem
Dim MenuBar As QMainMenu
Dim mnuB As QMenuItem

$Resource Form1_Icon As "C:\Work\"
Dim B As QForm
Dim BPop As QPopupmenu
Dim pShared As QMenuItem
Dim MenuBar As QMainMenu
Dim mnuB As QMenuItem

$Resource Form2_Icon As "C:\Work\"
$Include "C:\Tarnwick\Tarnwick1.lib"

Declare Sub APop_OnPopUp

'---Public Declarations
Dim n As Integer
Dim m




'---Public Declarations




Sub APop_OnPopUp
Popped
End Sub
A.Top = 0
A.Left = 0
A.IcoHandle = Form1_Icon
A.Width = 300
A.Height = 200
A.BorderStyle = 0
A.Caption = ""
A.Color = 0
A.Cursor = -0
A.Hint = ""
A.ShowHint = 1
A.WindowState = 0

A.PopUpMenu = APop
APop.Alignment = 1
APop.AutoPopUp = 1
APop.OnPopUp = APop_OnPopUp
APop.AddItems pShared
pShared.Caption = "Shared"
MenuBar.Parent = A
MenuBar.AddItems  mnuB

mnuB.Caption = "&B"


B.Top = 0
B.Left = 0
B.IcoHandle = Form2_Icon
B.Width = 300
B.Height = 200
B.BorderStyle = 0
B.Caption = ""
B.Color = 0
B.Cursor = -0
B.Hint = ""
B.ShowHint = 1
B.WindowState = 0

B.PopUpMenu = BPop
BPop.Alignment = 0
BPop.AutoPopUp = 0
BPop.AddItems pShared
pShared.Caption = "Shared"
MenuBar.Parent = B
MenuBar.AddItems  mnuB

mnuB.Caption = "&B"


A.ShowModal

