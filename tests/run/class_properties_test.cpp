// Every property that works, of every class: set by the program, read back, and seen. The rows are
// in class_properties.tsv:
//
//   class member   see MemberTable
//   setup          lines of the program; O is the object (F for a form), shown on the form F
//   set            what is done while it is shown; "= x" sets the property itself
//   read gives     what is printed then (the property itself when empty), and what that must be
//   seen           see Missing; "pixels": the form looks different; empty: kept for the program
#include <QApplication>
#include <QBuffer>
#include <QImage>

#include <gtest/gtest.h>

#include "run/class_probes.h"
#include "run/class_rows.h"
#include "run/live_program.h"
#include "text/strings.h"

namespace tarnwick {
namespace {

using objects::ClassFlag;
using objects::ClassInfo;
using objects::MemberInfo;
using test::LiveProgram;
using test::MemberRow;

/// A folder with the pictures of the rows.
class Pictures {
 public:
  Pictures() {
    QImage red(16, 16, QImage::Format_RGB32);
    red.fill(Qt::red);
    red.setPixelColor(8, 8, Qt::blue);
    Save(red, "red.bmp");
    QImage wide(32, 16, QImage::Format_RGB32);
    wide.fill(Qt::red);
    for (int x = 16; x < 32; ++x) {
      for (int y = 0; y < 16; ++y) wide.setPixelColor(x, y, Qt::green);
    }
    Save(wide, "wide.bmp");
  }
  [[nodiscard]] std::string Filled(const std::string& text) const {
    std::string filled = ReplaceAll(text, "@RED@", folder_.Path("red.bmp"));
    filled = ReplaceAll(filled, "@WIDE@", folder_.Path("wide.bmp"));
    return ReplaceAll(filled, "@FOLDER@", folder_.Path());
  }

 private:
  void Save(const QImage& image, const char* name) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "BMP");
    folder_.Write(name, bytes.toStdString());
  }
  TemporaryFolder folder_;
};

/// One row of the table, run.
class PropertyRun {
 public:
  PropertyRun(const ClassInfo& kind, const MemberInfo& member, MemberRow row)
      : kind_(kind), name_(member.Facts.Name), row_(std::move(row)) {
    for (auto& [head, cell] : row_) cell = pictures_.Filled(cell);
    form_ = kind.Name == "QFORM";
    subject_ = form_ ? "F" : "O";
  }

  void Run() {
    LiveProgram live(Text());
    live.Pause(1);
    QImage before;
    live.Then([&] {
      before = Shown(live);
      live.Printed.clear();
      live.World->Click(live.Object("Go").Id);
    });
    for (int i = 0; i < 10 && row_["seen"] == "ticks"; ++i) live.Then([] { QTest::qSleep(5); });
    live.Then([&] {
      if (!row_["gives"].empty()) {
        // A timer may have ticked since.
        EXPECT_EQ(live.Printed.substr(0, live.Printed.find("tick")), "<" + row_["gives"] + ">")
            << What();
      }
      See(live, before);
    });
    live.Run();
    EXPECT_EQ(live.Result.Text, "") << What();
  }

 private:
  [[nodiscard]] std::string What() const {
    return std::string(kind_.Name) + "." + name_ + "\n" + Text();
  }

  [[nodiscard]] std::string Text() const {
    const std::string own = subject_ + "." + name_;
    const std::string& set = row_.at("set");
    const std::string change = set.starts_with("= ") ? own + " " + set : set;
    const std::string read = row_.at("read").empty() ? own : row_.at("read");
    const bool prints = !row_.at("gives").empty();
    std::string object;
    if (!form_) object = "DIM O AS " + std::string(kind_.Name) + "\n";
    if (kind_.Has(ClassFlag::Widget) && !form_) {
      object += "O.Parent = F: O.Left = 20: O.Top = 20\n";
    }
    if (kind_.Name == "QMENUITEM") {
      object +=
          "DIM M AS QMAINMENU: DIM T AS QMENUITEM: M.AddItems T: T.AddItems O\n"
          "M.Parent = F: O.Caption = \"Row\"\n";
    }
    if (kind_.Name == "QTIMER")
      object += "SUB Ticked\nPRINT \"tick\"\nEND SUB\nO.OnTimer = Ticked\n";
    const bool dialog = kind_.Name == "QOPENDIALOG" || kind_.Name == "QSAVEDIALOG";
    if (dialog) {
      object += "DIM Ask AS QBUTTON\nSUB Asked\nIF O.Execute THEN PRINT " +
                std::string(kind_.Name == "QOPENDIALOG" ? "O.Files(0)" : "O.FileName") +
                ";\nEND SUB\nAsk.OnClick = Asked\n";
    }
    return test::FormWith(object + row_.at("setup") + "\nDIM Go AS QBUTTON",
                          "SUB Change\n" + change + "\n" +
                              (prints ? "PRINT \"<\"; " + read + "; \">\";\n" : "") +
                              "END SUB\nGo.OnClick = Change") +
           // A form that closes leaves the program running.
           (form_ ? "DO\nDOEVENTS\nLOOP\n" : "");
  }

  static QImage Shown(const LiveProgram& live) { return live.Widget("F")->grab().toImage(); }

  void See(LiveProgram& live, const QImage& before) {
    const std::string& seen = row_["seen"];
    if (seen.empty()) return;
    if (seen == "pixels") {
      EXPECT_FALSE(Shown(live) == before) << What();
    } else if (seen == "ticks") {
      EXPECT_NE(live.Printed.find("tick"), std::string::npos) << What();
    } else {
      EXPECT_EQ(test::Missing(live, subject_, seen), "") << "not " << seen << "\n" << What();
    }
  }

  const ClassInfo& kind_;
  std::string name_;
  MemberRow row_;
  Pictures pictures_;
  bool form_ = false;
  std::string subject_;
};

TEST(ClassPropertiesTest, EveryOneIsSetReadBackAndSeen) {
  test::ForEachWorkingMember("class_properties.tsv", false,
                             [](const ClassInfo& kind, const MemberInfo& member,
                                const MemberRow& row) { PropertyRun(kind, member, row).Run(); });
}

}  // namespace
}  // namespace tarnwick
