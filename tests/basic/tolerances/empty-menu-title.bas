Dim Font As QFont
Dim Bar As QMainMenu
Dim X As QMenuItem
Bar.AddItems  , X
