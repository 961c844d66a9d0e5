Dim Font As QFont
Dim pm(1) As QPopupMenu
Declare Sub pm(1)_OnPopUp
Sub pm(1)_OnPopUp
End Sub
pm(1).OnPopup = pm(1)_OnPopUp
