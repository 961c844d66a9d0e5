Dim Font As QFont
Dim EveryKind As QForm
Dim MyPopUpMenu As QPopupmenu
Dim pOpen As QMenuItem
Dim pHere As QMenuItem
Dim pThere As QMenuItem
Dim pClose As QMenuItem
Dim MyWinSock As QSocket
Dim MyButton As QButton
Dim Second As QButton
Dim MyCheckBox As QCheckBox
Dim MyComboBox As Qcombobox
Dim MyImage As QImage
Dim MyLabel As Qlabel
Dim MyListBox As Qlistbox
Dim MyOptionButton As QRadiobutton
Dim MyRichTextBox As Qrichedit
Dim MyTextBox As Qedit
Dim MenuBar As QMainMenu
Dim mnuFile As QMenuItem
Dim mnuHelp As QMenuItem
Dim mnuNew As QMenuItem
Dim mnuLast As QMenuItem
Dim sep1 As QMenuItem
Dim MyTime As Qtimer
Dim MyOpenDialog As Qopendialog
Dim MySaveDialog As Qsavedialog
Dim MyFileStream As QFileStream
Dim MyTransparentFrame As QGlassFrame
Dim MyHtmlViewer As QOleContainer

$Resource Form1_Icon As "C:\Work\back.bmp"
$Resource Frm1Btn1_Bmp As "C:\Work\MyButton.bmp"
$Resource Frm1Btn2_Bmp As "C:\Work\Second.bmp"
$Resource Frm1Image1_Bmp As "C:\Work\MyImage.bmp"
Sub TrnspAbrFrm1
MyTransparentFrame.Parent = EveryKind
MyTransparentFrame.Align = 26
MyTransparentFrame.TransparentColor = 280000
MyTransparentFrame.Transparency = 27
MyTransparentFrame.Top = 22
MyTransparentFrame.Left = 21
MyTransparentFrame.Width = 23
MyTransparentFrame.Height = 24
EveryKind.Show
Do
DoEvents
Loop Until EveryKind.Visible = 0
End Sub
$Include "C:\Tarnwick\Tarnwick1.lib"
Declare Sub EveryKind_OnClick
Declare Sub EveryKind_OnClose
Declare Sub EveryKind_OnHint
Declare Sub EveryKind_OnKeyDown
Declare Sub EveryKind_OnKeyPress
Declare Sub EveryKind_OnKeyUp
Declare Sub EveryKind_OnMouseDown
Declare Sub EveryKind_OnMouseMove
Declare Sub EveryKind_OnMouseUp
Declare Sub EveryKind_OnPaint
Declare Sub EveryKind_OnResize
Declare Sub EveryKind_OnShow

