#include "project/check.h"

#include <ctime>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "fakes/fake_project.h"

namespace tarnwick::project {
namespace {

using test::FakeProject;
using Ids = std::vector<FindingId>;

constexpr const char* kHead = "[Form](1) {Form1}  Image<(Default)>Image Icon<(Default)>Icon\r\n";

class CheckTest : public ::testing::Test {
 protected:
  void Load(const std::string& records, const std::string& head = kHead) {
    project_.Ports.Files.Put("C:\\Work\\a.ftn", head + records);
    project_.LoadIndex(
        "1\x95"
        "a.ftn\r\nMF##Form1 (a.ftn)\r\n");
  }
  /// Two forms, Form1 and Form2, the first one current.
  void LoadTwo(const std::string& first, const std::string& second) {
    project_.Ports.Files.Put(
        "C:\\Work\\b.ftn",
        "[Form](2) {Form2}  Image<(Default)>Image Icon<(Default)>Icon\r\n" + second);
    project_.Ports.Files.Put("C:\\Work\\a.ftn", kHead + first);
    project_.LoadIndex(
        "1\x95"
        "a.ftn\r\n2\x95"
        "b.ftn\r\nMF##Form1 (a.ftn)\r\n");
  }
  std::vector<Finding> Check() { return CheckProject(project_.Tables, project_.Ports.Files); }
  Ids Found() {
    Ids ids;
    for (const Finding& finding : Check()) ids.push_back(finding.Id);
    return ids;
  }
  Ids Found(const std::string& records) {
    Load(records);
    return Found();
  }
  /// The one finding that there has to be.
  Finding Only() {
    std::vector<Finding> findings = Check();
    EXPECT_EQ(findings.size(), 1U);
    return findings.empty() ? Finding{} : findings.front();
  }
  Finding Only(const std::string& records) {
    Load(records);
    return Only();
  }

