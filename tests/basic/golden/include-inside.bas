SUB Work
$INCLUDE "other.inc"
END SUB
SUB Short : PRINT 1 : END SUB
