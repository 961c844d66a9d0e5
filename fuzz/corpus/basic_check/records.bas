' TYPE: fields, arrays of records, copies; arrays inside a record are shared by a copy.
TYPE TPoint
  x AS INTEGER
  y AS DOUBLE
  name AS STRING
END TYPE
STRUCT TLine
  a AS TPoint
  b AS TPoint
  marks(3) AS INTEGER
END STRUCT

DIM p AS TPoint, q AS TPoint
p.x = 3.7 : p.y = 3.7 : p.name = "p"
q = p
q.x = 9 : q.name = q.name + "q"
PRINT p.x; " "; p.y; " "; p.name
PRINT q.x; " "; q.y; " "; q.name

DIM l AS TLine, m AS TLine
l.a.x = 1 : l.b.name = "end"
l.marks(2) = 5
m = l
m.a.x = 2
m.marks(2) = 6
PRINT l.a.x; m.a.x; l.marks(2); m.b.name

DIM all(2) AS TPoint
FOR i = 0 TO 2
  all(i).x = i * 10
NEXT
all(0) = all(2)
all(2).x = 1
PRINT all(0).x; ","; all(1).x; ","; all(2).x

SUB Move(BYREF t AS TPoint)
  t.x = t.x + 100
END SUB
Move all(1)
PRINT all(1).x
WITH p
  .x = 50
  .name = .name + STR$(.x)
  PRINT .name
END WITH
