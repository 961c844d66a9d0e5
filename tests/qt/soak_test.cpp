// A user who does anything at all, for a long time.
//
// TARNWICK_SOAK_SEEDS and TARNWICK_SOAK_ACTIONS make it longer; scripts/soak sets them.
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMessageBox>
#include <QTest>
#include <QToolButton>
#include <algorithm>
#include <array>
#include <cstdlib>
#include <random>

#include <gtest/gtest.h>

#include "program.h"
#include "qt/kit/text_bridge.h"
#include "qt/surface/container.h"
#include "qt/surface/design_window.h"

namespace tarnwick {
namespace {

constexpr int kMostForms = 5;
constexpr int kMostObjects = 60;
constexpr int kSaveEvery = 60;  // actions

int Setting(const char* name, int otherwise) {
  const char* const value = std::getenv(name);
  return value != nullptr ? std::atoi(value) : otherwise;
}

class RandomUser {
 public:
  explicit RandomUser(unsigned seed) : dice_(seed) {
    program_.User.AnyBox = [this](const SeenBox& box) {
      if ((box.Buttons & QMessageBox::Ok) != 0) return static_cast<int>(QMessageBox::Ok);
      return static_cast<int>(Below(2) == 0 ? QMessageBox::Yes : QMessageBox::No);
    };
    program_.User.AnyDialog = [this](QDialog& dialog) {
      if (Below(2) == 0) {
        QTest::keyClick(&dialog, Qt::Key_Escape);
      } else {
        dialog.accept();
      }
    };
  }

  void Work(int actions) {
    for (int i = 0; i < actions && !testing::Test::HasFailure(); ++i) {
      last_ = i;
      Step();
      Tidy();
      Check();
      if (i % kSaveEvery == kSaveEvery - 1) SaveAndReopen();
    }
    SaveAndReopen();
  }

 private:
  int Below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(dice_); }

  QPoint Somewhere() {
    const QSize size = program_.Surface().size();
    return {Below(std::max(1, std::min(size.width(), 600))),
            Below(std::max(1, std::min(size.height(), 450)))};
  }

  [[nodiscard]] bool HasForm() { return program_.Tables().CurrentForm != nullptr; }

  void Step() {
    if (!HasForm()) {
      note_ = "a form where there was none";
      program_.PressTool(9);
      return;
    }
    using Action = void (RandomUser::*)();
    // Common ones stand more than once.
    static constexpr std::array<Action, 26> kActions{
        &RandomUser::Place,      &RandomUser::Place,         &RandomUser::Place,
        &RandomUser::Press,      &RandomUser::Press,         &RandomUser::Drag,
        &RandomUser::Drag,       &RandomUser::Drag,          &RandomUser::Handle,
        &RandomUser::Handle,     &RandomUser::MoveKey,       &RandomUser::MoveKey,
        &RandomUser::Clipboard,  &RandomUser::Clipboard,     &RandomUser::EditCommand,
        &RandomUser::Panel,      &RandomUser::FormList,      &RandomUser::EditCell,
        &RandomUser::EditCell,   &RandomUser::EditCell,      &RandomUser::PickValue,
        &RandomUser::ObjectList, &RandomUser::PopUp,         &RandomUser::Frame,
        &RandomUser::Forms,      &RandomUser::ProjectCommand};
    (this->*kActions[static_cast<std::size_t>(Below(static_cast<int>(kActions.size())))])();
    WriteCode();
  }

  /// A code window that was opened gets some text, which is kept or not.
  void WriteCode() {
    for (const char* name : {"FormCodigo", "FormViewCodes"}) {
      auto* window = program_.Window().findChild<QWidget*>(QString::fromLatin1(name));
      if (window == nullptr || !window->isVisible()) continue;
      note_ += ", code";
      program_.Type(QStringLiteral("x = 1 "));
      if (Below(2) == 0) {
        program_.Key(Qt::Key_Return, Qt::ControlModifier);
      } else {
        program_.Key(Qt::Key_Escape);
      }
      if (window->isVisible()) window->close();
      Program::Settle();
    }
  }

