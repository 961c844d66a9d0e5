// Every event that works, of every class, raised by keys and mouse.
// The rows are in class_events.tsv:
//
//   class member   see MemberTable
//   setup          lines of the program; O is the object (F for a form), shown on the form F
//   act            what the user does, steps with ; between (see kActs)
//   prints         what the handler prints: its arguments in brackets, once for each event
#include <QApplication>
#include <QComboBox>
#include <QEnterEvent>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QScrollArea>
#include <QTabBar>
#include <QTest>
#include <QTextBrowser>
#include <map>

#include <gtest/gtest.h>

#include "looks/text_bridge.h"
#include "run/class_rows.h"
#include "run/live_program.h"
#include "run/views/run_form.h"
#include "text/strings.h"

namespace tarnwick {
namespace {

using objects::ClassFlag;
using objects::ClassInfo;
using objects::MemberInfo;
using test::LiveProgram;
using test::MemberRow;

/// The handler of an event that prints its arguments in brackets.
std::string HandlerOf(const MemberInfo& event) {
  std::string heads;
  std::string prints = "PRINT \"[\";";
  char name = 'a';
  for (const basic::MemberParameter& parameter : event.Facts.Parameters) {
    const basic::ValueKind kind = basic::KindOf(parameter.Kind);
    if (kind != basic::ValueKind::Whole && kind != basic::ValueKind::Text) continue;
    const bool text = kind == basic::ValueKind::Text;
    heads +=
        (heads.empty() ? "" : ", ") + std::string(1, name) + (text ? " AS STRING" : " AS INTEGER");
    if (name != 'a') prints += " \",\";";
    prints += std::string(" ") + name + ";";
    ++name;
  }
  return "SUB Handler" + (heads.empty() ? "" : " (" + heads + ")") + "\n" + prints +
         " \"]\";\nEND SUB\n";
}

/// The object to which the user does something.
struct Target {
  LiveProgram& Live;
  std::string Name;

