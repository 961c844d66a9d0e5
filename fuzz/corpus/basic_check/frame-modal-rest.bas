Dim Font As QFont
Dim F As QForm
Sub TrnspAbrFrm1
F.Show
End Sub
TrnspAbrFrm1odal
