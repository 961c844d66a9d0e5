' Routines with any number of arguments, and routines by their address.
SUBI Show1 (...)
  DIM i AS INTEGER
  PRINT PARAMVALCOUNT; " numbers, "; PARAMSTRCOUNT; " texts:";
  FOR i = 1 TO PARAMVALCOUNT
    PRINT " "; PARAMVAL(i);
  NEXT
  FOR i = 1 TO PARAMSTRCOUNT
    PRINT " "; PARAMSTR$(i);
  NEXT
  PRINT
END SUBI
FUNCTIONI Sum (Anything) AS DOUBLE
  DIM i AS INTEGER
  FOR i = 1 TO PARAMVALCOUNT
    RESULT = RESULT + PARAMVAL(i)
  NEXT
END FUNCTIONI
Show1 1, "a", 2.5, "b"
Show1
PRINT Sum(1, 2, 3) + Sum()
SUB Plain(n AS INTEGER)
  PRINT "plain"; n
END SUB
SUB Other(n AS INTEGER)
  PRINT "other"; n
END SUB
DIM h AS INTEGER
BIND h TO Plain
CALLFUNC(h, 1)
h = CODEPTR(Other)
CALLFUNC h, 2
