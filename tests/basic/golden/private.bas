TYPE Account
PRIVATE:
  Sum AS INTEGER
PUBLIC:
  Name AS STRING
  SUB Pay (n AS INTEGER)
    This.Sum = This.Sum + n
  END SUB
  PRIVATE FUNCTION Secret AS INTEGER
    RESULT = 3
  END FUNCTION
  FUNCTION Total AS INTEGER
    RESULT = This.Sum + This.Secret
  END FUNCTION
END TYPE
DIM a AS Account
a.Pay 4
a.Name = "x"
PRINT a.Total; a.Name
