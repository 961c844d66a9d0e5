' Declarations: start values, constants, bounds, arrays that grow, fixed strings.
DEFINT a(1 TO 4) = {1, 2, 3}, b = 2 + 3
PRINT a(1); a(3); a(4); b
CONST Limit AS BYTE = 50
CONST Twice = Limit * 2
CONST Title$ = "Tool"
PRINT Twice; Title$
n = 3
DIM rows(n + 1) AS STRING
rows(4) = "last"
PRINT UBOUND(rows); rows(4)
DIM list1() AS STRING
list1(6) = "six"
PRINT UBOUND(list1); list1(6)
DIM f AS STRING*5
f = "abcdefg"
PRINT f; "|"
f = "ab"
PRINT f; "|"; LEN(f)
DIM grid(1 TO 2, 1 TO 3) AS INTEGER
grid(2, 3) = 6
PRINT LBOUND(grid, 1); UBOUND(grid, 2); grid(2, 3); grid(1, 1)
REDIM rows(1) AS STRING
PRINT UBOUND(rows); "["; rows(1); "]"
SUB Make
  fresh = 12
END SUB
Make
PRINT fresh
PRIVATE SUB Hidden
  STATIC count AS INTEGER
  INC(count, 2)
  PRINT count;
END SUB
Hidden : Hidden : Hidden
PRINT
