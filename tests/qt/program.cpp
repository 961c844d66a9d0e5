#include "program.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QTest>
#include <QToolButton>
#include <QWindow>
#include <ostream>

#include <gtest/gtest.h>

#include "codegen/generator_state.h"
#include "codegen/program_source.h"
#include "fakes/build_paths.h"
#include "inspector/property_sheet.h"
#include "model/units.h"
#include "qt/surface/container.h"
#include "shell/program_setup.h"

namespace tarnwick {

namespace {

constexpr int kPatience = 20000;  // milliseconds

QWindow* WindowOf(const QWidget& widget) {
  return widget.window()->windowHandle();
}

QPoint InWindow(const QWidget& widget, QPoint at) {
  return widget.mapTo(widget.window(), at);
}

}  // namespace

Attendant::Attendant() {
  connect(&look_, &QTimer::timeout, this, [this] { Look(); });
  look_.start(1);
}

void Attendant::Yes() {
  Answer(QMessageBox::Yes);
}

void Attendant::No() {
  Answer(QMessageBox::No);
}

void Attendant::Ok() {
  Answer(QMessageBox::Ok);
}

void Attendant::Look() {
  auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
  if (dialog == nullptr || !dialog->isVisible()) return;
  if (watched_ != dialog) {
    watched_ = dialog;
    handled_ = false;
    open_.start();
    connect(dialog, &QObject::destroyed, this, [this, dialog] {
      if (watched_ == dialog) watched_ = nullptr;
    });
  }
  if (open_.hasExpired(kPatience)) {
    ADD_FAILURE() << "a dialog that stays open: " << dialog->windowTitle().toStdString();
    open_.start();
    dialog->reject();
    return;
  }
  // Keys that stand for a button do nothing in a window that is not active yet.
  if (handled_ || !dialog->isActiveWindow()) return;
  // The steps themselves let events run.
  handled_ = true;
  auto* box = qobject_cast<QMessageBox*>(dialog);
  if (box == nullptr) {
    if (steps_.empty() && AnyDialog) {
      AnyDialog(*dialog);
      return;
    }
    if (steps_.empty()) {
      ADD_FAILURE() << "an unexpected dialog: " << dialog->windowTitle().toStdString();
      dialog->reject();
      return;
    }
    const auto step = std::move(steps_.front());
    steps_.pop_front();
    step(*dialog);
    return;
  }
  seen_.push_back(
      {box->windowTitle(), box->text(), box->icon(), static_cast<int>(box->standardButtons())});
  if (answers_.empty() && AnyBox) answers_.push_back(AnyBox(seen_.back()));
  if (answers_.empty()) {
    ADD_FAILURE() << "an unexpected box: " << box->text().toStdString();
    box->reject();
    return;
  }
  const int answer = answers_.front();
  answers_.pop_front();
  if (answer == 0) {
    QTest::keyClick(box, Qt::Key_Escape);
    return;
  }
  if (answer == kReturn) {
    QTest::keyClick(box, Qt::Key_Return);
    return;
  }
  QAbstractButton* button = box->button(static_cast<QMessageBox::StandardButton>(answer));
  if (button == nullptr) {
    ADD_FAILURE() << "the box has no such button: " << box->text().toStdString();
    box->reject();
    return;
  }
  QTest::mouseClick(button, Qt::LeftButton);
}

void ResetLook() {
  static const QString first = QApplication::style()->name();
  if (!qApp->styleSheet().isEmpty()) qApp->setStyleSheet({});
  if (QApplication::style()->name() != first) QApplication::setStyle(first);
  QApplication::setPalette(QPalette());
}

Program::Program(FileDialogs dialogs) {
  ResetLook();
  FillProgramFolder(files_, PathFromNative(test::ProgramFolder()), Home.Path());
  DialogPort& chosen = dialogs == FileDialogs::Real ? static_cast<DialogPort&>(real_dialogs_)
                                                    : static_cast<DialogPort&>(Dialogs);
  const Ports ports{files_, profiles_, processes_, messages_, chosen, screen_};
  shell_ = std::make_unique<MDIForm1>(ports, instances_, Home.Path());
  window_ = std::make_unique<MainWindow>(*shell_, files_);
  view_ = std::make_unique<MainView>(*window_, *shell_);
  window_->show();
  view_->Load();
  // Of one size whatever the screen: the tests press places of it.
  window_->resize(1400, 900);
  EXPECT_TRUE(QTest::qWaitFor(
      [this] {
        return shell_->Tables().CurrentForm != nullptr &&
               shell_->Commands().State(Command::New).Enabled;
      },
      kPatience));
  window_->activateWindow();
  EXPECT_TRUE(QTest::qWaitForWindowActive(window_.get()));
  Settle();
}

Program::~Program() {
  EXPECT_TRUE(User.Done()) << "a box or dialog that was waited for never came";
  // Nothing is to be asked any more.
  Tables().AccionProject = "save";
  window_->close();
  Settle();
  view_.reset();
  window_.reset();
  shell_.reset();
}

DesignForm& Program::Form() {
  EXPECT_NE(Tables().CurrentForm, nullptr);
  return *Tables().CurrentForm;
}

FormRec& Program::Record() {
  return *Tables().RecordOf(Form());
}

DesignSurface& Program::Surface(int form) {
  DesignWindow* window = window_->Forms().Window(form == 0 ? Form().Number() : form);
  EXPECT_NE(window, nullptr);
  return window->Surface();
}

std::string Program::Title() const {
  return window_->windowTitle().toStdString();
}

void Program::Press(QWidget& widget, QPoint at, Qt::MouseButton button) {
  QTest::mousePress(WindowOf(widget), button, Qt::NoModifier, InWindow(widget, at));
}

void Program::Move(QWidget& widget, QPoint at) {
  QTest::mouseMove(WindowOf(widget), InWindow(widget, at));
}

void Program::Release(QWidget& widget, QPoint at, Qt::MouseButton button) {
  QTest::mouseRelease(WindowOf(widget), button, Qt::NoModifier, InWindow(widget, at));
}

void Program::Click(QWidget& widget, QPoint at, Qt::MouseButton button) {
  Press(widget, at, button);
  Release(widget, at, button);
  Settle();
}

void Program::Click(QWidget& widget) {
  Click(widget, widget.rect().center());
}

void Program::Drag(QWidget& widget, QPoint from, QPoint to) {
  Press(widget, from);
  Move(widget, from + (to - from) / 2);
  Move(widget, to);
  Release(widget, to);
  Settle();
}

QWindow* Program::KeyWindow() {
  if (QWidget* popup = QApplication::activePopupWidget()) return popup->windowHandle();
  if (QApplication::activeWindow() == nullptr) {
    // No window manager here gives the focus back when a dialog closes.
    window_->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(window_.get()));
  }
  const QWidget* active = QApplication::activeWindow();
  return active != nullptr ? active->windowHandle() : window_->windowHandle();
}

