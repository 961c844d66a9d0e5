DIM Form AS QFORM
DIM List AS QLISTVIEW
DIM Tree AS QTREEVIEW
DIM Files AS QFILELISTBOX
DIM More AS QBUTTON

SUB ListChanged
PRINT "list "; List.Item(List.ItemIndex).Caption
END SUB

SUB TreeChanged
PRINT "tree "; Tree.Item(Tree.ItemIndex).Text
END SUB

SUB MoreClick
List.AddItems "c"
List.Item(0).SubItem(0) = "11"
List.DelItems 1
Tree.AddChildItems 1, "leaf"
Tree.FullExpand
Tree.ItemIndex = 2
Files.Mask = "*.txt"
PRINT Files.ItemCount
END SUB

List.Parent = Form
List.ViewStyle = 3
List.AddColumns "Name", "Size"
List.AddItems "a", "b"
List.OnChange = ListChanged
Tree.Parent = Form
Tree.AddItems "root"
Tree.AddChildItems 0, "branch"
Tree.OnChange = TreeChanged
Files.Parent = Form
More.Parent = Form
More.OnClick = MoreClick
Form.ShowModal
