Dim Font As QFont
Dim ConvForm As QForm
Dim SwapBtn As QButton
Dim CopyBtn As QButton
Dim CloseBtn As QButton
Dim GroupCheck As QCheckBox
Dim FromCombo As Qcombobox
Dim ToCombo As Qcombobox
Dim KindLabel As Qlabel
Dim ValueLabel As Qlabel
Dim ResultLabel As Qlabel
Dim DigitsLabel As Qlabel
Dim KindList As Qlistbox
Dim Digits(3) As QRadiobutton
Dim ValueText As Qedit
Dim ResultText As Qedit

$Resource Default_Icon As "C:\Tarnwick\IconApp.ico"
$Include "C:\Tarnwick\Tarnwick1.lib"
Declare Sub ConvForm_OnShow

Declare Sub KindList_OnClick
Declare Sub ValueText_OnChange
Declare Sub ValueText_OnKeyPress (Key As Byte)
Declare Sub FromCombo_OnChange
Declare Sub ToCombo_OnChange
Declare Sub GroupCheck_OnClick
Declare Sub Digits1_OnClick
Declare Sub Digits2_OnClick
Declare Sub Digits3_OnClick
Declare Sub SwapBtn_OnClick
Declare Sub CopyBtn_OnClick
Declare Sub CloseBtn_OnClick

'---Public Declarations
$TYPECHECK ON

' A value times the factor plus the offset is the value in the unit that
' its quantity is reckoned in: metre, kilogram, kelvin, litre, metre per
' second.
Dim UnitQuantity(40) As Integer
Dim UnitName(40) As String
Dim UnitFactor(40) As Double
Dim UnitOffset(40) As Double
Dim UnitCount As Integer
Dim Decimals As Integer

Sub AddUnit (Quantity As Integer, UnitText As String, Factor As Double, Offset As Double)
  UnitQuantity(UnitCount) = Quantity
  UnitName(UnitCount) = UnitText
  UnitFactor(UnitCount) = Factor
  UnitOffset(UnitCount) = Offset
  UnitCount = UnitCount + 1
End Sub

' The quantities are numbered as they stand in the list, from 0.
Sub AddUnits
  AddUnit(0, "metre", 1, 0)
  AddUnit(0, "kilometre", 1000, 0)
  AddUnit(0, "centimetre", 0.01, 0)
  AddUnit(0, "inch", 0.0254, 0)
  AddUnit(0, "foot", 0.3048, 0)
  AddUnit(0, "mile", 1609.344, 0)
  AddUnit(1, "kilogram", 1, 0)
  AddUnit(1, "gram", 0.001, 0)
  AddUnit(1, "ounce", 0.028349523125, 0)
  AddUnit(1, "pound", 0.45359237, 0)
  AddUnit(1, "tonne", 1000, 0)
  AddUnit(2, "°C", 1, 273.15)
  AddUnit(2, "°F", 5 / 9, 273.15 - 32 * 5 / 9)
  AddUnit(2, "kelvin", 1, 0)
  AddUnit(3, "litre", 1, 0)
  AddUnit(3, "millilitre", 0.001, 0)
  AddUnit(3, "pint (UK)", 0.56826125, 0)
  AddUnit(3, "gallon (UK)", 4.54609, 0)
  AddUnit(3, "gallon (US)", 3.785411784, 0)
  AddUnit(4, "m/s", 1, 0)
  AddUnit(4, "km/h", 1 / 3.6, 0)
  AddUnit(4, "mph", 0.44704, 0)
  AddUnit(4, "knot", 1852 / 3600, 0)
End Sub

' Number of the unit at a place of the two lists, -1 when there is none.
Function UnitAt (Place As Integer) As Integer
  Dim N As Integer
  Dim Seen As Integer
  Dim Found As Integer
  Found = -1
  Seen = 0
  For N = 0 To UnitCount - 1
    If UnitQuantity(N) = KindList.ItemIndex Then
      If Seen = Place Then
        Found = N
      End If
      Seen = Seen + 1
    End If
  Next N
  Result = Found
End Function

Sub ShowResult
  Dim Source As Integer
  Dim Target As Integer
  Dim Amount As Double
  Source = UnitAt(FromCombo.ItemIndex)
  Target = UnitAt(ToCombo.ItemIndex)
  ResultText.Text = ""
  If (Source >= 0) And (Target >= 0) And (ValueText.Text <> "") Then
    Amount = Val(ValueText.Text) * UnitFactor(Source) + UnitOffset(Source)
    Amount = (Amount - UnitOffset(Target)) / UnitFactor(Target)
    If GroupCheck.Checked Then
      ResultText.Text = StrF$(Amount, ffNumber, 18, Decimals)
    Else
      ResultText.Text = StrF$(Amount, ffFixed, 18, Decimals)
    End If
  End If
