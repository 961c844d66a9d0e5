' Every word of a text of 10,000,000 bytes is found and counted.
DIM s AS STRING, part AS STRING, i AS INTEGER, at AS INTEGER, words AS INTEGER
part = "alpha beta gamma delta "
FOR i = 1 TO 434783
  s = s + part
NEXT
at = INSTR(s, " ")
WHILE at > 0
  words = words + 1
  at = INSTR(at + 1, s, " ")
WEND
PRINT words
