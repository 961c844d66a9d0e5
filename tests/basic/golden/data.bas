' DATA, READ and RESTORE: one list over the whole program.
DATA 1, 2.5, text
READ a, b, c$
PRINT a + b; c$
Second:
DATA "with, comma", -3
READ d$, e
PRINT d$; e
RESTORE
READ a
PRINT a
RESTORE Second
READ d$
PRINT d$
SUB Part
  DATA 99
END SUB
READ e, f
PRINT e + f
