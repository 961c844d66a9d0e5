#include "shell/events_bar.h"

#include <gtest/gtest.h>

#include "shell_fixture.h"

namespace tarnwick {
namespace {

constexpr int kButtonTool = 0;

class EventsBarTest : public ShellTest {
 protected:
  EventsBar& bar() { return main.Bar(); }

  void SetUp() override {
    ports.Files.Put(std::string(kProgram) + "\\Add004.tn",
                    "[FORM]\x8D"
                    "Caption\r\n");
    Start();
  }

  /// A form file read as Open does; the form is the current one afterwards, number 1.
  void Read(const std::string& form_text) {
    ports.Files.Put("Z:\\p\\one.ftn", form_text);
    ports.Files.Put("Z:\\p\\one.tnp", "one.ftn\r\n");
    ports.Dialogs.OpenAnswers = {"Z:\\p\\one.tnp"};
    main.Commands().Run(Command::Open);
    ASSERT_EQ(tables().FormsCount, 1);
    log().Clear();
  }
  /// Code as the editor stores it, then the word to the bar.
  void Store(const std::string& owner, Event event, const std::string& code) {
    tables().EventTable.Replace("Form1" + (owner == "Form" ? "" : "." + owner), event, code);
    if (code.empty()) {
      bar().DelBoockMarck(1, owner);
    } else {
      bar().PopBoockMarck(1, owner);
    }
  }
  std::vector<std::string> Tags(int form = 1) {
    std::vector<std::string> tags;
    for (const BarButton& button : bar().btncodigo(form)) tags.push_back(button.Tag);
    return tags;
  }
  std::vector<std::string> Tips(int form = 1) {
    std::vector<std::string> tips;
    for (const BarButton& button : bar().btncodigo(form)) tips.push_back(button.Tip);
    return tips;
  }
  /// An object of each kind that a bar can show; the word is that of `NameObjet`.
  ControlRef AddObject(Kind kind) {
    const ControlRef control = tables().User(1)->Load(kind);
    control->Visible = true;
    return control;
  }
  ControlRef AddMenuItem(const std::string& name) {
    const ControlRef title = tables().User(1)->Load(Kind::Menu);
    title->Visible = true;
    const ControlRef item = tables().User(1)->Load(Kind::MenuItem);
    item->Visible = true;
    item->Tag = name;
    return item;
  }
  std::string Index(std::string_view section, std::string_view prefix) {
    return main.SettingsFile().ReadEventIndex(section, prefix);
  }
};

using Texts = std::vector<std::string>;

/// Counts what views of the bar hear.
class BarWatcher final : public ProjectObserver {
 public:
  int Changes = 0;
  void EventsBarChanged(int /*form*/) override { ++Changes; }
};

TEST_F(EventsBarTest, ViewsHearOfEachButtonThatComesOrGoesOnce) {
  static BarWatcher watcher;  // the main window goes after the test and knows it until then
  watcher.Changes = 0;
  main.AddObserver(watcher);
  Store("Button1", Event::OnClick, "a = 1");
  EXPECT_EQ(watcher.Changes, 1);
  Store("Button1", Event::OnKeyDown, "a = 2");
  EXPECT_EQ(watcher.Changes, 1);
  Store("Button1", Event::OnKeyDown, "");
  EXPECT_EQ(watcher.Changes, 1);
  Store("Button1", Event::OnClick, "");
  EXPECT_EQ(watcher.Changes, 2);
}

TEST_F(EventsBarTest, TheFirstCodeOfAnObjectAddsOneButtonAndASecondEventNone) {
  Store("Button1", Event::OnClick, "a = 1");
  Store("Button1", Event::OnKeyDown, "a = 2");
  EXPECT_EQ(Tags(), Texts{"Button1"});
}

TEST_F(EventsBarTest, EmptyingOneOfTwoEventsLeavesTheButton) {
  Store("Button1", Event::OnClick, "a = 1");
  Store("Button1", Event::OnKeyDown, "a = 2");
  Store("Button1", Event::OnClick, "");
  EXPECT_EQ(Tags(), Texts{"Button1"});
}

TEST_F(EventsBarTest, EmptyingTheLastEventTakesTheButtonAwayAndClosesTheGap) {
  Store("Button1", Event::OnClick, "a");
  Store("Label1", Event::OnClick, "a");
  Store("Time1", Event::OnTimer, "a");
  Store("Label1", Event::OnClick, "");
  EXPECT_EQ(Tags(), (Texts{"Button1", "Time1"}));
}

TEST_F(EventsBarTest, AFormWithCodeOnlyInOnKeyPressLosesItsButton) {
  Store("Form", Event::OnShow, "a");
  Store("Form", Event::OnKeyPress, "a");
  EXPECT_EQ(Tags(), Texts{"Form"});
  Store("Form", Event::OnShow, "");
  EXPECT_TRUE(Tags().empty());
}

TEST_F(EventsBarTest, EveryKindKeepsItsButtonForEachOfItsEvents) {
  const std::pair<const char*, Texts> kinds[]{
      {"Form",
       {"OnClick", "OnClose", "OnHint", "OnKeyDown", "OnKeyUp", "OnMouseDown", "OnMouseMove",
        "OnMouseUp", "OnPaint", "OnResize", "OnShow"}},
      {"Time1", {"OnTimer"}},
      {"OptionButton1", {"OnClick"}},
      {"CheckBox1", {"OnClick"}},
      {"Button1",
       {"OnClick", "OnKeyDown", "OnKeyPress", "OnKeyUp", "OnMouseDown", "OnMouseMove",
        "OnMouseUp"}},
      {"RichTextBox1",
       {"OnChange", "OnKeyDown", "OnKeyPress", "OnKeyUp", "OnMouseDown", "OnMouseMove",
        "OnMouseUp"}},
      {"TextBox1", {"OnChange", "OnKeyDown", "OnKeyPress", "OnKeyUp"}},
      {"Label1", {"OnClick", "OnDblClick", "OnMouseDown", "OnMouseMove", "OnMouseUp"}},
      {"Images1", {"OnClick", "OnDblClick", "OnMouseDown", "OnMouseMove", "OnMouseUp"}},
      {"ListBox1", {"OnClick", "OnDblClick", "OnEnter"}},
      {"ComboBox1", {"OnChange"}},
      {"PopUpMnu1", {"OnPopUp"}},
      {"Item", {"OnClick"}},
  };
  for (const auto& [name, events] : kinds) {
    for (const EventInfo& info : AllEvents()) {
      Store(name, info.Id, "a");
      EXPECT_EQ(Tags(), Texts{name});
      bar().DelBoockMarck(1, name);
      const bool counts = std::find(events.begin(), events.end(), info.Name) != events.end();
      EXPECT_EQ(Tags().size(), counts ? 1U : 0U) << name << " " << info.Name;
      Store(name, info.Id, "");
      EXPECT_TRUE(Tags().empty()) << name << " " << info.Name;
    }
  }
}

TEST_F(EventsBarTest, AnItemWhoseNameHoldsAKindWordIsAnItem) {
  AddMenuItem("ButtonsOfForm");
  Store("ButtonsOfForm", Event::OnClick, "a");
  Store("TimeTable", Event::OnClick, "a");
  ASSERT_EQ(Tags(), (Texts{"ButtonsOfForm", "TimeTable"}));
  EXPECT_EQ(bar().btncodigo(1)[0].Picture, Kind::Menu);
  bar().btncodigo_Click("ButtonsOfForm");
  EXPECT_EQ(bar().ProssItem(), Texts{"OnClick"});
  EXPECT_EQ(tables().CurrentForm->NameObjet, "ButtonsOfForm");
}

TEST_F(EventsBarTest, TheWordOfASelectionAndThatOfAKeyAreOneObject) {
  tables().EventTable.Replace("Form1.Images3.OnClick", "a");
  tables().EventTable.Replace("Form1.PopUpMnu1.OnPopUp", "a");
  bar().PopBoockMarck(1, "Image3");
  bar().PopBoockMarck(1, "Images3");
  bar().PopBoockMarck(1, "PopupMenu1");
  EXPECT_EQ(Tags(), (Texts{"Images3", "PopUpMnu1"}));
}

TEST_F(EventsBarTest, AReadFormHasAButtonForEachObjectWithCode) {
  Read(
      "[Form](1) {Main} Width<400>Width Click<a>Click Show<b>Show\r\n"
      "[Button] (1) {OkBtn} Left<1>Left Click<>Click\r\n"
      "[Button] (2) {GoBtn} Left<1>Left Click<a>Click KeyUp<b>KeyUp\r\n"
      "[Image] (1) {Face} Left<1>Left Click<a>Click\r\n");
  EXPECT_EQ(Tags(), (Texts{"Form", "Button2", "Images1"}));
  EXPECT_EQ(Tips(), (Texts{"Main", "GoBtn", "Face"}));
  EXPECT_EQ(bar().btncodigo(1)[2].Picture, Kind::Image);
}

TEST_F(EventsBarTest, TipsAreTheNamesThatTheUserGave) {
  Place(kButtonTool, 20, 20);
  tables().CurrentForm->ControlSel->Tag = "OkBtn";
  tables().Form(1)->Name = "Main";
  Store("Button1", Event::OnClick, "a");
  Store("Form", Event::OnShow, "a");
  EXPECT_EQ(Tips(), (Texts{"OkBtn", "Main"}));
  tables().CurrentForm->Element(Kind::Button, 1)->Tag = "GoBtn";
  EXPECT_EQ(Tips(), (Texts{"GoBtn", "Main"}));
}

TEST_F(EventsBarTest, TheTitleIsProceduresUntilTheFormIsReadOrRenamed) {
  EXPECT_EQ(bar().Caption(1), "Procedures...");
  Read("[Form](1) {Main} Width<400>Width\r\n");
  EXPECT_EQ(bar().Caption(1), "Main Procedures");
}

TEST_F(EventsBarTest, ARenamedFormHasTwoBlanksInItsTitle) {
  Store("Form", Event::OnShow, "a");
  PropertySheet& sheet = main.Sheet();
  sheet.ShowSelection();
  for (int i = 0; i < sheet.RowCount(); ++i) {
    if (sheet.Label(i) == "Name") sheet.SelectRow(i);
  }
  ASSERT_TRUE(sheet.ApplyText("Main"));
  EXPECT_EQ(bar().Caption(1), "Main  Procedures");
  EXPECT_EQ(Tips(), Texts{"Main"});
}

TEST_F(EventsBarTest, AButtonSelectsItsObjectAndListsItsEventsWithCodeFromRowZero) {
  Place(kButtonTool, 20, 20);
  surface().SelectForm();
  Store("Button1", Event::OnMouseUp, "a");
  Store("Button1", Event::OnClick, "a");
  bar().btncodigo_Click("Button1");
  EXPECT_EQ(tables().CurrentForm->NameObjet, "Button1");
  EXPECT_EQ(tables().CurrentForm->ControlSel, tables().CurrentForm->Element(Kind::Button, 1));
  EXPECT_EQ(bar().ProssItem(), (Texts{"OnClick", "OnMouseUp"}));
}

TEST_F(EventsBarTest, TheRowsOfAButtonPressedBeforeDoNotStay) {
  Place(kButtonTool, 20, 20);
  Store("Form", Event::OnShow, "a");
  Store("Form", Event::OnClick, "a");
  Store("Button1", Event::OnClick, "a");
  bar().btncodigo_Click("Form");
  EXPECT_EQ(bar().ProssItem(), (Texts{"OnClick", "OnShow"}));
  bar().btncodigo_Click("Button1");
  EXPECT_EQ(bar().ProssItem(), Texts{"OnClick"});
}

TEST_F(EventsBarTest, TheFormsButtonSelectsTheForm) {
  Place(kButtonTool, 20, 20);
  Store("Form", Event::OnShow, "a");
  bar().btncodigo_Click("Form");
  EXPECT_EQ(tables().CurrentForm->NameObjet, "Form");
  EXPECT_EQ(tables().CurrentForm->ControlSel, nullptr);
}

TEST_F(EventsBarTest, AButtonWhoseObjectHasGoneLeadsToTheCodeThatIsStillThere) {
  Place(kButtonTool, 20, 20);
  Store("Button9", Event::OnKeyDown, "a");
  bar().btncodigo_Click("Button9");
  EXPECT_EQ(tables().CurrentForm->NameObjet, "Form");
  EXPECT_EQ(bar().ProssItem(), Texts{"OnKeyDown"});
  bar().ProssItem_Click(0);
  EXPECT_EQ(tables().JumpKey, "Form1.Button9.OnKeyDown");
  EXPECT_EQ(log().Count("windows open code"), 1U);
  EXPECT_EQ(Index("Events", "Form1.Button9"), "") << "nothing is remembered for it";
}

TEST_F(EventsBarTest, TheOnlyEventOfAPopUpMenuThatHasGoneOpensByItsKey) {
  Store("PopUpMnu2", Event::OnPopUp, "a");
  bar().btncodigo_Click("PopUpMnu2");
  bar().ProssItem_Click(0);
  EXPECT_EQ(tables().JumpKey, "Form1.PopUpMnu2.OnPopUp");
}

TEST_F(EventsBarTest, AfterAGoneObjectTheNextButtonJumpsByItsEventAgain) {
  Place(kButtonTool, 20, 20);
  Store("Button1", Event::OnClick, "a");
  Store("Button9", Event::OnClick, "a");
  bar().btncodigo_Click("Button9");
  bar().btncodigo_Click("Button1");
  bar().ProssItem_Click(0);
  EXPECT_EQ(tables().JumpKey, "OnClick");
}

TEST_F(EventsBarTest, JumpKeyIsAnEventsNameAgainAfterThatOfAPopUpItem) {
  Place(kButtonTool, 20, 20);
  AddObject(Kind::PopUpMenu);
  PopUpFormRec& popup = *tables().PopUpMenus.Ensure(1);
  popup.Items.resize(2);
  popup.Items[1].Name = "mnuCut";
  Store("mnuCut", Event::OnClick, "a");
  Store("Button1", Event::OnClick, "a");
  AddMenuItem("mnuExit");
  Store("mnuExit", Event::OnClick, "a");
  for (const char* next : {"Button1", "Form", "mnuExit"}) {
    if (std::string_view(next) == "Form") Store("Form", Event::OnClick, "a");
    bar().btncodigo_Click("mnuCut");
    bar().ProssItem_Click(0);
    ASSERT_EQ(tables().JumpKey, "Form1.mnuCut");
    bar().btncodigo_Click(next);
    windows.CodeOpen = false;
    bar().btncodigo_Click(next);
    bar().ProssItem_Click(0);
    EXPECT_EQ(tables().JumpKey, "OnClick") << next;
    windows.CodeOpen = false;
  }
}

TEST_F(EventsBarTest, AnItemNamedLikeAKindWithoutANumberIsAnItem) {
  AddMenuItem("Button");
  Store("Button", Event::OnClick, "a");
  ASSERT_EQ(Tags(), Texts{"Button"});
  EXPECT_EQ(bar().btncodigo(1)[0].Picture, Kind::Menu);
  bar().btncodigo_Click("Button");
  EXPECT_EQ(tables().CurrentForm->NameObjet, "Button");
  EXPECT_EQ(bar().ProssItem(), Texts{"OnClick"});
}

TEST_F(EventsBarTest, ARowOpensTheCodeAtItsEvent) {
  Place(kButtonTool, 20, 20);
  Store("Button1", Event::OnKeyDown, "a");
  bar().btncodigo_Click("Button1");
  bar().ProssItem_Click(0);
  EXPECT_EQ(tables().JumpKey, "OnKeyDown");
  EXPECT_EQ(Index("Events", "Form1.Button1"), ".OnKeyDown");
  EXPECT_EQ(Index("EventsIndex", "Form1.Button1"), "40");
  EXPECT_EQ(log().Count("windows open code"), 1U);
}

TEST_F(EventsBarTest, ARowOfTheFormIsRememberedUnderTheFormsPrefix) {
  Store("Form", Event::OnShow, "a");
  bar().btncodigo_Click("Form");
  bar().ProssItem_Click(0);
  EXPECT_EQ(tables().JumpKey, "OnShow");
  EXPECT_EQ(Index("Events", "Form1"), ".OnShow");
  EXPECT_EQ(Index("EventsIndex", "Form1"), "150");
}

TEST_F(EventsBarTest, TheRowOfAPopUpMenuOpensItsOnlyEventWithoutAJump) {
  AddObject(Kind::PopUpMenu);
  Store("PopUpMnu1", Event::OnPopUp, "a");
  bar().btncodigo_Click("PopUpMnu1");
  ASSERT_EQ(bar().ProssItem(), Texts{"OnPopUp"});
  bar().ProssItem_Click(0);
  EXPECT_EQ(tables().JumpKey, "");
  EXPECT_EQ(Index("Events", "Form1.PopUpMnu1"), "");
  EXPECT_EQ(log().Count("windows open code"), 1U);
}

TEST_F(EventsBarTest, AnItemOfAPopUpMenuOpensByItsWholePrefix) {
  AddObject(Kind::PopUpMenu);
  PopUpFormRec& popup = *tables().PopUpMenus.Ensure(1);
  popup.Items.resize(2);
  popup.Items[1].Name = "mnuCut";
  Store("mnuCut", Event::OnClick, "a");
  bar().btncodigo_Click("mnuCut");
  EXPECT_EQ(tables().CurrentForm->ControlSel, tables().CurrentForm->Element(Kind::PopUpMenu, 1));
  bar().ProssItem_Click(0);
  EXPECT_EQ(tables().JumpKey, "Form1.mnuCut");
  EXPECT_EQ(log().Count("windows open code"), 1U);
}

TEST_F(EventsBarTest, AnItemOfTheMenuBarOpensByTheSelection) {
  AddMenuItem("mnuExit");
  Store("mnuExit", Event::OnClick, "a");
  bar().btncodigo_Click("mnuExit");
  bar().ProssItem_Click(0);
  EXPECT_EQ(tables().CurrentForm->NameObjet, "mnuExit");
  EXPECT_EQ(tables().JumpKey, "OnClick");
  EXPECT_EQ(log().Count("windows open code"), 1U);
}

TEST_F(EventsBarTest, TheDeclarationsButtonHasOneRowThatOpensFormViewCodes) {
  Store("Form", Event::OnShow, "a");
  Store("Form", Event::OnClick, "a");
  bar().btncodigo_Click("Form");
  bar().btnCDeclare_Click();
  ASSERT_EQ(bar().ProssItem(), Texts{"Public Declarations"});
  bar().ProssItem_Click(0);
  EXPECT_EQ(log().Count("windows declarations"), 1U);
  EXPECT_EQ(log().Count("windows open code"), 0U);
}

TEST_F(EventsBarTest, ARowThatIsNotThereOpensNothing) {
  bar().btnCDeclare_Click();
  bar().ProssItem_Click(1);
  bar().ProssItem_Click(-1);
  EXPECT_EQ(log().Count("windows"), 0U);
}

TEST_F(EventsBarTest, WhileTheCodeIsOpenAButtonBringsItToTheFrontAndSelectsNothing) {
  Place(kButtonTool, 20, 20);
  Store("Form", Event::OnShow, "a");
  windows.CodeOpen = true;
  bar().btncodigo_Click("Form");
  EXPECT_EQ(tables().CurrentForm->NameObjet, "Button1");
  EXPECT_TRUE(bar().ProssItem().empty());
  EXPECT_EQ(log().Count("windows code to front"), 1U);
}

TEST_F(EventsBarTest, TheButtonStaysWhileTheCodeOfADeletedObjectStays) {
  Place(kButtonTool, 20, 20);
  Store("Button1", Event::OnClick, "a");
  Store("Form", Event::OnShow, "a");
  main.Commands().Run(Command::Delete);
  EXPECT_EQ(Tags(), (Texts{"Button1", "Form"}));
  Place(kButtonTool, 20, 20);
  EXPECT_EQ(Tags(), (Texts{"Button1", "Form"})) << "the new object has the old code";
}

TEST_F(EventsBarTest, TheButtonGoesWithTheCodeThatALaterObjectReplaces) {
  Place(kButtonTool, 20, 20);
  Place(kButtonTool, 120, 20);
  Store("Button1", Event::OnClick, "a");
  Store("Form", Event::OnShow, "a");
  surface().SelectObject(tables().CurrentForm->Element(Kind::Button, 1));
  main.Commands().Run(Command::Delete);
  EXPECT_EQ(Tags(), Texts{"Form"});
}

TEST_F(EventsBarTest, EachFormHasABarOfItsOwn) {
  main.Commands().Run(Command::AddNewForm);
  Store("Form", Event::OnShow, "a");
  EXPECT_EQ(Tags(1), Texts{"Form"});
  EXPECT_TRUE(Tags(2).empty());
}

TEST_F(EventsBarTest, TheBarOfAFormThatIsNotThereTakesNothing) {
  bar().PopBoockMarck(7, "Button1");
  bar().DelBoockMarck(7, "Button1");
  EXPECT_TRUE(Tags(7).empty());
  EXPECT_EQ(bar().Caption(7), "Procedures...");
}

TEST_F(EventsBarTest, ItIsShownFromTheFirstStartAndHiddenByItsEntry) {
  EXPECT_TRUE(view.PanelShown[Panel::EventsBar]);
  EXPECT_TRUE(main.Commands().State(Command::EventsBar).Checked);
  main.Commands().Run(Command::EventsBar);
  EXPECT_FALSE(view.PanelShown[Panel::EventsBar]);
}

TEST(SpotOnBar, AButtonStandsBehindTheOneBefore) {
  EXPECT_EQ(SpotOnBar(0, 100, 30), (BarPlace{0, 0}));
  EXPECT_EQ(SpotOnBar(2, 100, 30), (BarPlace{60, 0}));
}

TEST(SpotOnBar, AButtonThatWouldPassTheRightEdgeStartsANewRow) {
  EXPECT_EQ(SpotOnBar(2, 90, 30), (BarPlace{60, 0}));
  EXPECT_EQ(SpotOnBar(3, 100, 30), (BarPlace{0, 30}));
  EXPECT_EQ(SpotOnBar(3, 90, 30), (BarPlace{0, 30}));
  EXPECT_EQ(SpotOnBar(7, 100, 30), (BarPlace{30, 60}));
}

TEST(SpotOnBar, ABarNarrowerThanAButtonHasOneInEachRow) {
  EXPECT_EQ(SpotOnBar(2, 10, 30), (BarPlace{0, 60}));
}

}  // namespace
}  // namespace tarnwick
