' A property of an object is set 1,000,000 times.
DIM Form AS QFORM, Label AS QLABEL, i AS INTEGER
Label.Parent = Form
FOR i = 1 TO 1000000
  Label.Left = i
NEXT
PRINT Label.Left
