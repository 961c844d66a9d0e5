Dim Font As QFont
Dim NoteForm As QForm
Dim StatusLabel As Qlabel
Dim NoteText As Qrichedit
Dim MenuBar As QMainMenu
Dim mnuFile As QMenuItem
Dim mnuEdit As QMenuItem
Dim mnuSearch As QMenuItem
Dim mnuFormat As QMenuItem
Dim mnuHelp As QMenuItem
Dim mnuNew As QMenuItem
Dim mnuOpen As QMenuItem
Dim mnuSave As QMenuItem
Dim mnuSaveAs As QMenuItem
Dim sepExit As QMenuItem
Dim mnuExit As QMenuItem
Dim mnuUndo As QMenuItem
Dim sepUndo As QMenuItem
Dim mnuCut As QMenuItem
Dim mnuCopy As QMenuItem
Dim mnuPaste As QMenuItem
Dim sepAll As QMenuItem
Dim mnuAll As QMenuItem
Dim mnuDate As QMenuItem
Dim mnuFind As QMenuItem
Dim mnuFindNext As QMenuItem
Dim mnuWrap As QMenuItem
Dim sepSize As QMenuItem
Dim mnuSize As QMenuItem
Dim mnuSmall As QMenuItem
Dim mnuMedium As QMenuItem
Dim mnuLarge As QMenuItem
Dim mnuAbout As QMenuItem
Dim NoteOpenDlg As Qopendialog
Dim NoteSaveDlg As Qsavedialog
Dim NoteFile As QFileStream

$Resource Default_Icon As "C:\Tarnwick\IconApp.ico"
Dim FindForm As QForm
Dim FindNextBtn As QButton
Dim FindCloseBtn As QButton
Dim CaseCheck As QCheckBox
Dim FindLabel As Qlabel
Dim FindText As Qedit

Dim AboutForm As QForm
Dim AboutBtn As QButton
Dim AboutTitle As Qlabel
Dim AboutLine1 As Qlabel
Dim AboutLine2 As Qlabel

$Include "C:\Tarnwick\Tarnwick1.lib"
Declare Sub NoteForm_OnResize
Declare Sub NoteForm_OnShow

Declare Sub NoteText_OnChange
Declare Sub mnuNew_OnClick
Declare Sub mnuOpen_OnClick
Declare Sub mnuSave_OnClick
Declare Sub mnuSaveAs_OnClick
Declare Sub mnuExit_OnClick
Declare Sub mnuUndo_OnClick
Declare Sub mnuCut_OnClick
Declare Sub mnuCopy_OnClick
Declare Sub mnuPaste_OnClick
Declare Sub mnuAll_OnClick
Declare Sub mnuDate_OnClick
Declare Sub mnuFind_OnClick
Declare Sub mnuFindNext_OnClick
Declare Sub mnuWrap_OnClick
Declare Sub mnuSmall_OnClick
Declare Sub mnuMedium_OnClick
Declare Sub mnuLarge_OnClick
Declare Sub mnuAbout_OnClick

'---Public Declarations
$TYPECHECK ON

Dim NoteFont As QFont
Dim NotePath As String      ' file of the note, empty for a new one
Dim NoteChanged As Integer  ' 1 when the text differs from the file

' Name of the note in the title bar, its length in the last line.
Sub ShowState
  Dim NoteTitle As String
  NoteTitle = "Untitled"
  If NotePath <> "" Then
    NoteTitle = TwFileName(NotePath)
  End If
  If NoteChanged = 1 Then
    NoteTitle = NoteTitle + " *"
  End If
  NoteForm.Caption = NoteTitle + " - Notepad"
  StatusLabel.Caption = Str$(Len(NoteText.Text)) + " characters"
End Sub

' Size of the whole text; the caller sets the mark in the menu.
Sub SetTextSize (TextSize As Integer)
  NoteFont.Name = "Courier New"
  NoteFont.Size = TextSize
  NoteText.Font = NoteFont
  mnuSmall.Checked = 0
  mnuMedium.Checked = 0
  mnuLarge.Checked = 0
End Sub

