// The projects of examples/, generated and run with their windows.
#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <QTextEdit>
#include <filesystem>
#include <regex>

#include <gtest/gtest.h>

#include "fakes/build_paths.h"
#include "run/live_program.h"
#include "run/points.h"
#include "run/views/run_form.h"

namespace tarnwick {
namespace {

using test::LiveProgram;

/// A project of examples/ in a folder of its own, with the source generated from it.
class ExampleSource {
 public:
  explicit ExampleSource(const std::string& name, const std::string& file = {}) {
    namespace fs = std::filesystem;
    fs::copy(test::SourceFolder() + "/examples/" + name, folder_.Native(name),
             fs::copy_options::recursive);
    const std::string project = folder_.Native(name) + "/" + (file.empty() ? name : file);
    if (!file.empty()) Cli({"convert", project + ".ptn"});
    Path = project + ".com";
    Cli({"generate", project + ".tnp", "-o", Path});
  }

  std::string Path;

 private:
  static void Cli(const std::vector<std::string>& words) {
    QStringList list;
    for (const std::string& word : words) list << QString::fromStdString(word);
    QProcess process;
    process.start(QString::fromStdString(test::ProgramFolder() + "/tarnwick-cli"), list);
    process.waitForFinished();
    EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
  }

  TemporaryFolder folder_;
};

void Click(const LiveProgram& live, std::string_view name) {
  QTest::mouseClick(live.Widget(name), Qt::LeftButton);
}

/// The row of a menu by its object's name; null when it is not there.
QAction* RowOf(const QList<QAction*>& rows, const QString& name) {
  for (QAction* const row : rows) {
    if (row->objectName() == name) return row;
    QAction* const below = row->menu() == nullptr ? nullptr : RowOf(row->menu()->actions(), name);
    if (below != nullptr) return below;
  }
  return nullptr;
}

/// Picks a row of the menu bar of a form.
void Pick(const LiveProgram& live, std::string_view form, const char* row) {
  const QMenuBar* const bar = live.Widget(form)->findChild<QMenuBar*>();
  ASSERT_NE(bar, nullptr);
  QAction* const action = RowOf(bar->actions(), QString::fromLatin1(row));
  ASSERT_NE(action, nullptr) << row;
  action->trigger();
}

/// Gives the name of a file to the dialog that is open.
void NameFile(const std::string& path) {
  auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
  ASSERT_NE(dialog, nullptr);
  auto* const name = dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
  ASSERT_NE(name, nullptr);
  name->setText(QString::fromStdString(path));
  QTest::keyClick(name, Qt::Key_Return);
}

/// The bars of all forms that are shown.
int FormBars() {
  int bars = 0;
  for (const QWidget* const window : QApplication::topLevelWidgets()) {
    if (!window->isVisible() || dynamic_cast<const run::RunForm*>(window) == nullptr) continue;
    const auto* const area = window->findChild<QScrollArea*>();
    bars += area->verticalScrollBar()->isVisible() ? 1 : 0;
    bars += area->horizontalScrollBar()->isVisible() ? 1 : 0;
  }
  return bars;
}

TEST(RunExamplesTest, NoFormAsDrawnHasBars) {
  struct Row {
    const char* Folder;
    const char* File;
    std::vector<std::string> Forms;
  };
  const std::vector<Row> rows = {{"temperature", "", {"frmTemperature"}},
                                 {"converter", "", {"ConvForm"}},
                                 {"clock", "", {"ClockForm", "SettingsForm"}},
                                 {"notepad", "", {"NoteForm", "FindForm", "AboutForm"}},
                                 {"old", "notes", {"Form"}}};
  for (const Row& row : rows) {
    const ExampleSource source(row.Folder, row.File);
    LiveProgram live("", source.Path);
    live.Then([&] {
      for (const std::string& form : row.Forms) {
        const objects::ObjectRecord& record = live.Object(form);
        live.World->Change(*live.World->Find(record.Id), objects::Word::Visible,
                           basic::Value::Integer(1), objects::Origin::Code);
      }
    });
    live.Then([&] {
      for (const std::string& form : row.Forms) {
        EXPECT_TRUE(live.The<QWidget>(form).isVisible()) << form;
      }
      EXPECT_EQ(FormBars(), 0) << row.Folder;
    });
    live.Run();
  }
}

TEST(RunExamplesTest, TheFootOfTheNotepadIsSeen) {
  const ExampleSource source("notepad");
  LiveProgram live("", source.Path);
  const auto foot = [&] {
    const QWidget& label = live.The<QWidget>("StatusLabel");
    EXPECT_EQ(FormBars(), 0);
    EXPECT_TRUE(label.visibleRegion().boundingRect().height() >= 18)
        << label.visibleRegion().boundingRect().height();
  };
  live.Then([] {});
  live.Then([&] {
    foot();
    live.Widget("NoteForm")->resize(400, 200);
    foot();
  });
  live.Then([&] {
    foot();
    live.Widget("NoteForm")->resize(700, 500);
  });
  live.Then(foot);
  live.Run();
}

TEST(RunExamplesTest, TemperatureConvertsWhatIsTyped) {
  const ExampleSource source("temperature");
  LiveProgram live("", source.Path);
  live.Then([&] {
    EXPECT_EQ(live.Get("lblResult", "Caption"), "is 20 degrees Celsius");
    auto& edit = live.The<QLineEdit>("txtFahrenheit");
    edit.setFocus();
    edit.selectAll();
    QTest::keyClicks(&edit, QStringLiteral("212"));
    EXPECT_EQ(live.Get("lblResult", "Caption"), "is 100 degrees Celsius");
    Click(live, "chkKelvin");
    EXPECT_EQ(live.Get("lblResult", "Caption"), "is 100 degrees Celsius, 373.15 Kelvin");
    Click(live, "btnClose");
    EXPECT_FALSE(live.Widget("frmTemperature")->isVisible());
  });
  live.Run();
}

TEST(RunExamplesTest, TheConverterConverts) {
  const ExampleSource source("converter");
  LiveProgram live("", source.Path);
  live.Then([&] {
    EXPECT_EQ(live.The<QComboBox>("FromCombo").count(), 6);
    EXPECT_EQ(live.Get("ToCombo", "Text"), "kilometre");
    auto& value = live.The<QLineEdit>("ValueText");
    EXPECT_EQ(QApplication::focusWidget(), &value);
    value.selectAll();
    QTest::keyClicks(&value, QStringLiteral("1x2,5 00"));
    EXPECT_EQ(live.Get("ValueText", "Text"), "12.500")
        << "letters are kept out, a comma is a point";
    value.selectAll();
    QTest::keyClicks(&value, QStringLiteral("2500000"));
    EXPECT_EQ(live.The<QLineEdit>("ResultText").text(), QStringLiteral("2500.00"));
    Click(live, "GroupCheck");
    EXPECT_EQ(live.Get("ResultText", "Text"), "2,500.00");
    Click(live, "Digits(2)");
    EXPECT_EQ(live.Get("ResultText", "Text"), "2,500.0000");
    Click(live, "SwapBtn");
    EXPECT_EQ(live.Get("FromCombo", "Text"), "kilometre");
    auto& list = live.The<QListWidget>("KindList");
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {},
                      list.visualItemRect(list.item(2)).center());
    EXPECT_EQ(live.The<QComboBox>("FromCombo").count(), 3);
    auto& from = live.The<QComboBox>("FromCombo");
    from.setFocus();
    QTest::keyClick(&from, Qt::Key_Down);
    EXPECT_EQ(live.Get("FromCombo", "ItemIndex"), "1");
    Click(live, "CopyBtn");
    EXPECT_EQ(QApplication::clipboard()->text().toStdString(), live.Get("ResultText", "Text"));
    QTest::keyClick(&from, Qt::Key_Escape);
    EXPECT_FALSE(live.Widget("ConvForm")->isVisible());
  });
  live.Run();
}

TEST(RunExamplesTest, TheClockShowsTheTimeAndKeepsItsSettings) {
  const ExampleSource source("clock");
  LiveProgram live("", source.Path);
  live.ExeName = live.Folder.Path("clock.exe");
  live.Then([&] {
    // Before ten o'clock the hour has one digit.
    const std::string time = live.Get("TimeLabel", "Caption");
    EXPECT_TRUE(std::regex_match(time, std::regex("[0-9]{1,2}:[0-9]{2}:[0-9]{2}"))) << time;
    EXPECT_NE(time, "00:00:00") << "as it was drawn";
    // The hands meet in the middle of the face.
    const QImage face = live.Widget("ClockFace")->grab().toImage();
    EXPECT_EQ(face.size(), QSize(120, 120));
    Click(live, "SettingsBtn");
  });
  live.Then([&] {
    ASSERT_TRUE(live.Widget("SettingsForm")->isVisible());
    EXPECT_EQ(live.Get("SecondsCheck", "Checked"), "1");
    Click(live, "SecondsCheck");
    Click(live, "Hours12Opt");
    Click(live, "OkBtn");
  });
  live.Then([&] {
    EXPECT_FALSE(live.Widget("SettingsForm")->isVisible());
    const std::string shown = live.Get("TimeLabel", "Caption");
    EXPECT_TRUE(shown.ends_with("am") || shown.ends_with("pm")) << shown;
    EXPECT_NE(live.Folder.Read("clock.ini").find("Hours24=0"), std::string::npos);
    QTest::mouseClick(live.Widget("ClockFace"), Qt::RightButton);
  });
  live.Then([&] {
    auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    ASSERT_EQ(menu->actions().size(), 5);
    QAction* const black = menu->actions().at(1)->menu()->actions().at(0);
    EXPECT_TRUE(black->isChecked());
    QTest::mouseClick(menu, Qt::LeftButton, {},
                      menu->actionGeometry(menu->actions().at(4)).center());
  });
  live.Run();
}

TEST(RunExamplesTest, TheNotepadSavesWhatWasTyped) {
  const ExampleSource source("notepad");
  LiveProgram live("", source.Path);
  live.Then([&] {
    auto& note = live.The<QTextEdit>("NoteText");
    note.setFocus();
    QTest::keyClicks(&note, QStringLiteral("Milk"));
    QTest::keyClick(&note, Qt::Key_Return);
    QTest::keyClicks(&note, QStringLiteral("Bread"));
    QTest::keyClick(&note, Qt::Key_S, Qt::ControlModifier);
  });
  live.Then([&] {
    auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    auto* const name = dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    ASSERT_NE(name, nullptr);
    name->setText(QString::fromStdString(live.Folder.Native("shopping")));
    QTest::keyClick(name, Qt::Key_Return);
  });
  live.Then([&] { EXPECT_EQ(live.Folder.Read("shopping.txt"), "Milk\r\nBread"); });
  live.Run();
}

TEST(RunExamplesTest, TheConverterHasItsListsAndAResultThatIsReadOnly) {
  const ExampleSource source("converter");
  LiveProgram live("", source.Path);
  live.Then([&] {
    auto& kinds = live.The<QListWidget>("KindList");
    EXPECT_EQ(kinds.count(), 5) << "length, mass, temperature, volume and speed";
    auto& result = live.The<QLineEdit>("ResultText");
    const QString before = result.text();
    result.setFocus();
    QTest::keyClicks(&result, QStringLiteral("9"));
    EXPECT_EQ(result.text(), before);
    EXPECT_EQ(live.Get("Digits(1)", "Caption").empty(), false);
    Click(live, "Digits(1)");
    Click(live, "Digits(3)");
    EXPECT_EQ(live.Get("Digits(1)", "Checked") + live.Get("Digits(3)", "Checked"), "01");
  });
  live.Run();
}

TEST(RunExamplesTest, TheClockDrawsItsHandsInTheColourOfItsMenu) {
  const ExampleSource source("clock");
  LiveProgram live("", source.Path);
  live.ExeName = live.Folder.Path("clock.exe");
  const auto reds = [&] {
    return test::PointsWhere(*live.Widget("ClockFace"), [](const QColor& at) {
      return at.red() > 200 && at.green() < 60 && at.blue() < 60;
    });
  };
  int before = 0;
  live.Then([&] {
    before = reds();
    EXPECT_FALSE(live.Widget("ClockForm")->windowIcon().isNull());
    EXPECT_GT(live.Widget("SettingsBtn")->height(), 0);
    QTest::mouseClick(live.Widget("ClockFace"), Qt::RightButton);
  });
  live.Then([&] {
    auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    QAction* const red = RowOf(menu->actions(), QStringLiteral("popRed"));
    ASSERT_NE(red, nullptr);
    EXPECT_FALSE(red->isChecked());
    red->trigger();
    menu->hide();
  });
  // The hands are drawn with the next second.
  for (int i = 0; i < 75; ++i) live.Then([] {});
  live.Then([&] {
    EXPECT_GT(reds(), before + 20);
    QTest::mouseClick(live.Widget("ClockFace"), Qt::RightButton);
  });
  live.Then([&] {
    auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    EXPECT_TRUE(RowOf(menu->actions(), QStringLiteral("popRed"))->isChecked());
    menu->hide();
  });
  live.Run();
}

TEST(RunExamplesTest, TheNotepadHasItsMenusAndFollowsTheWindow) {
  const ExampleSource source("notepad");
  LiveProgram live("", source.Path);
  live.Then([&] {
    const QMenuBar* const bar = live.Widget("NoteForm")->findChild<QMenuBar*>();
    ASSERT_EQ(bar->actions().size(), 5);
    EXPECT_TRUE(RowOf(bar->actions(), QStringLiteral("sepExit")) == nullptr)
        << "a separator has no name";
    EXPECT_EQ(RowOf(bar->actions(), QStringLiteral("mnuFind"))->shortcut().toString(),
              QStringLiteral("Ctrl+F"));
    EXPECT_FALSE(RowOf(bar->actions(), QStringLiteral("mnuSize"))->isEnabled())
        << "the heading of the text sizes";
    const int before = live.Widget("NoteText")->font().pixelSize();
    Pick(live, "NoteForm", "mnuLarge");
    EXPECT_GT(live.Widget("NoteText")->font().pixelSize(), before);
    live.Widget("NoteForm")->resize(500, 400);
  });
  live.Then([&] {
    EXPECT_EQ(live.Widget("NoteText")->width(), 500);
    EXPECT_EQ(std::to_string(live.Widget("NoteText")->height() + 20),
              live.Get("NoteForm", "ClientHeight"));
  });
  live.Run();
}

TEST(RunExamplesTest, TheNotepadOpensFindsAndAsksBeforeItCloses) {
  const ExampleSource source("notepad");
  LiveProgram live("", source.Path);
  live.Folder.Write("list.txt", "Milk and bread\r\nMore milk");
  live.Then([&] { Pick(live, "NoteForm", "mnuOpen"); });
  live.Then([&] { NameFile(live.Folder.Native("list.txt")); });
  live.Then([&] {
    EXPECT_EQ(live.Get("NoteText", "Text"), "Milk and bread\r\nMore milk");
    Pick(live, "NoteForm", "mnuFind");
  });
  live.Then([&] {
    ASSERT_TRUE(live.Widget("FindForm")->isVisible());
    EXPECT_TRUE(live.Widget("FindForm")->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    auto& wanted = live.The<QLineEdit>("FindText");
    wanted.setFocus();
    QTest::keyClicks(&wanted, QStringLiteral("milk"));
    Click(live, "FindNextBtn");
    EXPECT_EQ(live.Get("NoteText", "SelText"), "Milk");
    Click(live, "FindNextBtn");
    EXPECT_EQ(live.Get("NoteText", "SelText"), "milk");
    EXPECT_EQ(live.Get("NoteText", "SelStart"), "21");
    Click(live, "FindCloseBtn");
    Pick(live, "NoteForm", "mnuAbout");
  });
  live.Then([&] {
    ASSERT_TRUE(live.Widget("AboutForm")->isVisible());
    Click(live, "AboutBtn");
  });
  live.Then([&] {
    live.Widget("NoteText")->setFocus();
    QTest::keyClicks(live.Widget("NoteText"), QStringLiteral("x"));
    live.Widget("NoteForm")->close();
  });
  live.Then([&] {
    auto* const question = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    ASSERT_NE(question, nullptr);
    QTest::mouseClick(question->button(QMessageBox::Cancel), Qt::LeftButton);
  });
  live.Then([&] { EXPECT_TRUE(live.Widget("NoteForm")->isVisible()); });
  live.Run();
}

TEST(RunExamplesTest, TheConvertedNotesAreKept) {
  const ExampleSource source("old", "notes");
  LiveProgram live("", source.Path);
  live.ExeName = live.Folder.Path("notes.exe");
  live.Then([&] {
    auto& text = live.The<QLineEdit>("Text1");
    text.setFocus();
    QTest::keyClicks(&text, QStringLiteral("one"));
    Click(live, "Btn1");
    QTest::keyClicks(&text, QStringLiteral("two"));
    Click(live, "Btn1");
    auto& list = live.The<QListWidget>("List1");
    ASSERT_EQ(list.count(), 2);
    EXPECT_EQ(list.item(0)->text(), QStringLiteral("two")) << "the latest first";
    Pick(live, "Form", "mnuKeep");
    EXPECT_EQ(live.Folder.Read("notes.txt"), "two\r\none\r\n");
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {},
                      list.visualItemRect(list.item(1)).center());
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {},
                       list.visualItemRect(list.item(1)).center());
    EXPECT_EQ(list.count(), 1);
    Pick(live, "Form", "mnuEnd");
    EXPECT_FALSE(live.Widget("Form")->isVisible());
  });
  live.Run();
}

}  // namespace
}  // namespace tarnwick