void Program::Key(Qt::Key key, Qt::KeyboardModifiers held) {
  QTest::keyClick(KeyWindow(), key, held);
  Settle();
}

void Program::Type(const QString& text) {
  QWindow* window = KeyWindow();
  for (const QChar letter : text) {
    QTest::sendKeyEvent(QTest::Click, window, Qt::Key_unknown, QString(letter), Qt::NoModifier);
  }
  Settle();
}

void Program::Settle() {
  // Deferred deletions wait for a loop that has been left; nothing here leaves one.
  for (int round = 0; round < 3; ++round) {
    QCoreApplication::sendPostedEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
  }
}

void Program::PressTool(int number) {
  Click(Find<QToolButton>(QStringLiteral("BtnObjet_%1").arg(number)));
}

DesignControl* Program::Place(int tool, QPoint at) {
  PressTool(tool);
  Click(Surface(), at);
  return Selected();
}

void Program::Choose(const QString& action) {
  QAction& row = Action(action);
  QMenu* menu = nullptr;
  for (QAction* title : window_->menuBar()->actions()) {
    if (title->menu() != nullptr && title->menu()->actions().contains(&row)) menu = title->menu();
  }
  ASSERT_NE(menu, nullptr) << action.toStdString();
  QMenuBar* bar = window_->menuBar();
  Click(*bar, bar->actionGeometry(menu->menuAction()).center());
  ASSERT_TRUE(menu->isVisible()) << action.toStdString();
  Click(*menu, menu->actionGeometry(&row).center());
}