Sub OpenNote (FilePath As String)
  If FileExists(FilePath) Then
    NoteFile.Open(FilePath, fmOpenRead)
    NoteText.Text = NoteFile.ReadStr(NoteFile.Size)
    NoteFile.Close
    NotePath = FilePath
    NoteChanged = 0
    ShowState
  Else
    TwWarn("There is no file " + FilePath, "Notepad")
  End If
End Sub

' Writes the note; AskName 1 asks for a name first, as a new note always
' does. The result is 1 when the note was written.
Function SaveNote (AskName As Integer) As Integer
  Dim FilePath As String
  Dim GoOn As Integer
  FilePath = NotePath
  GoOn = 1
  If (NotePath = "") Or (AskName = 1) Then
    NoteSaveDlg.FileName = NotePath
    If NoteSaveDlg.Execute Then
      FilePath = NoteSaveDlg.FileName
      If TwExtension(FilePath) = "" Then
        FilePath = FilePath + ".txt"
      End If
      If (FilePath <> NotePath) And FileExists(FilePath) Then
        GoOn = TwAsk(TwFileName(FilePath) + " is there already. Replace it?", "Notepad")
      End If
    Else
      GoOn = 0
    End If
  End If
  If GoOn = 1 Then
    NoteFile.Open(FilePath, fmCreate)
    NoteFile.WriteStr(NoteText.Text, Len(NoteText.Text))
    NoteFile.Close
    NotePath = FilePath
    NoteChanged = 0
    ShowState
  End If
  Result = GoOn
End Function

' Offers to save changes. The result is 1 when the text may go.
Function MayLeave (Question As String) As Integer
  Dim Answer As Integer
  Dim Leave As Integer
  Leave = 1
  If NoteChanged = 1 Then
    Answer = MessageBox(Question, "Notepad", MB_YESNOCANCEL Or MB_ICONQUESTION)
    If Answer = IDYES Then
      Leave = SaveNote(0)
    End If
    If Answer = IDCANCEL Then
      Leave = 0
    End If
  End If
  Result = Leave
End Function

' Marks the next place of the wanted text, from the top again behind the last.
Sub FindNext
  Dim Wanted As String
  Dim Whole As String
  Dim Place As Integer
  Wanted = FindText.Text
  Whole = NoteText.Text
  If CaseCheck.Checked = 0 Then
    Wanted = LCase$(Wanted)
    Whole = LCase$(Whole)
  End If
  Place = 0
  If Wanted <> "" Then
    Place = InStr(NoteText.SelStart + NoteText.SelLength + 1, Whole, Wanted)
    If Place = 0 Then
      Place = InStr(Whole, Wanted)
    End If
  End If
  If Place = 0 Then
    TwInform("The text was not found.", "Notepad")
  Else
    NoteText.SelStart = Place - 1
    NoteText.SelLength = Len(Wanted)
    NoteForm.SetFocus
  End If
End Sub

' The closing of the window is tied by hand: the Declare line that the
' generator writes for a form's OnClose leaves the argument out.
Sub NoteClosing (Action As Integer)
  If MayLeave("Save the changes before Notepad is closed?") = 0 Then
    Action = caNone
  End If
End Sub
NoteForm.OnClose = NoteClosing


Declare Sub FindForm_OnShow

Declare Sub FindNextBtn_OnClick
Declare Sub FindCloseBtn_OnClick

'---Public Declarations
' The window stays above the note while both are used.
FindForm.FormStyle = fsStayOnTop


Declare Sub AboutForm_OnShow


'---Public Declarations



Sub NoteForm_OnResize
NoteText.Width = NoteForm.ClientWidth
NoteText.Height = NoteForm.ClientHeight - 20
StatusLabel.Top = NoteForm.ClientHeight - 18
StatusLabel.Width = NoteForm.ClientWidth - 20
End Sub

Sub NoteForm_OnShow
mnuNew.ShortCut = "Ctrl+N"
mnuOpen.ShortCut = "Ctrl+O"
mnuSave.ShortCut = "Ctrl+S"
mnuFind.ShortCut = "Ctrl+F"
mnuFindNext.ShortCut = "F3"
mnuDate.ShortCut = "F5"
mnuSize.Enabled = 0
mnuWrap.Checked = 1
mnuMedium.Checked = 1
NoteText.PlainText = 1
If Command$(1) <> "" Then
  OpenNote(Command$(1))