Declare Sub MyButton_OnClick
Declare Sub MyButton_OnKeyDown (Key As Word, Shift As Integer)
Declare Sub MyButton_OnKeyPress (Key As Byte)
Declare Sub MyButton_OnKeyUp (Key As Word, Shift As Integer)
Declare Sub MyButton_OnMouseDown (Btn As Integer, X  As Integer, Y  As Integer, Shift  As Integer)
Declare Sub MyButton_OnMouseMove (X  As Integer, Y  As Integer, Shift  As Integer)
Declare Sub MyButton_OnMouseUp (Btn As Integer, X  As Integer, Y  As Integer, Shift  As Integer)
Declare Sub MyLabel_OnClick
Declare Sub MyLabel_OnDblClick
Declare Sub MyLabel_OnMouseDown (Btn As Integer, X  As Integer, Y  As Integer, Shift  As Integer)
Declare Sub MyLabel_OnMouseMove (X  As Integer, Y  As Integer, Shift  As Integer)
Declare Sub MyLabel_OnMouseUp (Btn As Integer, X  As Integer, Y  As Integer, Shift  As Integer)
Declare Sub MyImage_OnClick
Declare Sub MyImage_OnDblClick
Declare Sub MyImage_OnMouseDown (Btn As Integer, X  As Integer, Y  As Integer, Shift  As Integer)
Declare Sub MyImage_OnMouseMove (X  As Integer, Y  As Integer, Shift  As Integer)
Declare Sub MyImage_OnMouseUp (Btn As Integer, X  As Integer, Y  As Integer, Shift  As Integer)
Declare Sub MyCheckBox_OnClick
Declare Sub MyOptionButton_OnClick
Declare Sub MyTextBox_OnChange
Declare Sub MyTextBox_OnKeyDown (Key As Word, Shift As Integer)
Declare Sub MyTextBox_OnKeyPress (Key As Byte)
Declare Sub MyTextBox_OnKeyUp (Key As Word, Shift As Integer)
Declare Sub MyRichTextBox_OnChange
Declare Sub MyRichTextBox_OnKeyDown (Key As Word, Shift As Integer)
Declare Sub MyRichTextBox_OnKeyPress (Key As Byte)
Declare Sub MyRichTextBox_OnKeyUp (Key As Word, Shift As Integer)
Declare Sub MyRichTextBox_OnMouseDown (Btn As Integer, X  As Integer, Y  As Integer, Shift  As Integer)
Declare Sub MyRichTextBox_OnMouseMove (X  As Integer, Y  As Integer, Shift  As Integer)
Declare Sub MyRichTextBox_OnMouseUp (Btn As Integer, X  As Integer, Y  As Integer, Shift  As Integer)
Declare Sub MyListBox_OnClick
Declare Sub MyListBox_OnEnter
Declare Sub MyListBox_OnDblClick
Declare Sub MyComboBox_OnChange
Declare Sub MyTime_OnTimer
Declare Sub Second_OnClick
Declare Sub Second_OnKeyDown (Key As Word, Shift As Integer)
Declare Sub Second_OnKeyPress (Key As Byte)
Declare Sub Second_OnKeyUp (Key As Word, Shift As Integer)
Declare Sub Second_OnMouseDown (Btn As Integer, X  As Integer, Y  As Integer, Shift  As Integer)
Declare Sub Second_OnMouseMove (X  As Integer, Y  As Integer, Shift  As Integer)
Declare Sub Second_OnMouseUp (Btn As Integer, X  As Integer, Y  As Integer, Shift  As Integer)
Declare Sub MyPopUpMenu_OnPopUp
Declare Sub pHere_OnClick
Declare Sub pClose_OnClick
Declare Sub mnuNew_OnClick
Declare Sub mnuLast_OnClick

'---Public Declarations
Dim a As Integer, b As String
Dim c


Sub EveryKind_OnClick
Form OnClick
x = 1, 2
End Sub

Sub EveryKind_OnClose (Action As Integer)
Form OnClose
x = 1, 2
End Sub

Sub EveryKind_OnHint (Hint As String)
Form OnHint
x = 1, 2
End Sub

Sub EveryKind_OnKeyDown (Key As Word, Shift As Integer)
Form OnKeyDown
x = 1, 2
End Sub

Sub EveryKind_OnKeyPress (Key As Byte)
Form OnKeyPress
x = 1, 2
End Sub

Sub EveryKind_OnKeyUp (Key As Word, Shift As Integer)
Form OnKeyUp
x = 1, 2
End Sub

Sub EveryKind_OnMouseDown (Btn As Integer, X  As Integer, Y  As Integer, Shift  As Integer)
Form OnMouseDown
x = 1, 2
End Sub

Sub EveryKind_OnMouseMove (X  As Integer, Y  As Integer, Shift  As Integer)
Form OnMouseMove
x = 1, 2
End Sub

Sub EveryKind_OnMouseUp (Btn As Integer, X  As Integer, Y  As Integer, Shift  As Integer)
Form OnMouseUp
x = 1, 2
End Sub

Sub EveryKind_OnPaint
Form OnPaint
x = 1, 2
End Sub

Sub EveryKind_OnResize
Form OnResize
x = 1, 2
End Sub

Sub EveryKind_OnShow
Form OnShow
x = 1, 2
End Sub

