' What stands in front of += is worked out once.
DIM a(5) AS INTEGER
DIM calls AS INTEGER
FUNCTION Which (n AS INTEGER) AS INTEGER
  calls++
  RESULT = n
END FUNCTION
a(Which(2)) += 5
a(Which(3))++
INC(a(Which(3)), 4)
PRINT a(2); " "; a(3); " "; calls
TYPE Pair
  v(3) AS DOUBLE
END TYPE
DIM p(2) AS Pair
p(Which(1)).v(Which(2)) -= 1.5
PRINT p(1).v(2); " "; calls
DIM s(2) AS STRING
s(Which(1)) += "ab"
s(Which(1)) += "c"
PRINT s(1); " "; calls
DIM i AS INTEGER
i = 1
FUNCTION Two AS INTEGER
  i = 2
  RESULT = 7
END FUNCTION
a(i) += Two
PRINT a(1); a(2); i
