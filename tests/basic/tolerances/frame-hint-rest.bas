Dim Font As QFont
Dim F As QForm
$TYPECHECK ON
Sub TrnspAbrFrm2
F.Show
End Sub
TrnspAbrFrm2int = 1
TrnspAbrFrm2