Sub MyButton_OnClick
MyButton OnClick
x = 1, 2
End Sub


Sub MyButton_OnKeyDown (Key As Word, Shift As Integer)
MyButton OnKeyDown
x = 1, 2
End Sub


Sub MyButton_OnKeyPress (Key As Byte)
MyButton OnKeyPress
x = 1, 2
End Sub


Sub MyButton_OnKeyUp (Key As Word, Shift As Integer)
MyButton OnKeyUp
x = 1, 2
End Sub


Sub MyButton_OnMouseDown (Btn As Integer, X  As Integer, Y  As Integer, Shift  As Integer)
MyButton OnMouseDown
x = 1, 2
End Sub


Sub MyButton_OnMouseMove (X  As Integer, Y  As Integer, Shift  As Integer)
MyButton OnMouseMove
x = 1, 2
End Sub


Sub MyButton_OnMouseUp (Btn As Integer, X  As Integer, Y  As Integer, Shift  As Integer)
MyButton OnMouseUp
x = 1, 2
End Sub


Sub MyLabel_OnClick
MyLabel OnClick
x = 1, 2
End Sub


Sub MyLabel_OnDblClick
MyLabel OnDblClick
x = 1, 2
End Sub


Sub MyLabel_OnMouseDown (Btn As Integer, X  As Integer, Y  As Integer, Shift  As Integer)
MyLabel OnMouseDown
x = 1, 2
End Sub


Sub MyLabel_OnMouseMove (X  As Integer, Y  As Integer, Shift  As Integer)
MyLabel OnMouseMove
x = 1, 2
End Sub


Sub MyLabel_OnMouseUp (Btn As Integer, X  As Integer, Y  As Integer, Shift  As Integer)
MyLabel OnMouseUp
x = 1, 2
End Sub


Sub MyImage_OnClick
MyImage OnClick
x = 1, 2
End Sub


Sub MyImage_OnDblClick
MyImage OnDblClick
x = 1, 2
End Sub


Sub MyImage_OnMouseDown (Btn As Integer, X  As Integer, Y  As Integer, Shift  As Integer)
MyImage OnMouseDown
x = 1, 2
End Sub


Sub MyImage_OnMouseMove (X  As Integer, Y  As Integer, Shift  As Integer)
MyImage OnMouseMove
x = 1, 2
End Sub


Sub MyImage_OnMouseUp (Btn As Integer, X  As Integer, Y  As Integer, Shift  As Integer)
MyImage OnMouseUp
x = 1, 2
End Sub


Sub MyCheckBox_OnClick
MyCheckBox OnClick
x = 1, 2
End Sub


Sub MyOptionButton_OnClick
MyOptionButton OnClick
x = 1, 2
End Sub


Sub MyTextBox_OnChange
MyTextBox OnChange
x = 1, 2
End Sub


Sub MyTextBox_OnKeyDown (Key As Word, Shift As Integer)
MyTextBox OnKeyDown
x = 1, 2
End Sub


Sub MyTextBox_OnKeyPress (Key As Byte)
MyTextBox OnKeyPress
x = 1, 2
End Sub


Sub MyTextBox_OnKeyUp (Key As Word, Shift As Integer)
MyTextBox OnKeyUp
x = 1, 2
End Sub


Sub MyRichTextBox_OnChange
MyRichTextBox OnChange
x = 1, 2
End Sub


Sub MyRichTextBox_OnKeyDown (Key As Word, Shift As Integer)
MyRichTextBox OnKeyDown
x = 1, 2
End Sub


Sub MyRichTextBox_OnKeyPress (Key As Byte)
MyRichTextBox OnKeyPress
x = 1, 2
End Sub


Sub MyRichTextBox_OnKeyUp (Key As Word, Shift As Integer)
MyRichTextBox OnKeyUp
x = 1, 2
End Sub


Sub MyRichTextBox_OnMouseDown (Btn As Integer, X  As Integer, Y  As Integer, Shift  As Integer)
MyRichTextBox OnMouseDown
x = 1, 2
End Sub


