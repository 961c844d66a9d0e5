// Lists of files, in windows.
#include <QListWidget>
#include <QTest>

#include <gtest/gtest.h>

#include "run/live_program.h"

namespace tarnwick {
namespace {

using test::FormWith;
using test::LiveProgram;

TEST(RunListsTest, AListOfFilesIsPickedByTheMouse) {
  TemporaryFolder files;
  for (const char* const name : {"a.txt", "b.txt", "c.dat"}) files.Write(name, "x");
  LiveProgram live(
      FormWith("DIM L AS QFILELISTBOX: L.Parent = F: L.Mask = \"*.txt\"\n"
               "L.Directory = \"" +
                   files.Path() + "\"",
               "SUB Picked\nPRINT L.FileName; L.ItemIndex;\nEND SUB\n"
               "L.OnClick = Picked\nSUB Twice\nPRINT \"twice\";\nEND SUB\n"
               "L.OnDblClick = Twice"));
  live.Then([&] {
    auto& list = live.The<QListWidget>("L");
    ASSERT_EQ(list.count(), 2);
    EXPECT_EQ(list.item(1)->text(), QStringLiteral("b.txt"));
    const QPoint at = list.visualItemRect(list.item(1)).center();
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, at);
  });
  live.Then([&] {
    EXPECT_EQ(live.Printed, files.Path("b.txt") + "1");
    live.Printed.clear();
    live.Widget("L")->setFocus();
    QTest::keyClick(live.Widget("L"), Qt::Key_Up);
  });
  live.Then([&] { EXPECT_EQ(live.Printed, files.Path("a.txt") + "0"); });
  live.Run();
}

TEST(RunListsTest, AListOfFilesShowsAnotherFolder) {
  TemporaryFolder files;
  files.Write("a.txt", "x");
  LiveProgram live(FormWith("DIM L AS QFILELISTBOX: L.Parent = F: L.Directory = \"" + files.Path() +
                                "\"\nDIM Go AS QBUTTON",
                            "SUB Change\nL.Mask = \"*.bas\"\nEND SUB\nGo.OnClick = Change"));
  live.Then([&] {
    EXPECT_EQ(live.The<QListWidget>("L").count(), 1);
    live.World->Click(live.Object("Go").Id);
    EXPECT_EQ(live.The<QListWidget>("L").count(), 0);
  });
  live.Run();
}

}  // namespace
}  // namespace tarnwick
