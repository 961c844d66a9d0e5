Dim Font As QFont
Dim MenuBar As QMainMenu
Dim MenuBar As QMainMenu