  FakeProject project_;
};

TEST_F(CheckTest, ASoundProjectGivesNoFindings) {
  EXPECT_EQ(Found("[Button] (1) {Ok} String<Fine>String Image<(None)>Image Click<Beep>Click\r\n"
                  "[Label] (1) {Name(1)}\r\n[Label] (2) {Name(2)}\r\n"
                  "[ListBox] (1) {Rows} Items<a\x95"
                  "b\x95>Items\r\n"
                  "[Time] (1) {T} Enabled<1>Enabled Tip<70>Tip\r\n"
                  "[WinSock] {Sock} Tip<AF_INET >Tip Cursor<IPPROTO_IP>Cursor "
                  "String<SOCK_STREAM>String Items<0>Items\r\n"
                  "[PopUpMenu] (1) {Menu1} Width<form1>Width Items<Cut\x8D"
                  "mnuCut\x8E>Items\r\n"),
            Ids{});
}

TEST_F(CheckTest, AFindingNamesFormObjectRowAndWhatToDo) {
  const Finding finding = Only(
      "[Button] (1) {A} Image<(None)>Image\r\n[Button] (2) {B} String<say \"x\">String "
      "Image<(None)>Image\r\n");
  EXPECT_EQ(finding.Id, FindingId::TextQuote);
  EXPECT_EQ(finding.How(), Severity::Error);
  EXPECT_EQ(finding.Form, 1);
  EXPECT_EQ(finding.Of, Kind::Button);
  EXPECT_EQ(finding.Index, 2);
  EXPECT_EQ(finding.Place, "Form1.B");
  EXPECT_EQ(finding.Row, "Caption");
  EXPECT_EQ(finding.Line(),
            "Form1.B: the text has a double quote, which ends it in the program; use ' in its "
            "place");
}

// ---- names

TEST_F(CheckTest, AnEmptyNameIsFoundByKindAndIndex) {
  const Finding finding = Only("[Label] (1) {}\r\n");
  EXPECT_EQ(finding.Id, FindingId::NameEmpty);
  EXPECT_EQ(finding.Place, "Form1.Label1");
  EXPECT_EQ(finding.Row, "Name");
}

TEST_F(CheckTest, NamelessThingsDoNotShareAName) {
  EXPECT_EQ(Found("[Label] (1) {}\r\n[Label] (2) {}\r\n"),
            (Ids{FindingId::NameEmpty, FindingId::NameEmpty}));
}

TEST_F(CheckTest, NamesShareOneSpaceOverFormsAndItemsInAnyCase) {
  const Finding two = Only("[Label] (1) {Same}\r\n[TextBox] (1) {same}\r\n");
  EXPECT_EQ(two.Id, FindingId::NameDoubled);
  EXPECT_EQ(two.Place, "Form1.same");
  EXPECT_EQ(two.Text, "the name same is used before, by Form1.Same");
  EXPECT_EQ(Only("[Label] (1) {FORM1}\r\n").Id, FindingId::NameDoubled);
  EXPECT_EQ(
      Only("[Menu] (1) {mnu} String<&File>String Items<Open\x8D#\x8Dmnu\x8D*\x8D>Items\r\n").Id,
      FindingId::NameDoubled);
  EXPECT_EQ(Only("[Label] (1) {mnuCut}\r\n[PopUpMenu] (1) {P} Width<Form1>Width Items<Cut\x8D"
                 "mnuCut\x8E>Items\r\n")
                .Id,
            FindingId::NameDoubled);
  LoadTwo("[Label] (1) {Same}\r\n", "[Label] (1) {Same}\r\n");
  EXPECT_EQ(Only().Place, "Form2.Same");
}

TEST_F(CheckTest, WordsOfTheLanguageAndOfEveryProgramAreNoNames) {
  for (const char* name : {"Print", "END", "if", "Screen", "Integer", "QForm", "Abs"}) {
    EXPECT_EQ(Only(std::string("[Label] (1) {") + name + "}\r\n").Id, FindingId::NameReserved)
        << name;
  }
  for (const char* name : {"Font", "menubar"}) {
    const Finding finding = Only(std::string("[Label] (1) {") + name + "}\r\n");
    EXPECT_EQ(finding.Id, FindingId::NameReserved) << name;
    EXPECT_NE(finding.Text.find("every program has already"), std::string::npos);
  }
  for (const char* name : {"Printer1", "Ending", "Left", "Time1", "Form"}) {
    EXPECT_EQ(Found(std::string("[Label] (1) {") + name + "}\r\n"), Ids{}) << name;
  }
}

TEST_F(CheckTest, NamesThatAreNoIdentifiersAreFound) {
  for (const char* name : {"1abc", "a b", "a-b", "Btn$", "a.b", " Ok", "Cmd()", "Cmd(x)", "(1)"}) {
    EXPECT_EQ(Only(std::string("[Label] (1) {") + name + "}\r\n").Id, FindingId::NameMalformed)
        << name;
  }
  for (const char* name : {"_a", "B9",
                           "Stra\xDF"
                           "e",
                           "Cmd(12)"}) {
    EXPECT_EQ(Found(std::string("[Label] (1) {") + name + "}\r\n"), Ids{}) << name;
  }
}

TEST_F(CheckTest, ANameCanBeLookedAtOnItsOwn) {
  EXPECT_EQ(FaultOfName("Ok", Kind::Button), std::nullopt);
  EXPECT_EQ(FaultOfName("Ok(1)", Kind::Button), std::nullopt);
  EXPECT_EQ(FaultOfName("Ok(1)", Kind::MenuItem), std::nullopt);
  EXPECT_EQ(FaultOfName("Ok(1)", Kind::PopUpMenu), FindingId::NameInBrackets);
  EXPECT_EQ(FaultOfName("Ok(1)", Kind::Form), FindingId::NameInBrackets);
  EXPECT_EQ(FaultOfName("End(1)", Kind::Label), FindingId::NameReserved);
  EXPECT_EQ(FaultOfName("  ", Kind::Label), FindingId::NameEmpty);
}

TEST_F(CheckTest, AFormsNameIsLookedAtLikeAnObjects) {
  Load("", "[Form](1) {1st form}  Image<(Default)>Image Icon<(Default)>Icon\r\n");
  project_.Tables.MainFormName = "1st form (a.ftn)";
  const Finding finding = Only();
  EXPECT_EQ(finding.Id, FindingId::NameMalformed);
  EXPECT_EQ(finding.Of, Kind::Form);
  EXPECT_EQ(finding.Place, "1st form");
}

TEST_F(CheckTest, PopUpsTheirItemsAndSocketsFormNoArrays) {
  EXPECT_EQ(Only("[PopUpMenu] (1) {P(1)} Width<Form1>Width\r\n").Id, FindingId::NameInBrackets);
  const Finding item = Only(
      "[PopUpMenu] (1) {P} Width<Form1>Width Items<Cut\x8D"
      "Cut(1)\x8E>Items\r\n");
  EXPECT_EQ(item.Id, FindingId::NameInBrackets);
  EXPECT_EQ(item.Place, "Form1.P");
  EXPECT_EQ(item.Row, "AddItems");
  EXPECT_EQ(Only("[Time] (1) {T} Enabled<1>Enabled Tip<70>Tip\r\n[WinSock] {S(1)} Tip<a>Tip "
                 "Cursor<b>Cursor String<c>String Items<0>Items\r\n")
                .Id,
            FindingId::NameInBrackets);
  // Menu items do: all of them share one declaration.
  EXPECT_EQ(Found("[Menu] (1) {mnu} String<&File>String Items<Open\x8D#\x8Ditm(1)\x8D*\x8D"
                  "Close\x8D#\x8Ditm(2)\x8D*\x8D>Items\r\n"),
            Ids{});
}

TEST_F(CheckTest, SubItemsOfAPopUpAreLookedAtToo) {
  const Finding finding = Only(
      "[PopUpMenu] (1) {P} Width<Form1>Width Items<Cut\x8D"
      "mnuCut\x8FOf\x8D"
      "End\x8E>Items\r\n");
  EXPECT_EQ(finding.Id, FindingId::NameReserved);
  EXPECT_EQ(finding.Row, "AddItems");
}

TEST_F(CheckTest, ASecondArrayOfAKindIsNotDeclared) {
  const Finding finding =
      Only("[Label] (1) {A(1)}\r\n[Label] (2) {A(2)}\r\n[Label] (3) {B(1)}\r\n");
  EXPECT_EQ(finding.Id, FindingId::SecondFamily);
  EXPECT_EQ(finding.Place, "Form1.B(1)");
  // Another kind and another form have arrays of their own.
  LoadTwo("[Label] (1) {A(1)}\r\n[CheckBox] (1) {B(1)}\r\n", "[Label] (1) {C(1)}\r\n");
  EXPECT_EQ(Found(), Ids{});
}

TEST_F(CheckTest, AnArrayThatSharesItsNameIsDoubled) {
  EXPECT_EQ(Only("[Label] (1) {A(1)}\r\n[CheckBox] (1) {A(2)}\r\n").Id, FindingId::NameDoubled);
  EXPECT_EQ(Only("[TextBox] (1) {A}\r\n[Label] (1) {A(1)}\r\n").Id, FindingId::NameDoubled);
  LoadTwo("[Label] (1) {A(1)}\r\n", "[Label] (1) {A(2)}\r\n");
  EXPECT_EQ(Only().Place, "Form2.A(2)") << "each form declares its own";
  // Each image has a declaration of its own.
  EXPECT_EQ(Only("[Image] (1) {A(1)} Image<(None)>Image\r\n[Image] (2) {A(2)} "
                 "Image<(None)>Image\r\n")
                .Id,
            FindingId::NameDoubled);
}

TEST_F(CheckTest, AMainFormThatNoFormIsIsFound) {
  Load("");
  project_.Tables.MainFormName = "Other (b.ftn)";
  const Finding finding = Only();
  EXPECT_EQ(finding.Id, FindingId::MainFormGone);
  EXPECT_EQ(finding.Form, 0);
  project_.Tables.MainFormName = "FORM1 (a.ftn)";
  EXPECT_EQ(Found(), Ids{});
}

// ---- declarations

TEST_F(CheckTest, ListsAreUndeclaredWhileTheCurrentFormHasNone) {
  LoadTwo("", "[ListBox] (1) {L}\r\n[ListBox] (2) {M}\r\n[ComboBox] (1) {C}\r\n");
  EXPECT_EQ(Found(), (Ids{FindingId::NotDeclared, FindingId::NotDeclared})) << "once for each kind";
  EXPECT_EQ(Check().front().Text, "it is not declared: the current form, Form1, has no ListBox");
  project_.Tables.CurrentForm = project_.Tables.User(2);
  EXPECT_EQ(Found(), Ids{});
  LoadTwo("[ListBox] (1) {L}\r\n", "[ListBox] (1) {M}\r\n");
  project_.Tables.CurrentForm = nullptr;
  EXPECT_EQ(Found(), (Ids{FindingId::NotDeclared, FindingId::NotDeclared})) << "once for each form";
}

TEST_F(CheckTest, OnlyTheFirstTransparentFrameIsDeclared) {
  EXPECT_EQ(Found("[TransparentFrame] {T}\r\n"), Ids{});
  EXPECT_EQ(Only("[TransparentFrame] {T}\r\n[TransparentFrame] {U}\r\n").Id,
            FindingId::NotDeclared);
}

// ---- texts

TEST_F(CheckTest, EveryTextThatStandsBetweenQuotesIsLookedAt) {
  struct Case {
    const char* Row;
    std::string Records;
  };
  for (const Case& c : std::vector<Case>{
           {"Caption", "[Label] (1) {L} String<a\"b>String\r\n"},
           {"Text", "[TextBox] (1) {L} String<a\"b>String\r\n"},
           {"Hint", "[Button] (1) {L} Tip<a\"b>Tip Image<(None)>Image\r\n"},
           {"Font", "[Label] (1) {L} FontName<a\"b>FontName\r\n"},
           {"AddItems",
            "[ListBox] (1) {L} Items<a\x95"
            "b\"c\x95>Items\r\n"},
           {"AddItems", "[ComboBox] (1) {L} Items<a\"b\x95>Items\r\n"},
           {"Title", "[OpenDialog] (1) {L} String<a\"b>String\r\n"},
           {"Filter", "[SaveDialog] (1) {L} Tip<a\"b>Tip\r\n"},
           {"FileName", "[OpenDialog] (1) {L} Width<a\"b>Width\r\n"},
           {"InitialDir", "[OpenDialog] (1) {L} Height<a\"b>Height\r\n"},
           {"Caption", "[Menu] (1) {mnu} String<a\"b>String Items<>Items\r\n"},
           {"AddItems",
            "[PopUpMenu] (1) {P} Width<Form1>Width Items<a\"b\x8D"
            "mnuA\x8E>Items\r\n"},
       }) {
    const Finding finding = Only(c.Records);
    EXPECT_EQ(finding.Id, FindingId::TextQuote) << c.Records;
    EXPECT_EQ(finding.Row, c.Row) << c.Records;
  }
  Load("", "[Form](1) {Form1}  Image<(Default)>Image Icon<(Default)>Icon String<a\"b>String\r\n");
  EXPECT_EQ(Only().Row, "Caption");
  Load("", "[Form](1) {Form1}  Image<(Default)>Image Icon<(Default)>Icon Tip<a\"b>Tip\r\n");
  EXPECT_EQ(Only().Row, "Hint");
}

TEST_F(CheckTest, TextsThatTheProgramLeavesOutAreNotLookedAt) {
  // A timer writes no hint.
  Load("[Time] (1) {T} Enabled<1>Enabled Tip<70>Tip\r\n");
  project_.Control(Kind::Time).ToolTipText = "a\"b";
  EXPECT_EQ(Found(), Ids{});
  // A list of one row has no lines at all.
  EXPECT_EQ(Found("[ListBox] (1) {L} Items<a\"b\x95>Items\r\n"), Ids{});
}

TEST_F(CheckTest, ALineBreakInATextIsFound) {
  Load("[Label] (1) {L}\r\n");
  project_.Control(Kind::Label).Caption = "two\r\nlines";
  const Finding finding = Only();
  EXPECT_EQ(finding.Id, FindingId::TextLineBreak);
  EXPECT_EQ(finding.Row, "Caption");
  project_.Control(Kind::Label).Caption = "a\ttab";
  EXPECT_EQ(Found(), Ids{});
}

// ---- sockets and popup menus

TEST_F(CheckTest, AnEmptyValueOfASocketIsFoundByItsRow) {
  const Finding finding = Only(
      "[Time] (1) {T} Enabled<1>Enabled Tip<70>Tip\r\n[WinSock] {S} Tip<AF_INET>Tip "
      "Cursor<IPPROTO_IP>Cursor String< >String Items<0>Items\r\n");
  EXPECT_EQ(finding.Id, FindingId::SocketValueEmpty);
  EXPECT_EQ(finding.Row, "Type");
}

TEST_F(CheckTest, ALineBreakInAValueOfASocketIsFound) {
  Load(
      "[Time] (1) {T} Enabled<1>Enabled Tip<70>Tip\r\n[WinSock] {S} Tip<a>Tip Cursor<b>Cursor "
      "String<c>String Items<0>Items\r\n");
  EXPECT_EQ(Found(), Ids{});
  project_.Form().WinSocks.At(1)->Protocol = "a\nb";
  const Finding finding = Only();
  EXPECT_EQ(finding.Id, FindingId::TextLineBreak);
  EXPECT_EQ(finding.Row, "Protocol");
}

TEST_F(CheckTest, ASocketOnASecondFormIsCountedOnAndLosesItsValues) {
  const std::string socket =
      " Enabled<1>Enabled Tip<70>Tip\r\n[WinSock] {S%} Tip<a>Tip Cursor<b>Cursor String<c>String "
      "Items<0>Items\r\n";
  const auto with = [&](const std::string& n) {
    std::string records = "[Time] (1) {T" + n + "}" + socket;
    return records.replace(records.find('%'), 1, n);
  };
  LoadTwo(with("1"), with("2"));
  const Finding finding = Only();
  EXPECT_EQ(finding.Id, FindingId::SocketMiscounted);
  EXPECT_EQ(finding.Place, "Form2.S2");
  LoadTwo("", with("2"));
  EXPECT_EQ(Found(), Ids{});
}

TEST_F(CheckTest, APopUpHangsOnAFormOrAnObjectThatIsThere) {
  EXPECT_EQ(Found("[Button] (1) {Ok} Image<(None)>Image\r\n[PopUpMenu] (1) {P} Width<OK>Width\r\n"),
            Ids{});
  const Finding gone = Only("[PopUpMenu] (1) {P} Width<Gone>Width\r\n");
  EXPECT_EQ(gone.Id, FindingId::PopUpParentGone);
  EXPECT_EQ(gone.Row, "Parent");
  EXPECT_EQ(Only("[PopUpMenu] (1) {P} Width<>Width\r\n").Id, FindingId::PopUpParentGone);
}

TEST_F(CheckTest, EachFormCountsItsPopUps) {
  LoadTwo("[PopUpMenu] (1) {P} Width<Form1>Width\r\n", "[PopUpMenu] (1) {Q} Width<Form2>Width\r\n");
  EXPECT_EQ(Found(), Ids{});
}

// ---- strict type checking

TEST_F(CheckTest, StrictTypeCheckingDoesNotGoWithATransparentFrame) {
  const std::string frame = "[TransparentFrame] {T}\r\n";
  EXPECT_EQ(Only(frame + "[DeclarePbl] String<$typecheck  on>String\r\n").Id,
            FindingId::StrictWithFrame);
  EXPECT_EQ(Only(frame + "[DeclarePbl] String<$OPTION EXPLICIT>String\r\n").Id,
            FindingId::StrictWithFrame);
  EXPECT_EQ(Found(frame + "[DeclarePbl] String<$TYPECHECK OFF>String\r\n"), Ids{});
  EXPECT_EQ(Found(frame + "[DeclarePbl] String<' $TYPECHECK ON>String\r\n"), Ids{});
  EXPECT_EQ(Found("[DeclarePbl] String<$TYPECHECK ON>String\r\n"), Ids{});
}

TEST_F(CheckTest, ADirectiveWithoutAValueAsksForNoDeclarations) {
  const std::string frame = "[TransparentFrame] {T}\r\n";
  EXPECT_EQ(Found(frame + "[DeclarePbl] String<$TYPECHECK>String\r\n"), Ids{});
  EXPECT_EQ(Found(frame + "[DeclarePbl] String<$OPTION>String\r\n"), Ids{});
}

TEST_F(CheckTest, StrictTypeCheckingCountsWhereverItIsWritten) {
  EXPECT_EQ(Only("[TransparentFrame] {T}\r\n[Button] (1) {A} Image<(None)>Image "
                 "Click<x = 1\x95$TYPECHECK ON>Click\r\n")
                .Id,
            FindingId::StrictWithFrame);
  LoadTwo("[TransparentFrame] {T}\r\n", "[DeclarePbl] String<$TYPECHECK ON>String\r\n");
  EXPECT_EQ(Found(), Ids{FindingId::StrictWithFrame});
  project_.Form(2).Removed = 1;
  EXPECT_EQ(Found(), Ids{}) << "a removed form is not generated";
}

// ---- pictures

TEST_F(CheckTest, PicturesPagesAndIconsThatAreMissingAreFound) {
  const Finding picture = Only("[Image] (1) {Logo} Image<logo.bmp>Image\r\n");
  EXPECT_EQ(picture.Id, FindingId::PictureMissing);
  EXPECT_EQ(picture.Text, "the picture does not exist: C:\\Work\\logo.bmp");
  EXPECT_EQ(Only("[HtmlViewer] (1) {H} String<a.htm>String \r\n").Row, "Navigate");
  Load("", "[Form](1) {Form1} Image<w.ico>Image Icon<a.ico>Icon\r\n");
  EXPECT_EQ(Found(), (Ids{FindingId::PictureMissing, FindingId::PictureMissing}));
  LoadTwo("", "");
  project_.Form(2).IconFile = "C:\\gone.ico";
  EXPECT_EQ(Found(), Ids{}) << "the first form alone gives the program its icon";
  Load("", "[Form](1) {Form1} Image<w.ico>Image Icon<a.ico>Icon\r\n");
  for (const char* name : {"logo.bmp", "a.htm", "w.ico", "a.ico"}) {
    project_.Ports.Files.Put(std::string("C:\\Work\\") + name, "BM");
  }
  EXPECT_EQ(Found(), Ids{});
  EXPECT_EQ(Found("[Image] (1) {Logo} Image<logo.bmp>Image\r\n[HtmlViewer] (1) {H} "
                  "String<a.htm>String \r\n"),
            Ids{});
}

// ---- code

TEST_F(CheckTest, CodeThatNoObjectOwnsIsANote) {
  const Finding finding = Only("[MenuItem] (1) {mnuGone} Click<Beep>Click\r\n");
  EXPECT_EQ(finding.Id, FindingId::CodeOwnerless);
  EXPECT_EQ(finding.How(), Severity::Note);
  EXPECT_EQ(finding.Form, 1);
  EXPECT_EQ(finding.Place, "Form1.mnuGone.OnClick");
}

TEST_F(CheckTest, CodeOfAnObjectWhoseNumberLeavesAGapIsNotGenerated) {
  const Finding finding = Only(
      "[Button] (1) {A} Image<(None)>Image\r\n[Button] (3) {B} Image<(None)>Image "
      "Click<Beep>Click\r\n");
  EXPECT_EQ(finding.Id, FindingId::CodeOwnerless);
  EXPECT_EQ(finding.Of, Kind::Button);
  EXPECT_EQ(finding.Index, 3);
}

TEST_F(CheckTest, CodeOfAnEventThatItsKindNeverRaisesIsLeftOut) {
  Load("[Button] (1) {A} Image<(None)>Image\r\n");
  project_.Tables.EventTable.Replace("Form1.Button1", Event::OnShow, "Beep");
  EXPECT_EQ(Only().Id, FindingId::CodeLeftOut);
}

TEST_F(CheckTest, CodeOfAFormThatWasRemovedIsNoFinding) {
  LoadTwo("", "[Button] (1) {A} Image<(None)>Image Click<Beep>Click\r\n");
  EXPECT_TRUE(Found().empty());
  project_.Form(2).Removed = 1;
  EXPECT_TRUE(Found().empty());
  project_.Tables.EventTable.Replace("Form3.Button1", Event::OnClick, "Beep");
  EXPECT_EQ(Only().Id, FindingId::CodeOwnerless) << "of a number that was never given";
}

// ---- files

class CheckFilesTest : public CheckTest {
 protected:
  std::vector<Finding> OfFiles() { return CheckFiles(project_.Tables, project_.Ports.Files); }
  Finding OnlyOfFiles() {
    std::vector<Finding> findings = OfFiles();
    EXPECT_EQ(findings.size(), 1U);
    return findings.empty() ? Finding{} : findings.front();
  }
};

TEST_F(CheckFilesTest, ASoundProjectGivesNoFindings) {
  Load("[Label] (1) {L}\r\n[Sub]{x} Click<>Click\r\n[DeclarePbl] String<>String\r\n");
  EXPECT_TRUE(OfFiles().empty());
  EXPECT_TRUE(UnreadForms(project_.Tables, project_.Ports.Files).empty());
}

TEST_F(CheckFilesTest, AMissingFormFileIsFound) {
  project_.LoadIndex("1\x95gone.ftn\r\n");
  const Finding finding = OnlyOfFiles();
  EXPECT_EQ(finding.Id, FindingId::FileMissing);
  EXPECT_EQ(finding.Text, "the form does not exist: C:\\Work\\gone.ftn");
  EXPECT_EQ(UnreadForms(project_.Tables, project_.Ports.Files),
            std::vector<std::string>{"C:\\Work\\gone.ftn"});
}

TEST_F(CheckFilesTest, AListedFileWithoutAFormRecordIsFound) {
  LoadTwo("", "");
  project_.Ports.Files.Put("C:\\Work\\b.ftn", "[Label] (1) {L}\r\n");
  project::LoadProject(project_.Context, project_.Tables.ProjectFile);
  const Finding finding = OnlyOfFiles();
  EXPECT_EQ(finding.Id, FindingId::NoFormRecord);
  EXPECT_EQ(finding.Text, "the file holds no form record: C:\\Work\\b.ftn");
  EXPECT_EQ(finding.Form, 0) << "no form of the project";
  EXPECT_EQ(finding.Place, "");
  EXPECT_EQ(UnreadForms(project_.Tables, project_.Ports.Files),
            std::vector<std::string>{"C:\\Work\\b.ftn"});
}

TEST_F(CheckFilesTest, AFormListedTwiceIsFoundAndWasRead) {
  Load("");
  project_.LoadIndex(
      "1\x95"
      "a.ftn\r\n2\x95"
      "a.ftn\r\nMF##Form1 (a.ftn)\r\n");
  EXPECT_EQ(OnlyOfFiles().Id, FindingId::ListedTwice);
  EXPECT_TRUE(UnreadForms(project_.Tables, project_.Ports.Files).empty());
}

TEST_F(CheckFilesTest, LinesThatAreNoRecordsAreFoundByLine) {
  Load("\r\njunk\r\n[Gauge] (1) {G1}\r\n");
  const std::vector<Finding> findings = OfFiles();
  ASSERT_EQ(findings.size(), 2U);
  EXPECT_EQ(findings[0].Id, FindingId::NoRecord);
  EXPECT_EQ(findings[0].Place, "Form1");
  EXPECT_EQ(findings[0].Text, "line 3: the line is no record");
  EXPECT_EQ(findings[1].Place, "Form1.G1");
  EXPECT_EQ(findings[1].Text, "line 4, [Gauge]: the kind is not known");
}

TEST_F(CheckFilesTest, NumbersAndValuesThatHoldNoRecordAreFound) {
  Load(
      "[Button] (-2) {Ok} Image<(None)>Image\r\n[Time] (1) {T} Enabled<1>Enabled "
      "Tip<70000>Tip\r\n");
  const std::vector<Finding> findings = OfFiles();
  ASSERT_EQ(findings.size(), 2U);
  EXPECT_EQ(findings[0].Id, FindingId::NumberLost);
  EXPECT_EQ(findings[0].Text,
            "line 2, [Button]: the number (-2) cannot be used; its properties are lost");
  EXPECT_EQ(findings[1].Id, FindingId::ValueLost);
  EXPECT_EQ(findings[1].Text, "line 3, [Time]: the value of tip is out of range: 70000");
}

TEST_F(CheckFilesTest, AProjectWithoutAFileHasNoFindingsOfFiles) {
  project_.Tables.ProjectFile.clear();
  EXPECT_TRUE(OfFiles().empty());
}

// ---- size

TEST_F(CheckTest, ManyObjectsAreCheckedInTimeThatGrowsWithTheirNumber) {
  const auto time_of = [&](int count) {
    std::string records;
    for (int i = 1; i <= count; ++i) {
      const std::string n = std::to_string(i);
      records += "[Label] (" + n + ") {Name" + n + "} String<x>String Click<Beep>Click\r\n";
    }
    Load(records);
    // Of this process alone, whatever else the machine does.
    const std::clock_t start = std::clock();
    EXPECT_EQ(Found(), Ids{});
    return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
  };
  time_of(500);
  const double small = time_of(1000);
  // Ten times the objects; a walk of all names for each name would take a hundred times as long.
  EXPECT_LT(time_of(10000), small * 50 + 0.2);
}

}  // namespace
}  // namespace tarnwick::project
