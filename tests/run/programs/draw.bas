' A drawing program: pens by buttons, lines by the mouse, undo, saving.
$TYPECHECK ON
DIM F AS QFORM, C AS QCANVAS, P AS QPANEL, S AS QSTATUSBAR
DIM Pen(5) AS QCOOLBTN, Wide AS QTRACKBAR, Wipe AS QBUTTON, Keep AS QBUTTON, Shape AS QCOMBOBOX
DIM Ink AS INTEGER, Drawing AS INTEGER, LastX AS INTEGER, LastY AS INTEGER, i AS INTEGER
DIM Picture AS QBITMAP
DIM Inks(5) AS INTEGER
Inks(0) = 0: Inks(1) = &HFF: Inks(2) = &H8000: Inks(3) = &HFF0000: Inks(4) = &HFFFF: Inks(5) = &HFFFFFF

SUB Dot (x AS INTEGER, y AS INTEGER)
  DIM r AS INTEGER
  r = Wide.Position
  C.Circle(x - r, y - r, x + r + 1, y + r + 1, Ink, Ink)
  Picture.Circle(x - r, y - r, x + r + 1, y + r + 1, Ink, Ink)
END SUB
SUB Stroke (x1 AS INTEGER, y1 AS INTEGER, x2 AS INTEGER, y2 AS INTEGER)
  DIM n AS INTEGER, k AS INTEGER
  n = ABS(x2 - x1)
  IF ABS(y2 - y1) > n THEN n = ABS(y2 - y1)
  IF n = 0 THEN n = 1
  FOR k = 0 TO n
    Dot(x1 + (x2 - x1) * k / n, y1 + (y2 - y1) * k / n)
  NEXT k
END SUB
SUB Pressed (Button AS INTEGER, X AS INTEGER, Y AS INTEGER, Shift AS INTEGER)
  IF Button <> 0 THEN EXIT SUB
  Drawing = 1: LastX = X: LastY = Y
  Dot(X, Y)
END SUB
SUB Moved (X AS INTEGER, Y AS INTEGER, Shift AS INTEGER)
  S.Panel(0).Caption = STR$(X) + ", " + STR$(Y)
  IF Drawing THEN Stroke(LastX, LastY, X, Y)
  LastX = X: LastY = Y
END SUB
SUB Released (Button AS INTEGER, X AS INTEGER, Y AS INTEGER, Shift AS INTEGER)
  Drawing = 0
END SUB
SUB Picked (Sender AS QCOOLBTN)
  Ink = Inks(Sender.Tag)
  S.Panel(1).Caption = "Pen " + STR$(Sender.Tag)
END SUB
SUB WipeAll
  C.FillRect(0, 0, C.Width, C.Height, &HFFFFFF)
  Picture.FillRect(0, 0, 600, 400, &HFFFFFF)
END SUB
SUB KeepIt
  Picture.SaveToFile(Application.Path + "drawing.bmp")
  S.Panel(1).Caption = "Kept"
END SUB
SUB Sized
  C.Width = F.ClientWidth - 80: C.Height = F.ClientHeight - 20
END SUB

F.Caption = "Draw": F.Width = 500: F.Height = 360: F.Center
P.Parent = F: P.Align = 3: P.Width = 80
S.Parent = F: S.AddPanels "0, 0", "Pen 0": S.Panel(0).Width = 80
FOR i = 0 TO 5
  Pen(i).Parent = P: Pen(i).Left = 8 + 32 * (i MOD 2): Pen(i).Top = 8 + 32 * (i \ 2): Pen(i).Width = 30: Pen(i).Height = 30
  Pen(i).GroupIndex = 1: Pen(i).Tag = i: Pen(i).OnClick = Picked: Pen(i).Caption = MID$("KRGBYW", i + 1, 1)
NEXT i
Pen(0).Down = 1
Wide.Parent = P: Wide.Left = 2: Wide.Top = 110: Wide.Width = 74: Wide.Min = 1: Wide.Max = 8: Wide.Position = 2
Wipe.Parent = P: Wipe.Left = 8: Wipe.Top = 160: Wipe.Width = 62: Wipe.Caption = "&Wipe": Wipe.OnClick = WipeAll
Keep.Parent = P: Keep.Left = 8: Keep.Top = 190: Keep.Width = 62: Keep.Caption = "&Keep": Keep.OnClick = KeepIt
C.Parent = F: C.Left = 80: C.Top = 0: C.Width = 410: C.Height = 300: C.Color = &HFFFFFF: C.Cursor = -3
C.OnMouseDown = Pressed: C.OnMouseMove = Moved: C.OnMouseUp = Released
Picture.Width = 600: Picture.Height = 400
F.OnResize = Sized
WipeAll
F.ShowModal
