Dim Font As QFont
Dim ClockForm As QForm
Dim ClockMenu As QPopupmenu
Dim popSettings As QMenuItem
Dim popHands As QMenuItem
Dim popBlack As QMenuItem
Dim popBlue As QMenuItem
Dim popRed As QMenuItem
Dim popShow As QMenuItem
Dim popSeconds As QMenuItem
Dim popDate As QMenuItem
Dim popLine As QMenuItem
Dim popClose As QMenuItem
Dim SettingsBtn As QButton
Dim CloseBtn As QButton
Dim ClockFace As QImage
Dim TimeLabel As Qlabel
Dim DateLabel As Qlabel
Dim ClockTime As Qtimer

$Resource Form1_Icon As "C:\Examples\clock\clock.ico"
$Resource Frm1Btn1_Bmp As "C:\Examples\clock\settings.bmp"
$Resource Frm1Btn2_Bmp As "C:\Examples\clock\close.bmp"
$Resource Frm1Image1_Bmp As "C:\Examples\clock\face.bmp"
Dim SettingsForm As QForm
Dim OkBtn As QButton
Dim CancelBtn As QButton
Dim SecondsCheck As QCheckBox
Dim DateCheck As QCheckBox
Dim ChimeCheck As QCheckBox
Dim ClockIcon As QImage
Dim ShowLabel As Qlabel
Dim Hours24Opt As QRadiobutton
Dim Hours12Opt As QRadiobutton

$Resource Default_Icon As "C:\Tarnwick\IconApp.ico"
$Resource Frm2Btn1_Bmp As "C:\Examples\clock\ok.bmp"
$Resource Frm2Btn2_Bmp As "C:\Examples\clock\close.bmp"
$Resource Frm2Image1_Bmp As "C:\Examples\clock\clock.ico"
$Include "C:\Tarnwick\Tarnwick1.lib"
Declare Sub ClockForm_OnShow

Declare Sub SettingsBtn_OnClick
Declare Sub CloseBtn_OnClick
Declare Sub ClockTime_OnTimer
Declare Sub ClockMenu_OnPopUp
Declare Sub popSettings_OnClick
Declare Sub popBlack_OnClick
Declare Sub popBlue_OnClick
Declare Sub popRed_OnClick
Declare Sub popSeconds_OnClick
Declare Sub popDate_OnClick
Declare Sub popClose_OnClick

'---Public Declarations
$TYPECHECK ON

Dim ShowSeconds As Integer
Dim ShowDate As Integer
Dim ShowHours24 As Integer
Dim Chime As Integer
Dim HandColor As Integer
Dim LastTime As String  ' time that the clock shows

' A hand from the middle of the face; Turn is its part of a whole round.
Sub DrawHand (Turn As Double, Reach As Integer, Thick As Integer, Shade As Integer)
  Dim X As Integer
  Dim Y As Integer
  Dim N As Integer
  X = Round(60 + Reach * Sin(Turn * 6.28318530718))
  Y = Round(60 - Reach * Cos(Turn * 6.28318530718))
  For N = 0 - Thick To Thick
    ClockFace.Line(60 + N, 60, X, Y, Shade)
    ClockFace.Line(60, 60 + N, X, Y, Shade)
  Next N
End Sub

Sub ShowTime
  Dim Moment As String
  Dim Ending As String
  Dim HourNo As Integer
  Dim MinuteNo As Integer
  Dim SecondNo As Integer
  Moment = Time$
  HourNo = Val(Left$(Moment, 2))
  MinuteNo = Val(Mid$(Moment, 4, 2))
  SecondNo = Val(Mid$(Moment, 7, 2))

  ' The picture is taken afresh: it wipes the hands off.
  ClockFace.BmpHandle = Frm1Image1_Bmp
  DrawHand((HourNo + MinuteNo / 60) / 12, 28, 2, HandColor)
  DrawHand(MinuteNo / 60, 42, 1, HandColor)
  If ShowSeconds = 1 Then
    DrawHand(SecondNo / 60, 44, 0, clRed)
  End If

  If (Chime = 1) And (MinuteNo = 0) And (SecondNo = 0) Then
    Sound 880, 200
  End If

  Ending = ""
  If ShowHours24 = 0 Then
    Ending = " am"
    If HourNo >= 12 Then
      Ending = " pm"
    End If
    HourNo = HourNo Mod 12
    If HourNo = 0 Then
      HourNo = 12
    End If
  End If
  If ShowSeconds = 1 Then
    TimeLabel.Caption = Str$(HourNo) + Mid$(Moment, 3, 6) + Ending
  Else
    TimeLabel.Caption = Str$(HourNo) + Mid$(Moment, 3, 3) + Ending
  End If
  DateLabel.Caption = Date$
  DateLabel.Visible = ShowDate