End If
ShowState
End Sub

Sub NoteText_OnChange
NoteChanged = 1
ShowState
End Sub



Sub mnuNew_OnClick
If MayLeave("Save the changes before a new note is begun?") = 1 Then
  NoteText.Text = ""
  NotePath = ""
  NoteChanged = 0
  ShowState
End If
End Sub

Sub mnuOpen_OnClick
If MayLeave("Save the changes before another note is opened?") = 1 Then
  If NoteOpenDlg.Execute Then
    OpenNote(NoteOpenDlg.FileName)
  End If
End If
End Sub

Sub mnuSave_OnClick
Dim Done As Integer
Done = SaveNote(0)
End Sub

Sub mnuSaveAs_OnClick
Dim Done As Integer
Done = SaveNote(1)
End Sub

Sub mnuExit_OnClick
NoteForm.Close
End Sub

Sub mnuUndo_OnClick
NoteText.Undo
End Sub

Sub mnuCut_OnClick
NoteText.CutToClipboard
End Sub

Sub mnuCopy_OnClick
NoteText.CopyToClipboard
End Sub

Sub mnuPaste_OnClick
NoteText.PasteFromClipboard
End Sub

Sub mnuAll_OnClick
NoteText.SelectAll
End Sub

Sub mnuDate_OnClick
NoteText.SelText = Time$ + " " + Date$
End Sub

Sub mnuFind_OnClick
FindForm.Show
End Sub

Sub mnuFindNext_OnClick
If FindText.Text = "" Then
  FindForm.Show
Else
  FindNext
End If
End Sub

Sub mnuWrap_OnClick
If mnuWrap.Checked Then
  mnuWrap.Checked = 0
  NoteText.WordWrap = 0
  NoteText.ScrollBars = ssBoth
Else
  mnuWrap.Checked = 1
  NoteText.WordWrap = 1
  NoteText.ScrollBars = ssVertical
End If
End Sub

Sub mnuSmall_OnClick
SetTextSize(8)
mnuSmall.Checked = 1
End Sub

Sub mnuMedium_OnClick
SetTextSize(10)
mnuMedium.Checked = 1
End Sub

Sub mnuLarge_OnClick
SetTextSize(14)
mnuLarge.Checked = 1
End Sub

Sub mnuAbout_OnClick
AboutForm.ShowModal
End Sub

NoteForm.Center
NoteForm.IcoHandle = Default_Icon
NoteForm.Width = 520
NoteForm.Height = 400
NoteForm.BorderStyle = 2
NoteForm.Caption = "Untitled - Notepad"
NoteForm.Color = -2147483633
NoteForm.Cursor = -0
NoteForm.Hint = ""
NoteForm.ShowHint = 1
NoteForm.WindowState = 0
NoteForm.OnResize = NoteForm_OnResize
NoteForm.OnShow = NoteForm_OnShow

Font.Name = "Courier New"
Font.Size = 10
Font.Bold = False
Font.Italic = False
Font.Color = 0
NoteText.Font = Font
NoteText.Parent = NoteForm
NoteText.Top = 0
NoteText.Left = 0
NoteText.Width = 500
NoteText.Height = 310
NoteText.Text = ""
NoteText.BorderStyle = 1
NoteText.Color = 16777215
NoteText.Hint = ""
NoteText.ShowHint = 1
NoteText.Enabled = 1
NoteText.Visible = 1
NoteText.TabOrder = 0
NoteText.WordWrap = 1
NoteText.ReadOnly = 0
NoteText.ScrollBars = 2
NoteText.HideScrollBars = 1
NoteText.OnChange = NoteText_OnChange

