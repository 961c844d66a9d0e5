' Windows that wait inside each other: the inner one must end first.
DIM Main AS QFORM, Inner AS QFORM
DIM Ask AS QBUTTON, Yes AS QBUTTON
CREATE Menu1 AS QPOPUPMENU
  CREATE Item1 AS QMENUITEM
    Caption = "First"
  END CREATE
END CREATE
SUB AskClick
  PRINT "asked: "; Inner.ShowModal
END SUB
SUB ItemClick (Sender AS QMENUITEM)
  Sender.Checked = 1 - Sender.Checked
  PRINT Sender.Caption; Sender.Checked
END SUB
Ask.Parent = Main
Ask.OnClick = AskClick
Yes.Parent = Inner
Yes.ModalResult = 6
Item1.OnClick = ItemClick
Ask.PopupMenu = Menu1
Main.ShowModal
