$TYPECHECK ON
DIM Total AS INTEGER
SUB ShowTotal (n AS INTEGER)
  PRINT n; Totel
END SUB
ShowTotl Total
ShowTotal
GOTO nowhere
Total = "a" + 1
