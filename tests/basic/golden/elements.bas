' Elements of tables with two indexes are stored, passed, swapped, stepped and read like variables.
DIM a(3, 3) AS INTEGER, t(2, 2) AS STRING, d(2, 2) AS DOUBLE
DIM i AS INTEGER, j AS INTEGER
SUB AddTo (n AS INTEGER, BYREF by AS INTEGER)
by = by + n
END SUB
SUB Twice (BYREF s AS STRING)
s = s + s
END SUB
i = 1
j = 2
a(i, j) = 5
INC a(i, j)
a(i, j) += 10
AddTo 100, a(i, j)
t(i, j) = "ab"
t(j, i) = t(i, j) + "c"
Twice t(i, j)
Twice t(2, 0)
a(2, 1) = 7
SWAP a(1, 2), a(2, 1)
SWAP t(1, 2), t(0, 0)
READ a(0, 0), t(0, 1), d(2, 2)
DATA 42, word, 2.5
PRINT a(1, 2); " "; a(2, 1); " "; a(0, 0); " "; t(0, 1); " "; d(2, 2)
PRINT "["; t(0, 0); "] ["; t(1, 2); "] ["; t(2, 1); "] ["; t(2, 0); "]"
