Dim Font As QFont
$TYPECHECK ON
Dim B As QButton
B.BmpHandle = Frm1Btn2_Bmp
