' IF and SELECT CASE: lists, ranges, texts, the selector evaluated once.
DIM calls AS INTEGER
FUNCTION Tick AS INTEGER
  calls++
  RESULT = 7
END FUNCTION

FOR i = 0 TO 12 STEP 3
  SELECT CASE i
    CASE 0 : PRINT "none"
    CASE 1, 3, 5
      PRINT "few"
    CASE 6 TO 8
      PRINT "some"
    CASE IS > 11
      PRINT "many"
    CASE ELSE
      PRINT "other"
  END SELECT
NEXT

SELECT CASE Tick
  CASE 1, 2, 3
    PRINT "no"
  CASE 5 TO 6, IS = 7
    PRINT "seven"
END SELECT
PRINT "calls "; calls

SELECT CASE LCASE$("Berlin")
CASE "a" TO "bz"
  PRINT "first shelf"
CASE ELSE
  PRINT "second shelf"
END SELECT

IF 1 THEN IF 0 THEN PRINT "a" ELSE PRINT "b"
IF 0 THEN PRINT "x" : PRINT "y"
IF 2 > 1 THEN PRINT "p" : PRINT "q" ELSE PRINT "r" : PRINT "s"
IF(1=1) THEN
  PRINT "block"
ELSEIF 1 THEN
  PRINT "not here"
ENDIF
