// The whole desktop program within a test, over folders of its own, driven by real events.
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QPoint>
#include <QString>
#include <QTimer>
#include <deque>
#include <functional>
#include <iosfwd>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "fakes/call_log.h"
#include "fakes/fake_ports.h"
#include "fakes/temporary_folder.h"
#include "platform/native_files.h"
#include "platform/native_instance_folders.h"
#include "platform/native_process.h"
#include "platform/profile_files.h"
#include "qt/frame/main_view.h"
#include "qt/frame/main_window.h"
#include "qt/kit/qt_ports.h"
#include "qt/surface/design_surface.h"
#include "shell/command_center.h"
#include "shell/form_commands.h"
#include "shell/mdi_form.h"

class QAction;
class QDialog;
class QWindow;

namespace tarnwick {

/// A message box as the user saw it.
struct SeenBox {
  QString Title;
  QString Text;
  int Icon = 0;     ///< QMessageBox::Icon
  int Buttons = 0;  ///< QMessageBox::StandardButtons
};

/// Sits before the screen: presses the scripted button of each message box and hands any other
/// dialog to the next scripted step. What comes unasked, or stays open, is closed and counts as a
/// failure.
class Attendant final : public QObject {
 public:
  Attendant();

  /// The next message box gets this button.
  void Answer(int standard_button) { answers_.push_back(standard_button); }
  void Yes();
  void No();
  void Ok();
  /// The box gets Return, for its default button.
  void Return() { answers_.push_back(kReturn); }
  /// The box closes by Esc.
  void Escape() { answers_.push_back(0); }
  /// The next dialog of the program is given to the step, which must close it.
  void Do(std::function<void(QDialog&)> step) { steps_.push_back(std::move(step)); }
  /// For tests that cannot say what comes: asked when nothing is scripted.
  std::function<int(const SeenBox&)> AnyBox;
  std::function<void(QDialog&)> AnyDialog;
  [[nodiscard]] const std::vector<SeenBox>& Seen() const { return seen_; }
  /// The boxes since the last call.
  std::vector<SeenBox> TakeSeen() { return std::exchange(seen_, {}); }
  [[nodiscard]] bool Done() const { return answers_.empty() && steps_.empty(); }

 private:
  static constexpr int kReturn = -1;
  void Look();

  QTimer look_;
  std::deque<int> answers_;
  std::deque<std::function<void(QDialog&)>> steps_;
  std::vector<SeenBox> seen_;
  QObject* watched_ = nullptr;  ///< the dialog on the screen
  bool handled_ = false;        ///< it had its answer or step
  QElapsedTimer open_;          ///< since it came
};

/// Starts real programs and notes each command line in the log: "start C".
class NotedProcesses final : public ProcessPort {
 public:
  explicit NotedProcesses(CallLog& log) : log_(log) {}
  bool StartHidden(const std::string& command_line) override {
    log_.Add("start " + command_line);
    return native_.StartHidden(command_line);
  }
  /// No desktop is disturbed: only the entry "open P".
  bool OpenDocument(const std::string& path) override {
    log_.Add("open " + path);
    return false;
  }

 private:
  CallLog& log_;
  NativeProcess native_;
};

/// Gives the application the look that every test begins with: the style of the platform, its own
/// palette, no style sheet.
void ResetLook();

/// The program after its start, on the real files of two temporary folders. Message boxes are the
/// real ones; file, colour and font dialogs have scripted answers unless real ones are asked for.
///
///   Program program;
///   program.PressTool(0);
///   program.Click(program.Surface(), {40, 60});
class Program {
 public:
  enum class FileDialogs { Scripted, Real };
  explicit Program(FileDialogs dialogs = FileDialogs::Scripted);
  ~Program();
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  TemporaryFolder Home;      ///< program folder, with the support files
  TemporaryFolder Projects;  ///< where the test saves
  CallLog Log;
  FakeDialogs Dialogs{Log};
  Attendant User;