End Sub

' Fills both lists with the units of the chosen quantity.
Sub FillUnits
  Dim N As Integer
  FromCombo.Clear
  ToCombo.Clear
  For N = 0 To UnitCount - 1
    If UnitQuantity(N) = KindList.ItemIndex Then
      FromCombo.AddItems(UnitName(N))
      ToCombo.AddItems(UnitName(N))
    End If
  Next N
  FromCombo.ItemIndex = 0
  ToCombo.ItemIndex = 1
  ShowResult
End Sub


Sub ConvForm_OnShow
If UnitCount = 0 Then
  AddUnits
End If
FromCombo.Style = csDropDownList
ToCombo.Style = csDropDownList
CloseBtn.Cancel = 1
Decimals = 2
KindList.ItemIndex = 0
FillUnits
ValueText.SetFocus
End Sub

Sub KindList_OnClick
FillUnits
End Sub


Sub ValueText_OnChange
ShowResult
End Sub


Sub ValueText_OnKeyPress (Key As Byte)
Select Case Key
Case 44
  ' A comma is taken for the point.
  Key = 46
Case 8, 45, 46, 48 To 57
  ' Backspace, minus, point and digits go through.
Case Else
  Key = 0
End Select
End Sub


Sub FromCombo_OnChange
ShowResult
End Sub


Sub ToCombo_OnChange
ShowResult
End Sub


Sub GroupCheck_OnClick
ShowResult
End Sub


Sub Digits1_OnClick
Decimals = 2
ShowResult
End Sub


Sub Digits2_OnClick
Decimals = 4
ShowResult
End Sub


Sub Digits3_OnClick
Decimals = 6
ShowResult
End Sub


Sub SwapBtn_OnClick
Dim Place As Integer
Place = FromCombo.ItemIndex
FromCombo.ItemIndex = ToCombo.ItemIndex
ToCombo.ItemIndex = Place
ShowResult
End Sub


Sub CopyBtn_OnClick
If ResultText.Text <> "" Then
  Clipboard.Text = ResultText.Text
End If
End Sub


Sub CloseBtn_OnClick
ConvForm.Close
End Sub



ConvForm.Center
ConvForm.IcoHandle = Default_Icon
ConvForm.Width = 440
ConvForm.Height = 290
ConvForm.BorderStyle = 1
ConvForm.Caption = "Unit Converter"
ConvForm.Color = -2147483633
ConvForm.Cursor = -0
ConvForm.Hint = ""
ConvForm.ShowHint = 1
ConvForm.WindowState = 0
ConvForm.OnShow = ConvForm_OnShow

Font.Name = "MS Sans Serif"
Font.Size = 8
Font.Bold = False
Font.Italic = False
Font.Color = 0
KindLabel.Font = Font
KindLabel.Parent = ConvForm
KindLabel.WordWrap = 0
KindLabel.AutoSize = False
KindLabel.Top = 10
KindLabel.Left = 10
KindLabel.Width = 130
KindLabel.Height = 20
KindLabel.Caption = "Quantity"
KindLabel.Color = -2147483633
KindLabel.Hint = ""
KindLabel.ShowHint = 1
KindLabel.Enabled = 1
KindLabel.Visible = 1
KindLabel.Cursor = -0
KindLabel.Transparent = 0

Font.Name = "MS Sans Serif"
Font.Size = 8
Font.Bold = False
Font.Italic = False
Font.Color = 0
KindList.Font = Font
KindList.Parent = ConvForm
KindList.Top = 30
KindList.Left = 10
KindList.Width = 130
KindList.Height = 170
KindList.BorderStyle = 1
KindList.Color = 16777215
KindList.Hint = "What is measured"
KindList.ShowHint = 1
KindList.Enabled = 1
KindList.Visible = 1
KindList.Cursor = -0
KindList.Columns = 0
KindList.MultiSelect = 0
KindList.TabOrder = 0
KindList.Sorted = 0
KindList.AddItems "Length"
KindList.AddItems "Mass"
KindList.AddItems "Temperature"
KindList.AddItems "Volume"
KindList.AddItems "Speed"
KindList.OnClick = KindList_OnClick

Font.Name = "MS Sans Serif"
Font.Size = 8
Font.Bold = False
Font.Italic = False
Font.Color = 0
ValueLabel.Font = Font
ValueLabel.Parent = ConvForm
ValueLabel.WordWrap = 0
ValueLabel.AutoSize = False
ValueLabel.Top = 10
ValueLabel.Left = 160
ValueLabel.Width = 120
ValueLabel.Height = 20
ValueLabel.Caption = "Value"
ValueLabel.Color = -2147483633
ValueLabel.Hint = ""
ValueLabel.ShowHint = 1
ValueLabel.Enabled = 1
ValueLabel.Visible = 1
ValueLabel.Cursor = -0
ValueLabel.Transparent = 0

