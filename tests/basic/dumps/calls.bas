' A function that calls itself; values fitted to their parameters; a reference.
FUNCTION Fib (n AS INTEGER) AS INTEGER
  IF n < 2 THEN
    Fib = n
  ELSE
    Fib = Fib(n - 1) + Fib(n - 2)
  END IF
END FUNCTION
SUB Raise1 (BYREF n AS INTEGER)
  n = n + 1
END SUB
DIM a AS INTEGER
a = Fib(5)
Raise1 a
Raise1 a * 2
