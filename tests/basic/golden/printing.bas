' PRINT: separators, zones of 14 columns, numbers without blanks.
PRINT 1; 2; 3
PRINT 1, 2, "x"
PRINT "12345678901234", "y"
PRINT "ends open";
PRINT " and goes on"
PRINT "zone",
PRINT "next"
PRINT -0.5; 0.1 + 0.2; 1E20; 1 / 3; 100000 * 100000
PRINT 1E15; " "; 999999999999999; " "; 0.0001; " "; 1.5E-7
PRINT STR$(5) + STR$(-5)
PRINT 10 / 5; 5 \ 2; 7 MOD 4; 2 ^ 3
PRINT 1 = 1; 1 = 2; TRUE; FALSE; NOT 0