  [[nodiscard]] QWidget& Widget() const { return Live.The<QWidget>(Name); }
  /// What the pointer meets, and where a position of the object is on it.
  [[nodiscard]] QWidget& Pointed() const {
    if (auto* const form = dynamic_cast<run::RunForm*>(&Widget())) return *form->Client();
    if (auto* const box = qobject_cast<QScrollArea*>(&Widget())) return *box->widget();
    auto* const area = qobject_cast<QAbstractScrollArea*>(&Widget());
    return area == nullptr ? Widget() : *area->viewport();
  }
  [[nodiscard]] QPoint On(const QPoint& at) const {
    const bool form = dynamic_cast<run::RunForm*>(&Widget()) != nullptr;
    return form ? at : Pointed().mapFrom(&Widget(), at);
  }
  /// What has the keys.
  [[nodiscard]] QWidget& Keys() const { return Widget(); }
};

QPoint PointOf(std::string_view text) {
  const std::vector<std::string_view> parts = Split(text, ",");
  return {std::stoi(std::string(parts.at(0))), std::stoi(std::string(parts.at(1)))};
}

void Focus(const Target& on) {
  on.Keys().setFocus();
}

void Press(const Target& on, const std::string& rest) {
  const std::vector<std::string_view> words = Split(rest, " ");
  QTest::mouseClick(&on.Pointed(), words.at(0) == "left" ? Qt::LeftButton : Qt::RightButton, {},
                    on.On(PointOf(words.at(1))));
}

void Move(const Target& on, const std::string& rest) {
  QTest::mouseMove(&on.Pointed(), on.On(PointOf(rest)));
  QMouseEvent event(QEvent::MouseMove, on.On(PointOf(rest)),
                    on.Pointed().mapToGlobal(on.On(PointOf(rest))), Qt::NoButton, Qt::NoButton, {});
  on.Live.Printed.clear();
  QApplication::sendEvent(&on.Pointed(), &event);
}

void Double(const Target& on, const std::string& rest) {
  auto* const combo = qobject_cast<QComboBox*>(&on.Widget());
  QWidget& pointed = combo == nullptr ? on.Pointed() : *combo->lineEdit();
  QTest::mouseDClick(&pointed, Qt::LeftButton, {}, on.On(PointOf(rest)));
}

void Key(const Target& on, const std::string& rest) {
  Focus(on);
  static const std::map<std::string, Qt::Key> kArrows{
      {"down", Qt::Key_Down}, {"left", Qt::Key_Left}, {"right", Qt::Key_Right}};
  const auto arrow = kArrows.find(rest);
  if (arrow != kArrows.end()) {
    QTest::keyClick(&on.Keys(), arrow->second);
  } else {
    QTest::keyClick(&on.Keys(), rest.at(0));
  }
}

void Enter(const Target& on, const std::string&) {
  Focus(on);
}

void Leave(const Target& on, const std::string&) {
  on.Live.Widget("Other")->setFocus();
}

void Close(const Target& on, const std::string&) {
  on.Widget().close();
}

void Size(const Target& on, const std::string& rest) {
  const QPoint size = PointOf(rest);
  on.Widget().resize(size.x(), size.y());
}

void SetVisible(const Target& on, bool visible) {
  on.Live.Printed.clear();
  on.Live.World->Click(on.Live.Object(visible ? "Shows" : "Hides").Id);
}

void Over(const Target& on, const std::string& rest) {
  QWidget& widget = on.Live.The<QWidget>(rest);
  const QPointF at(2, 2);
  QEnterEvent event(at, at, widget.mapToGlobal(at));
  QApplication::sendEvent(&widget, &event);
}

void Right(const Target& on, const std::string& rest) {
  const Target other{on.Live, rest};
  QTest::mouseClick(&other.Pointed(), Qt::RightButton, {}, QPoint(3, 3));
  if (QWidget* const menu = QApplication::activePopupWidget()) menu->hide();
}

void Wait(const Target&, const std::string&) {
  QTest::qSleep(30);
}

void PickFromMenu(const Target& on, const std::string&) {
  auto* const bar = on.Live.Widget("F")->findChild<QMenuBar*>();
  ASSERT_NE(bar, nullptr);
  QMenu* const rows = bar->actions().at(0)->menu();
  ASSERT_NE(rows, nullptr);
  rows->popup(QPoint(50, 50));
  QTest::mouseClick(rows, Qt::LeftButton, {}, rows->actionGeometry(rows->actions().at(0)).center());
}

/// The head of the first column.
void PressHeader(const Target& on, const std::string&) {
  auto* const header = on.Widget().findChild<QHeaderView*>();
  ASSERT_NE(header, nullptr);
  QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, QPoint(8, header->height() / 2));
}

/// The second tab.
void PressTab(const Target& on, const std::string&) {
  auto* const tabs = on.Widget().findChild<QTabBar*>();
  ASSERT_NE(tabs, nullptr);
  QTest::mouseClick(tabs, Qt::LeftButton, {}, tabs->tabRect(1).center());
}

struct ActRow {
  const char* Word;
  void (*Do)(const Target&, const std::string&);
};
const ActRow kActs[] = {
    {"press", Press},
    {"move", Move},
    {"double", Double},
    {"key", Key},
    {"enter", Enter},
    {"leave", Leave},
    {"close", Close},
    {"size", Size},
    {"hide", [](const Target& on, const std::string&) { SetVisible(on, false); }},
    {"show", [](const Target& on, const std::string&) { SetVisible(on, true); }},
    {"over", Over},
    {"right", Right},
    {"wait", Wait},
    {"menu", PickFromMenu},
    {"header", PressHeader},
    {"tab", PressTab},
    {"do",
     [](const Target& on, const std::string&) { on.Live.World->Click(on.Live.Object("Does").Id); }},
};

void Act(const Target& on, const std::string& acts) {
  for (const std::string_view one : Split(acts, ";")) {
    const std::string act(one);
    const std::string word = act.substr(0, act.find(' '));
    const std::string rest = word.size() < act.size() ? act.substr(word.size() + 1) : "";
    bool known = false;
    for (const ActRow& row : kActs) {
      if (word != row.Word) continue;
      row.Do(on, rest);
      known = true;
    }
    EXPECT_TRUE(known) << act;
  }
}

void RunRow(const ClassInfo& kind, const MemberInfo& event, const MemberRow& row) {
  const bool form = kind.Name == "QFORM";
  const std::string subject = form ? "F" : "O";
  std::string object;
  if (!form) object = "DIM O AS " + std::string(kind.Name) + "\n";
  if (kind.Has(ClassFlag::Widget) && !form) object += "O.Parent = F: O.Left = 20: O.Top = 20\n";
  if (kind.Name == "QMENUITEM") {
    object += "DIM M AS QMAINMENU: DIM T AS QMENUITEM: M.AddItems T: T.AddItems O\nM.Parent = F\n";
  }
  // What the program does itself.
  constexpr std::string_view kDo = "do ";
  std::string act = row.at("act");
  std::string own;
  if (act.starts_with(kDo)) {
    own = "\nDIM Does AS QBUTTON\nSUB DoIt\n" + act.substr(kDo.size()) +
          "\nEND SUB\nDoes.OnClick = DoIt\n";
    act = "do";
  }
  const bool focuses = row.at("act").find("leave") != std::string::npos;
  if (focuses) object += "DIM Other AS QEDIT: Other.Parent = F: Other.Top = 150\n";
  const std::string text =
      test::FormWith(object + row.at("setup") + own,
                     HandlerOf(event) + subject + "." + std::string(event.Facts.Name) +
                         " = Handler\nDIM Hides AS QBUTTON: DIM Shows AS QBUTTON\n"
                         "SUB HideIt\nF.Visible = 0\nEND SUB\nSUB ShowIt\nF.Visible = 1\nEND SUB\n"
                         "Hides.OnClick = HideIt: Shows.OnClick = ShowIt");
  LiveProgram live(text + (form ? "DO\nDOEVENTS\nLOOP\n" : ""));
  live.Pause(1);
  live.Then([&] {
    live.Printed.clear();
    Act({live, subject}, act);
  });
  // What is drawn by the program comes with the events that follow.
  for (int i = 0; i < 3; ++i) live.Then([] {});
  live.Then([&] {
    const bool ticks = kind.Name == "QTIMER";
    EXPECT_EQ(ticks ? live.Printed.substr(0, 2) : live.Printed, row.at("prints"))
        << kind.Name << "." << event.Facts.Name << " by " << row.at("act") << "\n"
        << text;
  });
  live.Run();
}

TEST(ClassEventsTest, EveryOneIsRaisedByTheUserWithItsArguments) {
  test::ForEachWorkingMember("class_events.tsv", true, RunRow);
}

}  // namespace
}  // namespace tarnwick
