' Passing by value and by reference, recursion, calls with and without brackets.
DECLARE SUB Later (n AS INTEGER)
DECLARE FUNCTION Power(base1 AS DOUBLE, n AS INTEGER) AS DOUBLE

SUB ByValue(n AS INTEGER)
  n = n + 1
END SUB
SUB ByRef1(BYREF n AS INTEGER, BYVAL m AS INTEGER)
  n = n + m
  m = 0
END SUB
SUB Fill(a() AS INTEGER, n AS INTEGER)
  FOR i = 0 TO n
    a(i) = i * i
  NEXT
END SUB
SUB Two(a AS DOUBLE, b AS STRING)
  PRINT a; "/"; b
END SUB
SUB One(a AS DOUBLE)
  PRINT a
END SUB

DIM v AS INTEGER
ByValue v : PRINT v
ByRef1 v, 5 : PRINT v
ByValue @v : PRINT v

DIM squares(4) AS INTEGER
Fill squares, 4
PRINT squares(3) + squares(4)

Two 1, "a"
Two(2, "b")
CALL Two(3, "c")
One (1 + 2) * 3
One (4)
Later 8
PRINT Power(2, 10)

SUB Later (n AS INTEGER)
  PRINT "later"; n
END SUB
FUNCTION Power(base1 AS DOUBLE, n AS INTEGER) AS DOUBLE
  IF n = 0 THEN
    Power = 1
  ELSE
    RESULT = base1 * Power(base1, n - 1)
  END IF
END FUNCTION
FUNCTION Shout$(s AS STRING)
  Shout$ = UCASE$(s) + "!"
END FUNCTION
PRINT Shout$("ann")