End Sub

' The settings lie in a file beside the program.
Function ReadNumber (SettingName As String, Otherwise As Integer) As Integer
  Result = Val(TwReadSetting(TwFolder(Application.ExeName) + "clock.ini", "Clock", SettingName, Str$(Otherwise)))
End Function

Sub WriteNumber (SettingName As String, Number As Integer)
  TwWriteSetting(TwFolder(Application.ExeName) + "clock.ini", "Clock", SettingName, Str$(Number))
End Sub

Sub ReadSettings
  ShowSeconds = ReadNumber("Seconds", 1)
  ShowDate = ReadNumber("Date", 1)
  ShowHours24 = ReadNumber("Hours24", 1)
  Chime = ReadNumber("Chime", 0)
  HandColor = ReadNumber("Hands", clBlack)
End Sub

' Writes the settings down and shows them at once.
Sub KeepSettings
  WriteNumber("Seconds", ShowSeconds)
  WriteNumber("Date", ShowDate)
  WriteNumber("Hours24", ShowHours24)
  WriteNumber("Chime", Chime)
  WriteNumber("Hands", HandColor)
  ShowTime
End Sub

Sub SetHands (Shade As Integer)
  HandColor = Shade
  KeepSettings
End Sub


Declare Sub SettingsForm_OnShow


'---Public Declarations
' The state of a check or option button as 1 or 0.
Function FlagOf (State As Integer) As Integer
  Result = 0
  If State <> 0 Then
    Result = 1
  End If
End Function


Sub ClockForm_OnShow
TimeLabel.Alignment = taCenter
DateLabel.Alignment = taCenter
ReadSettings
ShowTime
End Sub

Sub SettingsBtn_OnClick
SettingsForm.ShowModal
End Sub


Sub CloseBtn_OnClick
ClockForm.Close
End Sub


Sub ClockTime_OnTimer
If Time$ <> LastTime Then
  LastTime = Time$
  ShowTime
End If
End Sub



Sub ClockMenu_OnPopUp
popBlack.Checked = (HandColor = clBlack)
popBlue.Checked = (HandColor = clBlue)
popRed.Checked = (HandColor = clRed)
popSeconds.Checked = ShowSeconds
popDate.Checked = ShowDate
End Sub
Sub popSettings_OnClick
SettingsForm.ShowModal
End Sub
Sub popBlack_OnClick
SetHands(clBlack)
End Sub
Sub popBlue_OnClick
SetHands(clBlue)
End Sub
Sub popRed_OnClick
SetHands(clRed)
End Sub
Sub popSeconds_OnClick
ShowSeconds = 1 - ShowSeconds
KeepSettings
End Sub
Sub popDate_OnClick
ShowDate = 1 - ShowDate
KeepSettings
End Sub
Sub popClose_OnClick
ClockForm.Close
End Sub
ClockForm.Center
ClockForm.IcoHandle = Form1_Icon
ClockForm.Width = 220
ClockForm.Height = 320
ClockForm.BorderStyle = 1
ClockForm.Caption = "Clock"
ClockForm.Color = 15790320
ClockForm.Cursor = -0
ClockForm.Hint = ""
ClockForm.ShowHint = 1
ClockForm.WindowState = 0
ClockForm.OnShow = ClockForm_OnShow

