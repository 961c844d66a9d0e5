' VARPTR gives numbers of the program's own variables, with bounds.
DIM s AS STRING, n AS LONG, m AS LONG
s = SPACE$(4)
MEMSET(VARPTR(s), 65, 2)
PRINT "["; s; "]"
n = 65 + 66 * 256
PRINT VARPTR$(VARPTR(n))
MEMCPY(VARPTR(m), VARPTR(n), 4)
PRINT m; MEMCMP(VARPTR(m), VARPTR(n), 4)
MEMSET(VARPTR(n), 0, 5)
