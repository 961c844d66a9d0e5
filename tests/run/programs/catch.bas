' A game: catch what falls with the arrow keys.
$TYPECHECK ON
CONST kWide = 300
CONST kHigh = 260
DIM F AS QFORM, C AS QCANVAS, T AS QTIMER, Points AS QLABEL, Back AS QBITMAP, Mask AS QBITMAP, Ball AS QBITMAP
DIM X AS INTEGER, Y AS INTEGER, Bat AS INTEGER, Score AS INTEGER, Lives AS INTEGER, Way AS INTEGER, Speed AS INTEGER
SUB Paint
  Back.FillRect(0, 0, kWide, kHigh, &H402000)
  Back.FillRect(Bat, kHigh - 14, Bat + 50, kHigh - 6, &HFFFFFF)
  Back.CopyMode = 9: Back.Draw(X, Y, Mask)
  Back.CopyMode = 13: Back.Draw(X, Y, Ball)
  Back.CopyMode = 10
  C.Draw(0, 0, Back)
END SUB
SUB Serve
  X = RND(kWide - 16): Y = 0
END SUB
SUB Tick
  Y = Y + Speed
  IF Way = 1 AND Bat > 0 THEN Bat = Bat - 8
  IF Way = 2 AND Bat < kWide - 50 THEN Bat = Bat + 8
  IF Y > kHigh - 30 THEN
    IF X + 8 >= Bat AND X + 8 <= Bat + 50 THEN
      Score++
      IF Score MOD 5 = 0 THEN Speed++
    ELSE
      Lives--
    END IF
    Serve
  END IF
  Points.Caption = "Points " + STR$(Score) + "   Lives " + STR$(Lives)
  Paint
  IF Lives = 0 THEN
    T.Enabled = 0
    C.TextOut(100, 110, "Game over", &HFFFFFF, -1)
  END IF
END SUB
SUB KeyGoesDown (Key AS WORD, Shift AS INTEGER)
  IF Key = 37 THEN Way = 1
  IF Key = 39 THEN Way = 2
END SUB
SUB KeyGoesUp (Key AS WORD, Shift AS INTEGER)
  Way = 0
END SUB
F.Caption = "Catch": F.BorderStyle = 1: F.ClientWidth = kWide: F.ClientHeight = kHigh + 20: F.Center
F.KeyPreview = 1: F.OnKeyDown = KeyGoesDown: F.OnKeyUp = KeyGoesUp
C.Parent = F: C.Top = 20: C.Width = kWide: C.Height = kHigh
Points.Parent = F: Points.Left = 5: Points.Top = 3: Points.Font.Bold = 1
Back.Width = kWide: Back.Height = kHigh
Mask.Width = 16: Mask.Height = 16: Mask.Circle(0, 0, 16, 16, 0, 0)
Ball.Width = 16: Ball.Height = 16: Ball.FillRect(0, 0, 16, 16, 0): Ball.Circle(0, 0, 16, 16, &HFFFF, &HFFFF)
Bat = 120: Lives = 3: Speed = 4
Serve
T.Interval = 30: T.OnTimer = Tick
F.ShowModal