  void Place() {
    if (program_.Form().Controls().size() > kMostObjects) return Press();
    const auto& kinds = PlacedKinds();
    const int tool = kinds[static_cast<std::size_t>(Below(static_cast<int>(kinds.size())))].Tool;
    note_ = "place " + std::to_string(tool);
    program_.PressTool(tool);
    if (program_.Surface().isVisible()) program_.Click(program_.Surface(), Somewhere());
  }
  void Press() {
    note_ = "press";
    if (program_.Surface().isVisible()) program_.Click(program_.Surface(), Somewhere());
  }
  void Drag() {
    note_ = "drag";
    if (program_.Surface().isVisible()) {
      program_.Drag(program_.Surface(), Somewhere(), Somewhere());
    }
  }
  void Handle() {
    const ControlRef grip = program_.Form().Element(Kind::Handle, 0);
    if (!grip->Visible || !program_.Surface().isVisible()) return Press();
    note_ = "handle";
    program_.DragHandle(Below(8), QPoint(Below(160) - 80, Below(160) - 80));
  }
  void MoveKey() {
    static constexpr std::array kKeys{Qt::Key_Left, Qt::Key_Up, Qt::Key_Right, Qt::Key_Down,
                                      Qt::Key_Tab};
    static constexpr std::array kHeld{Qt::NoModifier, Qt::ControlModifier, Qt::ShiftModifier};
    note_ = "move key";
    program_.Surface().setFocus();
    const Qt::Key key = kKeys[static_cast<std::size_t>(Below(5))];
    const auto held = kHeld[static_cast<std::size_t>(Below(3))];
    program_.Key(key, key == Qt::Key_Tab ? Qt::NoModifier : held);
  }
  void Clipboard() {
    note_ = "clipboard";
    program_.Surface().setFocus();
    switch (Below(5)) {
      case 0:
        return program_.Key(Qt::Key_X, Qt::ControlModifier);
      case 1:
        return program_.Key(Qt::Key_Delete);
      case 2:
        return program_.Key(Qt::Key_C, Qt::ControlModifier);
      default:
        if (program_.Form().Controls().size() <= kMostObjects) {
          program_.Key(Qt::Key_V, Qt::ControlModifier);
        }
    }
  }
  void EditCommand() {
    static constexpr std::array kKeys{Qt::Key_G, Qt::Key_L, Qt::Key_BracketLeft,
                                      Qt::Key_BracketRight, Qt::Key_L};
    note_ = "edit command";
    program_.Surface().setFocus();
    program_.Key(kKeys[static_cast<std::size_t>(Below(5))], Qt::ControlModifier);
  }
  void Panel() {
    note_ = "panel";
    switch (Below(4)) {
      case 0:
        return program_.Key(Qt::Key_F6);
      case 1:
        return program_.Key(Qt::Key_B, Qt::ControlModifier);
      case 2:
        return program_.Key(Qt::Key_E, Qt::ControlModifier);
      default:
        return program_.Choose(QStringLiteral("mnuForms"));
    }
  }
  void FormList() {
    auto& list = program_.Find<QListWidget>(QStringLiteral("ListaFrms"));
    if (!list.isVisible() || list.count() == 0) return;
    note_ = "form list";
    QListWidgetItem* item = list.item(Below(list.count()));
    list.scrollToItem(item);
    program_.Click(*list.viewport(), list.visualItemRect(item).center());
  }
  QString SomeText() {
    static const QString letters = QString::fromUtf8("abcXYZ0123456789 -éñΩ&");
    QString text;
    for (int i = 1 + Below(6); i > 0; --i) {
      text += letters.at(Below(static_cast<int>(letters.size())));
    }
    return text;
  }
  QLineEdit* SomeCell() {
    QList<QLineEdit*> cells;
    for (QLineEdit* cell : program_.Window().findChildren<QLineEdit*>()) {
      if (cell->objectName().startsWith(QLatin1String("Text_")) && cell->isVisible()) cells << cell;
    }
    return cells.isEmpty() ? nullptr : cells[Below(static_cast<int>(cells.size()))];
  }
  void EditCell() {
    QLineEdit* cell = SomeCell();
    if (cell == nullptr) return;
    note_ = "edit " + cell->objectName().toStdString();
    cell->setFocus();
    Program::Settle();
    if (cell->isReadOnly()) return;
    cell->selectAll();
    // Places and sizes far off every screen are no user's wish, and letters there mean 0.
    program_.Type(Below(2) == 0 ? QString::number(Below(300)) : SomeText());
    if (Below(2) == 0) program_.Key(Qt::Key_Return);
  }
  void PickValue() {
    QLineEdit* cell = SomeCell();
    if (cell == nullptr) return;
    note_ = "pick " + cell->objectName().toStdString();
    cell->setFocus();
    Program::Settle();
    for (const char* name : {"Boton1", "Boton2", "Boton3"}) {
      auto& button = program_.Find<QToolButton>(QString::fromLatin1(name));
      if (!button.isVisible() || Below(3) == 0) continue;
      program_.Click(button);
      auto& list = program_.Find<QListWidget>(QStringLiteral("ListBox"));
      if (list.isVisible()) {
        for (int i = Below(4); i > 0; --i) program_.Key(Qt::Key_Down);
        program_.Key(Below(4) == 0 ? Qt::Key_Escape : Qt::Key_Return);
      }
      return;
    }
  }
  void ObjectList() {
    auto& list = program_.Find<QComboBox>(QStringLiteral("Combo"));
    if (!list.isVisible()) return;
    note_ = "object list";
    list.setFocus();
    for (int i = 1 + Below(3); i > 0; --i) {
      program_.Key(Below(2) == 0 ? Qt::Key_Down : Qt::Key_Up);
    }
  }
  void PopUp() {
    if (!program_.Surface().isVisible()) return;
    note_ = "pop-up";
    program_.Click(program_.Surface(), Somewhere(), Qt::RightButton);
    auto& menu = program_.Find<QMenu>(QStringLiteral("ObjectPopUp"));
    if (!menu.isVisible()) return;
    const QList<QAction*> rows = menu.actions();
    QAction* row = rows[Below(static_cast<int>(rows.size()))];
    const bool full = program_.Form().Controls().size() > kMostObjects;
    if (row->isSeparator() || !row->isEnabled() || (full && row->text().contains(u"Paste"))) {
      program_.Key(Qt::Key_Escape);
    } else {
      note_ += " " + row->objectName().toStdString();
      program_.Click(menu, menu.actionGeometry(row).center());
    }
  }
  /// The frame of the design window: its border, its title and its buttons.
  void Frame() {
    QWidget* window = program_.Surface().parentWidget();
    if (!window->isVisible()) return FormList();
    note_ = "frame";
    const int right = window->width() - 1;
    const int bottom = window->height() - 1;
    switch (Below(4)) {
      case 0:
        return program_.Drag(*window, {right, bottom}, QPoint(150 + Below(500), 120 + Below(380)));
      case 1:
        return program_.Drag(*window, {60, 12}, {60 + Below(80) - 40, 12 + Below(60) - 30});
      case 2:
        return program_.Click(*window, {right - 8 - 26 * Below(3), 14});
      default:
        QTest::mouseDClick(window, Qt::LeftButton, Qt::NoModifier, {80, 12});
        return Program::Settle();
    }
  }
  void Forms() {
    note_ = "forms";
    const int count = program_.Find<QListWidget>(QStringLiteral("ListaFrms")).count();
    if (count < kMostForms && Below(3) != 0) {
      program_.Key(Qt::Key_N, Qt::ControlModifier | Qt::ShiftModifier);
    } else {
      program_.Choose(QStringLiteral("mnuRemove"));
    }
  }
  void ProjectCommand() {
    switch (Below(8)) {
      case 0:
        note_ = "new";
        return program_.Key(Qt::Key_N, Qt::ControlModifier);
      case 1:
        note_ = "cancelled open";
        return program_.Key(Qt::Key_O, Qt::ControlModifier);
      case 2:
        note_ = "main form";
        return program_.Choose(QStringLiteral("mnuMain"));
      case 3:
        note_ = "compile";
        OfferPlaces();
        return program_.Key(Qt::Key_F5);
      case 4:
        note_ = "double click";
        if (program_.Surface().isVisible()) {
          QTest::mouseDClick(&program_.Surface(), Qt::LeftButton, Qt::NoModifier, Somewhere());
        }
        return;
      case 5:
        note_ = "about";
        return program_.Choose(QStringLiteral("mnuAbout"));
      default:
        note_ = "save";
        OfferPlaces();
        return program_.Key(Qt::Key_S, Qt::ControlModifier);
    }
  }

