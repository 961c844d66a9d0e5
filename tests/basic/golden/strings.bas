' Strings: joining, taking away, comparing, single characters, building up.
a$ = "banana"
PRINT a$ - "an"; a$ - "x"
PRINT a$[1]; a$[6]; "["; a$[7]; "]"
PRINT "a" < "b"; "a" < "B"; "abc" = "abc"; "10" < "9"
PRINT a$ & 5 & "x"
s$ = ""
FOR i = 1 TO 5
  s$ = s$ + CHR$(64 + i)
NEXT
PRINT s$; LEN(s$)
PRINT REPLACESUBSTR$(s$, "C", "--"); INSTR(s$, "D"); RINSTR("a.b.c", ".")
PRINT FIELD$("k=v=w", "=", 2); TALLY("a,b,c", ","); REVERSE$("abc")
PRINT UCASE$("Gr") + LCASE$("OSS"); MCASE$("two WORDS")
PRINT IIF(LEN(a$) > 3, "long", "short"); IIF(0, 1, 2.5)
PRINT LEFT$(a$, 2); RIGHT$(a$, 2); MID$(a$, 3, 2); MID$(a$, 5)
PRINT "["; LTRIM$("  x "); "]["; RTRIM$(" x  "); "]"
PRINT FORMAT$("%5.2f|%-4d|%s", 3.14159, 42, "end")
PRINT STRF$(1234.5678, 3, 18, 2); " "; HEX$(255); " "; VAL("12abc") + 1
