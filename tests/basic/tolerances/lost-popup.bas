Dim Font As QFont
Dim P As QPopupMenu
.PopUpMenu = P
