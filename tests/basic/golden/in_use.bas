' What programs in use write, although no manual has it.
a$ = "one
PRINT a$
PRINT "str _
ing"
SUB 2nd(n AS INTEGER)
  PRINT "second"; n
END SUB
2nd 5
DEFINT x(1 TO 4) = {1, 2, 3, 4}
PRINT x(4)
CONST TRUE% = -1
PRINT STRING(5) + "!"
PRINT MID$("abc", 0, 2); INSTR(0, "abc", "b")
n += 2 : n -= 1 : PRINT n
TYPE TDot
  a.b AS INTEGER
END TYPE
DIM d AS TDot
d.a.b = 4
PRINT d.a.b
DIM noas
noas = 1.5 : PRINT noas
SUB P(Col% AS LONG)
  PRINT Col%
END SUB
P 70000
WHILE(n<>3)
 n++
WEND
INPUT "text", q$
PRINT q$
INPUT a, b
PRINT a + b
i = 5
DO : i-- : LOOP UNTIL i = 2 : PRINT i
SUB Opt(t AS STRING, n AS INTEGER, u AS STRING)
  PRINT t; n; "["; u; "]"
END SUB
Opt "Error",,
PRINT IIF(1, IIF(0, "a", "b"), "c")
PRINT UCASE$("abc")[2]
IF NOT (1 = 2) THEN PRINT "not"
FOR i = 1 TO 3 : PRINT i; : NEXT : PRINT
PRINT -7 MOD 3; -7 \ 2; 7.5 \ 2
PRINT 3 INV 26; 1 SHL 10; 1024 SHR 3
