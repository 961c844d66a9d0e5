' A string that grows without end meets the limit, not the end of the machine's memory.
s$ = "x"
DO
  s$ = REPLACESUBSTR$(s$, "x", STRING$(1000000, "x"))
  PRINT LEN(s$)
LOOP
