' Escapes in strings are off at first and may be switched.
PRINT "a\nb"
$ESCAPECHARS ON
PRINT "tab\x2Ecode\33quote\"end\\"
PRINT LEN("\r\n\t")
$ESCAPECHARS OFF
PRINT "c:\new\temp"