  /// What the save dialogs of the next command are told, each place once.
  void OfferPlaces() {
    program_.Dialogs.SaveAnswers.clear();
    const std::string number = std::to_string(++saved_);
    if (program_.Tables().ProjectFile == program_.Home.Path("UnTitle.tnp")) {
      program_.Dialogs.SaveAnswers.push_back(program_.Projects.Path("p" + number + ".tnp"));
    }
    for (int form = 1; form <= program_.Tables().FormsCount; ++form) {
      if (!program_.Tables().IsLive(form) || !program_.Tables().Form(form)->FileName.empty()) {
        continue;
      }
      program_.Dialogs.SaveAnswers.push_back(
          program_.Projects.Path("f" + number + "-" + std::to_string(form) + ".ftn"));
    }
  }

  /// Whatever a step opened goes away, as a user would close it.
  void Tidy() {
    program_.Dialogs.SaveAnswers.clear();
    while (QWidget* popup = QApplication::activePopupWidget()) {
      popup->hide();
      Program::Settle();
    }
    for (QWidget* window : QApplication::topLevelWidgets()) {
      const bool stays =
          window == &program_.Window() || window->objectName() == QLatin1String("ObjectBar");
      if (window->isVisible() && !stays) window->close();
    }
    Program::Settle();
  }

