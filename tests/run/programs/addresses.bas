' An address book: rows of a grid, kept in a file.
$TYPECHECK ON
DIM F AS QFORM, G AS QSTRINGGRID, AddBtn AS QBUTTON, DelBtn AS QBUTTON, SaveBtn AS QBUTTON, Find AS QEDIT, L AS QLABEL
DIM Book AS QFILESTREAM, M AS QMAINMENU, mFile AS QMENUITEM, mSave AS QMENUITEM, mEnd AS QMENUITEM
DIM i AS INTEGER, Path AS STRING
Path = Application.Path + "book.txt"
SUB Store
  DIM r AS INTEGER
  Book.Open(Path, 65535)
  FOR r = 1 TO G.RowCount - 1
    IF G.Cell(1, r) <> "" THEN Book.WriteLine(G.Cell(1, r) + "|" + G.Cell(2, r) + "|" + G.Cell(3, r))
  NEXT r
  Book.Close
  F.Caption = "Addresses, " + STR$(G.RowCount - 1) + " kept"
END SUB
SUB Number
  DIM r AS INTEGER
  FOR r = 1 TO G.RowCount - 1: G.Cell(0, r) = STR$(r): NEXT r
END SUB
SUB Load
  DIM t AS STRING, r AS INTEGER
  IF FILEEXISTS(Path) = 0 THEN EXIT SUB
  Book.Open(Path, 0)
  r = 1
  WHILE NOT Book.EOF
    t = Book.ReadLine
    IF r >= G.RowCount THEN G.RowCount = r + 1
    G.Cell(1, r) = FIELD$(t, "|", 1): G.Cell(2, r) = FIELD$(t, "|", 2): G.Cell(3, r) = FIELD$(t, "|", 3)
    r++
  WEND
  Book.Close
END SUB
SUB AddRow
  G.RowCount = G.RowCount + 1
  G.Row = G.RowCount - 1: G.Col = 1
  Number
  G.SetFocus
END SUB
SUB DelRow
  IF G.RowCount < 3 THEN EXIT SUB
  IF MESSAGEBOX("Delete " + G.Cell(1, G.Row) + "?", "Addresses", 4) = 6 THEN G.DeleteRow(G.Row): Number
END SUB
SUB Look
  DIM r AS INTEGER
  FOR r = 1 TO G.RowCount - 1
    IF INSTR(LCASE$(G.Cell(1, r)), LCASE$(Find.Text)) = 1 THEN G.Row = r: EXIT SUB
  NEXT r
END SUB
SUB Sized
  G.Width = F.ClientWidth - 20: G.Height = F.ClientHeight - 90
  AddBtn.Top = F.ClientHeight - 35: DelBtn.Top = AddBtn.Top: SaveBtn.Top = AddBtn.Top
END SUB
SUB Done
  F.Close
END SUB
F.Caption = "Addresses": F.Width = 460: F.Height = 340: F.Center
mFile.Caption = "&File": mSave.Caption = "&Save": mSave.ShortCut = "Ctrl+S": mEnd.Caption = "E&xit": mSave.OnClick = Store: mEnd.OnClick = Done
mFile.AddItems mSave, mEnd: M.AddItems mFile: M.Parent = F
L.Parent = F: L.Left = 10: L.Top = 13: L.Caption = "&Name begins with"
Find.Parent = F: Find.Left = 110: Find.Top = 10: Find.Width = 150: Find.OnChange = Look
G.Parent = F: G.Left = 10: G.Top = 40: G.ColCount = 4: G.RowCount = 4: G.AddOptions 10
G.DefaultRowHeight = 18: G.ColWidths(0) = 30: G.ColWidths(1) = 120: G.ColWidths(2) = 150: G.ColWidths(3) = 100
G.Cell(1, 0) = "Name": G.Cell(2, 0) = "Street": G.Cell(3, 0) = "Phone"
AddBtn.Parent = F: AddBtn.Left = 10: AddBtn.Caption = "&Add": AddBtn.OnClick = AddRow
DelBtn.Parent = F: DelBtn.Left = 95: DelBtn.Caption = "&Delete": DelBtn.OnClick = DelRow
SaveBtn.Parent = F: SaveBtn.Left = 180: SaveBtn.Caption = "&Save": SaveBtn.OnClick = Store
F.OnResize = Sized
Load
Number
F.ShowModal