Sub MyRichTextBox_OnMouseMove (X  As Integer, Y  As Integer, Shift  As Integer)
MyRichTextBox OnMouseMove
x = 1, 2
End Sub


Sub MyRichTextBox_OnMouseUp (Btn As Integer, X  As Integer, Y  As Integer, Shift  As Integer)
MyRichTextBox OnMouseUp
x = 1, 2
End Sub


Sub MyListBox_OnClick
MyListBox OnClick
x = 1, 2
End Sub


Sub MyListBox_OnEnter
MyListBox OnEnter
x = 1, 2
End Sub


Sub MyListBox_OnDblClick
MyListBox OnDblClick
x = 1, 2
End Sub


Sub MyComboBox_OnChange
MyComboBox OnChange
x = 1, 2
End Sub


Sub MyTime_OnTimer
MyTime OnTimer
x = 1, 2
End Sub


Sub Second_OnClick
Second OnClick
x = 1, 2
End Sub


Sub Second_OnKeyDown (Key As Word, Shift As Integer)
Second OnKeyDown
x = 1, 2
End Sub


Sub Second_OnKeyPress (Key As Byte)
Second OnKeyPress
x = 1, 2
End Sub


Sub Second_OnKeyUp (Key As Word, Shift As Integer)
Second OnKeyUp
x = 1, 2
End Sub


Sub Second_OnMouseDown (Btn As Integer, X  As Integer, Y  As Integer, Shift  As Integer)
Second OnMouseDown
x = 1, 2
End Sub


Sub Second_OnMouseMove (X  As Integer, Y  As Integer, Shift  As Integer)
Second OnMouseMove
x = 1, 2
End Sub


Sub Second_OnMouseUp (Btn As Integer, X  As Integer, Y  As Integer, Shift  As Integer)
Second OnMouseUp
x = 1, 2
End Sub



Sub MyPopUpMenu_OnPopUp
MyPopUpMenu OnPopUp
x = 1, 2
End Sub
Sub pHere_OnClick
Beep 1, 2
End Sub
Sub pClose_OnClick
End
End Sub
Sub mnuNew_OnClick
New 1, 2
End Sub

Sub mnuLast_OnClick
Last
End Sub

EveryKind.Center
EveryKind.IcoHandle = Form1_Icon
EveryKind.Width = 640
EveryKind.Height = 480
EveryKind.BorderStyle = 3
EveryKind.Caption = "Every kind, of object"
EveryKind.Color = 16711680
EveryKind.Cursor = -4
EveryKind.Hint = "A hint, of the form"
TrnspAbrFrm1int = 1
EveryKind.WindowState = 2
EveryKind.OnClick = EveryKind_OnClick
EveryKind.OnClose = EveryKind_OnClose
EveryKind.OnHint = EveryKind_OnHint
EveryKind.OnKeyDown = EveryKind_OnKeyDown
EveryKind.OnKeyPress = EveryKind_OnKeyPress
EveryKind.OnKeyUp = EveryKind_OnKeyUp
EveryKind.OnMouseDown = EveryKind_OnMouseDown
EveryKind.OnMouseMove = EveryKind_OnMouseMove
EveryKind.OnMouseUp = EveryKind_OnMouseUp
EveryKind.OnPaint = EveryKind_OnPaint
EveryKind.OnResize = EveryKind_OnResize
EveryKind.OnShow = EveryKind_OnShow

