Dim Font As QFont
Dim Form As QForm
Dim Btn1 As QButton
Dim Btn2 As QButton
Dim Label1 As Qlabel
Dim List1 As Qlistbox
Dim Text1 As Qedit
Dim MenuBar As QMainMenu
Dim mnuNotes1 As QMenuItem
Dim mnuKeep As QMenuItem
Dim mnuClear As QMenuItem
Dim mnuEnd As QMenuItem

$Resource Default_Icon As "C:\Tarnwick\IconApp.ico"
$Include "C:\Tarnwick\Tarnwick1.lib"
Declare Sub Form_OnShow

Declare Sub Btn1_OnClick
Declare Sub Btn2_OnClick
Declare Sub List1_OnDblClick
Declare Sub mnuKeep_OnClick
Declare Sub mnuClear_OnClick
Declare Sub mnuEnd_OnClick

'---Public Declarations
' The list lies in a text file beside the program.
Sub ReadNotes
  If FileExists(TwFolder(Application.ExeName) + "notes.txt") Then
    List1.LoadFromFile(TwFolder(Application.ExeName) + "notes.txt")
  End If
End Sub

Sub KeepNotes
  List1.SaveToFile(TwFolder(Application.ExeName) + "notes.txt")
End Sub


Sub Form_OnShow
ReadNotes
End Sub

Sub Btn1_OnClick
If Text1.Text <> "" Then
  List1.InsertItem(0, Text1.Text)
  Text1.Text = ""
  Text1.SetFocus
End If
End Sub


Sub Btn2_OnClick
KeepNotes
End Sub


Sub List1_OnDblClick
If List1.ItemIndex >= 0 Then
  List1.DelItems(List1.ItemIndex)
End If
End Sub



Sub mnuKeep_OnClick
KeepNotes
End Sub

Sub mnuClear_OnClick
If TwAsk("Remove all notes?", "Notes") = 1 Then
  List1.Clear
End If
End Sub

Sub mnuEnd_OnClick
Form.Close
End Sub

Form.Center
Form.IcoHandle = Default_Icon
Form.Width = 320
Form.Height = 320
Form.BorderStyle = 1
Form.Caption = "Notes"
Form.Color = -2147483633
Form.Cursor = -0
Form.Hint = ""
Form.ShowHint = 1
Form.WindowState = 0
Form.OnShow = Form_OnShow

Font.Name = "MS Sans Serif"
Font.Size = 8
Font.Bold = False
Font.Italic = False
Font.Color = 0
Text1.Font = Font
Text1.Parent = Form
Text1.Top = 10
Text1.Left = 10
Text1.Width = 200
Text1.Height = 21
Text1.Text = ""
Text1.BorderStyle = 1
Text1.Color = 16777215
Text1.Hint = "A short note"
Text1.ShowHint = 1
Text1.Enabled = 1
Text1.Visible = 1
Text1.TabOrder = 0
Text1.ReadOnly = 0

Font.Name = "MS Sans Serif"
Font.Size = 8
Font.Bold = False
Font.Italic = False
Font.Color = 0
Label1.Font = Font
Label1.Parent = Form
Label1.WordWrap = 0
Label1.AutoSize = False
Label1.Top = 40
Label1.Left = 10
Label1.Width = 200
Label1.Height = 20
Label1.Caption = "Notes, the latest first"
Label1.Color = -2147483633
Label1.Hint = ""
Label1.ShowHint = 1
Label1.Enabled = 1
Label1.Visible = 1
Label1.Cursor = -0
Label1.Transparent = 0

Font.Name = "MS Sans Serif"
Font.Size = 8
Font.Bold = False
Font.Italic = False
Font.Color = 0
Btn1.Font = Font
Btn1.Parent = Form
Btn1.Top = 10
Btn1.Left = 220
Btn1.Width = 80
Btn1.Height = 30
Btn1.Caption = "&Add"
Btn1.Color = -2147483633
Btn1.Hint = "Put the note into the list"
Btn1.ShowHint = 1
Btn1.Enabled = 1
Btn1.Visible = 1
Btn1.TabOrder = 1
Btn1.Cursor = -0
Btn1.Layout = 2
Btn1.OnClick = Btn1_OnClick

Font.Name = "MS Sans Serif"
Font.Size = 8
Font.Bold = False
Font.Italic = False
Font.Color = 0
Btn2.Font = Font
Btn2.Parent = Form
Btn2.Top = 220
Btn2.Left = 220
Btn2.Width = 80
Btn2.Height = 30
Btn2.Caption = "&Keep"
Btn2.Color = -2147483633
Btn2.Hint = "Write the list to notes.txt"
Btn2.ShowHint = 1
Btn2.Enabled = 1
Btn2.Visible = 1
Btn2.TabOrder = 2
Btn2.Cursor = -0
Btn2.Layout = 2
Btn2.OnClick = Btn2_OnClick

Font.Name = "MS Sans Serif"
Font.Size = 8
Font.Bold = False
Font.Italic = False
Font.Color = 0
List1.Font = Font
List1.Parent = Form
List1.Top = 60
List1.Left = 10
List1.Width = 200
List1.Height = 190
List1.BorderStyle = 1
List1.Color = 16777215
List1.Hint = "A double click removes a note"
List1.ShowHint = 1
List1.Enabled = 1
List1.Visible = 1
List1.Cursor = -0
List1.Columns = 0
List1.MultiSelect = 0
List1.TabOrder = 3
List1.Sorted = 0
List1.OnDblClick = List1_OnDblClick

MenuBar.Parent = Form
MenuBar.AddItems  mnuNotes1

mnuNotes1.Caption = "&Notes"
mnuNotes1.AddItems mnuKeep
mnuKeep.Caption = "&Keep"
mnuKeep.OnClick = mnuKeep_OnClick
mnuNotes1.AddItems mnuClear
mnuClear.Caption = "&Clear"
mnuClear.OnClick = mnuClear_OnClick
mnuNotes1.AddItems mnuEnd
mnuEnd.Caption = "E&nd"
mnuEnd.OnClick = mnuEnd_OnClick


Form.ShowModal

