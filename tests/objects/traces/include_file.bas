' Names that the include file has for streams and message dialogs.
$INCLUDE "C:\Tarnwick\Tarnwick1.lib"
DIM m AS QMEMORYSTREAM
m.WriteNum(200, Num_BYTE)
m.WriteNum(-2, Num_SHORT)
m.WriteNum(60000, Num_WORD)
m.WriteNum(-5, Num_LONG)
m.WriteNum(4000000000, Num_DWORD)
m.WriteNum(1.5, Num_SINGLE)
m.WriteNum(2.25, Num_DOUBLE)
PRINT m.Size
m.Position = 0
PRINT m.ReadNum(Num_BYTE); " "; m.ReadNum(Num_SHORT); " "; m.ReadNum(Num_WORD); " ";
PRINT m.ReadNum(Num_INTEGER); " "; m.ReadNum(Num_DWORD); " "; m.ReadNum(Num_SINGLE); " ";
PRINT m.ReadNum(Num_DOUBLE)
PRINT MESSAGEDLG("Keep it?", mtConfirmation, mbYes OR mbNo OR mbCancel, 0)
