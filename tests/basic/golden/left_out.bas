PRINT "never"
LPRINT "x"
