DIM a(3) AS INTEGER
a(3) = 5
PRINT a(3)
n = 4
PRINT a(n)
