Dim Font As QFont
Dim Sock As QSocket
Sock.Family = 
Sock.Type = 1
