' Numbers of lines are labels; a suffix and a type of one name go together.
10 PRINT "ten"
n = n + 1
IF n < 2 THEN GOTO 10
GOSUB 100
DIM axp$ AS STRING
axp$ = "text" : PRINT axp$
END
100 PRINT "hundred"
RETURN
