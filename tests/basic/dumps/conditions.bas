' Comparisons that jump, WHILE with its test behind the body, SELECT CASE.
DIM a AS INTEGER, d AS DOUBLE
WHILE a < 10
  a = a + 1
WEND
DO
  d = d + 0.5
LOOP UNTIL d >= 3
SELECT CASE a
  CASE 1, 3 TO 5
    PRINT "few"
  CASE ELSE
    PRINT "many"
END SELECT
