' END inside a routine ends the program; what stands behind it is not run.
SUB Leave
  PRINT "leaving"
  END
  PRINT "never"
END SUB
FOR i = 1 TO 3
  PRINT i
  IF i = 2 THEN Leave
NEXT
PRINT "never"