ClockFace.Font = Font
ClockFace.Parent = ClockForm
ClockFace.Top = 10
ClockFace.Left = 40
ClockFace.Width = 120
ClockFace.Height = 120
ClockFace.Stretch = False
ClockFace.Hint = "A right click opens the menu"
ClockFace.ShowHint = 1
ClockFace.Enabled = 1
ClockFace.Visible = 1
ClockFace.Cursor = -0
ClockFace.BmpHandle = Frm1Image1_Bmp

Font.Name = "Arial"
Font.Size = 16
Font.Bold = True
Font.Italic = False
Font.Color = 0
TimeLabel.Font = Font
TimeLabel.Parent = ClockForm
TimeLabel.WordWrap = 0
TimeLabel.AutoSize = False
TimeLabel.Top = 140
TimeLabel.Left = 10
TimeLabel.Width = 190
TimeLabel.Height = 30
TimeLabel.Caption = "00:00:00"
TimeLabel.Color = 15790320
TimeLabel.Hint = "Time of day"
TimeLabel.ShowHint = 1
TimeLabel.Enabled = 1
TimeLabel.Visible = 1
TimeLabel.Cursor = -0
TimeLabel.Transparent = 0

Font.Name = "MS Sans Serif"
Font.Size = 8
Font.Bold = False
Font.Italic = False
Font.Color = 0
DateLabel.Font = Font
DateLabel.Parent = ClockForm
DateLabel.WordWrap = 0
DateLabel.AutoSize = False
DateLabel.Top = 180
DateLabel.Left = 10
DateLabel.Width = 190
DateLabel.Height = 20
DateLabel.Caption = "01-01-2000"
DateLabel.Color = 15790320
DateLabel.Hint = "Month, day and year"
DateLabel.ShowHint = 1
DateLabel.Enabled = 1
DateLabel.Visible = 1
DateLabel.Cursor = -0
DateLabel.Transparent = 0

Font.Name = "MS Sans Serif"
Font.Size = 8
Font.Bold = False
Font.Italic = False
Font.Color = 0
SettingsBtn.Font = Font
SettingsBtn.Parent = ClockForm
SettingsBtn.Top = 220
SettingsBtn.Left = 10
SettingsBtn.Width = 90
SettingsBtn.Height = 50
SettingsBtn.Caption = "&Settings"
SettingsBtn.Color = 15790320
SettingsBtn.Hint = "What the clock shows"
SettingsBtn.ShowHint = 1
SettingsBtn.Enabled = 1
SettingsBtn.Visible = 1
SettingsBtn.TabOrder = 0
SettingsBtn.Cursor = -0
SettingsBtn.BmpHandle = Frm1Btn1_Bmp
SettingsBtn.Layout = 2
SettingsBtn.OnClick = SettingsBtn_OnClick

Font.Name = "MS Sans Serif"
Font.Size = 8
Font.Bold = False
Font.Italic = False
Font.Color = 0
CloseBtn.Font = Font
CloseBtn.Parent = ClockForm
CloseBtn.Top = 220
CloseBtn.Left = 110
CloseBtn.Width = 90
CloseBtn.Height = 50
CloseBtn.Caption = "Close"
CloseBtn.Color = 15790320
CloseBtn.Hint = "End the program"
CloseBtn.ShowHint = 1
CloseBtn.Enabled = 1
CloseBtn.Visible = 1
CloseBtn.TabOrder = 1
CloseBtn.Cursor = -0
CloseBtn.BmpHandle = Frm1Btn2_Bmp
CloseBtn.Layout = 2
CloseBtn.OnClick = CloseBtn_OnClick

ClockTime.Enabled = 1
ClockTime.Interval = 200
ClockTime.OnTimer = ClockTime_OnTimer

