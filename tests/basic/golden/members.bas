' VARIANT holds any kind and is passed by reference; members of a TYPE.
DIM v AS VARIANT
v = 5 : PRINT v + 1
v = "x" : PRINT v + "y"
SUB Ch(v AS VARIANT)
  v = 99
END SUB
Ch v
PRINT v
TYPE TThing
  PRIVATE:
  secret AS INTEGER
  PUBLIC:
  size AS INTEGER
  CONSTRUCTOR
    size = 7
  END CONSTRUCTOR
  SUB Grow(n AS INTEGER)
    This.size = This.size + n
    This.secret = 1
  END SUB
  FUNCTION Twice AS INTEGER
    RESULT = This.size * 2
  END FUNCTION
  PROPERTY SET SetBig (n AS INTEGER)
    This.size = n * 100
  END PROPERTY
END TYPE
DIM t AS TThing
PRINT t.size
t.Grow 3
PRINT t.size; " "; t.Twice