Font.Name = "MS Sans Serif"
Font.Size = 8
Font.Bold = False
Font.Italic = False
Font.Color = 0
StatusLabel.Font = Font
StatusLabel.Parent = NoteForm
StatusLabel.WordWrap = 0
StatusLabel.AutoSize = False
StatusLabel.Top = 320
StatusLabel.Left = 10
StatusLabel.Width = 480
StatusLabel.Height = 20
StatusLabel.Caption = "0 characters"
StatusLabel.Color = -2147483633
StatusLabel.Hint = "Length of the note"
StatusLabel.ShowHint = 1
StatusLabel.Enabled = 1
StatusLabel.Visible = 1
StatusLabel.Cursor = -0
StatusLabel.Transparent = 0

NoteOpenDlg.Caption = "Open a note"
NoteOpenDlg.Filter = "Text files|*.txt|All files|*.*"
NoteOpenDlg.InitialDir = ""
NoteOpenDlg.FileName = ""

NoteSaveDlg.Caption = "Save the note"
NoteSaveDlg.Filter = "Text files|*.txt|All files|*.*"
NoteSaveDlg.InitialDir = ""
NoteSaveDlg.FileName = ""

MenuBar.Parent = NoteForm
MenuBar.AddItems  mnuFile, mnuEdit, mnuSearch, mnuFormat, mnuHelp

mnuFile.Caption = "&File"
mnuFile.AddItems mnuNew
mnuNew.Caption = "&New"
mnuNew.OnClick = mnuNew_OnClick
mnuFile.AddItems mnuOpen
mnuOpen.Caption = "&Open..."
mnuOpen.OnClick = mnuOpen_OnClick
mnuFile.AddItems mnuSave
mnuSave.Caption = "&Save"
mnuSave.OnClick = mnuSave_OnClick
mnuFile.AddItems mnuSaveAs
mnuSaveAs.Caption = "Save &as..."
mnuSaveAs.OnClick = mnuSaveAs_OnClick
mnuFile.AddItems sepExit
sepExit.Caption = "-"
mnuFile.AddItems mnuExit
mnuExit.Caption = "E&xit"
mnuExit.OnClick = mnuExit_OnClick

mnuEdit.Caption = "&Edit"
mnuEdit.AddItems mnuUndo
mnuUndo.Caption = "&Undo"
mnuUndo.OnClick = mnuUndo_OnClick
mnuEdit.AddItems sepUndo
sepUndo.Caption = "-"
mnuEdit.AddItems mnuCut
mnuCut.Caption = "Cu&t"
mnuCut.OnClick = mnuCut_OnClick
mnuEdit.AddItems mnuCopy
mnuCopy.Caption = "&Copy"
mnuCopy.OnClick = mnuCopy_OnClick
mnuEdit.AddItems mnuPaste
mnuPaste.Caption = "&Paste"
mnuPaste.OnClick = mnuPaste_OnClick
mnuEdit.AddItems sepAll
sepAll.Caption = "-"
mnuEdit.AddItems mnuAll
mnuAll.Caption = "Select &all"
mnuAll.OnClick = mnuAll_OnClick
mnuEdit.AddItems mnuDate
mnuDate.Caption = "Time and &date"
mnuDate.OnClick = mnuDate_OnClick

mnuSearch.Caption = "&Search"
mnuSearch.AddItems mnuFind
mnuFind.Caption = "&Find..."
mnuFind.OnClick = mnuFind_OnClick
mnuSearch.AddItems mnuFindNext
mnuFindNext.Caption = "Find &next"
mnuFindNext.OnClick = mnuFindNext_OnClick

mnuFormat.Caption = "F&ormat"
mnuFormat.AddItems mnuWrap
mnuWrap.Caption = "&Word wrap"
mnuWrap.OnClick = mnuWrap_OnClick
mnuFormat.AddItems sepSize
sepSize.Caption = "-"
mnuFormat.AddItems mnuSize
mnuSize.Caption = "Text size"
mnuFormat.AddItems mnuSmall
mnuSmall.Caption = "&Small"
mnuSmall.OnClick = mnuSmall_OnClick
mnuFormat.AddItems mnuMedium
mnuMedium.Caption = "&Medium"
mnuMedium.OnClick = mnuMedium_OnClick
mnuFormat.AddItems mnuLarge
mnuLarge.Caption = "&Large"
mnuLarge.OnClick = mnuLarge_OnClick