  void Check() {
    SCOPED_TRACE("after action " + std::to_string(last_) + ", " + note_);
    ASSERT_TRUE(program_.Window().isVisible());
    ASSERT_TRUE(program_.Shell().Commands().State(Command::New).Enabled);
    int live = 0;
    for (int form = 1; form <= program_.Tables().FormsCount; ++form) {
      const bool is_live = program_.Tables().IsLive(form);
      live += is_live ? 1 : 0;
      ASSERT_EQ(program_.Window().Forms().Window(form) != nullptr, is_live) << form;
    }
    ASSERT_EQ(program_.Find<QListWidget>(QStringLiteral("ListaFrms")).count(), live);
    // With all windows closed there are forms and no current one.
    if (HasForm()) {
      ASSERT_GT(live, 0);
    }
    ASSERT_EQ(program_.Find<QLabel>(QStringLiteral("SelectionText")).text().toStdString().empty(),
              !HasForm());
    if (!HasForm()) return;
    const DesignForm& form = program_.Form();
    ASSERT_EQ(program_.Shell().CurrentUser()->Gestures().Mode(), DragMode::None);
    ASSERT_EQ(QWidget::mouseGrabber(), nullptr);
    if (form.ControlSel == nullptr) {
      ASSERT_EQ(form.NameObjet, "Form");
      return;
    }
    const auto& controls = form.Controls();
    ASSERT_NE(std::find(controls.begin(), controls.end(), form.ControlSel), controls.end());
    ASSERT_EQ(form.IndexObjet, form.ControlSel->Index);
    auto& name = program_.Find<QLineEdit>(QStringLiteral("Text_0"));
    if (name.isVisible()) {
      ASSERT_EQ(name.text(), ToQString(form.ControlSel->Tag));
    }
  }

  [[nodiscard]] std::vector<std::string> Bytes() {
    std::vector<std::string> bytes;
    namespace fs = std::filesystem;
    for (const auto& line : program_.Tables().ListaFrms.Lines()) {
      const std::string& path = program_.Tables().Form(line.FormNumber)->FileName;
      bytes.push_back(program_.Projects.Read(path.substr(path.rfind('\\') + 1)));
    }
    return bytes;
  }
  void Save() {
    OfferPlaces();
    program_.Key(Qt::Key_S, Qt::ControlModifier);
    ASSERT_TRUE(program_.Dialogs.SaveAnswers.empty());
    ASSERT_EQ(program_.Tables().AccionProject, "save");
  }
  void Open() {
    program_.Dialogs.OpenAnswers = {program_.Tables().ProjectFile};
    program_.Key(Qt::Key_O, Qt::ControlModifier);
    ASSERT_EQ(program_.Tables().AccionProject, "open");
  }
  /// What is saved comes back: the same objects at once, and from then on the same bytes. The first
  /// reading gives forms new numbers after a removal and an icon its full path, so that the lines
  /// of the forms themselves settle one save later.
  void SaveAndReopen() {
    SCOPED_TRACE("save after action " + std::to_string(last_) + ", " + note_);
    if (!HasForm()) return;
    Save();
    const std::vector<std::string> first = Bytes();
    Open();
    Save();
    const std::vector<std::string> second = Bytes();
    ASSERT_EQ(second.size(), first.size());
    for (std::size_t i = 0; i < first.size(); ++i) {
      ASSERT_FALSE(first[i].empty());
      ASSERT_EQ(ObjectsOf(second[i]), ObjectsOf(first[i]));
    }
    Open();
    Save();
    const std::vector<std::string> third = Bytes();
    for (std::size_t i = 0; i < second.size(); ++i) {
      ASSERT_EQ(ObjectsOf(third[i]), ObjectsOf(second[i]));
      ASSERT_EQ(third[i].substr(0, third[i].find('\n')), second[i].substr(0, second[i].find('\n')));
    }
    Open();
    Check();
  }
  /// The lines after that of the form. A WinSock's line carries no number of its own, so what it
  /// says goes to the record of whatever number stood before it: its fields are left out.
  [[nodiscard]] static std::string ObjectsOf(const std::string& form) {
    std::string objects;
    std::size_t start = form.find('\n');
    while (start != std::string::npos && start + 1 < form.size()) {
      const std::size_t end = form.find('\n', start + 1);
      std::string line = form.substr(start + 1, end - start);
      if (line.starts_with("[WinSock]")) line.erase(std::min(line.find("Tip<"), line.size()));
      objects += line;
      start = end;
    }
    return objects;
  }

  Program program_;
  std::mt19937 dice_;
  std::string note_;
  int last_ = 0;
  int saved_ = 0;
};

class Soak : public testing::TestWithParam<int> {};

TEST_P(Soak, AnythingAUserDoesLeavesTheProgramWhole) {
  RandomUser user(static_cast<unsigned>(GetParam()));
  user.Work(Setting("TARNWICK_SOAK_ACTIONS", 150));
}

INSTANTIATE_TEST_SUITE_P(Seeds, Soak, testing::Range(1, 1 + Setting("TARNWICK_SOAK_SEEDS", 4)));

}  // namespace
}  // namespace tarnwick
