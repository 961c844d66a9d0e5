' A text of 10,000,000 bytes, built byte by byte.
DIM s AS STRING, c AS STRING, i AS INTEGER
c = "x"
FOR i = 1 TO 10000000
  s = s + c
NEXT
PRINT LEN(s)