mnuHelp.Caption = "&Help"
mnuHelp.AddItems mnuAbout
mnuAbout.Caption = "&About Notepad"
mnuAbout.OnClick = mnuAbout_OnClick

Sub FindForm_OnShow
FindNextBtn.Default = 1
FindCloseBtn.Cancel = 1
FindText.SetFocus
End Sub

Sub FindNextBtn_OnClick
FindNext
End Sub


Sub FindCloseBtn_OnClick
FindForm.Close
End Sub



FindForm.Center
FindForm.IcoHandle = Default_Icon
FindForm.Width = 360
FindForm.Height = 170
FindForm.BorderStyle = 3
FindForm.Caption = "Find"
FindForm.Color = -2147483633
FindForm.Cursor = -0
FindForm.Hint = ""
FindForm.ShowHint = 1
FindForm.WindowState = 0
FindForm.OnShow = FindForm_OnShow

Font.Name = "MS Sans Serif"
Font.Size = 8
Font.Bold = False
Font.Italic = False
Font.Color = 0
FindText.Font = Font
FindText.Parent = FindForm
FindText.Top = 30
FindText.Left = 10
FindText.Width = 330
FindText.Height = 21
FindText.Text = ""
FindText.BorderStyle = 1
FindText.Color = 16777215
FindText.Hint = "The search goes on from the mark and begins again at the top"
FindText.ShowHint = 1
FindText.Enabled = 1
FindText.Visible = 1
FindText.TabOrder = 0
FindText.ReadOnly = 0

Font.Name = "MS Sans Serif"
Font.Size = 8
Font.Bold = False
Font.Italic = False
Font.Color = 0
FindLabel.Font = Font
FindLabel.Parent = FindForm
FindLabel.WordWrap = 0
FindLabel.AutoSize = False
FindLabel.Top = 10
FindLabel.Left = 10
FindLabel.Width = 330
FindLabel.Height = 20
FindLabel.Caption = "Text to look for"
FindLabel.Color = -2147483633
FindLabel.Hint = ""
FindLabel.ShowHint = 1
FindLabel.Enabled = 1
FindLabel.Visible = 1
FindLabel.Cursor = -0
FindLabel.Transparent = 0

Font.Name = "MS Sans Serif"
Font.Size = 8
Font.Bold = False
Font.Italic = False
Font.Color = 0
CaseCheck.Font = Font
CaseCheck.Parent = FindForm
CaseCheck.Top = 60
CaseCheck.Left = 10
CaseCheck.Width = 330
CaseCheck.Height = 20
CaseCheck.Caption = "Match &case"
CaseCheck.Hint = "Tell capitals from small letters"
CaseCheck.ShowHint = 1
CaseCheck.Enabled = 1
CaseCheck.Visible = 1
CaseCheck.Checked = 0
CaseCheck.TabOrder = 1

Font.Name = "MS Sans Serif"
Font.Size = 8
Font.Bold = False
Font.Italic = False
Font.Color = 0
FindNextBtn.Font = Font
FindNextBtn.Parent = FindForm
FindNextBtn.Top = 90
FindNextBtn.Left = 150
FindNextBtn.Width = 90
FindNextBtn.Height = 30
FindNextBtn.Caption = "&Find next"
FindNextBtn.Color = -2147483633
FindNextBtn.Hint = "Mark the next place"
FindNextBtn.ShowHint = 1
FindNextBtn.Enabled = 1
FindNextBtn.Visible = 1
FindNextBtn.TabOrder = 2
FindNextBtn.Cursor = -0
FindNextBtn.Layout = 2
FindNextBtn.OnClick = FindNextBtn_OnClick

