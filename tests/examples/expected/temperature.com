Dim Font As QFont
Dim frmTemperature As QForm
Dim btnClose As QButton
Dim chkKelvin As QCheckBox
Dim lblFahrenheit As Qlabel
Dim lblResult As Qlabel
Dim txtFahrenheit As Qedit

$Resource Default_Icon As "C:\Tarnwick\IconApp.ico"
$Include "C:\Tarnwick\Tarnwick1.lib"
Declare Sub frmTemperature_OnShow

Declare Sub txtFahrenheit_OnChange
Declare Sub chkKelvin_OnClick
Declare Sub btnClose_OnClick

'---Public Declarations
Declare Sub ShowCelsius

Sub ShowCelsius
  Dim Celsius As Double
  Celsius = (Val(txtFahrenheit.Text) - 32) * 5 / 9
  lblResult.Caption = "is " + Str$(Celsius) + " degrees Celsius"
  If chkKelvin.Checked Then
    lblResult.Caption = lblResult.Caption + ", " + Str$(Celsius + 273.15) + " Kelvin"
  End If
End Sub


Sub frmTemperature_OnShow
ShowCelsius
End Sub

Sub txtFahrenheit_OnChange
ShowCelsius
End Sub


Sub chkKelvin_OnClick
ShowCelsius
End Sub


Sub btnClose_OnClick
frmTemperature.Close
End Sub



frmTemperature.Center
frmTemperature.IcoHandle = Default_Icon
frmTemperature.Width = 300
frmTemperature.Height = 210
frmTemperature.BorderStyle = 2
frmTemperature.Caption = "Temperature"
frmTemperature.Color = 12632256
frmTemperature.Cursor = -0
frmTemperature.Hint = ""
frmTemperature.ShowHint = 1
frmTemperature.WindowState = 0
frmTemperature.OnShow = frmTemperature_OnShow

Font.Name = "MS Sans Serif"
Font.Size = 8
Font.Bold = False
Font.Italic = False
Font.Color = 0
lblFahrenheit.Font = Font
lblFahrenheit.Parent = frmTemperature
lblFahrenheit.WordWrap = 0
lblFahrenheit.AutoSize = False
lblFahrenheit.Top = 20
lblFahrenheit.Left = 15
lblFahrenheit.Width = 110
lblFahrenheit.Height = 17
lblFahrenheit.Caption = "Degrees Fahrenheit"
lblFahrenheit.Color = 12632256
lblFahrenheit.Hint = ""
lblFahrenheit.ShowHint = 1
lblFahrenheit.Enabled = 1
lblFahrenheit.Visible = 1
lblFahrenheit.Cursor = -0
lblFahrenheit.Transparent = 0

Font.Name = "MS Sans Serif"
Font.Size = 8
Font.Bold = False
Font.Italic = False
Font.Color = 0
lblResult.Font = Font
lblResult.Parent = frmTemperature
lblResult.WordWrap = 0
lblResult.AutoSize = False
lblResult.Top = 110
lblResult.Left = 15
lblResult.Width = 260
lblResult.Height = 17
lblResult.Caption = ""
lblResult.Color = 12632256
lblResult.Hint = ""
lblResult.ShowHint = 1
lblResult.Enabled = 1
lblResult.Visible = 1
lblResult.Cursor = -0
lblResult.Transparent = 0

Font.Name = "MS Sans Serif"
Font.Size = 8
Font.Bold = False
Font.Italic = False
Font.Color = 0
txtFahrenheit.Font = Font
txtFahrenheit.Parent = frmTemperature
txtFahrenheit.Top = 17
txtFahrenheit.Left = 140
txtFahrenheit.Width = 121
txtFahrenheit.Height = 21
txtFahrenheit.Text = "68"
txtFahrenheit.BorderStyle = 1
txtFahrenheit.Color = 16777215
txtFahrenheit.Hint = "Type a temperature, such as 68"
txtFahrenheit.ShowHint = 1
txtFahrenheit.Enabled = 1
txtFahrenheit.Visible = 1
txtFahrenheit.TabOrder = 1
txtFahrenheit.ReadOnly = 0
txtFahrenheit.OnChange = txtFahrenheit_OnChange

Font.Name = "MS Sans Serif"
Font.Size = 8
Font.Bold = False
Font.Italic = False
Font.Color = 0
chkKelvin.Font = Font
chkKelvin.Parent = frmTemperature
chkKelvin.Top = 48
chkKelvin.Left = 140
chkKelvin.Width = 121
chkKelvin.Height = 17
chkKelvin.Caption = "Kelvin too"
chkKelvin.Hint = ""
chkKelvin.ShowHint = 1
chkKelvin.Enabled = 1
chkKelvin.Visible = 1
chkKelvin.Checked = 0
chkKelvin.TabOrder = 2
chkKelvin.OnClick = chkKelvin_OnClick

Font.Name = "MS Sans Serif"
Font.Size = 8
Font.Bold = False
Font.Italic = False
Font.Color = 0
btnClose.Font = Font
btnClose.Parent = frmTemperature
btnClose.Top = 75
btnClose.Left = 186
btnClose.Width = 75
btnClose.Height = 25
btnClose.Caption = "&Close"
btnClose.Color = 16777215
btnClose.Hint = ""
btnClose.ShowHint = 1
btnClose.Enabled = 1
btnClose.Visible = 1
btnClose.TabOrder = 3
btnClose.Cursor = -0
btnClose.Layout = 2
btnClose.OnClick = btnClose_OnClick


frmTemperature.ShowModal

