' What a variable keeps of a number that is too wide for it.
DIM b AS BYTE, w AS WORD, d AS DWORD, s AS SHORT, i AS INTEGER, f AS SINGLE
FOR k = 0 TO 2
  v = 2 ^ (8 * (k + 1)) + 1
  b = v : w = v : d = v : s = v : i = v
  PRINT b; " "; w; " "; d; " "; s; " "; i
NEXT
b = -1 : w = -1 : d = -1 : s = 40000 : i = 4294967295
PRINT b; " "; w; " "; d; " "; s; " "; i
i = 0.5 : PRINT i; : i = 1.5 : PRINT i; : i = 2.5 : PRINT i; : i = -1.5 : PRINT i
f = 1 / 4 : PRINT f
b = 250
FOR k = 1 TO 3 : b = b + 3 : PRINT b; " "; : NEXT
PRINT
PRINT &HFFFF; " "; 70000 * 70000
