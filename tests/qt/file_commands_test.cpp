// The commands of the File and Project menus, their prompts and their files.
#include <QAction>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QToolButton>

#include <gtest/gtest.h>

#include "program.h"
#include "qt/surface/container.h"

namespace tarnwick {
namespace {

constexpr int kYesNo = QMessageBox::Yes | QMessageBox::No;

class FileCommands : public testing::Test {
 protected:
  void ExpectSaveQuestion() {
    const std::vector<SeenBox> seen = program.User.TakeSeen();
    ASSERT_EQ(seen.size(), 1U);
    EXPECT_EQ(seen[0].Text, QStringLiteral("Did you want save this project?"));
    EXPECT_EQ(seen[0].Title, QStringLiteral("Tarnwick IDE"));
    EXPECT_EQ(seen[0].Icon, QMessageBox::Question);
    EXPECT_EQ(seen[0].Buttons, kYesNo);
  }
  void ExpectNoBox() { EXPECT_TRUE(program.User.TakeSeen().empty()); }
  /// Saves the project with its one form under these names, by the keys.
  void SaveAs(std::string_view project, std::string_view form) {
    program.Dialogs.SaveAnswers = {program.Projects.Path(project), program.Projects.Path(form)};
    program.Key(Qt::Key_S, Qt::ControlModifier);
    EXPECT_TRUE(program.Dialogs.SaveAnswers.empty());
  }
  [[nodiscard]] int Dialogs(std::string_view which) const {
    return static_cast<int>(program.Log.Count("dialog " + std::string(which)));
  }
  [[nodiscard]] std::string Opened(std::string_view project) const {
    return "Tarnwick    " + program.Projects.Path(project);
  }
  [[nodiscard]] std::string Saved(std::string_view project) const {
    return "Tarnwick - " + program.Projects.Path(project);
  }

