' An object may free itself, its form and its neighbours while its handler runs.
DIM Main AS QFORM, Second AS QFORM
DIM A AS QBUTTON, B AS QBUTTON
A.Parent = Main
B.Parent = Second
SUB ClickA
  Second.Free
  PRINT "second is gone"
END SUB
SUB ClickB
  B.Free
  PRINT "b is gone"
END SUB
A.OnClick = ClickA
B.OnClick = ClickB
Second.Show
Main.ShowModal
PRINT "over"
