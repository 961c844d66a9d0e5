' QUICKSORT, SWAP, INITARRAY.
DIM n(5) AS INTEGER, i AS INTEGER
INITARRAY(n, 5, 3, 9, 1)
QUICKSORT(n(0), n(5), ASCEND)
FOR i = 0 TO 5 : PRINT n(i); " "; : NEXT
PRINT
QUICKSORT(n(0), n(5), DESCEND)
FOR i = 0 TO 5 : PRINT n(i); " "; : NEXT
PRINT
DIM w(1 TO 3) AS STRING
w(1) = "pear" : w(2) = "apple" : w(3) = "Fig"
QUICKSORT(w(1), w(3), ASCEND)
PRINT w(1); " "; w(2); " "; w(3)
SWAP w(1), w(3)
PRINT w(1); " "; w(3)
