' A loop over a register: one instruction a turn, and the addition kept to 32 bits.
DIM i AS INTEGER, s AS INTEGER
FOR i = 1 TO 10
  s = s + i
NEXT
PRINT s
