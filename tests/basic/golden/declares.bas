' What a DECLARE says gives way to the head of the SUB itself; one without a SUB that is not called
' is nothing.
DECLARE SUB Twice
DECLARE SUB Never (n AS INTEGER)
DECLARE FUNCTION Half (n AS STRING) AS STRING
SUB Twice (n AS INTEGER)
  PRINT n * 2
END SUB
FUNCTION Half (n AS DOUBLE) AS DOUBLE
  RESULT = n / 2
END FUNCTION
Twice(4)
PRINT Half(5)
