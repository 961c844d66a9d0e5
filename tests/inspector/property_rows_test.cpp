#include "inspector/property_rows.h"

#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "persistence/support_files.h"

namespace tarnwick {
namespace {

using language::SupportTables;

SupportTables TablesOf(std::string_view kind_line) {
  SupportTables tables;
  AddKindFile(tables, kind_line);
  return tables;
}

TEST(PropertyRows, AByteThatIsNoMarkLeavesTheRowToTyping) {
  EXPECT_FALSE(WidgetsOf(0x8A).Boton1);
}

struct Shown {
  int Mark;
  bool Boton1;
  bool Boton2;
  bool TakesFocus;
  bool List;
};

TEST(PropertyRows, EachMarkShowsItsWidgets) {
  for (const Shown& shown :
       {Shown{0, false, false, false, false}, Shown{151, false, true, false, true},
        Shown{152, true, false, true, false}, Shown{153, true, false, true, false},
        Shown{154, true, false, true, false}, Shown{155, false, true, true, false},
        Shown{156, false, true, false, false}, Shown{157, true, false, false, false},
        Shown{158, false, true, false, true}, Shown{159, true, false, true, false},
        Shown{161, true, false, true, false}, Shown{162, true, false, true, false},
        Shown{160, false, false, false, false}}) {
    const RowWidgets& widgets = WidgetsOf(shown.Mark);
    EXPECT_EQ(widgets.Boton1, shown.Boton1) << shown.Mark;
    EXPECT_EQ(widgets.Boton2, shown.Boton2) << shown.Mark;
    EXPECT_EQ(widgets.TakesFocus, shown.TakesFocus) << shown.Mark;
    EXPECT_EQ(widgets.List, shown.List) << shown.Mark;
  }
}

TEST(PropertyRows, EnumTextIsTheValueAtAPlace) {
  const SupportTables tables = TablesOf(
      "[FORM]\x8D"
      "Center\x97\x95WindowState\x9Ewsn\x8Bwsm\x8Bwsx\x95Top\x8E");
  EXPECT_EQ(EnumText(tables, "FORM", "WindowState\x9E", 1), "wsm");
  EXPECT_EQ(EnumText(tables, "form", "windowstate", 2), "wsx");
  EXPECT_EQ(EnumText(tables, "FORM", "Center", 1), "True");
}

TEST(PropertyRows, EnumTextOutOfRangeOrUnknownIsEmpty) {
  const SupportTables tables = TablesOf(
      "[FORM]\x8D"
      "WindowState\x9Ewsn\x95Top\x8E");
  EXPECT_EQ(EnumText(tables, "FORM", "WindowState", 1), "");
  EXPECT_EQ(EnumText(tables, "FORM", "WindowState", -1), "");
  EXPECT_EQ(EnumText(tables, "FORM", "Top", 0), "");
  EXPECT_EQ(EnumText(tables, "FORM", "Bottom", 0), "");
  EXPECT_EQ(EnumText(tables, "BUTTON", "WindowState", 0), "");
}

TEST(PropertyRows, RowsAreLookedUpByTheirWholeName) {
  const SupportTables tables =
      TablesOf("[RICHTEXTBOX]\x8DHideScrollBars\x9Eno\x8Byes\x95ScrollBars\x9Essn\x8Bssh\x8E");
  EXPECT_EQ(EnumText(tables, "RICHTEXTBOX", "scrollbars\x9E", 1), "ssh");
}

TEST(PropertyRows, KindWordsLoseTheirIndexAndArrayNames) {
  EXPECT_EQ(KindWordOf("Button3"), "Button");
  EXPECT_EQ(KindWordOf("Images"), "Image");
  EXPECT_EQ(KindWordOf("Images12"), "Image");
  EXPECT_EQ(KindWordOf("PopUpMnu"), "PopupMenu");
  EXPECT_EQ(KindWordOf("TransparentFrame"), "TransparentFrame");
}

TEST(PropertyRows, AKindWithoutALineHasNoRows) {
  EXPECT_TRUE(PropertyRowsOf(TablesOf(""), "BUTTON").empty());
  EXPECT_TRUE(PropertyRowsOf(TablesOf("[BUTTON]\x8D\x8E"), "BUTTON").empty());
}

}  // namespace
}  // namespace tarnwick
