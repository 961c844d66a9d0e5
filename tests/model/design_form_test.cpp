#include "model/design_form.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace tarnwick {
namespace {

/// The collection of a form as words, objects by array and index.
std::vector<std::string> Collection(const DesignForm& form) {
  std::vector<std::string> words;
  for (const ControlRef& control : form.Controls()) words.push_back(control->ArrayAndIndex());
  return words;
}

TEST(DesignForm, ANewFormHoldsTheTemplatesThenItsOwnParts) {
  const DesignForm form;
  EXPECT_EQ(Collection(form),
            (std::vector<std::string>{
                "Button0",     "Label0",       "Images0",     "CheckBox0",         "OptionButton0",
                "TextBox0",    "RichTextBox0", "ListBox0",    "ComboBox0",         "Time0",
                "OpenDialog0", "SaveDialog0",  "FileStream0", "TransparentFrame0", "HtmlViewer0",
                "WinSock0",    "PopUpMnu0",    "mnuBar0",     "ItemMnuBar0",       "Numero0",
                "Frame0",      "picHandle0",   "picHandle1",  "picHandle2",        "picHandle3",
                "picHandle4",  "picHandle5",   "picHandle6",  "picHandle7"}));
  for (const ControlRef& control : form.Controls()) EXPECT_FALSE(control->Visible);
}

TEST(DesignForm, ObjectsStandInTheOrderInWhichTheyCame) {
  DesignForm form;
  const std::size_t own = form.Controls().size();
  form.Load(Kind::Label);
  form.Load(Kind::Button);
  form.Load(Kind::Label);
  std::vector<std::string> words = Collection(form);
  words.erase(words.begin(), words.begin() + static_cast<std::ptrdiff_t>(own));
  EXPECT_EQ(words, (std::vector<std::string>{"Label1", "Button1", "Label2"}));
}

TEST(DesignForm, ADeletedControlLeavesAndTheOthersKeepOrderAndIndex) {
  DesignForm form;
  const std::size_t own = form.Controls().size();
  for (int i = 0; i < 3; ++i) form.Load(Kind::Button);
  form.Unload(form.Element(Kind::Button, 2));
  std::vector<std::string> words = Collection(form);
  words.erase(words.begin(), words.begin() + static_cast<std::ptrdiff_t>(own));
  EXPECT_EQ(words, (std::vector<std::string>{"Button1", "Button3"}));
  EXPECT_EQ(form.Element(Kind::Button, 2), nullptr);
  EXPECT_EQ(form.UBound(Kind::Button), 3);
}

TEST(DesignForm, TheNextElementTakesTheHighestIndexPlusOne) {
  DesignForm form;
  for (int i = 0; i < 3; ++i) form.Load(Kind::Button);
  form.Unload(form.Element(Kind::Button, 2));
  EXPECT_EQ(form.Load(Kind::Button)->Index, 4);
  form.Unload(form.Element(Kind::Button, 4));
  form.Unload(form.Element(Kind::Button, 3));
  // Index 2 went before: the highest live one is 1.
  EXPECT_EQ(form.UBound(Kind::Button), 1);
  EXPECT_EQ(form.Load(Kind::Button)->Index, 2);
}

TEST(DesignForm, ANewElementIsAHiddenCopyOfItsTemplate) {
  DesignForm form;
  form.Element(Kind::Label, 0)->Caption = "From the template";
  const ControlRef label = form.Load(Kind::Label);
  EXPECT_EQ(label->Caption, "From the template");
  EXPECT_FALSE(label->Visible);
  EXPECT_EQ(label->Width, 65 * 15);
  EXPECT_EQ(label->Height, 17 * 15);
  EXPECT_EQ(label->FontName, "MS Sans Serif");
  EXPECT_EQ(label->FontSize, 8);
  EXPECT_EQ(label->BackColor, 12632256);
  EXPECT_EQ(label->ForeColor, 0);
}

TEST(DesignForm, TemplatesHaveTheirSizesAndColours) {
  struct Row {
    Kind Id;
    int Width, Height;
    std::int32_t Back;
  };
  const DesignForm form;
  for (const Row& row : std::vector<Row>{
           {Kind::Button, 75, 25, 12632256},
           {Kind::TextBox, 121, 21, 16777215},
           {Kind::RichTextBox, 185, 89, 16777215},
           {Kind::ListBox, 121, 97, 16777215},
           {Kind::ComboBox, 145, 21, 16777215},
           {Kind::CheckBox, 97, 17, 12632256},
           {Kind::OptionButton, 97, 17, 12632256},
           {Kind::Time, 28, 28, 12632256},
           {Kind::PopUpMenu, 28, 28, 12632256},
       }) {
    const ControlRef element = form.Element(row.Id, 0);
    EXPECT_EQ(element->Width, static_cast<float>(row.Width * 15)) << InfoOf(row.Id).Name;
    EXPECT_EQ(element->Height, static_cast<float>(row.Height * 15)) << InfoOf(row.Id).Name;
    EXPECT_EQ(element->BackColor, row.Back) << InfoOf(row.Id).Name;
    EXPECT_EQ(element->BorderStyle, 1);
    EXPECT_EQ(element->Appearance, 1);
  }
  EXPECT_EQ(form.Element(Kind::Image, 0)->Width, 105 * 15);
  EXPECT_EQ(form.Element(Kind::HtmlViewer, 0)->Height, 120 * 15);
}

TEST(DesignForm, ATemplateIsNeverUnloaded) {
  DesignForm form;
  const std::size_t count = form.Controls().size();
  form.Unload(form.Element(Kind::Button, 0));
  form.Unload(nullptr);
  EXPECT_EQ(form.Controls().size(), count);
}

TEST(DesignForm, UnloadingTheSelectedControlClearsTheSelection) {
  DesignForm form;
  form.ControlSel = form.Load(Kind::Time);
  form.Unload(form.Element(Kind::Time, 1));
  EXPECT_EQ(form.ControlSel, nullptr);
}

TEST(DesignForm, AnArrayCanBeEmptiedDownToItsTemplate) {
  DesignForm form;
  form.Load(Kind::Menu);
  form.Load(Kind::Button);
  form.Load(Kind::Menu);
  form.ControlSel = form.Element(Kind::Menu, 2);
  form.UnloadAll(Kind::Menu);
  EXPECT_EQ(form.UBound(Kind::Menu), 0);
  EXPECT_EQ(form.ControlSel, nullptr);
  EXPECT_NE(form.Element(Kind::Button, 1), nullptr);
  EXPECT_EQ(form.Load(Kind::Menu)->Index, 1);
}

TEST(DesignForm, TheNumberIsReadFromItsHiddenLabel) {
  DesignForm form;
  EXPECT_EQ(form.Number(), 0);
  form.SetNumber(12);
  EXPECT_EQ(form.Number(), 12);
  EXPECT_EQ(form.KeyPrefix(), "Form12");
  EXPECT_EQ(form.Element(Kind::Numero, 0)->Caption, "12");
  form.Element(Kind::Numero, 0)->Caption = "  7 ";
  EXPECT_EQ(form.KeyPrefix(), "Form7");
}

TEST(DesignForm, TheFirstObjectOfAKindIsNeverItsTemplate) {
  DesignForm form;
  EXPECT_EQ(form.FirstOf(Kind::Label), nullptr);
  EXPECT_FALSE(form.HasObjects(Kind::Label));
  form.Load(Kind::Label);
  form.Load(Kind::Label);
  form.Unload(form.Element(Kind::Label, 1));
  EXPECT_EQ(form.FirstOf(Kind::Label)->Index, 2);
  EXPECT_TRUE(form.HasObjects(Kind::Label));
}

TEST(DesignForm, ObjectsAreFoundByTheirName) {
  DesignForm form;
  form.Load(Kind::Label)->Tag = "A";
  form.Load(Kind::Button)->Tag = "B";
  form.Load(Kind::Menu)->Tag = "M";
  EXPECT_EQ(form.FindByTag("B"), form.Element(Kind::Button, 1));
  // A menu is no object, and templates without a name are none either.
  EXPECT_EQ(form.FindByTag("M"), nullptr);
  EXPECT_EQ(form.FindByTag(""), nullptr);
}

TEST(DesignForm, DrawingOrderChangesWithoutTheCollection) {
  DesignForm form;
  const ControlRef a = form.Load(Kind::Button);
  const ControlRef b = form.Load(Kind::Button);
  const ControlRef c = form.Load(Kind::Button);
  const std::vector<std::string> before = Collection(form);
  form.ZOrder(a, true);
  EXPECT_EQ(form.DrawOrder(), (std::vector<ControlRef>{b, c, a}));
  form.ZOrder(c, false);
  EXPECT_EQ(form.DrawOrder(), (std::vector<ControlRef>{c, b, a}));
  EXPECT_EQ(Collection(form), before);
}

TEST(DesignForm, TheMenuBarShowsWhenATitleIsVisible) {
  DesignForm form;
  EXPECT_FALSE(form.MenuBarVisible());
  const ControlRef title = form.Load(Kind::Menu);
  EXPECT_FALSE(form.MenuBarVisible());
  title->Visible = true;
  EXPECT_TRUE(form.MenuBarVisible());
}

TEST(DesignForm, ANewFormHasTheFormSelectedAndIsOpenForDesign) {
  const DesignForm form;
  EXPECT_EQ(form.NameObjet, "Form");
  EXPECT_EQ(form.ControlSel, nullptr);
  EXPECT_TRUE(form.m_bDesignMode);
  EXPECT_EQ(form.NextTabOrder, 0);
  EXPECT_EQ(form.BackColor, 12632256);
}

}  // namespace
}  // namespace tarnwick