  [[nodiscard]] MainWindow& Window() { return *window_; }
  [[nodiscard]] MDIForm1& Shell() { return *shell_; }
  [[nodiscard]] ProjectTables& Tables() { return shell_->Tables(); }
  /// The current design form, its record, its selected control.
  [[nodiscard]] DesignForm& Form();
  [[nodiscard]] FormRec& Record();
  [[nodiscard]] DesignControl* Selected() { return Form().ControlSel.get(); }
  /// The surface of the current form, or of a numbered one.
  [[nodiscard]] DesignSurface& Surface(int form = 0);
  [[nodiscard]] std::string Title() const;

  /// A widget of the main window by name; the test fails without it.
  template <class Widget>
  Widget& Find(const QString& name) {
    auto* widget = window_->findChild<Widget*>(name);
    EXPECT_NE(widget, nullptr) << name.toStdString();
    return *widget;
  }
  [[nodiscard]] QAction& Action(const QString& name) { return Find<QAction>(name); }

  // Mouse, sent to the top-level window as the platform does. Places are pixels of the widget.
  void Press(QWidget& widget, QPoint at, Qt::MouseButton button = Qt::LeftButton);
  void Move(QWidget& widget, QPoint at);
  void Release(QWidget& widget, QPoint at, Qt::MouseButton button = Qt::LeftButton);
  void Click(QWidget& widget, QPoint at, Qt::MouseButton button = Qt::LeftButton);
  void Click(QWidget& widget);
  void Drag(QWidget& widget, QPoint from, QPoint to);
  // Keys, sent to the active window: shortcuts first, then the widget with the focus.
  void Key(Qt::Key key, Qt::KeyboardModifiers held = Qt::NoModifier);
  void Type(const QString& text);
  /// Lets timers and posted events run.
  static void Settle();

  /// Presses a tool of the docked box.
  void PressTool(int number);
  /// Arms a tool and presses the surface.
  DesignControl* Place(int tool, QPoint at);
  /// Opens a menu of the menu bar by mouse and presses the row of that name.
  void Choose(const QString& action);
  /// Presses a handle of the selection, moves by so many pixels and lets go.
  void DragHandle(int handle, QPoint by);
  /// The row of that name in the property grid; the test fails without it.
  [[nodiscard]] int GridRow(std::string_view name);
  /// Selects a row of the property grid by a press on its name.
  void EnterRow(std::string_view name);
  /// Types over the value of a row and leaves it by Return.
  void TypeIntoRow(std::string_view name, const QString& text);
  /// Presses the button of a row, which opens a dialog or a list.
  void PressRowButton(std::string_view name);
  /// The generated source.
  [[nodiscard]] std::string Source();
  /// The stored code of a key, "(none)" without an entry.
  [[nodiscard]] std::string Code(std::string_view key);
  /// Closes the main window as its own button does; true when it went.
  bool Close();

 private:
  [[nodiscard]] QWindow* KeyWindow();

  NativeFiles files_;
  ProfileFiles profiles_{files_};
  NativeInstanceFolders instances_;
  NotedProcesses processes_{Log};
  QtMessages messages_;
  QtDialogs real_dialogs_;
  QtScreen screen_;
  std::unique_ptr<MDIForm1> shell_;
  std::unique_ptr<MainWindow> window_;
  std::unique_ptr<MainView> view_;
};

/// Place of a twips value in pixels.
[[nodiscard]] QPoint PixelsOf(float left, float top);
/// Left, top, width and height of a control in pixels.
struct PixelRect {
  float Left = 0;
  float Top = 0;
  float Width = 0;
  float Height = 0;
  bool operator==(const PixelRect&) const = default;
};
void PrintTo(const PixelRect& rect, std::ostream* out);
[[nodiscard]] PixelRect RectOf(const DesignControl& control);

/// What a tool places, as it is expected.
struct PlacedKind {
  int Tool;
  Kind Id;
  std::string_view Name;   ///< of the first one on Form1
  std::string_view Objet;  ///< `NameObjet`
  float Width;
  float Height;
};
void PrintTo(const PlacedKind& kind, std::ostream* out);
[[nodiscard]] const std::vector<PlacedKind>& PlacedKinds();

}  // namespace tarnwick