  Program program;
};

TEST_F(FileCommands, TheTitleAtTheStartNamesTheDefaultProject) {
  EXPECT_EQ(program.Title(), "Tarnwick    " + program.Home.Path("UnTitle.tnp"));
}

TEST_F(FileCommands, SaveAsksWhereOnceAndWritesBothFiles) {
  program.Place(0, {20, 20});
  SaveAs("p.tnp", "f.ftn");
  EXPECT_EQ(program.Title(), Saved("p.tnp"));
  const std::string index = program.Projects.Read("p.tnp");
  const std::string form = program.Projects.Read("f.ftn");
  EXPECT_NE(form.find("Form1Btn1"), std::string::npos);
  EXPECT_NE(index.find("f.ftn"), std::string::npos);
  EXPECT_EQ(program.Tables().AccionProject, "save");
  EXPECT_EQ(program.Tables().SourceFile, program.Projects.Path("p.com"));
  EXPECT_EQ(program.Tables().ExeFile, program.Projects.Path("p.exe"));
  // The list shows the form's file now.
  EXPECT_EQ(program.Find<QListWidget>(QStringLiteral("ListaFrms")).item(0)->text(),
            QStringLiteral("Form1 (f.ftn)"));
  // From now on no dialog comes up, and the bytes stay.
  program.Click(program.Find<QToolButton>(QStringLiteral("BtnMenu_2")));
  EXPECT_EQ(Dialogs("save"), 2);
  EXPECT_EQ(program.Projects.Read("p.tnp"), index);
  EXPECT_EQ(program.Projects.Read("f.ftn"), form);
  ExpectNoBox();
}

TEST_F(FileCommands, TheSaveDialogsAreAskedAsTheyShould) {
  program.Dialogs.SaveAnswers = {program.Projects.Path("p.tnp"), std::nullopt};
  program.Choose(QStringLiteral("mnuSave"));
  EXPECT_EQ(program.Dialogs.LastRequest.Title, "Save Form");
  EXPECT_EQ(program.Dialogs.LastRequest.Filter, "Form (*.ftn)|*.ftn|All Files|*.*");
  EXPECT_EQ(program.Dialogs.LastRequest.StartName, "Form1.ftn");
  program.Choose(QStringLiteral("mnuSaveAs"));
  EXPECT_EQ(program.Dialogs.LastRequest.Title, "Save Project");
  EXPECT_EQ(program.Dialogs.LastRequest.Filter, "Tarnwick Project|*.tnp|All Files|*.*");
  EXPECT_EQ(program.Dialogs.LastRequest.StartName, "p.tnp");
}

TEST_F(FileCommands, ACancelledSaveChangesNothing) {
  program.Place(0, {20, 20});
  program.Dialogs.SaveAnswers = {std::nullopt};
  program.Key(Qt::Key_S, Qt::ControlModifier);
  EXPECT_EQ(program.Title(), "Tarnwick    " + program.Home.Path("UnTitle.tnp"));
  EXPECT_EQ(program.Tables().AccionProject, "app");
  EXPECT_TRUE(program.Projects.Names().empty());
  EXPECT_EQ(program.Form().UBound(Kind::Button), 1);
}

TEST_F(FileCommands, ACancelledFormDialogDoesNotCountAsSaved) {
  program.Dialogs.SaveAnswers = {program.Projects.Path("p.tnp"), std::nullopt};
  program.Key(Qt::Key_S, Qt::ControlModifier);
  EXPECT_NE(program.Tables().AccionProject, "save");
  program.User.No();
  program.Key(Qt::Key_N, Qt::ControlModifier);
  ExpectSaveQuestion();
}

TEST_F(FileCommands, TheExtensionIsPutOnWhereItLacks) {
  SaveAs("plain", "form");
  EXPECT_EQ(program.Title(), Saved("plain.tnp"));
  EXPECT_FALSE(program.Projects.Read("plain.tnp").empty());
  EXPECT_FALSE(program.Projects.Read("form.ftn").empty());
}

TEST_F(FileCommands, AnUpperCaseExtensionGetsNoSecondOne) {
  SaveAs("BIG.TNP", "F.FTN");
  EXPECT_EQ(program.Title(), Saved("BIG.TNP"));
  EXPECT_FALSE(program.Projects.Read("F.FTN").empty());
  EXPECT_EQ(program.Projects.Names().size(), 2U);
}

TEST_F(FileCommands, AProjectThatIsThereIsReplacedOnYesOnly) {
  program.Projects.Write("old.tnp", "old bytes");
  const std::string old = program.Projects.Path("old.tnp");
  program.Dialogs.SaveAnswers = {old, program.Projects.Path("new.tnp"),
                                 program.Projects.Path("f.ftn")};
  program.User.No();
  program.Key(Qt::Key_S, Qt::ControlModifier);
  const std::vector<SeenBox> seen = program.User.TakeSeen();
  ASSERT_EQ(seen.size(), 1U);
  EXPECT_EQ(seen[0].Text.toStdString(), "The File " + old + "\r\nalready exist. Replace it?");
  EXPECT_EQ(seen[0].Title, QStringLiteral("Tarnwick"));
  EXPECT_EQ(seen[0].Buttons, kYesNo);
  // No went back to the dialog.
  EXPECT_EQ(program.Title(), Saved("new.tnp"));
  EXPECT_EQ(program.Projects.Read("old.tnp"), "old bytes");
  program.Dialogs.SaveAnswers = {old};
  program.User.Yes();
  program.Key(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(program.Title(), Saved("old.tnp"));
  EXPECT_EQ(program.Projects.Read("old.tnp"), program.Projects.Read("new.tnp"));
}

TEST_F(FileCommands, AFormFileThatIsThereIsReplacedOnYesOnly) {
  program.Projects.Write("old.ftn", "old bytes");
  const std::string old = program.Projects.Path("old.ftn");
  program.Dialogs.SaveAnswers = {program.Projects.Path("p.tnp"), old, std::nullopt};
  program.User.No();
  program.Key(Qt::Key_S, Qt::ControlModifier);
  const std::vector<SeenBox> seen = program.User.TakeSeen();
  ASSERT_EQ(seen.size(), 1U);
  EXPECT_EQ(seen[0].Text.toStdString(), "The File " + old + "\r\nalready exists. Replace it?");
  EXPECT_EQ(seen[0].Title, QStringLiteral("Tarnwick"));
  EXPECT_EQ(program.Projects.Read("old.ftn"), "old bytes");
  program.Dialogs.SaveAnswers = {old};
  program.User.Yes();
  program.Key(Qt::Key_S, Qt::ControlModifier | Qt::AltModifier);
  EXPECT_NE(program.Projects.Read("old.ftn"), "old bytes");
  EXPECT_EQ(program.Record().FileName, old);
}

TEST_F(FileCommands, EscapeInAQuestionIsNo) {
  program.Projects.Write("old.tnp", "old bytes");
  program.Dialogs.SaveAnswers = {program.Projects.Path("old.tnp"), std::nullopt};
  program.User.Escape();
  program.Key(Qt::Key_S, Qt::ControlModifier);
  EXPECT_EQ(program.Projects.Read("old.tnp"), "old bytes");
  EXPECT_EQ(program.User.TakeSeen().size(), 1U);
}

TEST_F(FileCommands, SaveFormWritesTheCurrentFormAlone) {
  program.Dialogs.SaveAnswers = {program.Projects.Path("one")};
  program.Choose(QStringLiteral("mnuSaveForm"));
  EXPECT_EQ(program.Projects.Names(), std::vector<std::string>{"one.ftn"});
  EXPECT_EQ(program.Find<QListWidget>(QStringLiteral("ListaFrms")).item(0)->text(),
            QStringLiteral("Form1 (one.ftn)"));
  // With a file it asks no more.
  program.Place(3, {20, 20});
  program.Key(Qt::Key_S, Qt::ControlModifier | Qt::AltModifier);
  EXPECT_EQ(Dialogs("save"), 1);
  EXPECT_NE(program.Projects.Read("one.ftn").find("Form1Label1"), std::string::npos);
  EXPECT_TRUE(program.Surface().isVisible());
}

TEST_F(FileCommands, SaveFormAsAlwaysAsksAndShortensTheIndex) {
  SaveAs("p.tnp", "f.ftn");
  program.Dialogs.SaveAnswers = {program.Projects.Path("g.ftn")};
  program.Choose(QStringLiteral("mnuSaveFormAs"));
  EXPECT_EQ(program.Record().FileName, program.Projects.Path("g.ftn"));
  EXPECT_EQ(program.Projects.Read("p.tnp"), program.Projects.Path("g.ftn") + "\r\n");
  EXPECT_EQ(program.Projects.Read("g.ftn"), program.Projects.Read("f.ftn"));
  EXPECT_EQ(program.Find<QListWidget>(QStringLiteral("ListaFrms")).item(0)->text(),
            QStringLiteral("Form1 (g.ftn)"));
}

TEST_F(FileCommands, ACancelledSaveFormAsLeavesAll) {
  SaveAs("p.tnp", "f.ftn");
  const std::string index = program.Projects.Read("p.tnp");
  program.Dialogs.SaveAnswers = {std::nullopt};
  program.Choose(QStringLiteral("mnuSaveFormAs"));
  EXPECT_EQ(program.Projects.Read("p.tnp"), index);
  EXPECT_EQ(program.Record().FileName, program.Projects.Path("f.ftn"));
  EXPECT_TRUE(program.Surface().isVisible());
}

TEST_F(FileCommands, NewAsksAndNoDropsTheProject) {
  program.Place(0, {20, 20});
  program.PressTool(9);
  program.User.No();
  program.Key(Qt::Key_N, Qt::ControlModifier);
  ExpectSaveQuestion();
  EXPECT_EQ(program.Tables().FormsCount, 1);
  EXPECT_EQ(program.Form().UBound(Kind::Button), 0);
  EXPECT_EQ(program.Title(), "Tarnwick    " + program.Home.Path("UnTitle.tnp"));
  EXPECT_EQ(program.Find<QListWidget>(QStringLiteral("ListaFrms")).count(), 1);
  EXPECT_EQ(program.Dialogs.SaveAnswers.size(), 0U);
}

TEST_F(FileCommands, NewOnYesSavesFirst) {
  program.Place(0, {20, 20});
  program.Dialogs.SaveAnswers = {program.Projects.Path("p.tnp"), program.Projects.Path("f.ftn")};
  program.User.Yes();
  program.Click(program.Find<QToolButton>(QStringLiteral("BtnMenu_0")));
  ExpectSaveQuestion();
  EXPECT_NE(program.Projects.Read("f.ftn").find("Form1Btn1"), std::string::npos);
  EXPECT_EQ(program.Form().UBound(Kind::Button), 0);
}

TEST_F(FileCommands, NewStopsWhenItsSaveIsCancelled) {
  program.Place(0, {20, 20});
  program.Dialogs.SaveAnswers = {std::nullopt};
  program.User.Yes();
  program.Key(Qt::Key_N, Qt::ControlModifier);
  ExpectSaveQuestion();
  EXPECT_EQ(program.Form().UBound(Kind::Button), 1);
}

TEST_F(FileCommands, SaveThenNewAsksNothingEvenAfterEdits) {
  SaveAs("p.tnp", "f.ftn");
  program.Place(0, {20, 20});
  program.Key(Qt::Key_N, Qt::ControlModifier);
  ExpectNoBox();
  EXPECT_EQ(program.Form().UBound(Kind::Button), 0);
}

TEST_F(FileCommands, RightAfterNewClosingAsksNothing) {
  program.User.No();
  program.Key(Qt::Key_N, Qt::ControlModifier);
  program.User.TakeSeen();
  EXPECT_TRUE(program.Close());
  ExpectNoBox();
}

TEST_F(FileCommands, RightAfterTheStartClosingAsks) {
  program.User.No();
  EXPECT_TRUE(program.Close());
  ExpectSaveQuestion();
  EXPECT_FALSE(program.Window().isVisible());
}

TEST_F(FileCommands, ExitTakesTheSamePath) {
  program.User.No();
  program.Key(Qt::Key_Q, Qt::ControlModifier);
  ExpectSaveQuestion();
  EXPECT_FALSE(program.Window().isVisible());
}

TEST_F(FileCommands, ClosingOnYesSavesAndACancelledDialogKeepsTheWindow) {
  program.Place(0, {20, 20});
  program.Dialogs.SaveAnswers = {std::nullopt};
  program.User.Yes();
  EXPECT_FALSE(program.Close());
  ExpectSaveQuestion();
  EXPECT_TRUE(program.Window().isVisible());
  EXPECT_EQ(program.Form().UBound(Kind::Button), 1);
  program.Dialogs.SaveAnswers = {program.Projects.Path("p.tnp"), program.Projects.Path("f.ftn")};
  program.User.Yes();
  program.Choose(QStringLiteral("mnuExit"));
  ExpectSaveQuestion();
  EXPECT_FALSE(program.Window().isVisible());
  EXPECT_NE(program.Projects.Read("f.ftn").find("Form1Btn1"), std::string::npos);
}

TEST_F(FileCommands, AnOpenedProjectIsSavedOnCloseWithoutADialog) {
  SaveAs("p.tnp", "f.ftn");
  program.Dialogs.OpenAnswers = {program.Projects.Path("p.tnp")};
  program.Key(Qt::Key_O, Qt::ControlModifier);
  program.Place(0, {20, 20});
  program.User.Yes();
  EXPECT_TRUE(program.Close());
  ExpectSaveQuestion();
  EXPECT_EQ(Dialogs("save"), 2);
  EXPECT_NE(program.Projects.Read("f.ftn").find("Form1Btn1"), std::string::npos);
}

TEST_F(FileCommands, EveryKindComesBackByteForByte) {
  // Each one stands left of and above all before it, where the form is still free.
  QPoint place(370, 280);
  for (const PlacedKind& kind : PlacedKinds()) {
    program.Place(kind.Tool, place);
    place -= QPoint(20, 15);
  }
  program.PressTool(9);
  program.Place(0, {33, 44});
  program.Dialogs.SaveAnswers = {program.Projects.Path("p.tnp"), program.Projects.Path("f.ftn"),
                                 program.Projects.Path("g.ftn")};
  program.Key(Qt::Key_S, Qt::ControlModifier);
  const std::string index = program.Projects.Read("p.tnp");
  const std::string first = program.Projects.Read("f.ftn");
  const std::string second = program.Projects.Read("g.ftn");
  ASSERT_FALSE(first.empty());
  ASSERT_FALSE(second.empty());
  program.Dialogs.OpenAnswers = {program.Projects.Path("p.tnp")};
  program.Click(program.Find<QToolButton>(QStringLiteral("BtnMenu_1")));
  EXPECT_EQ(program.Title(), Opened("p.tnp"));
  EXPECT_EQ(program.Form().Number(), 1);
  for (const PlacedKind& kind : PlacedKinds()) {
    EXPECT_NE(program.Form().FindByTag(kind.Name), nullptr) << kind.Name;
  }
  EXPECT_EQ(program.Find<QListWidget>(QStringLiteral("ListaFrms")).count(), 2);
  program.Key(Qt::Key_S, Qt::ControlModifier);
  EXPECT_EQ(program.Projects.Read("p.tnp"), index);
  EXPECT_EQ(program.Projects.Read("f.ftn"), first);
  EXPECT_EQ(program.Projects.Read("g.ftn"), second);
  EXPECT_EQ(Dialogs("save"), 3);
}

TEST_F(FileCommands, OpenIsAskedAsItShouldAndRemembersTheFolder) {
  SaveAs("p.tnp", "f.ftn");
  program.Dialogs.OpenAnswers = {program.Projects.Path("p.tnp")};
  program.Choose(QStringLiteral("mnuOpen"));
  EXPECT_EQ(program.Dialogs.LastRequest.Title, "Open Project");
  EXPECT_EQ(program.Dialogs.LastRequest.Filter, "Tarnwick Project (New Version)|*.tnp");
  EXPECT_EQ(program.Title(), Opened("p.tnp"));
  EXPECT_EQ(program.Tables().AccionProject, "open");
  program.Choose(QStringLiteral("mnuOpenOld"));
  EXPECT_EQ(program.Dialogs.LastRequest.Title, "Open Old Version");
  EXPECT_EQ(program.Dialogs.LastRequest.Filter,
            "Tarnwick Project (Old Version)|*.ptn|All Files|*.*");
  EXPECT_TRUE(program.Dialogs.LastRequest.StartFolder.starts_with(program.Projects.Path()));
}

TEST_F(FileCommands, ACancelledOpenLeavesEverything) {
  program.Place(0, {20, 20});
  program.User.No();
  program.Key(Qt::Key_O, Qt::ControlModifier);
  EXPECT_EQ(program.Form().UBound(Kind::Button), 1);
  EXPECT_EQ(program.Tables().LoadingProject, 0);
  EXPECT_TRUE(program.Find<QToolButton>(QStringLiteral("BtnMenu_0")).isEnabled());
  EXPECT_EQ(program.Tables().AccionProject, "app");
  ExpectSaveQuestion();
}

TEST_F(FileCommands, EscInTheSaveQuestionStopsNewOpenAndExit) {
  program.Place(0, {20, 20});
  for (const Qt::Key key : {Qt::Key_N, Qt::Key_O, Qt::Key_Q}) {
    program.User.Escape();
    program.Key(key, Qt::ControlModifier);
    ExpectSaveQuestion();
    EXPECT_TRUE(program.Window().isVisible());
    EXPECT_EQ(program.Form().UBound(Kind::Button), 1);
  }
  EXPECT_EQ(Dialogs("open"), 0);
}

TEST_F(FileCommands, ReturnInAQuestionThatReplacesOrDeletesIsNo) {
  program.Projects.Write("old.tnp", "old bytes");
  program.Dialogs.SaveAnswers = {program.Projects.Path("old.tnp"), std::nullopt};
  program.User.Return();
  program.Key(Qt::Key_S, Qt::ControlModifier);
  EXPECT_EQ(program.Projects.Read("old.tnp"), "old bytes");
  program.User.Return();
  program.Choose(QStringLiteral("mnuRemove"));
  EXPECT_EQ(program.Tables().Form(1)->Removed, 0);
  EXPECT_EQ(program.User.TakeSeen().size(), 2U);
}

TEST_F(FileCommands, ARecentProjectOpensFromItsMenuAndClearEmptiesIt) {
  SaveAs("a & b.tnp", "f.ftn");
  program.Key(Qt::Key_N, Qt::ControlModifier);
  QAction& row = program.Action(QStringLiteral("mnuRecent_1"));
  EXPECT_TRUE(row.text().contains(QStringLiteral("a && b.tnp"))) << row.text().toStdString();
  row.trigger();
  EXPECT_EQ(program.Title(), Opened("a & b.tnp"));
  program.Action(QStringLiteral("mnuRecentClear")).trigger();
  Program::Settle();
  EXPECT_EQ(program.Window().findChild<QAction*>(QStringLiteral("mnuRecent_1")), nullptr);
}

TEST_F(FileCommands, AFailedSaveIsNamedInTheStatusBarAndStopsNew) {
  SaveAs("p.tnp", "f.ftn");
  std::filesystem::rename(program.Projects.Native(), program.Home.Native("away"));
  program.Key(Qt::Key_S, Qt::ControlModifier);
  const QString status = program.Find<QLabel>(QStringLiteral("StatusText")).text();
  EXPECT_TRUE(status.startsWith(QStringLiteral("Not saved: "))) << status.toStdString();
  EXPECT_TRUE(status.contains(QStringLiteral("No such file"))) << status.toStdString();
  program.User.Yes();
  program.Key(Qt::Key_N, Qt::ControlModifier);
  EXPECT_NE(program.Tables().AccionProject, "new");
  std::filesystem::rename(program.Home.Native("away"), program.Projects.Native());
}

TEST_F(FileCommands, AMissingFormFileIsTold) {
  SaveAs("p.tnp", "f.ftn");
  std::filesystem::remove(program.Projects.Native("f.ftn"));
  program.Dialogs.OpenAnswers = {program.Projects.Path("p.tnp")};
  program.User.Ok();
  program.Key(Qt::Key_O, Qt::ControlModifier);
  const std::vector<SeenBox> seen = program.User.TakeSeen();
  ASSERT_EQ(seen.size(), 1U);
  EXPECT_EQ(seen[0].Text.toStdString(),
            "Error: File ' " + program.Projects.Path("f.ftn") + " ' does not exist!");
  EXPECT_EQ(seen[0].Title, QStringLiteral("Tarnwick"));
  EXPECT_EQ(seen[0].Buttons, QMessageBox::Ok);
  EXPECT_EQ(seen[0].Icon, QMessageBox::Warning);
  // Without a form in the project an empty one is there to go on with.
  EXPECT_EQ(program.Form().Number(), 1);
}

TEST_F(FileCommands, AFormListedTwiceIsTold) {
  SaveAs("p.tnp", "f.ftn");
  const std::string line = program.Projects.Path("f.ftn") + "\r\n";
  program.Projects.Write("p.tnp", line + line);
  program.Dialogs.OpenAnswers = {program.Projects.Path("p.tnp")};
  program.User.Ok();
  program.Key(Qt::Key_O, Qt::ControlModifier);
  const std::vector<SeenBox> seen = program.User.TakeSeen();
  ASSERT_EQ(seen.size(), 1U);
  EXPECT_TRUE(seen[0].Text.endsWith(QStringLiteral(" already exist!")))
      << seen[0].Text.toStdString();
}

TEST_F(FileCommands, RemoveAsksAndTheCaptionNamesTheForm) {
  program.PressTool(9);
  program.PressTool(9);
  auto& list = program.Find<QListWidget>(QStringLiteral("ListaFrms"));
  program.Click(*list.viewport(), list.visualItemRect(list.item(1)).center());
  program.User.No();
  program.Choose(QStringLiteral("mnuRemove"));
  EXPECT_EQ(program.Action(QStringLiteral("mnuRemove")).text(),
            QStringLiteral("Remove Form2 from project"));
  std::vector<SeenBox> seen = program.User.TakeSeen();
  ASSERT_EQ(seen.size(), 1U);
  EXPECT_EQ(seen[0].Text, QStringLiteral("Delete Form2?"));
  EXPECT_EQ(seen[0].Title, QStringLiteral("Tarnwick"));
  EXPECT_EQ(seen[0].Icon, QMessageBox::Critical);
  EXPECT_EQ(seen[0].Buttons, kYesNo);
  EXPECT_EQ(list.count(), 3);
  program.User.Yes();
  program.Click(program.Find<QToolButton>(QStringLiteral("BtnBarMenu_1")));
  EXPECT_EQ(list.count(), 2);
  // The form at the same place of the list is next; the number is not used again.
  EXPECT_EQ(program.Form().Number(), 3);
  EXPECT_EQ(list.currentRow(), 1);
  program.Click(program.Find<QToolButton>(QStringLiteral("BtnBarMenu_0")));
  EXPECT_EQ(program.Form().Number(), 4);
  EXPECT_EQ(list.item(2)->text(), QStringLiteral("Form4 ()"));
}

TEST_F(FileCommands, WithoutAFormTheFormCommandsAreOff) {
  program.User.Yes();
  program.Choose(QStringLiteral("mnuRemove"));
  for (const char* name : {"mnuSaveForm", "mnuSaveFormAs", "mnuCut", "mnuCopy", "mnuPaste",
                           "mnuDelete", "mnuGrid", "mnuBloquear", "mnuCode", "mnuDeclare",
                           "mnuRemove", "mnuMain", "mnuMenuEdit", "mnuCompile"}) {
    EXPECT_FALSE(program.Action(QString::fromLatin1(name)).isEnabled()) << name;
  }
  for (const char* name : {"mnuNew", "mnuOpen", "mnuSave", "mnuExit", "mnuAddForm", "mnuAbout"}) {
    EXPECT_TRUE(program.Action(QString::fromLatin1(name)).isEnabled()) << name;
  }
  program.Key(Qt::Key_N, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(program.Form().Number(), 2);
  EXPECT_TRUE(program.Action(QStringLiteral("mnuCompile")).isEnabled());
}

TEST_F(FileCommands, SelectMainFormTakesALineOrATypedText) {
  program.PressTool(9);
  program.User.Do([](QDialog& dialog) {
    EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Select Main Form"));
    auto* list = dialog.findChild<QListWidget*>(QStringLiteral("List1"));
    auto* text = dialog.findChild<QLineEdit*>(QStringLiteral("Text1"));
    ASSERT_NE(list, nullptr);
    ASSERT_NE(text, nullptr);
    EXPECT_EQ(list->count(), 2);
    EXPECT_EQ(text->text(), QStringLiteral("Form1 ()"));
    EXPECT_EQ(list->currentRow(), 0);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                      list->visualItemRect(list->item(1)).center());
    EXPECT_EQ(text->text(), QStringLiteral("Form2 ()"));
    QTest::mouseClick(dialog.findChild<QPushButton*>(QStringLiteral("Command1")), Qt::LeftButton);
  });
  program.Choose(QStringLiteral("mnuMain"));
  EXPECT_EQ(program.Tables().MainFormName, "Form2 ()");
  program.User.Do([](QDialog& dialog) {
    auto* text = dialog.findChild<QLineEdit*>(QStringLiteral("Text1"));
    text->clear();
    QTest::keyClicks(text, QStringLiteral("Nowhere"));
    QTest::keyClick(text, Qt::Key_Return);
  });
  program.Choose(QStringLiteral("mnuMain"));
  EXPECT_EQ(program.Tables().MainFormName, "Nowhere");
  program.User.Do([](QDialog& dialog) {
    auto* text = dialog.findChild<QLineEdit*>(QStringLiteral("Text1"));
    text->setText(QStringLiteral("Form1 ()"));
    QTest::keyClick(&dialog, Qt::Key_Escape);
  });
  program.Choose(QStringLiteral("mnuMain"));
  EXPECT_EQ(program.Tables().MainFormName, "Nowhere");
}

TEST_F(FileCommands, AHalfTypedValueIsSaved) {
  program.Place(0, {20, 20});
  auto& name = program.Find<QLineEdit>(QStringLiteral("Text_0"));
  program.Click(name);
  name.selectAll();
  program.Type(QStringLiteral("Go"));
  SaveAs("p.tnp", "f.ftn");
  EXPECT_NE(program.Projects.Read("f.ftn").find("(1) {Go}"), std::string::npos)
      << program.Projects.Read("f.ftn");
}

TEST_F(FileCommands, AFolderThatIsGoneLosesNothingAndSaysNothing) {
  program.Place(0, {20, 20});
  SaveAs("p.tnp", "f.ftn");
  const std::string form = program.Projects.Read("f.ftn");
  std::filesystem::rename(program.Projects.Native(), program.Home.Native("away"));
  program.Key(Qt::Key_S, Qt::ControlModifier);
  ExpectNoBox();
  EXPECT_EQ(program.Home.Read("away/f.ftn"), form);
  std::filesystem::rename(program.Home.Native("away"), program.Projects.Native());
}

TEST(RealFileDialogs, OpenAndSaveRunTheToolkitsDialog) {
  Program program(Program::FileDialogs::Real);
  program.Place(0, {20, 20});
  const auto choose = [](const std::string& path) {
    return [path](QDialog& dialog) {
      auto* files = qobject_cast<QFileDialog*>(&dialog);
      ASSERT_NE(files, nullptr);
      auto* field = files->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
      ASSERT_NE(field, nullptr);
      field->setText(QString::fromStdString(path));
      QTest::keyClick(field, Qt::Key_Return);
    };
  };
  program.User.Do(choose(program.Projects.Native("p.tnp")));
  program.User.Do(choose(program.Projects.Native("f.ftn")));
  program.Key(Qt::Key_S, Qt::ControlModifier);
  EXPECT_EQ(program.Title(), "Tarnwick - " + program.Projects.Path("p.tnp"));
  const std::string form = program.Projects.Read("f.ftn");
  EXPECT_NE(form.find("Form1Btn1"), std::string::npos);
  program.User.Do(choose(program.Projects.Native("p.tnp")));
  program.Key(Qt::Key_O, Qt::ControlModifier);
  EXPECT_NE(program.Form().FindByTag("Form1Btn1"), nullptr);
  program.User.Do([](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
  program.Key(Qt::Key_O, Qt::ControlModifier);
  EXPECT_NE(program.Form().FindByTag("Form1Btn1"), nullptr);
  EXPECT_EQ(program.Projects.Read("f.ftn"), form);
}

}  // namespace
}  // namespace tarnwick
