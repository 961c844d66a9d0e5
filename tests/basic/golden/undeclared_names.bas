' A name without declaration that first stands on both sides of an assignment is one variable.
DIM prime(100) AS BYTE
FOR i = 2 TO 100
  IF prime(i) = 0 THEN
    c++
    FOR j = i * i TO 100 STEP i : prime(j) = 1 : NEXT
  END IF
NEXT
PRINT c
FOR i = 1 TO 4
  total = total + i
  text$ = text$ + STR$(i)
  low -= i
NEXT
PRINT total; " "; text$; " "; low
SUB Count
  seen = seen + 1
END SUB
Count : Count
PRINT seen