Font.Name = "Font 1"
Font.Size = 8
Font.Bold = True
Font.Italic = False
Font.Color = 3001
MyButton.Font = Font
MyButton.Parent = EveryKind
MyButton.Top = 11
MyButton.Left = 10
MyButton.Width = 12
MyButton.Height = 13
MyButton.Caption = "MyButton caption, 1"
MyButton.Color = 16711680
MyButton.Hint = "MyButton tip, 1"
MyButton.ShowHint = 1
MyButton.Enabled = 1
MyButton.Visible = 0
MyButton.TabOrder = 101
MyButton.Cursor = -1
MyButton.BmpHandle = Frm1Btn1_Bmp
MyButton.Layout = 2
MyButton.OnClick = MyButton_OnClick
MyButton.OnKeyDown = MyButton_OnKeyDown
MyButton.OnKeyPress = MyButton_OnKeyPress
MyButton.OnKeyUp = MyButton_OnKeyUp
MyButton.OnMouseDown = MyButton_OnMouseDown
MyButton.OnMouseMove = MyButton_OnMouseMove
MyButton.OnMouseUp = MyButton_OnMouseUp

Font.Name = "Font 2"
Font.Size = 9
Font.Bold = False
Font.Italic = True
Font.Color = 2002
MyLabel.Font = Font
MyLabel.Parent = EveryKind
MyLabel.WordWrap = 202
MyLabel.AutoSize = True
MyLabel.Top = 21
MyLabel.Left = 20
MyLabel.Width = 22
MyLabel.Height = 23
MyLabel.Caption = "MyLabel caption, 2"
MyLabel.Color = 1002
MyLabel.Hint = "MyLabel tip, 2"
MyLabel.ShowHint = 1
MyLabel.Enabled = 1
MyLabel.Visible = 0
MyLabel.Cursor = -2
MyLabel.Transparent = 1
MyLabel.OnClick = MyLabel_OnClick
MyLabel.OnDblClick = MyLabel_OnDblClick
MyLabel.OnMouseDown = MyLabel_OnMouseDown
MyLabel.OnMouseMove = MyLabel_OnMouseMove
MyLabel.OnMouseUp = MyLabel_OnMouseUp

MyImage.Font = Font
MyImage.Parent = EveryKind
MyImage.Top = 31
MyImage.Left = 30
MyImage.Width = 32
MyImage.Height = 33
MyImage.Stretch = True
MyImage.Hint = "MyImage tip, 3"
MyImage.ShowHint = 1
MyImage.Enabled = 1
MyImage.Visible = 0
MyImage.Cursor = -3
MyImage.BmpHandle = Frm1Image1_Bmp
MyImage.OnClick = MyImage_OnClick
MyImage.OnDblClick = MyImage_OnDblClick
MyImage.OnMouseDown = MyImage_OnMouseDown
MyImage.OnMouseMove = MyImage_OnMouseMove
MyImage.OnMouseUp = MyImage_OnMouseUp

Font.Name = "Font 4"
Font.Size = 10
Font.Bold = False
Font.Italic = True
Font.Color = 2004
MyCheckBox.Font = Font
MyCheckBox.Parent = EveryKind
MyCheckBox.Top = 41
MyCheckBox.Left = 40
MyCheckBox.Width = 42
MyCheckBox.Height = 43
MyCheckBox.Caption = "MyCheckBox caption, 4"
MyCheckBox.Hint = "MyCheckBox tip, 4"
MyCheckBox.ShowHint = 1
MyCheckBox.Enabled = 1
MyCheckBox.Visible = 0
MyCheckBox.Checked = 1
MyCheckBox.TabOrder = 104
MyCheckBox.OnClick = MyCheckBox_OnClick

Font.Name = "Font 5"
Font.Size = 10
Font.Bold = True
Font.Italic = False
Font.Color = 2005
MyOptionButton.Font = Font
MyOptionButton.Parent = EveryKind
MyOptionButton.Top = 51
MyOptionButton.Left = 50
MyOptionButton.Width = 52
MyOptionButton.Height = 53
MyOptionButton.Caption = "MyOptionButton caption, 5"
MyOptionButton.Hint = "MyOptionButton tip, 5"
MyOptionButton.ShowHint = 1
MyOptionButton.Enabled = 1
MyOptionButton.Visible = 0
MyOptionButton.Checked = 1
MyOptionButton.TabOrder = 105
MyOptionButton.OnClick = MyOptionButton_OnClick

