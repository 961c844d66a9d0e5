' Product of two matrices of 300 rows and columns.
DIM n AS INTEGER, i AS INTEGER, j AS INTEGER, k AS INTEGER, s AS DOUBLE
n = 300
DIM a(n, n) AS DOUBLE, b(n, n) AS DOUBLE, c(n, n) AS DOUBLE
FOR i = 1 TO n
  FOR j = 1 TO n
    a(i, j) = i + j
    b(i, j) = i - j
  NEXT
NEXT
FOR i = 1 TO n
  FOR j = 1 TO n
    s = 0
    FOR k = 1 TO n
      s = s + a(i, k) * b(k, j)
    NEXT
    c(i, j) = s
  NEXT
NEXT
PRINT c(1, 1); " "; c(n, n)
