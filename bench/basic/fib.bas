' Calls: the 32nd number of a series that calls itself twice.
FUNCTION Fib (n AS INTEGER) AS INTEGER
  IF n < 2 THEN
    Fib = n
  ELSE
    Fib = Fib(n - 1) + Fib(n - 2)
  END IF
END FUNCTION
PRINT Fib(32)