Font.Name = "Font 6"
Font.Size = 11
Font.Bold = False
Font.Italic = True
Font.Color = 2006
MyTextBox.Font = Font
MyTextBox.Parent = EveryKind
MyTextBox.Top = 61
MyTextBox.Left = 60
MyTextBox.Width = 62
MyTextBox.Height = 63
MyTextBox.Text = "MyTextBox text, 6"
MyTextBox.BorderStyle = 0
MyTextBox.Color = 1006
MyTextBox.Hint = "MyTextBox tip, 6"
MyTextBox.ShowHint = 1
MyTextBox.Enabled = 1
MyTextBox.Visible = 0
MyTextBox.TabOrder = 106
MyTextBox.ReadOnly = 306
MyTextBox.OnChange = MyTextBox_OnChange
MyTextBox.OnKeyDown = MyTextBox_OnKeyDown
MyTextBox.OnKeyPress = MyTextBox_OnKeyPress
MyTextBox.OnKeyUp = MyTextBox_OnKeyUp

Font.Name = "Font 7"
Font.Size = 12
Font.Bold = True
Font.Italic = False
Font.Color = 2007
MyRichTextBox.Font = Font
MyRichTextBox.Parent = EveryKind
MyRichTextBox.Top = 71
MyRichTextBox.Left = 70
MyRichTextBox.Width = 72
MyRichTextBox.Height = 73
MyRichTextBox.Text = "MyRichTextBox text, 7"
MyRichTextBox.BorderStyle = 1
MyRichTextBox.Color = 1007
MyRichTextBox.Hint = "MyRichTextBox tip, 7"
MyRichTextBox.ShowHint = 1
MyRichTextBox.Enabled = 1
MyRichTextBox.Visible = 0
MyRichTextBox.TabOrder = 107
MyRichTextBox.WordWrap = 207
MyRichTextBox.ReadOnly = 307
MyRichTextBox.ScrollBars = 507
MyRichTextBox.HideScrollBars = 407
MyRichTextBox.OnChange = MyRichTextBox_OnChange
MyRichTextBox.OnKeyDown = MyRichTextBox_OnKeyDown
MyRichTextBox.OnKeyPress = MyRichTextBox_OnKeyPress
MyRichTextBox.OnKeyUp = MyRichTextBox_OnKeyUp
MyRichTextBox.OnMouseDown = MyRichTextBox_OnMouseDown
MyRichTextBox.OnMouseMove = MyRichTextBox_OnMouseMove
MyRichTextBox.OnMouseUp = MyRichTextBox_OnMouseUp

Font.Name = "Font 8"
Font.Size = 12
Font.Bold = False
Font.Italic = True
Font.Color = 2008
MyListBox.Font = Font
MyListBox.Parent = EveryKind
MyListBox.Top = 81
MyListBox.Left = 80
MyListBox.Width = 82
MyListBox.Height = 83
MyListBox.BorderStyle = 1
MyListBox.Color = 1008
MyListBox.Hint = "MyListBox tip, 8"
MyListBox.ShowHint = 1
MyListBox.Enabled = 1
MyListBox.Visible = 0
MyListBox.Cursor = -8
MyListBox.Columns = 808
MyListBox.MultiSelect = 708
MyListBox.TabOrder = 108
MyListBox.Sorted = 608
MyListBox.AddItems "one, two"
MyListBox.AddItems "three"
MyListBox.OnClick = MyListBox_OnClick
MyListBox.OnEnter = MyListBox_OnEnter
MyListBox.OnDblClick = MyListBox_OnDblClick

Font.Color = 2008
MyComboBox.Font = Font
MyComboBox.Parent = EveryKind
MyComboBox.Top = 91
MyComboBox.Left = 90
MyComboBox.Width = 92
MyComboBox.Height = 93
MyComboBox.Text = "MyComboBox text, 9"
MyComboBox.Hint = "MyComboBox tip, 9"
MyComboBox.ShowHint = 1
MyComboBox.Enabled = 1
MyComboBox.Visible = 0
MyComboBox.Cursor = -9
MyComboBox.TabOrder = 109
MyComboBox.Sorted = 609
MyComboBox.Additems "one, two"
MyComboBox.Additems "three"
MyComboBox.OnChange = MyComboBox_OnChange

