Dim Font As QFont
Dim Cmd(1)(3) As QSocket
Cmd(3).Type = 1
