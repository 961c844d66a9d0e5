' Loops and returns as they are met in programs: a trailing DO, any name behind NEXT, a loop that
' changes its own variable, one that is never entered, a RETURN that leaves its SUB.
FOR i = 1 TO 2 DO
  PRINT i;
NEXT x
PRINT
FOR i = 1 TO 10
  PRINT i; " ";
  i = i + 3
NEXT
PRINT i
FOR z = 5 TO 1
  PRINT "never"
NEXT
PRINT z
SUB Leaves
  PRINT "in"
  RETURN
  PRINT "never"
END SUB
Leaves
IF (1 = 1) = TRUE THEN PRINT "never"
IF (1 = 1) THEN PRINT "holds"
$DEFINE boolean integer
DIM yes AS boolean
yes = 7.6
PRINT yes
DIM b AS BYTE
b = 300
PRINT b
PUBLIC SUB Sized
  DIM n AS INTEGER
  n = 3
  DIM rows(n * 2) AS INTEGER
  PRINT UBOUND(rows)
END SUB
Sized
FUNCTION Own (x AS INTEGER) AS INTEGER
  DIM Result AS INTEGER
  Result = x * 2
  Own = Result + 1
END FUNCTION
PRINT Own(4)
x$ = "abcabc" - "b"
PRINT x$; " "; 0.5; " "; 1e20; " "; 10 / 5; " "; 5 / 2
PRINT FORMAT$("%d|%9d|%.2d|%f|%12.0f|%10.6f|%.6n|%-4.4g|", 5, 6, 7, 1.5, 2.5, 3.25, 1234567.5, 0.12345)
END
PRINT "never"
