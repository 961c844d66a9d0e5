' Primes below 10,000,000 by striking out.
DIM n AS INTEGER, i AS INTEGER, j AS INTEGER, count AS INTEGER
n = 10000000
DIM struck(n) AS BYTE
FOR i = 2 TO n
  IF struck(i) = 0 THEN
    count = count + 1
    j = i + i
    WHILE j <= n
      struck(j) = 1
      j = j + i
    WEND
  END IF
NEXT
PRINT count