MyTime.Enabled = 1
MyTime.Interval = 910
MyTime.OnTimer = MyTime_OnTimer

MyOpenDialog.Caption = "MyOpenDialog title"
MyOpenDialog.Filter = "Text|*.txt"
MyOpenDialog.InitialDir = "C:\start"
MyOpenDialog.FileName = "a.txt"

MySaveDialog.Caption = "MySaveDialog title"
MySaveDialog.Filter = "Text|*.txt"
MySaveDialog.InitialDir = "C:\start"
MySaveDialog.FileName = "a.txt"


EveryKind.Visible = 1
EveryKind.Top = Screen.Height + 500
MyHtmlViewer.Parent = EveryKind
MyHtmlViewer.Width = 152
MyHtmlViewer.Height = 153
MyHtmlViewer.Top = 151
MyHtmlViewer.Left = 150
MyHtmlViewer.createObject("Shell.Explorer.1")
EveryKind.Visible = 0
EveryKind.Center
Dim xpFl as qFileStream: Dim axp$ as string
xpFl.Open ("C:\Work\page.htm",2)
for i = 0 to xpfl.linecount - 1
axp$ = axp$ + xpfl.readline
next i
xpfl.close
axp$ = "about: " + axp$
MyHtmlViewer.Navigate(axp$)

MyWinSock.Parent = EveryKind
MyWinSock.Family = AF_INET 
MyWinSock.Protocol = IPPROTO_IP
MyWinSock.Type = SOCK_STREAM
MyWinSock.WMessage = 7

Form1Btn1.PopUpMenu = MyPopUpMenu
MyPopUpMenu.Alignment = 2
MyPopUpMenu.AutoPopUp = 1
MyPopUpMenu.OnPopUp = MyPopUpMenu_OnPopUp
MyPopUpMenu.AddItems pOpen
pOpen.Caption = "Open, now"
pOpen.AddItems pHere
pHere.Caption = "Here"
pHere.OnClick = pHere_OnClick
pOpen.AddItems pThere
pThere.Caption = "There"
MyPopUpMenu.AddItems pClose
pClose.Caption = "Close"
pClose.OnClick = pClose_OnClick
Font.Name = "Font 20"
Font.Size = 18
Font.Bold = False
Font.Italic = True
Font.Color = 3020
Second.Font = Font
Second.Parent = EveryKind
Second.Top = 201
Second.Left = 200
Second.Width = 202
Second.Height = 203
Second.Caption = "Second caption, 20"
Second.Color = 1008
Second.Hint = "Second tip, 20"
Second.ShowHint = 1
Second.Enabled = 1
Second.Visible = 0
Second.TabOrder = 120
Second.Cursor = -20
Second.BmpHandle = Frm1Btn2_Bmp
Second.Layout = 2
Second.OnClick = Second_OnClick
Second.OnKeyDown = Second_OnKeyDown
Second.OnKeyPress = Second_OnKeyPress
Second.OnKeyUp = Second_OnKeyUp
Second.OnMouseDown = Second_OnMouseDown
Second.OnMouseMove = Second_OnMouseMove
Second.OnMouseUp = Second_OnMouseUp

MenuBar.Parent = EveryKind
MenuBar.AddItems  mnuFile, mnuHelp

mnuFile.Caption = "&File, all"
mnuFile.AddItems mnuNew
mnuNew.Caption = "&New, empty"
mnuNew.OnClick = mnuNew_OnClick
mnuFile.AddItems mnuLast
mnuLast.Caption = "&Last"
mnuLast.OnClick = mnuLast_OnClick

mnuHelp.Caption = "&Help"
mnuHelp.AddItems sep1
sep1.Caption = "-"


TrnspAbrFrm1
MyHtmlViewer.Free

