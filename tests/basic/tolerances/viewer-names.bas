Dim Font As QFont
$TYPECHECK ON
Dim xpFl As QFileStream: Dim axp$ As String
Dim xpFl As QFileStream: Dim axp$ As String
axp$ = "a"
