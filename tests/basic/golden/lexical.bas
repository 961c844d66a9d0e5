' Names, suffixes, numbers, comments, continued lines.
rem a comment
PRINT &HFF; " "; &B101; " "; &O17; " "; &H&H12; " "; 0#; " "; 1.5E2; " "; 2D1
x = 1 : x$ = "text" : x% = 2.5 : x! = 0.25
PRINT x; x$; x%; x!
a& = 5 : b$ = "B"
PRINT a&; b$&"C" & "D"
PRINT "one" + _
  "two" +_
  "three"
PRINT "not ' a comment" ' a comment
DIM Form AS INTEGER, Font AS INTEGER
Form = 4 : Font = Form + 1
PRINT Form; FONT
WHILE(x<3)
  x++
WEND
IF(x=3) THEN PRINT "three"
Error: PRINT "label"
? "short"
PRINT "open to the end
café = 2 : PRINT CAFÉ * 2