Font.Name = "MS Sans Serif"
Font.Size = 8
Font.Bold = False
Font.Italic = False
Font.Color = 0
FindCloseBtn.Font = Font
FindCloseBtn.Parent = FindForm
FindCloseBtn.Top = 90
FindCloseBtn.Left = 250
FindCloseBtn.Width = 90
FindCloseBtn.Height = 30
FindCloseBtn.Caption = "Close"
FindCloseBtn.Color = -2147483633
FindCloseBtn.Hint = "Back to the note"
FindCloseBtn.ShowHint = 1
FindCloseBtn.Enabled = 1
FindCloseBtn.Visible = 1
FindCloseBtn.TabOrder = 3
FindCloseBtn.Cursor = -0
FindCloseBtn.Layout = 2
FindCloseBtn.OnClick = FindCloseBtn_OnClick

Sub AboutForm_OnShow
AboutBtn.Default = 1
AboutBtn.Cancel = 1
End Sub

Sub AboutBtn_OnClick
AboutForm.Close
End Sub



AboutForm.Center
AboutForm.IcoHandle = Default_Icon
AboutForm.Width = 300
AboutForm.Height = 190
AboutForm.BorderStyle = 3
AboutForm.Caption = "About Notepad"
AboutForm.Color = -2147483633
AboutForm.Cursor = -0
AboutForm.Hint = ""
AboutForm.ShowHint = 1
AboutForm.WindowState = 0
AboutForm.OnShow = AboutForm_OnShow

Font.Name = "Arial"
Font.Size = 16
Font.Bold = True
Font.Italic = False
Font.Color = 0
AboutTitle.Font = Font
AboutTitle.Parent = AboutForm
AboutTitle.WordWrap = 0
AboutTitle.AutoSize = False
AboutTitle.Top = 20
AboutTitle.Left = 20
AboutTitle.Width = 250
AboutTitle.Height = 30
AboutTitle.Caption = "Notepad"
AboutTitle.Color = -2147483633
AboutTitle.Hint = ""
AboutTitle.ShowHint = 1
AboutTitle.Enabled = 1
AboutTitle.Visible = 1
AboutTitle.Cursor = -0
AboutTitle.Transparent = 0

Font.Name = "MS Sans Serif"
Font.Size = 8
Font.Bold = False
Font.Italic = False
Font.Color = 0
AboutLine1.Font = Font
AboutLine1.Parent = AboutForm
AboutLine1.WordWrap = 0
AboutLine1.AutoSize = False
AboutLine1.Top = 60
AboutLine1.Left = 20
AboutLine1.Width = 250
AboutLine1.Height = 20
AboutLine1.Caption = "A small editor for plain text,"
AboutLine1.Color = -2147483633
AboutLine1.Hint = ""
AboutLine1.ShowHint = 1
AboutLine1.Enabled = 1
AboutLine1.Visible = 1
AboutLine1.Cursor = -0
AboutLine1.Transparent = 0

Font.Name = "MS Sans Serif"
Font.Size = 8
Font.Bold = False
Font.Italic = False
Font.Color = 0
AboutLine2.Font = Font
AboutLine2.Parent = AboutForm
AboutLine2.WordWrap = 0
AboutLine2.AutoSize = False
AboutLine2.Top = 80
AboutLine2.Left = 20
AboutLine2.Width = 250
AboutLine2.Height = 20
AboutLine2.Caption = "made with Tarnwick."
AboutLine2.Color = -2147483633
AboutLine2.Hint = ""
AboutLine2.ShowHint = 1
AboutLine2.Enabled = 1
AboutLine2.Visible = 1
AboutLine2.Cursor = -0
AboutLine2.Transparent = 0

Font.Name = "MS Sans Serif"
Font.Size = 8
Font.Bold = False
Font.Italic = False
Font.Color = 0
AboutBtn.Font = Font
AboutBtn.Parent = AboutForm
AboutBtn.Top = 110
AboutBtn.Left = 190
AboutBtn.Width = 90
AboutBtn.Height = 30
AboutBtn.Caption = "OK"
AboutBtn.Color = -2147483633
AboutBtn.Hint = "Close this window"
AboutBtn.ShowHint = 1
AboutBtn.Enabled = 1
AboutBtn.Visible = 1
AboutBtn.TabOrder = 0
AboutBtn.Cursor = -0
AboutBtn.Layout = 2
AboutBtn.OnClick = AboutBtn_OnClick


NoteForm.ShowModal

