#include "designer/object_clipboard.h"

#include "surface_fixture.h"

namespace tarnwick {
namespace {

class Clipboard : public SurfaceTest {
 protected:
  ControlRef CopyAndPaste() {
    commands.CopyObject(keys::kC, kCtrlBit);
    return Paste();
  }
  ControlRef Paste() {
    commands.PasteObject(keys::kV, kCtrlBit);
    return form.ControlSel;
  }
};

TEST_F(Clipboard, ACopyIsReadAtThePaste) {
  const ControlRef source = Place("Button", 10, 10);
  commands.CopyObject(keys::kC, kCtrlBit);
  source->Caption = "Later";
  record.Buttons.At(1)->Cursor = 4;
  const ControlRef copy = Paste();
  EXPECT_EQ(copy->Caption, "Later");
  EXPECT_EQ(record.Buttons.At(2)->Cursor, 4);
}

TEST_F(Clipboard, APastedObjectIsSelectedWithHandlesAndProperties) {
  Place("Button", 10, 10);
  ports.Log.Clear();
  const ControlRef copy = CopyAndPaste();
  EXPECT_EQ(copy->Tag, "Form1Btn2");
  EXPECT_EQ(form.NameObjet, "Button2");
  EXPECT_EQ(form.IndexObjet, 2);
  EXPECT_TRUE(copy->Visible);
  EXPECT_TRUE(HandleVisible(0));
  EXPECT_EQ(gestures.Mode(), DragMode::None);
  EXPECT_FALSE(ports.Gestures.Captured);
  EXPECT_EQ(ports.Log.Count("band"), 2U) << "the outline is drawn and erased";
  EXPECT_EQ(Log().back(), "properties Button2 Form1Btn2");
}

TEST_F(Clipboard, CopiesStandTenPixelsRightAndDownOfTheLast) {
  const ControlRef source = Place("Button", 10, 20);
  const ControlRef first = CopyAndPaste();
  EXPECT_EQ(first->Left, Twips(20));
  EXPECT_EQ(first->Top, Twips(30));
  EXPECT_EQ(Paste()->Left, Twips(30));
  Click(source);
  EXPECT_EQ(CopyAndPaste()->Left, Twips(20)) << "a new copy begins at its source again";
}

TEST_F(Clipboard, TheListedMembersComeAlong) {
  const ControlRef source = Place("Label", 10, 10);
  source->Caption = "Total";
  source->ToolTipText = "tip";
  source->BorderStyle = 0;
  source->Width = 3000;
  source->Height = 600;
  source->BackColor = 255;
  source->ForeColor = 128;
  source->FontName = "Arial";
  source->FontSize = 12;
  source->FontBold = true;
  source->FontItalic = true;
  source->FontUnderline = true;
  source->FontStrikethru = true;
  source->WordWrap = true;
  record.Labels.At(1)->Icon = 1;
  const ControlRef copy = CopyAndPaste();
  EXPECT_EQ(copy->Caption, "Total");
  EXPECT_EQ(copy->ToolTipText, "tip");
  EXPECT_EQ(copy->BorderStyle, 0);
  EXPECT_EQ(copy->Width, 3000);
  EXPECT_EQ(copy->Height, 600);
  EXPECT_EQ(copy->BackColor, 255);
  EXPECT_EQ(copy->ForeColor, 128);
  EXPECT_EQ(copy->FontName, "Arial");
  EXPECT_EQ(copy->FontSize, 12);
  EXPECT_TRUE(copy->FontBold && copy->FontItalic && copy->FontUnderline && copy->FontStrikethru);
  EXPECT_TRUE(copy->WordWrap);
  EXPECT_EQ(record.Labels.At(2)->Icon, 1) << "the stored word wrap";
}

TEST_F(Clipboard, ListsAndImagesTakeOneMemberMore) {
  Place("ListBox", 10, 10)->Appearance = 0;
  EXPECT_EQ(CopyAndPaste()->Appearance, 0);
  const ControlRef image = Place("Image", 300, 10);
  image->Stretch = true;
  image->Picture = "Z:\\a.bmp";
  const ControlRef copy = CopyAndPaste();
  EXPECT_TRUE(copy->Stretch);
  EXPECT_EQ(copy->Picture, "Z:\\a.bmp");
}

/// A record with every field set, so that a copied field shows.
ObjectRec FullRecord() {
  return {.Interval = 2,
          .Checked = 3,
          .Sorted = 4,
          .MultiSelect = 5,
          .HideScrollBars = 6,
          .Icon = 7,
          .ScrollBars = 8,
          .Visible = 9,
          .Enabled = 10,
          .Cursor = 11,
          .Columns = 12,
          .TabOrder = 13,
          .ReadOnly = 14,
          .HasPicture = 15,
          .FontColor = 16,
          .ImageFile = "image",
          .Items = "items",
          .Title = "title",
          .Filter = "filter",
          .InitialDir = "dir",
          .FileName = "file",
          .PictureName = "picture"};
}

std::string FieldsOf(const ObjectRec& r) {
  std::string names;
  const auto add = [&names](bool set, const char* name) {
    if (set) names += std::string(names.empty() ? "" : " ") + name;
  };
  add(r.Title == "title", "Title");
  add(r.Filter == "filter", "Filter");
  add(r.InitialDir == "dir", "InitialDir");
  add(r.Interval == 2, "Interval");
  add(r.Checked == 3, "Checked");
  add(r.Sorted == 4, "Sorted");
  add(r.MultiSelect == 5, "MultiSelect");
  add(r.HideScrollBars == 6, "HideScrollBars");
  add(r.Icon == 7, "Icon");
  add(r.ScrollBars == 8, "ScrollBars");
  add(r.Visible == 9, "Visible");
  add(r.Enabled == 10, "Enabled");
  add(r.Cursor == 11, "Cursor");
  add(r.Columns == 12, "Columns");
  add(r.TabOrder == 13, "TabOrder");
  add(r.ImageFile == "image", "ImageFile");
  add(r.ReadOnly == 14, "ReadOnly");
  add(r.FileName == "file", "FileName");
  add(r.PictureName == "picture", "PictureName");
  add(r.Items == "items", "Items");
  add(r.HasPicture == 15, "HasPicture");
  add(r.FontColor == 16, "FontColor");
  return names;
}

TEST_F(Clipboard, EachKindCopiesItsOwnFields) {
  const std::pair<Kind, const char*> kinds[] = {
      {Kind::ComboBox, "Sorted Visible Enabled Cursor Items"},
      {Kind::OpenDialog, "Title Filter InitialDir FileName"},
      {Kind::SaveDialog, "Title Filter InitialDir FileName"},
      {Kind::Time, "Interval Enabled"},
      {Kind::Button, "Title Visible Enabled Cursor ImageFile FontColor"},
      {Kind::TextBox, "Visible Enabled ReadOnly"},
      {Kind::RichTextBox, "HideScrollBars Icon ScrollBars Visible Enabled ReadOnly"},
      {Kind::OptionButton, "Visible Enabled Cursor"},
      {Kind::Label, "Icon Visible Enabled Cursor"},
      {Kind::Image, "Title Visible Enabled Cursor ImageFile"},
      {Kind::ListBox, "InitialDir Sorted MultiSelect Visible Enabled Cursor Columns Items"},
      {Kind::CheckBox, "Checked Visible Enabled Cursor"},
  };
  for (const auto& [kind, fields] : kinds) {
    user.SelectObject(Place(InfoOf(kind).Name, 10, 10));
    const ControlRef source = form.Element(kind, 1);
    user.SelectObject(source);
    *record.Objects(kind)->At(1) = FullRecord();
    const ControlRef copy = CopyAndPaste();
    ASSERT_NE(copy, source) << InfoOf(kind).Name;
    ObjectRec made = *record.Objects(kind)->At(2);
    made.TabOrder = 0;
    EXPECT_EQ(FieldsOf(made), fields) << InfoOf(kind).Name;
  }
}

TEST_F(Clipboard, NamesOfThreeKindsDifferFromThoseOfNewObjects) {
  const std::pair<const char*, const char*> names[] = {{"FileStream", "Form1FileStream2"},
                                                       {"PopUpMenu", "Form1PopupMenu2"},
                                                       {"HtmlViewer", "Form1HtmlViewer2"},
                                                       {"Time", "Form1Time2"}};
  int y = 0;
  for (const auto& [kind, name] : names) {
    Place(kind, 500, y);
    y += 150;
    EXPECT_EQ(CopyAndPaste()->Tag, name);
  }
}

TEST_F(Clipboard, APopUpCopiesItsTwoNumbersAndAViewerItsPage) {
  Place("PopUpMenu", 10, 10);
  *record.PopUps.At(1) = {3, 0, "Form1Btn1"};
  CopyAndPaste();
  EXPECT_EQ(record.PopUps.At(2)->Alignment, 3);
  EXPECT_EQ(record.PopUps.At(2)->AutoPopUp, 0);
  EXPECT_EQ(record.PopUps.At(2)->PopUpMenu, "");
  Place("HtmlViewer", 200, 10);
  record.HtmlViewers.At(1)->Navigate = "page.htm";
  CopyAndPaste();
  EXPECT_EQ(record.HtmlViewers.At(2)->Navigate, "page.htm");
}

TEST_F(Clipboard, WinSockAndTransparentFrameHaveNoCopies) {
  const ControlRef sock = Place("WinSock", 10, 10);
  EXPECT_EQ(CopyAndPaste(), sock);
  EXPECT_EQ(form.UBound(Kind::WinSock), 1);
  const ControlRef frame = Place("TransparentFrame", 100, 10);
  EXPECT_EQ(CopyAndPaste(), frame);
  EXPECT_EQ(form.UBound(Kind::TransparentFrame), 1);
}

TEST_F(Clipboard, ACopyOfTheFormPastesNothing) {
  Place("Button", 10, 10);
  commands.CopyObject(keys::kC, kCtrlBit);
  user.SelectForm();
  commands.CopyObject(keys::kC, kCtrlBit);
  Paste();
  EXPECT_EQ(form.UBound(Kind::Button), 1);
  EXPECT_NE(ports.Log.Find("status Nothing to paste: the form itself was copied"), -1);
}

TEST_F(Clipboard, APasteThatMakesNothingSaysWhy) {
  Paste();
  EXPECT_NE(ports.Log.Find("status Nothing to paste: no object was copied"), -1);
  Place("WinSock", 10, 10);
  CopyAndPaste();
  EXPECT_NE(ports.Log.Find("status Nothing to paste: Form1Sock1 has no copies"), -1);
}

TEST_F(Clipboard, CopiesTakeTheNextTabOrderExceptImagesAndLabels) {
  Place("Button", 10, 10);
  const ControlRef copy = CopyAndPaste();
  EXPECT_EQ(copy->TabIndex, 1);
  EXPECT_EQ(record.Buttons.At(2)->TabOrder, 1);
  EXPECT_EQ(form.NextTabOrder, 2);
  Place("Label", 10, 200);
  CopyAndPaste();
  Place("Image", 300, 10);
  CopyAndPaste();
  EXPECT_EQ(form.NextTabOrder, 2);
  Place("Time", 10, 300);
  EXPECT_EQ(CopyAndPaste()->TabIndex, 2);
  EXPECT_EQ(form.NextTabOrder, 3);
}

TEST_F(Clipboard, TheTabOrderOfAPastedRichTextBoxGoesWhereACreatedOnesGoes) {
  Place("TextBox", 10, 10);
  Place("TextBox", 10, 40);
  Place("RichTextBox", 10, 100);  // wrote 2 into the first TextBox
  CopyAndPaste();
  EXPECT_EQ(record.TextBoxes.At(2)->TabOrder, 3);
  EXPECT_EQ(record.RichTextBoxes.At(2)->TabOrder, 0);
  EXPECT_EQ(form.NextTabOrder, 4);
}

TEST_F(Clipboard, APasteAddsNoEventEntries) {
  Place("Button", 10, 10);
  const std::size_t before = tables.EventTable.Size();
  CopyAndPaste();
  EXPECT_EQ(tables.EventTable.Size(), before);
}

TEST_F(Clipboard, ADeletedSourceGivesAnObjectWithTheTemplatesValues) {
  const ControlRef source = Place("Button", 10, 10);
  source->Caption = "Gone";
  source->Width = 9000;
  commands.CopyObject(keys::kC, kCtrlBit);
  commands.CutObject(keys::kDelete);
  const ControlRef made = Paste();
  ASSERT_NE(made, nullptr);
  EXPECT_NE(made, source);
  EXPECT_EQ(made->Caption, "");
  EXPECT_EQ(made->Width, Twips(75));
  EXPECT_EQ(made->Left, 0);
  EXPECT_EQ(record.Buttons.At(1)->Enabled, 1) << "the record of the source stayed to be read";
}

TEST_F(Clipboard, AListShowsTheSourcesItemsOnceItHasSome) {
  const ControlRef source = Place("ListBox", 10, 10);
  EXPECT_EQ(CopyAndPaste()->Items, std::vector<std::string>{"Form1List2"});
  Click(source);
  source->Items = {"a", "b"};
  record.ListBoxes.At(1)->Items =
      "a\x95"
      "b\x95";
  EXPECT_EQ(CopyAndPaste()->Items, (std::vector<std::string>{"a", "b"}));
}

TEST_F(Clipboard, ACheckBoxIsCopiedWithItsCheck) {
  Place("CheckBox", 10, 10)->Value = 1;
  const ControlRef copy = CopyAndPaste();
  EXPECT_EQ(copy->Value, 1);
}

}  // namespace
}  // namespace tarnwick
