// Every row of every kind as delivered: an edit is seen where the value is kept, and reads back.
#include <functional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include <gtest/gtest.h>

#include "sheet_bench.h"
#include "text/numbers.h"

namespace tarnwick {
namespace {

using enum Kind;
using Kinds = std::vector<Kind>;
using Look = std::function<std::string(SheetBench&)>;

std::string Print(const std::string& value) {
  return value;
}
std::string Print(float value) {
  return NumberText(value);
}
template <class Number>
std::string Print(Number value) {
  return NumberText(std::int64_t{value});
}

template <class Field>
Look InForm(Field FormRec::*field) {
  return [field](SheetBench& bench) { return Print(bench.Record().*field); };
}
template <class Field>
Look InWindow(Field DesignForm::*field) {
  return [field](SheetBench& bench) { return Print(bench.Form().*field); };
}
template <class Field>
Look InRecord(Field ObjectRec::*field) {
  return [field](SheetBench& bench) {
    const DesignControl& control = *bench.Form().ControlSel;
    const ObjectRec* record = bench.Record().Objects(control.Id)->At(control.Index);
    return Print(record->*field);
  };
}
Look InSocket(std::string WinSockRec::*field) {
  return [field](SheetBench& bench) { return bench.Record().WinSocks.At(1)->*field; };
}
template <class Field>
Look InPopUp(Field PopUpItemRec::*field) {
  return [field](SheetBench& bench) { return Print(bench.Record().PopUps.At(1)->*field); };
}
Look InPage() {
  return [](SheetBench& bench) { return bench.Record().HtmlViewers.At(1)->Navigate; };
}
template <class Field>
Look OnControl(Field DesignControl::*field) {
  return [field](SheetBench& bench) { return Print((*bench.Form().ControlSel).*field); };
}

struct Seen {
  Look Where;
  const char* Value;
};

/// One edit: a typed text, or a place of the row's list, and where it is to be seen.
struct Edit {
  const char* Row;
  Kinds On;
  std::variant<const char*, int> Input;
  std::vector<Seen> SeenAs;
};

const Kinds kSeen{Button,  Label,       Image,   CheckBox, OptionButton,
                  TextBox, RichTextBox, ListBox, ComboBox};
const Kinds kEnabled{Button,  Label,       Image,   CheckBox, OptionButton,
                     TextBox, RichTextBox, ListBox, ComboBox, Time};
const Kinds kTabStops{Button, CheckBox, OptionButton, TextBox, RichTextBox, ListBox, ComboBox};
const Kinds kSized{Button,  Label,       Image,   CheckBox,  OptionButton,
                   TextBox, RichTextBox, ListBox, HtmlViewer};
const Kinds kWide{Button,  Label,       Image,   CheckBox,   OptionButton,
                  TextBox, RichTextBox, ListBox, HtmlViewer, ComboBox};
const Kinds kObjects{Button,      Label,   Image,     CheckBox,  OptionButton, TextBox,
                     RichTextBox, ListBox, ComboBox,  Time,      OpenDialog,   SaveDialog,
                     FileStream,  WinSock, PopUpMenu, HtmlViewer};
const Kinds kTexts{TextBox, RichTextBox};
const Kinds kDialogs{OpenDialog, SaveDialog};

using C = DesignControl;
using O = ObjectRec;
using F = FormRec;

std::vector<Edit> Edits() {
  return {
      {"align", {TransparentFrame}, 2, {{InForm(&F::TfAlign), "2"}}},
      {"alignment", {PopUpMenu}, 2, {{InPopUp(&PopUpItemRec::Alignment), "2"}}},
      {"autopopup", {PopUpMenu}, 0, {{InPopUp(&PopUpItemRec::AutoPopUp), "0"}}},
      {"autopopup", {PopUpMenu}, 1, {{InPopUp(&PopUpItemRec::AutoPopUp), "1"}}},
      {"autosize", {Label}, 1, {{OnControl(&C::AutoSize), "1"}}},
      {"bmphandle",
       {Button, Image},
       "C:\\a.bmp",
       {{InRecord(&O::ImageFile), "C:\\a.bmp"}, {OnControl(&C::Picture), "C:\\a.bmp"}}},
      {"borderstyle", {Form}, 5, {{InForm(&F::BorderStyle), "5"}}},
      {"borderstyle", kTexts, 0, {{OnControl(&C::BorderStyle), "0"}}},
      {"borderstyle", {ListBox}, 0, {{OnControl(&C::Appearance), "0"}}},
      {"caption", {Form}, "Some, text", {{InWindow(&DesignForm::Caption), "Some, text"}}},
      {"caption",
       {Button, Label, CheckBox, OptionButton},
       "Some, text",
       {{OnControl(&C::Caption), "Some, text"}}},
      {"center", {Form}, 1, {{InForm(&F::Center), "1"}}},
      {"checked", {CheckBox}, 1, {{InRecord(&O::Checked), "1"}, {OnControl(&C::Value), "1"}}},
      {"checked", {OptionButton}, 1, {{InRecord(&O::Checked), "1"}, {OnControl(&C::Value), "-1"}}},
      {"checked",
       {CheckBox, OptionButton},
       0,
       {{InRecord(&O::Checked), "0"}, {OnControl(&C::Value), "0"}}},
      {"color", {Form}, "255", {{InWindow(&DesignForm::BackColor), "255"}}},
      {"color", {Label, TextBox, RichTextBox, ListBox}, "255", {{OnControl(&C::BackColor), "255"}}},
      {"columns", {ListBox}, "3", {{InRecord(&O::Columns), "3"}}},
      {"cursor", {Form}, 21, {{InForm(&F::Cursor), "21"}}},
      {"cursor", {Button, Label, Image, ListBox, ComboBox}, 21, {{InRecord(&O::Cursor), "21"}}},
      {"enabled", kEnabled, 0, {{InRecord(&O::Enabled), "0"}}},
      {"enabled", kEnabled, 1, {{InRecord(&O::Enabled), "1"}}},
      {"family", {WinSock}, 0, {{InSocket(&WinSockRec::Family), "AF_INET"}}},
      {"filename", kDialogs, "a.txt", {{InRecord(&O::FileName), "a.txt"}}},
      {"filter", kDialogs, "Texts|*.txt", {{InRecord(&O::Filter), "Texts|*.txt"}}},
      {"fontcolor", {Button}, "65280", {{InRecord(&O::FontColor), "65280"}}},
      {"fontcolor",
       {Label, CheckBox, OptionButton, TextBox, RichTextBox, ListBox},
       "65280",
       {{OnControl(&C::ForeColor), "65280"}}},
      {"height",
       {Form},
       "200",
       {{InForm(&F::Height), "200"}, {InWindow(&DesignForm::Height), "3000"}}},
      {"height",
       {TransparentFrame},
       "50",
       {{InForm(&F::TfHeight), "50"}, {OnControl(&C::Height), "750"}}},
      {"height", kSized, "50", {{OnControl(&C::Height), "750"}}},
      {"hidescrollbars", {RichTextBox}, 1, {{InRecord(&O::HideScrollBars), "1"}}},
      {"hint", {Form}, "Some, hint", {{InForm(&F::Hint), "Some, hint"}}},
      {"hint", kSeen, "Some, hint", {{OnControl(&C::ToolTipText), "Some, hint"}}},
      {"icohandle",
       {Form},
       "C:\\a.ico",
       {{InForm(&F::ImageFile), "C:\\a.ico"},
        {InForm(&F::IconFile), "C:\\a.ico"},
        {InWindow(&DesignForm::WindowIcon), "C:\\a.ico"}}},
      {"icon(app)",
       {Form},
       "C:\\a.ico",
       {{InForm(&F::IconFile), "C:\\a.ico"}, {InForm(&F::ImageFile), "(Default)"}}},
      {"initialdir", kDialogs, "C:\\docs", {{InRecord(&O::InitialDir), "C:\\docs"}}},
      {"interval", {Time}, "250", {{InRecord(&O::Interval), "250"}}},
      {"left", {Form}, "-7", {{InForm(&F::Left), "-7"}, {InWindow(&DesignForm::Left), "0"}}},
      {"left",
       {TransparentFrame},
       "-7",
       {{InForm(&F::TfLeft), "-7"}, {OnControl(&C::Left), "-105"}}},
      {"left", kObjects, "-7", {{OnControl(&C::Left), "-105"}}},
      {"multiselect", {ListBox}, 1, {{InRecord(&O::MultiSelect), "1"}}},
      {"navigate", {HtmlViewer}, "C:\\a.htm", {{InPage(), "C:\\a.htm"}}},
      {"parent", {PopUpMenu}, 0, {{InPopUp(&PopUpItemRec::PopUpMenu), "Form1"}}},
      {"protocol", {WinSock}, 1, {{InSocket(&WinSockRec::Protocol), "IPPROTO_TCP"}}},
      {"readonly", kTexts, 1, {{InRecord(&O::ReadOnly), "1"}}},
      {"scrollbars", {RichTextBox}, 3, {{InRecord(&O::ScrollBars), "3"}}},
      {"sorted", {ListBox, ComboBox}, 1, {{InRecord(&O::Sorted), "1"}}},
      {"stretch", {Image}, 1, {{OnControl(&C::Stretch), "1"}}},
      {"taborder", kTabStops, "9", {{InRecord(&O::TabOrder), "9"}}},
      {"text",
       {TextBox, RichTextBox, ComboBox},
       "Some, text",
       {{OnControl(&C::Text), "Some, text"}}},
      {"title", kDialogs, "Some, text", {{InRecord(&O::Title), "Some, text"}}},
      {"top", {Form}, "8", {{InForm(&F::Top), "8"}, {InWindow(&DesignForm::Top), "0"}}},
      {"top", {TransparentFrame}, "8", {{InForm(&F::TfTop), "8"}, {OnControl(&C::Top), "120"}}},
      {"top", kObjects, "8", {{OnControl(&C::Top), "120"}}},
      {"transparency", {TransparentFrame}, "80", {{InForm(&F::TfTransparency), "80"}}},
      {"transpcolor", {TransparentFrame}, "255", {{InForm(&F::TfTranspColor), "255"}}},
      {"transparent", {Label}, 1, {{OnControl(&C::BackStyle), "0"}}},
      {"type", {WinSock}, 1, {{InSocket(&WinSockRec::Type), "SOCK_DGRAM"}}},
      {"visible", kSeen, 0, {{InRecord(&O::Visible), "0"}, {OnControl(&C::Visible), "1"}}},
      {"width",
       {Form},
       "200",
       {{InForm(&F::Width), "200"}, {InWindow(&DesignForm::Width), "3000"}}},
      {"width",
       {TransparentFrame},
       "50",
       {{InForm(&F::TfWidth), "50"}, {OnControl(&C::Width), "750"}}},
      {"width", kWide, "50", {{OnControl(&C::Width), "750"}}},
      {"windowstate", {Form}, 2, {{InForm(&F::WndState), "2"}}},
      {"wmessage", {WinSock}, "1025", {{InSocket(&WinSockRec::WMessage), "1025"}}},
      {"wordwrap", {Label}, 1, {{InRecord(&O::Icon), "1"}, {OnControl(&C::WordWrap), "1"}}},
      {"wordwrap", {RichTextBox}, 1, {{InRecord(&O::Icon), "1"}}},
  };
}

Kinds KindsWithRows() {
  Kinds kinds{Form};
  for (const KindInfo& info : AllKinds().first<kObjectKindCount>()) kinds.push_back(info.Id);
  return kinds;
}

std::string Where(Kind kind, std::string_view row) {
  return std::string{InfoOf(kind).Name} + "." + Lower(row);
}

void Try(const Edit& edit, Kind kind) {
  SheetBench bench;
  bench.Host.Pictures = {"C:\\a.bmp", "C:\\a.ico"};
  bench.MakeOrForm(kind);
  const int row = bench.RowOf(edit.Row);
  ASSERT_GT(row, 0) << Where(kind, edit.Row);
  std::string shown;
  if (const auto* text = std::get_if<const char*>(&edit.Input)) {
    shown = *text;
    EXPECT_TRUE(bench.Type(edit.Row, shown)) << Where(kind, edit.Row);
  } else {
    const int place = std::get<int>(edit.Input);
    bench.Sheet.SelectRow(row);
    ASSERT_LT(static_cast<std::size_t>(place), bench.Sheet.List().Values().size());
    shown = bench.Sheet.List().Values()[static_cast<std::size_t>(place)];
    EXPECT_TRUE(bench.Sheet.ApplyChoice(shown, place)) << Where(kind, edit.Row);
  }
  for (const Seen& seen : edit.SeenAs) {
    EXPECT_EQ(seen.Where(bench), seen.Value) << Where(kind, edit.Row);
  }
  bench.Sheet.ShowSelection();
  EXPECT_EQ(bench.Text(edit.Row), shown) << Where(kind, edit.Row);
}

TEST(EveryRow, AnEditIsSeenWhereTheValueIsKeptAndReadsBack) {
  for (const Edit& edit : Edits()) {
    for (const Kind kind : edit.On) Try(edit, kind);
  }
}

TEST(EveryRow, EveryValueOfEveryListReadsBack) {
  for (const Kind kind : KindsWithRows()) {
    SheetBench bench;
    bench.MakeOrForm(kind);
    for (int row = 1; row < bench.Sheet.RowCount(); ++row) {
      bench.Sheet.SelectRow(row);
      const std::vector<std::string> values = bench.Sheet.List().Values();
      for (std::size_t i = 0; i < values.size(); ++i) {
        bench.Sheet.SelectRow(row);
        EXPECT_TRUE(bench.Sheet.ApplyChoice(values[i], static_cast<int>(i)));
        bench.Sheet.ShowSelection();
        EXPECT_EQ(bench.Sheet.Text(row), values[i]) << Where(kind, bench.Sheet.Label(row));
      }
    }
  }
}

TEST(EveryRow, EveryDeliveredRowIsTriedHereOrIsFilledByADialogAlone) {
  std::set<std::string> tried;
  for (const Edit& edit : Edits()) {
    for (const Kind kind : edit.On) tried.insert(Where(kind, edit.Row));
  }
  for (const Kind kind : KindsWithRows()) {
    SheetBench bench;
    bench.MakeOrForm(kind);
    ASSERT_GT(bench.Sheet.RowCount(), 1) << InfoOf(kind).Name;
    for (int row = 1; row < bench.Sheet.RowCount(); ++row) {
      const std::string where = Where(kind, bench.Sheet.Label(row));
      EXPECT_NE(tried.contains(where), !bench.Sheet.TakesTyping(row)) << where;
    }
  }
}

TEST(EveryRow, RowsThatADialogAloneFillsAreOffered) {
  const std::vector<std::pair<const char*, Kinds>> rows{
      {"Font", {Button, TextBox, Label, ListBox, OptionButton, CheckBox, RichTextBox}},
      {"AddItems", {ListBox, ComboBox, PopUpMenu}}};
  for (const auto& [row, kinds] : rows) {
    for (const Kind kind : kinds) {
      SheetBench bench;
      bench.MakeOrForm(kind);
      EXPECT_GT(bench.RowOf(row), 0) << Where(kind, row);
    }
  }
}

TEST(EveryRow, TheDeliveredRowsAre176) {
  int rows = 0;
  for (const Kind kind : KindsWithRows()) {
    SheetBench bench;
    bench.MakeOrForm(kind);
    rows += bench.Sheet.RowCount() - 1;
  }
  EXPECT_EQ(rows, 176);
}

TEST(EveryRow, NoRowOfAFreshObjectIsWithoutAValueUnlessItsTextIsEmpty) {
  const std::set<std::string_view> may_be_empty{"hint", "title", "filename", "initialdir"};
  for (const Kind kind : KindsWithRows()) {
    SheetBench bench;
    bench.MakeOrForm(kind);
    for (int row = 1; row < bench.Sheet.RowCount(); ++row) {
      if (may_be_empty.contains(Lower(bench.Sheet.Label(row)))) continue;
      EXPECT_NE(bench.Sheet.Text(row), "") << Where(kind, bench.Sheet.Label(row));
    }
  }
}

}  // namespace
}  // namespace tarnwick