Font.Name = "MS Sans Serif"
Font.Size = 8
Font.Bold = False
Font.Italic = False
Font.Color = 0
ValueText.Font = Font
ValueText.Parent = ConvForm
ValueText.Top = 30
ValueText.Left = 160
ValueText.Width = 120
ValueText.Height = 21
ValueText.Text = "1"
ValueText.BorderStyle = 1
ValueText.Color = 16777215
ValueText.Hint = "Number to convert, with a point before the decimals"
ValueText.ShowHint = 1
ValueText.Enabled = 1
ValueText.Visible = 1
ValueText.TabOrder = 1
ValueText.ReadOnly = 0
ValueText.OnChange = ValueText_OnChange
ValueText.OnKeyPress = ValueText_OnKeyPress

Font.Color = 0
FromCombo.Font = Font
FromCombo.Parent = ConvForm
FromCombo.Top = 30
FromCombo.Left = 290
FromCombo.Width = 130
FromCombo.Height = 21
FromCombo.Text = ""
FromCombo.Hint = "Unit of the value"
FromCombo.ShowHint = 1
FromCombo.Enabled = 1
FromCombo.Visible = 1
FromCombo.Cursor = -0
FromCombo.TabOrder = 2
FromCombo.Sorted = 0
FromCombo.Additems "metre"
FromCombo.Additems "kilometre"
FromCombo.Additems "centimetre"
FromCombo.Additems "inch"
FromCombo.Additems "foot"
FromCombo.Additems "mile"
FromCombo.OnChange = FromCombo_OnChange

Font.Name = "MS Sans Serif"
Font.Size = 8
Font.Bold = False
Font.Italic = False
Font.Color = 0
ResultLabel.Font = Font
ResultLabel.Parent = ConvForm
ResultLabel.WordWrap = 0
ResultLabel.AutoSize = False
ResultLabel.Top = 60
ResultLabel.Left = 160
ResultLabel.Width = 120
ResultLabel.Height = 20
ResultLabel.Caption = "Result"
ResultLabel.Color = -2147483633
ResultLabel.Hint = ""
ResultLabel.ShowHint = 1
ResultLabel.Enabled = 1
ResultLabel.Visible = 1
ResultLabel.Cursor = -0
ResultLabel.Transparent = 0

Font.Name = "MS Sans Serif"
Font.Size = 8
Font.Bold = True
Font.Italic = False
Font.Color = 0
ResultText.Font = Font
ResultText.Parent = ConvForm
ResultText.Top = 80
ResultText.Left = 160
ResultText.Width = 120
ResultText.Height = 21
ResultText.Text = ""
ResultText.BorderStyle = 1
ResultText.Color = -2147483633
ResultText.Hint = "The value in the other unit"
ResultText.ShowHint = 1
ResultText.Enabled = 1
ResultText.Visible = 1
ResultText.TabOrder = 3
ResultText.ReadOnly = 1

Font.Color = 0
ToCombo.Font = Font
ToCombo.Parent = ConvForm
ToCombo.Top = 80
ToCombo.Left = 290
ToCombo.Width = 130
ToCombo.Height = 21
ToCombo.Text = ""
ToCombo.Hint = "Unit of the result"
ToCombo.ShowHint = 1
ToCombo.Enabled = 1
ToCombo.Visible = 1
ToCombo.Cursor = -0
ToCombo.TabOrder = 4
ToCombo.Sorted = 0
ToCombo.Additems "metre"
ToCombo.Additems "kilometre"
ToCombo.Additems "centimetre"
ToCombo.Additems "inch"
ToCombo.Additems "foot"
ToCombo.Additems "mile"
ToCombo.OnChange = ToCombo_OnChange

Font.Name = "MS Sans Serif"
Font.Size = 8
Font.Bold = False
Font.Italic = False
Font.Color = 0
GroupCheck.Font = Font
GroupCheck.Parent = ConvForm
GroupCheck.Top = 110
GroupCheck.Left = 160
GroupCheck.Width = 260
GroupCheck.Height = 20
GroupCheck.Caption = "&Thousands separators"
GroupCheck.Hint = "Group the digits of large results"
GroupCheck.ShowHint = 1
GroupCheck.Enabled = 1
GroupCheck.Visible = 1
GroupCheck.Checked = 0
GroupCheck.TabOrder = 5
GroupCheck.OnClick = GroupCheck_OnClick