ClockFace.PopUpMenu = ClockMenu
ClockMenu.Alignment = 0
ClockMenu.AutoPopUp = 1
ClockMenu.OnPopUp = ClockMenu_OnPopUp
ClockMenu.AddItems popSettings
popSettings.Caption = "&Settings..."
popSettings.OnClick = popSettings_OnClick
ClockMenu.AddItems popHands
popHands.Caption = "&Hands"
popHands.AddItems popBlack
popBlack.Caption = "&Black"
popBlack.OnClick = popBlack_OnClick
popHands.AddItems popBlue
popBlue.Caption = "Bl&ue"
popBlue.OnClick = popBlue_OnClick
popHands.AddItems popRed
popRed.Caption = "&Red"
popRed.OnClick = popRed_OnClick
ClockMenu.AddItems popShow
popShow.Caption = "S&how"
popShow.AddItems popSeconds
popSeconds.Caption = "S&econds"
popSeconds.OnClick = popSeconds_OnClick
popShow.AddItems popDate
popDate.Caption = "&Date"
popDate.OnClick = popDate_OnClick
ClockMenu.AddItems popLine
popLine.Caption = "-"
ClockMenu.AddItems popClose
popClose.Caption = "&Close"
popClose.OnClick = popClose_OnClick
Sub SettingsForm_OnShow
OkBtn.Default = 1
CancelBtn.Cancel = 1
SecondsCheck.Checked = ShowSeconds
DateCheck.Checked = ShowDate
ChimeCheck.Checked = Chime
Hours24Opt.Checked = ShowHours24
Hours12Opt.Checked = 1 - ShowHours24
End Sub

Sub OkBtn_OnClick
ShowSeconds = FlagOf(SecondsCheck.Checked)
ShowDate = FlagOf(DateCheck.Checked)
ShowHours24 = FlagOf(Hours24Opt.Checked)
Chime = FlagOf(ChimeCheck.Checked)
SettingsForm.Close
KeepSettings
End Sub


Sub CancelBtn_OnClick
SettingsForm.Close
End Sub



SettingsForm.Center
SettingsForm.IcoHandle = Default_Icon
SettingsForm.Width = 300
SettingsForm.Height = 240
SettingsForm.BorderStyle = 3
SettingsForm.Caption = "Clock Settings"
SettingsForm.Color = 15790320
SettingsForm.Cursor = -0
SettingsForm.Hint = ""
SettingsForm.ShowHint = 1
SettingsForm.WindowState = 0
SettingsForm.OnShow = SettingsForm_OnShow

ClockIcon.Font = Font
ClockIcon.Parent = SettingsForm
ClockIcon.Top = 20
ClockIcon.Left = 20
ClockIcon.Width = 32
ClockIcon.Height = 32
ClockIcon.Stretch = False
ClockIcon.Hint = ""
ClockIcon.ShowHint = 1
ClockIcon.Enabled = 1
ClockIcon.Visible = 1
ClockIcon.Cursor = -0
ClockIcon.IcoHandle = Frm2Image1_Bmp

Font.Name = "MS Sans Serif"
Font.Size = 8
Font.Bold = True
Font.Italic = False
Font.Color = 0
ShowLabel.Font = Font
ShowLabel.Parent = SettingsForm
ShowLabel.WordWrap = 0
ShowLabel.AutoSize = False
ShowLabel.Top = 10
ShowLabel.Left = 80
ShowLabel.Width = 190
ShowLabel.Height = 20
ShowLabel.Caption = "The clock shows"
ShowLabel.Color = 15790320
ShowLabel.Hint = ""
ShowLabel.ShowHint = 1
ShowLabel.Enabled = 1
ShowLabel.Visible = 1
ShowLabel.Cursor = -0
ShowLabel.Transparent = 0

Font.Name = "MS Sans Serif"
Font.Size = 8
Font.Bold = False
Font.Italic = False
Font.Color = 0
SecondsCheck.Font = Font
SecondsCheck.Parent = SettingsForm
SecondsCheck.Top = 30
SecondsCheck.Left = 80
SecondsCheck.Width = 190
SecondsCheck.Height = 20
SecondsCheck.Caption = "&Seconds"
SecondsCheck.Hint = "The third hand, and seconds in the time below"
SecondsCheck.ShowHint = 1
SecondsCheck.Enabled = 1
SecondsCheck.Visible = 1
SecondsCheck.Checked = 1
SecondsCheck.TabOrder = 0

