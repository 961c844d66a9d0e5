Dim Font As QFont
Dim Image1(1) As QImage
Dim Image1(2) As QImage
Image1(2).Top = 3