Font.Name = "MS Sans Serif"
Font.Size = 8
Font.Bold = False
Font.Italic = False
Font.Color = 0
DigitsLabel.Font = Font
DigitsLabel.Parent = ConvForm
DigitsLabel.WordWrap = 0
DigitsLabel.AutoSize = False
DigitsLabel.Top = 140
DigitsLabel.Left = 160
DigitsLabel.Width = 120
DigitsLabel.Height = 20
DigitsLabel.Caption = "Decimals"
DigitsLabel.Color = -2147483633
DigitsLabel.Hint = ""
DigitsLabel.ShowHint = 1
DigitsLabel.Enabled = 1
DigitsLabel.Visible = 1
DigitsLabel.Cursor = -0
DigitsLabel.Transparent = 0

Font.Name = "MS Sans Serif"
Font.Size = 8
Font.Bold = False
Font.Italic = False
Font.Color = 0
Digits(1).Font = Font
Digits(1).Parent = ConvForm
Digits(1).Top = 160
Digits(1).Left = 160
Digits(1).Width = 60
Digits(1).Height = 20
Digits(1).Caption = "2"
Digits(1).Hint = "2 digits behind the point"
Digits(1).ShowHint = 1
Digits(1).Enabled = 1
Digits(1).Visible = 1
Digits(1).Checked = 1
Digits(1).TabOrder = 6
Digits(1).OnClick = Digits1_OnClick

Font.Name = "MS Sans Serif"
Font.Size = 8
Font.Bold = False
Font.Italic = False
Font.Color = 0
Digits(2).Font = Font
Digits(2).Parent = ConvForm
Digits(2).Top = 160
Digits(2).Left = 230
Digits(2).Width = 60
Digits(2).Height = 20
Digits(2).Caption = "4"
Digits(2).Hint = "4 digits behind the point"
Digits(2).ShowHint = 1
Digits(2).Enabled = 1
Digits(2).Visible = 1
Digits(2).Checked = 0
Digits(2).TabOrder = 7
Digits(2).OnClick = Digits2_OnClick

Font.Name = "MS Sans Serif"
Font.Size = 8
Font.Bold = False
Font.Italic = False
Font.Color = 0
Digits(3).Font = Font
Digits(3).Parent = ConvForm
Digits(3).Top = 160
Digits(3).Left = 300
Digits(3).Width = 60
Digits(3).Height = 20
Digits(3).Caption = "6"
Digits(3).Hint = "6 digits behind the point"
Digits(3).ShowHint = 1
Digits(3).Enabled = 1
Digits(3).Visible = 1
Digits(3).Checked = 0
Digits(3).TabOrder = 8
Digits(3).OnClick = Digits3_OnClick

Font.Name = "MS Sans Serif"
Font.Size = 8
Font.Bold = False
Font.Italic = False
Font.Color = 0
SwapBtn.Font = Font
SwapBtn.Parent = ConvForm
SwapBtn.Top = 210
SwapBtn.Left = 160
SwapBtn.Width = 80
SwapBtn.Height = 30
SwapBtn.Caption = "&Swap"
SwapBtn.Color = -2147483633
SwapBtn.Hint = "Exchange the two units"
SwapBtn.ShowHint = 1
SwapBtn.Enabled = 1
SwapBtn.Visible = 1
SwapBtn.TabOrder = 9
SwapBtn.Cursor = -0
SwapBtn.Layout = 2
SwapBtn.OnClick = SwapBtn_OnClick

Font.Name = "MS Sans Serif"
Font.Size = 8
Font.Bold = False
Font.Italic = False
Font.Color = 0
CopyBtn.Font = Font
CopyBtn.Parent = ConvForm
CopyBtn.Top = 210
CopyBtn.Left = 250
CopyBtn.Width = 80
CopyBtn.Height = 30
CopyBtn.Caption = "&Copy"
CopyBtn.Color = -2147483633
CopyBtn.Hint = "Put the result on the clipboard"
CopyBtn.ShowHint = 1
CopyBtn.Enabled = 1
CopyBtn.Visible = 1
CopyBtn.TabOrder = 10
CopyBtn.Cursor = -0
CopyBtn.Layout = 2
CopyBtn.OnClick = CopyBtn_OnClick

Font.Name = "MS Sans Serif"
Font.Size = 8
Font.Bold = False
Font.Italic = False
Font.Color = 0
CloseBtn.Font = Font
CloseBtn.Parent = ConvForm
CloseBtn.Top = 210
CloseBtn.Left = 340
CloseBtn.Width = 80
CloseBtn.Height = 30
CloseBtn.Caption = "Close"
CloseBtn.Color = -2147483633
CloseBtn.Hint = "End the program"
CloseBtn.ShowHint = 1
CloseBtn.Enabled = 1
CloseBtn.Visible = 1
CloseBtn.TabOrder = 11
CloseBtn.Cursor = -0
CloseBtn.Layout = 2
CloseBtn.OnClick = CloseBtn_OnClick


ConvForm.ShowModal

