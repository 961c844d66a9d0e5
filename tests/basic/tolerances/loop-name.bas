Dim Font As QFont
$TYPECHECK ON
Dim a$ As String
for i = 0 to 3
a$ = a$ + "x"
next i
