' Globals are seen everywhere; locals hide them; RESULT may be hidden too.
DIM g AS INTEGER
g = 1
SUB Change
  g = g + 1
  made = 5
END SUB
SUB Hide
  DIM g AS INTEGER
  g = 100
  PRINT "in"; g
END SUB
FUNCTION Keep AS INTEGER
  DIM Result AS INTEGER
  Result = 9
  Keep = 4
END FUNCTION
Change : Hide
PRINT g; made; Keep
SUB Deep(n AS INTEGER)
  DIM own AS INTEGER
  own = n
  IF n > 0 THEN Deep n - 1
  PRINT own;
END SUB
Deep 3
PRINT
