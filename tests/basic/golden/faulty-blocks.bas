FOR i = 1 TO 3
  IF i = 2 THEN
    PRINT i
NEXT
WEND
x = (1 + 2
y = 1 2
PRINT "end"
