' Fields, arrays of records, two dimensions, narrow storage.
TYPE TPoint
  x AS BYTE
  name AS STRING
END TYPE
DIM p AS TPoint, q(2) AS TPoint, m(2, 2) AS DOUBLE
p.x = 300
p.name = "a"
q(1) = p
q(1).name = q(1).name + p.name
m(1, 2) = m(2, 1) * 2
