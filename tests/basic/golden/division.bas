' A run-time error ends the program; what was printed before stays.
SUB F(n AS INTEGER)
  PRINT 10 / n
  F n - 1
END SUB
F 2
PRINT "never"
