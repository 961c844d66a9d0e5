' Without windows there are no connections and no printer: notes tell so, and the program goes on.
DIM Server AS QSOCKET
DIM number AS INTEGER
number = Server.Open(8080)
PRINT number; Server.MySocket; Server.ConnectionReady(number)
Server.Close
Printer.Title = "Page"
Printer.BeginDoc
Printer.TextOut(100, 100, "words", 0, -1)
Printer.NewPage
Printer.EndDoc
PRINT Server.Accept(number)
