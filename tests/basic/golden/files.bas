' Files and folders; what fails is a note and the program goes on.
PRINT CURDIR$
f$ = DIR$("*.txt", 0)
WHILE f$ <> ""
  PRINT f$; " "; FILEREC.Size
  f$ = DIR$("")
WEND
RENAME "a.txt", "d.txt"
PRINT FILEEXISTS("a.txt"); FILEEXISTS("d.txt")
KILL "gone.txt"
MKDIR "new" : CHDIR "new" : PRINT CURDIR$
CHDIR "C:\work" : RMDIR "new" : PRINT DIREXISTS("new")
PRINT FIELD$(CURDIR$, "\", 2); RINSTR(CURDIR$, "\")
