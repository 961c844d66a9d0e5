' Definitions and macros: put in as they stand, nested, with parameters.
$DEFINE Width1 80
$DEFINE Half Width1 / 2
$DEFINE whole INTEGER
$MACRO Square(x) (x) * (x)
$MACRO Raw(x) x * x
$MACRO Say(what, n) FOR i = 1 TO n : PRINT what; : NEXT : PRINT
$MACRO Glue(a, b) a##b
DIM n AS whole
n = Half
PRINT n
PRINT Square(1 + 2)
PRINT Raw(1 + 2)
Say("ho", 3)
DIM leftright AS INTEGER
Glue(left, right) = 7
PRINT leftright
$IFDEF Width1
  $IFNDEF Height1
    PRINT "only one"
  $ELSE
    PRINT "both"
  $ENDIF
$ELSE
  this is not read (
$ENDIF
$UNDEF Width1
$IFDEF Width1
PRINT "still there"
$ENDIF
