// The projects of examples/, generated and run with their windows.
#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QProcess>
#include <QTest>
#include <QTextEdit>
#include <filesystem>

#include <gtest/gtest.h>

#include "fakes/build_paths.h"
#include "run/live_program.h"

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
    EXPECT_EQ(live.Get("TimeLabel", "Caption").size(), 8U);
    EXPECT_NE(live.Get("TimeLabel", "Caption"), "00:00:00");
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

TEST(RunExamplesTest, TheConvertedNotesRun) {
  const ExampleSource source("old", "notes");
  LiveProgram live("", source.Path);
  live.Then([&] { EXPECT_NE(QApplication::activeWindow(), nullptr); });
  live.Run();
}

}  // namespace
}  // namespace tarnwick
