' Bytes of arrays, also of long texts and of records.
TYPE R
  a AS INTEGER
  b AS STRING * 6
END TYPE
DIM t(3) AS STRING * 70000
DIM r1(4) AS R
DIM b(9) AS BYTE
DIM d(1, 2) AS DOUBLE
DIM s AS STRING
s = "four"
PRINT SIZEOF(t); " "; SIZEOF(r1); " "; SIZEOF(b); " "; SIZEOF(d); " "; SIZEOF(r1(1)); " "; SIZEOF(s)