Font.Name = "MS Sans Serif"
Font.Size = 8
Font.Bold = False
Font.Italic = False
Font.Color = 0
DateCheck.Font = Font
DateCheck.Parent = SettingsForm
DateCheck.Top = 50
DateCheck.Left = 80
DateCheck.Width = 190
DateCheck.Height = 20
DateCheck.Caption = "&Date"
DateCheck.Hint = "The date below the time"
DateCheck.ShowHint = 1
DateCheck.Enabled = 1
DateCheck.Visible = 1
DateCheck.Checked = 1
DateCheck.TabOrder = 1

Font.Name = "MS Sans Serif"
Font.Size = 8
Font.Bold = False
Font.Italic = False
Font.Color = 0
Hours24Opt.Font = Font
Hours24Opt.Parent = SettingsForm
Hours24Opt.Top = 80
Hours24Opt.Left = 80
Hours24Opt.Width = 90
Hours24Opt.Height = 20
Hours24Opt.Caption = "&24 hours"
Hours24Opt.Hint = "Hours from 0 to 23"
Hours24Opt.ShowHint = 1
Hours24Opt.Enabled = 1
Hours24Opt.Visible = 1
Hours24Opt.Checked = 1
Hours24Opt.TabOrder = 2

Font.Name = "MS Sans Serif"
Font.Size = 8
Font.Bold = False
Font.Italic = False
Font.Color = 0
Hours12Opt.Font = Font
Hours12Opt.Parent = SettingsForm
Hours12Opt.Top = 80
Hours12Opt.Left = 180
Hours12Opt.Width = 90
Hours12Opt.Height = 20
Hours12Opt.Caption = "&12 hours"
Hours12Opt.Hint = "Hours from 1 to 12, am and pm"
Hours12Opt.ShowHint = 1
Hours12Opt.Enabled = 1
Hours12Opt.Visible = 1
Hours12Opt.Checked = 0
Hours12Opt.TabOrder = 3

Font.Name = "MS Sans Serif"
Font.Size = 8
Font.Bold = False
Font.Italic = False
Font.Color = 0
ChimeCheck.Font = Font
ChimeCheck.Parent = SettingsForm
ChimeCheck.Top = 110
ChimeCheck.Left = 80
ChimeCheck.Width = 190
ChimeCheck.Height = 20
ChimeCheck.Caption = "&Chime at the full hour"
ChimeCheck.Hint = "A short tone each hour"
ChimeCheck.ShowHint = 1
ChimeCheck.Enabled = 1
ChimeCheck.Visible = 1
ChimeCheck.Checked = 0
ChimeCheck.TabOrder = 4

Font.Name = "MS Sans Serif"
Font.Size = 8
Font.Bold = False
Font.Italic = False
Font.Color = 0
OkBtn.Font = Font
OkBtn.Parent = SettingsForm
OkBtn.Top = 140
OkBtn.Left = 90
OkBtn.Width = 90
OkBtn.Height = 50
OkBtn.Caption = "OK"
OkBtn.Color = 15790320
OkBtn.Hint = "Take the settings over"
OkBtn.ShowHint = 1
OkBtn.Enabled = 1
OkBtn.Visible = 1
OkBtn.TabOrder = 5
OkBtn.Cursor = -0
OkBtn.BmpHandle = Frm2Btn1_Bmp
OkBtn.Layout = 2
OkBtn.OnClick = OkBtn_OnClick

Font.Name = "MS Sans Serif"
Font.Size = 8
Font.Bold = False
Font.Italic = False
Font.Color = 0
CancelBtn.Font = Font
CancelBtn.Parent = SettingsForm
CancelBtn.Top = 140
CancelBtn.Left = 190
CancelBtn.Width = 90
CancelBtn.Height = 50
CancelBtn.Caption = "Cancel"
CancelBtn.Color = 15790320
CancelBtn.Hint = "Leave everything as it was"
CancelBtn.ShowHint = 1
CancelBtn.Enabled = 1
CancelBtn.Visible = 1
CancelBtn.TabOrder = 6
CancelBtn.Cursor = -0
CancelBtn.BmpHandle = Frm2Btn2_Bmp
CancelBtn.Layout = 2
CancelBtn.OnClick = CancelBtn_OnClick


ClockForm.ShowModal

