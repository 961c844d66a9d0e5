' Labels, GOTO, GOSUB, RETURN, ON n GOTO; labels are local to their procedure.
n = 0
Again:
n = n + 1
IF n < 3 THEN GOTO Again
PRINT n
GOSUB Show1
GOSUB Show1
SUB Inner
  GOTO Done
  PRINT "never"
  Done:
  PRINT "inner"
  GOSUB Part
  RETURN
  Part:
  PRINT "part"
  RETURN
END SUB
Inner
GOTO Done
PRINT "never"
Show1:
PRINT "show"; n
n = n + 1
RETURN
Done: PRINT "done"
FOR k = 1 TO 4
  ON k GOTO First, Second
  PRINT "neither"
  GOTO Behind
  First: PRINT "first" : GOTO Behind
  Second: PRINT "second"
  Behind:
NEXT
END
PRINT "never"