void Program::DragHandle(int handle, QPoint by) {
  const ControlRef grip = Form().Element(Kind::Handle, handle);
  ASSERT_TRUE(grip && grip->Visible);
  const QPoint from = PixelsOf(grip->Left + grip->Width / 2, grip->Top + grip->Height / 2);
  Drag(Surface(), from, from + by);
}

int Program::GridRow(std::string_view name) {
  const PropertySheet& sheet = shell_->Sheet();
  for (int row = 0; row < sheet.RowCount(); ++row) {
    if (sheet.Label(row) == name) return row;
  }
  ADD_FAILURE() << "no row " << name;
  return 0;
}

void Program::EnterRow(std::string_view name) {
  Click(Find<QLabel>(QStringLiteral("Label_%1").arg(GridRow(name))));
}

void Program::TypeIntoRow(std::string_view name, const QString& text) {
  EnterRow(name);
  Type(text);
  Key(Qt::Key_Return);
}

void Program::PressRowButton(std::string_view name) {
  EnterRow(name);
  auto& first = Find<QToolButton>(QStringLiteral("Boton1"));
  QToolButton& shown = first.isVisible() ? first : Find<QToolButton>(QStringLiteral("Boton2"));
  ASSERT_TRUE(shown.isVisible()) << name;
  Click(shown);
}

std::string Program::Source() {
  GeneratorState state;
  return GenerateSource(Tables(), state);
}

std::string Program::Code(std::string_view key) {
  const std::string* const code = Tables().EventTable.Find(key);
  return code == nullptr ? "(none)" : *code;
}

bool Program::Close() {
  const bool closed = window_->close();
  Settle();
  return closed;
}

QPoint PixelsOf(float left, float top) {
  return {qRound(left / static_cast<float>(kTwipsPerPixel)),
          qRound(top / static_cast<float>(kTwipsPerPixel))};
}

void PrintTo(const PlacedKind& kind, std::ostream* out) {
  *out << kind.Name;
}

void PrintTo(const PixelRect& rect, std::ostream* out) {
  *out << rect.Left << ", " << rect.Top << ", " << rect.Width << " x " << rect.Height;
}

PixelRect RectOf(const DesignControl& control) {
  const auto factor = static_cast<float>(kTwipsPerPixel);
  return {control.Left / factor, control.Top / factor, control.Width / factor,
          control.Height / factor};
}

const std::vector<PlacedKind>& PlacedKinds() {
  static const std::vector<PlacedKind> kinds{
      {0, Kind::Button, "Form1Btn1", "Button1", 75, 25},
      {1, Kind::TextBox, "Form1Text1", "TextBox1", 121, 21},
      {2, Kind::Image, "Form1Image1", "Image1", 105, 105},
      {3, Kind::Label, "Form1Label1", "Label1", 65, 17},
      {4, Kind::ListBox, "Form1List1", "ListBox1", 121, 97},
      {5, Kind::OptionButton, "Form1OptionBtn1", "OptionButton1", 97, 17},
      {6, Kind::CheckBox, "Form1Check1", "CheckBox1", 97, 17},
      {7, Kind::ComboBox, "Form1Combo1", "ComboBox1", 145, 21},
      {10, Kind::RichTextBox, "Form1RichText1", "RichTextBox1", 185, 89},
      {11, Kind::Time, "Form1Time1", "Time1", 28, 28},
      {12, Kind::OpenDialog, "Form1OpenDlg1", "OpenDialog1", 28, 28},
      {13, Kind::SaveDialog, "Form1SaveDlg1", "SaveDialog1", 28, 28},
      {14, Kind::FileStream, "Form1FileStr1", "FileStream1", 28, 28},
      {15, Kind::TransparentFrame, "Form1TrnspFrm", "TransparentFrame", 105, 105},
      {16, Kind::HtmlViewer, "Form1Html1", "HtmlViewer1", 185, 120},
      {18, Kind::WinSock, "Form1Sock1", "WinSock1", 28, 28},
      {19, Kind::PopUpMenu, "Form1pMenu1", "PopupMenu1", 28, 28},
  };
  return kinds;
}

}  // namespace tarnwick
