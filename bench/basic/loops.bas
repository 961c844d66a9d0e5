' Sum of the whole numbers below 100,000,000.
DIM i AS INTEGER, s AS DOUBLE
FOR i = 1 TO 100000000
  s = s + i
NEXT
PRINT s
