' Loops of all kinds, one within the other.
DIM n AS INTEGER, i AS INTEGER, j AS INTEGER
FOR i = 1 TO 3
  FOR j = i TO 1 STEP -1
    PRINT i; ":"; j; " ";
  NEXT j
  PRINT
NEXT i
PRINT "after", i; j

WHILE n < 3
  n++
  IF n = 2 THEN PRINT "two" ELSE PRINT "not two"
WEND

DO
  n--
  DO WHILE 1
    IF n < 2 THEN EXIT DO
    n = n - 1
  LOOP
LOOP UNTIL n = 0
PRINT "n"; n

FOR x = 0 TO 0.3 STEP 0.1
  PRINT x;" ";
NEXT
PRINT
FOR i = 5 TO 1
  PRINT "never"
NEXT
PRINT i
FOR i = 1 TO 10 DO
  IF i MOD 2 THEN
    IF i > 6 THEN EXIT FOR
    PRINT i;
  END IF
NEXT whatever
PRINT
' A step of zero goes upwards: the loop is entered when the start is not past the end.
DIM fraction AS DOUBLE, whole AS INTEGER
FOR fraction = 0.5 TO 2 STEP 0
  PRINT "once"; fraction
  EXIT FOR
NEXT
FOR fraction = 3 TO 2 STEP 0
  PRINT "never"
NEXT
FOR whole = 1 TO 2 STEP 0
  PRINT "once"; whole
  EXIT FOR
NEXT
FOR whole = 3 TO 2 STEP 0
  PRINT "never"
NEXT
