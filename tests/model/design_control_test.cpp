#include "model/design_control.h"

#include <algorithm>
#include <string>
#include <variant>
#include <vector>

#include <gtest/gtest.h>

namespace tarnwick {
namespace {

DesignControl Of(Kind kind) {
  DesignControl control;
  control.Id = kind;
  return control;
}

TEST(DesignControl, MembersAreNamedInAnyCase) {
  DesignControl label = Of(Kind::Label);
  EXPECT_TRUE(label.Set("cApTiOn", std::string("Hello")));
  EXPECT_EQ(std::get<std::string>(*label.Get("CAPTION")), "Hello");
  EXPECT_EQ(MemberOfName("caption"), Member::Caption);
  EXPECT_EQ(MemberOfName("captions"), std::nullopt);
}

TEST(DesignControl, AMemberThatTheClassLacksAnswersNothingAndChangesNothing) {
  DesignControl box = Of(Kind::TextBox);
  EXPECT_FALSE(box.Set(Member::Caption, std::string("x")));
  EXPECT_EQ(box.Get(Member::Caption), std::nullopt);
  EXPECT_EQ(box.Caption, "");
  EXPECT_FALSE(box.Set("NoSuchMember", true));
  EXPECT_EQ(box.Get("NoSuchMember"), std::nullopt);
}

/// The yes and no of the generated common lines follow from the classes' members.
TEST(DesignControl, EveryKindHasTheMembersThatItsGeneratedLinesAskFor) {
  struct Row {
    Member Asked;
    std::vector<Kind> With;
  };
  using enum Kind;
  const std::vector<Kind> walked{Button,  CheckBox,     ComboBox,    Image,  Label,
                                 ListBox, OptionButton, RichTextBox, TextBox};
  const std::vector<Kind> with_font{Button,       CheckBox,    Label,  ListBox,
                                    OptionButton, RichTextBox, TextBox};
  for (const Row& row : std::vector<Row>{
           {Member::FontName, with_font},
           {Member::FontSize, with_font},
           {Member::FontBold, with_font},
           {Member::FontItalic, with_font},
           {Member::ForeColor,
            {CheckBox, ComboBox, Label, ListBox, OptionButton, RichTextBox, TextBox}},
           {Member::AutoSize, {Label}},
           {Member::Top, walked},
           {Member::Left, walked},
           {Member::Width, walked},
           {Member::Height, walked},
           {Member::Caption, {Button, CheckBox, Label, OptionButton}},
           {Member::Stretch, {Image}},
           {Member::Text, {ComboBox, RichTextBox, TextBox}},
           {Member::ToolTipText, walked},
           {Member::Value, {CheckBox, OptionButton}},
           {Member::List, {ComboBox, ListBox}},
           {Member::BackStyle, {ComboBox, Label}},
       }) {
    for (const Kind kind : walked) {
      const bool expected = std::find(row.With.begin(), row.With.end(), kind) != row.With.end();
      EXPECT_EQ(Of(kind).Has(row.Asked), expected)
          << InfoOf(kind).Name << " member " << static_cast<int>(row.Asked);
    }
  }
}

TEST(DesignControl, ATextSetOnANumberCountsByTheNumberAtItsHead) {
  DesignControl label = Of(Kind::Label);
  EXPECT_TRUE(label.Set(Member::BackStyle, std::string(" 2 apples")));
  EXPECT_EQ(label.BackStyle, 2);
  EXPECT_TRUE(label.Set(Member::BackStyle, std::string("apples")));
  EXPECT_EQ(label.BackStyle, 0);
}

TEST(DesignControl, WholeNumbersRoundHalfToEven) {
  DesignControl label = Of(Kind::Label);
  label.Set(Member::BackStyle, std::string("2.5"));
  EXPECT_EQ(label.BackStyle, 2);
  label.Set(Member::BackStyle, std::string("3.5"));
  EXPECT_EQ(label.BackStyle, 4);
}

TEST(DesignControl, ANumberOutsideSixteenBitsIsRefusedAndTheOldOneStays) {
  DesignControl label = Of(Kind::Label);
  EXPECT_TRUE(label.Set(Member::BackStyle, std::string("32767")));
  EXPECT_FALSE(label.Set(Member::BackStyle, std::string("32768")));
  EXPECT_EQ(label.BackStyle, 32767);
  EXPECT_TRUE(label.Set(Member::BackStyle, std::string("-32768")));
  EXPECT_FALSE(label.Set(Member::BackStyle, std::string("-32769")));
  EXPECT_EQ(label.BackStyle, -32768);
}

TEST(DesignControl, ANumberOutsideThirtyTwoBitsIsRefusedAndTheOldOneStays) {
  DesignControl label = Of(Kind::Label);
  EXPECT_TRUE(label.Set(Member::BackColor, std::string("-2147483648")));
  EXPECT_FALSE(label.Set(Member::BackColor, std::string("-2147483649")));
  EXPECT_FALSE(label.Set(Member::BackColor, std::string("2147483648")));
  EXPECT_FALSE(label.Set(Member::BackColor, std::string("1e999")));
  EXPECT_EQ(label.BackColor, -2147483647 - 1);
  EXPECT_TRUE(label.Set(Member::BackColor, std::string("2147483647")));
  EXPECT_EQ(label.BackColor, 2147483647);
}

TEST(DesignControl, ANumberTooLargeForSinglePrecisionIsRefused) {
  DesignControl label = Of(Kind::Label);
  label.FontSize = 9.5F;
  EXPECT_FALSE(label.Set(Member::FontSize, std::string("1e60")));
  EXPECT_EQ(label.FontSize, 9.5F);
  EXPECT_TRUE(label.Set(Member::FontSize, std::string("8.25")));
  EXPECT_EQ(label.FontSize, 8.25F);
}

TEST(DesignControl, AYesNoMemberIsOnForAnyNumberButNought) {
  DesignControl label = Of(Kind::Label);
  for (const char* on : {"1", "-1", "7", "0.25"}) {
    label.AutoSize = false;
    EXPECT_TRUE(label.Set(Member::AutoSize, std::string(on)));
    EXPECT_TRUE(label.AutoSize) << on;
  }
  for (const char* off : {"0", "", "yes"}) {
    label.AutoSize = true;
    EXPECT_TRUE(label.Set(Member::AutoSize, std::string(off)));
    EXPECT_FALSE(label.AutoSize) << off;
  }
}

TEST(DesignControl, ACheckBoxKeepsTheNumberItWasGiven) {
  DesignControl check = Of(Kind::CheckBox);
  EXPECT_TRUE(check.Set(Member::Value, std::string("2")));
  EXPECT_EQ(check.Value, 2);
  EXPECT_FALSE(check.Set(Member::Value, std::string("40000")));
  EXPECT_EQ(check.Value, 2);
}

TEST(DesignControl, AnOptionButtonIsTrueForAnyNumberButNought) {
  DesignControl option = Of(Kind::OptionButton);
  for (const char* on : {"1", "-1", "2", "40000"}) {
    option.Value = 0;
    EXPECT_TRUE(option.Set(Member::Value, std::string(on)));
    EXPECT_EQ(option.Value, -1) << on;
  }
  EXPECT_TRUE(option.Set(Member::Value, std::string("0")));
  EXPECT_EQ(option.Value, 0);
}

TEST(DesignControl, OnlyListsTakeRows) {
  DesignControl list = Of(Kind::ListBox);
  DesignControl combo = Of(Kind::ComboBox);
  DesignControl button = Of(Kind::Button);
  EXPECT_TRUE(list.AddItem("a"));
  EXPECT_TRUE(combo.AddItem("b"));
  EXPECT_FALSE(button.AddItem("c"));
  EXPECT_EQ(list.Items, std::vector<std::string>{"a"});
  EXPECT_TRUE(button.Items.empty());
}

TEST(DesignControl, ArrayAndIndexAreThoseOfTheKeys) {
  DesignControl image = Of(Kind::Image);
  image.Index = 3;
  EXPECT_EQ(image.ArrayAndIndex(), "Images3");
  DesignControl popup = Of(Kind::PopUpMenu);
  popup.Index = 12;
  EXPECT_EQ(popup.ArrayAndIndex(), "PopUpMnu12");
}

TEST(DesignControl, NumbersAndYesNoConvertBothWays) {
  DesignControl label = Of(Kind::Label);
  EXPECT_TRUE(label.Set(Member::Caption, true));
  EXPECT_EQ(label.Caption, "True");
  EXPECT_TRUE(label.Set(Member::Caption, 1.5F));
  EXPECT_EQ(label.Caption, "1.5");
  EXPECT_TRUE(label.Set(Member::Caption, std::int32_t{-7}));
  EXPECT_EQ(label.Caption, "-7");
  EXPECT_TRUE(label.Set(Member::BackStyle, true));
  EXPECT_EQ(label.BackStyle, -1);
}

TEST(DesignControl, EachMemberIsTheFieldOfItsName) {
  DesignControl control;
  control.Caption = "Caption";
  control.FontName = "FontName";
  control.Picture = "Picture";
  control.Tag = "Tag";
  control.Text = "Text";
  control.ToolTipText = "ToolTipText";
  // The others hold the number of their member, yes/no fields whether that is the one in turn.
  const auto number = [](Member member) { return static_cast<std::int16_t>(member); };
  control.Appearance = number(Member::Appearance);
  control.BackColor = number(Member::BackColor);
  control.BackStyle = number(Member::BackStyle);
  control.BorderStyle = number(Member::BorderStyle);
  control.FontSize = number(Member::FontSize);
  control.ForeColor = number(Member::ForeColor);
  control.Height = number(Member::Height);
  control.Left = number(Member::Left);
  control.TabIndex = number(Member::TabIndex);
  control.Top = number(Member::Top);
  control.Value = number(Member::Value);
  control.Width = number(Member::Width);
  for (std::size_t i = 0; i < kMemberCount; ++i) {
    const auto member = static_cast<Member>(i);
    control.AutoSize = member == Member::AutoSize;
    control.Cancel = member == Member::Cancel;
    control.Default = member == Member::Default;
    control.Enabled = member == Member::Enabled;
    control.FontBold = member == Member::FontBold;
    control.FontItalic = member == Member::FontItalic;
    control.FontStrikethru = member == Member::FontStrikethru;
    control.FontUnderline = member == Member::FontUnderline;
    control.Stretch = member == Member::Stretch;
    control.Visible = member == Member::Visible;
    control.WordWrap = member == Member::WordWrap;
    std::visit(
        [&](auto field) {
          using Field = decltype(field);
          if constexpr (std::is_same_v<Field, std::monostate>) {
            EXPECT_EQ(member, Member::List);
          } else if constexpr (std::is_same_v<Field, bool DesignControl::*>) {
            EXPECT_TRUE(control.*field) << kMemberNames[i].Name;
          } else if constexpr (std::is_same_v<Field, std::string DesignControl::*>) {
            EXPECT_EQ(control.*field, kMemberNames[i].Name);
          } else {
            EXPECT_EQ(control.*field, number(member)) << kMemberNames[i].Name;
          }
        },
        FieldOf(member));
  }
}

}  // namespace
}  // namespace tarnwick
