' Arrays of bytes: kept small until something refers to an element.
DIM a(3) AS BYTE, i AS INTEGER, w AS WORD, d AS DOUBLE
SUB Show (b() AS BYTE)
  PRINT b(0); " "; b(1); " "; b(2); " "; b(3)
END SUB
SUB Raise (BYREF x AS BYTE)
  x = x + 1
END SUB
SUB Second (b() AS BYTE)
  b(2) = b(1) + 1
END SUB
a(0) = 256
a(1) = 255 + i
a(2) = -1
a(3) = 2.5
Show(a)
FOR i = 0 TO 3
  a(i) = a(i) + i
NEXT
Show(a)
d = a(1) * 0.5
PRINT d; " "; UBOUND(a); " "; SIZEOF(a)
Second(a)
Show(a)
' A reference to an element: the others stay as they are.
Raise @a(3)
Show(a)
a(3) = a(3) + 255
Show(a)
' SWAP, INC, sorting, INITARRAY.
DIM b(1 TO 4) AS BYTE
b(1) = 4: b(2) = 3: b(3) = 2: b(4) = 1
SWAP b(1), b(4)
INC b(2), 300
PRINT b(1); " "; b(2); " "; b(3); " "; b(4)
DIM c(3) AS BYTE
c(0) = 9: c(1) = 7: c(2) = 8: c(3) = 1
QUICKSORT c(0), c(3), ASCEND
Show(c)
DIM e(3) AS BYTE
INITARRAY e, 1, 2, 300
Show(e)
' REDIM keeps what fits.
DIM f(2) AS BYTE
f(2) = 7
REDIM f(4) AS BYTE
f(4) = 257
PRINT f(2); " "; f(3); " "; f(4)
' READ and an address.
DIM g(3) AS BYTE
READ g(0), g(1)
Show(g)
DATA 5, 260
MEMSET(VARPTR(g(1)), 66, 1)
Show(g)
PRINT VARPTR$(VARPTR(g(1)))
' A field, and two dimensions.
TYPE TBox
  n(2) AS BYTE
END TYPE
DIM box AS TBox, m(1, 1) AS BYTE
box.n(1) = 258
PRINT box.n(0); " "; box.n(1); " "; box.n(2)
m(1, 0) = 511
PRINT m(0, 0); " "; m(1, 0); " "; m(1, 1)
' An array without bounds grows.
DIM h() AS BYTE
h(2) = 513
PRINT h(0); " "; h(2); " "; UBOUND(h)
a(4) = 1
