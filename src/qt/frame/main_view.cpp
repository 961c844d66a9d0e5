#include "qt/frame/main_view.h"

#include <QApplication>
#include <QMenu>
#include <utility>

#include "designer/tool_box.h"
#include "qt/frame/command_actions.h"
#include "qt/frame/events_bar_window.h"
#include "qt/frame/form_list_panel.h"
#include "qt/frame/icon_display.h"
#include "qt/frame/main_window.h"
#include "qt/frame/small_windows.h"
#include "qt/grid/property_panel.h"
#include "qt/kit/text_bridge.h"
#include "qt/surface/container.h"
#include "shell/mdi_form.h"

namespace tarnwick {

namespace {

/// Answers for a form without a window; nothing is drawn and nothing is taken.
class NoGestures final : public GesturePort {
 public:
  void TakeCapture() override {}
  void ReleaseCapture() override {}
  void ConfineCursor() override {}
  void FreeCursor() override {}
  [[nodiscard]] ScreenPoint CursorPosition() override { return {}; }
  [[nodiscard]] ScreenPoint ClientOrigin() override { return {}; }
  void DrawRubberBand(const ScreenRect& /*rect*/) override {}
  void TakeFocus() override {}
};

}  // namespace

MainView::MainView(MainWindow& window)
    : window_(window), no_gestures_(std::make_unique<NoGestures>()) {
  time_.setObjectName(QStringLiteral("Time"));
  time_.setInterval(1);
  QObject::connect(&time_, &QTimer::timeout, &window_, [this] {
    if (shell_ == nullptr) return;
    shell_->Time_Timer();
    if (!start_project_.empty()) shell_->OpenNamed(std::exchange(start_project_, {}));
  });
  refresh_.setSingleShot(true);
  refresh_.setInterval(0);
  QObject::connect(&refresh_, &QTimer::timeout, &window_, [this] { Refresh(); });
}

MainView::~MainView() = default;

void MainView::Attach(MDIForm1& shell) {
  shell_ = &shell;
  window_.Attach(shell);
}

void MainView::SetApplicationTitle(std::string_view title) {
  QApplication::setApplicationDisplayName(QString());
  QApplication::setApplicationName(ToQString(title));
}

void MainView::SetTitle(std::string_view title) {
  window_.setWindowTitle(ToQString(title));
}

void MainView::LayOutPanels() {
  window_.FloatingTools().move(window_.geometry().topLeft() + QPoint(140, 140));
}

void MainView::StartTimer() {
  time_.start();
}

void MainView::StopTimer() {
  time_.stop();
}

void MainView::ShowLogo(std::string_view text) {
  if (!logo_) logo_ = std::make_unique<LogoWindow>(&window_);
  logo_->ShowText(text);
  // The steps that follow do not come back to the event loop.
  logo_->repaint();
  QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void MainView::CloseLogo() {
  logo_.reset();
}

void MainView::ShowContainerAt(int /*width*/, int /*height*/) {
  // The container fills the room between the panels, which is never smaller.
  window_.Forms().show();
}

void MainView::HideContainer() {
  window_.Forms().widget()->hide();
}

void MainView::ShowContainer() {
  window_.Forms().widget()->show();
}

void MainView::MoveContainer(int top) {
  window_.Forms().widget()->setVisible(top >= 0 && top < window_.height());
}

void MainView::GrowContainer(float /*width*/, float /*height*/) {
  // The container grows with its windows by itself.
}

void MainView::BringFormUp(int form) {
  window_.Forms().BringUp(form);
}

void MainView::SetFormVisible(int form, bool visible) {
  if (DesignWindow* window = window_.Forms().Window(form)) window->setVisible(visible);
}

GesturePort& MainView::Gestures(int form) {
  DesignWindow* window = window_.Forms().Window(form);
  if (window != nullptr) return window->Surface();
  return *no_gestures_;
}

bool MainView::PictureLoads(const std::string& path) {
  return !window_.Pictures().At(path).isNull();
}

void MainView::ShowPanel(Panel panel, bool shown) {
  switch (panel) {
    case Panel::Properties:
      window_.SetPropertiesVisible(shown);
      break;
    case Panel::Forms:
      window_.SetFormListVisible(shown);
      break;
    case Panel::ObjectBar:
      window_.FloatingTools().setVisible(shown);
      break;
    case Panel::EventsBar:
      ScheduleBarRefresh();
      break;
  }
}

void MainView::CommandsChanged() {
  ScheduleRefresh();
}

void MainView::ScheduleRefresh() {
  // One selection changes many states; they are read once, when the command is done.
  if (!refresh_.isActive()) refresh_.start();
}

void MainView::ScheduleBarRefresh() {
  bar_changed_ = true;
  ScheduleRefresh();
}

void MainView::Refresh() {
  window_.RefreshCommands();
  if (std::exchange(bar_changed_, false)) window_.EventButtons().Refresh();
}

void MainView::SelectFormLine(int place) {
  window_.FormLines().Select(place);
}

void MainView::ShowIcon(std::string_view text, std::string_view picture) {
  window_.ProgramIconView().Show(text, picture);
}

void MainView::SetArrowPointer(bool arrow) {
  if (arrow == arrow_) return;
  arrow_ = arrow;
  if (arrow) {
    QApplication::setOverrideCursor(Qt::ArrowCursor);
  } else {
    QApplication::restoreOverrideCursor();
  }
}

void MainView::SetStatus(std::string_view text) {
  window_.SetStatus(ToQString(text));
}

void MainView::SetSelectionText(std::string_view text) {
  window_.SetSelectionText(ToQString(text));
}

void MainView::ShowObjectPopUp() {
  window_.RefreshCommands();
  window_.Actions().ObjectPopUp().popup(QCursor::pos());
}

void MainView::RunFormMain() {
  if (shell_ != nullptr) RunFormMainDialog(*shell_, &window_);
}

void MainView::ShowAbout(std::string_view program_folder) {
  RunAboutDialog(program_folder, &window_);
}

void MainView::CommitPendingEdits() {
  window_.Properties().Commit();
}

void MainView::CloseMainWindow() {
  window_.close();
}

void MainView::UnloadWindow(SideWindow window) {
  if (window == SideWindow::Logo) logo_.reset();
  if (window == SideWindow::ObjectBar) window_.FloatingTools().hide();
}

void MainView::UnloadContainer() {
  window_.Forms().widget()->hide();
}

DesignWindowDoors MainView::DoorsOf(int form) {
  DesignWindowDoors doors;
  doors.User = [this, form] { return shell_ != nullptr ? shell_->User(form) : nullptr; };
  doors.Record = [this, form]() -> const FormRec* {
    return shell_ != nullptr ? shell_->Tables().Form(form) : nullptr;
  };
  doors.Activated = [this, form] {
    if (shell_ != nullptr) shell_->FormActivated(form);
  };
  doors.PointerMoved = [this](QPoint place) { window_.SetPointerText(place); };
  doors.Escape = [this] {
    if (shell_ != nullptr) shell_->PressTool(kArrowTool);
  };
  doors.Resized = [this] {
    if (shell_ != nullptr) shell_->RefreshStatus();
  };
  doors.FocusIsKept = [this] { return window_.Properties().KeepsFocus(); };
  return doors;
}

void MainView::FormOpened(int form) {
  if (shell_ == nullptr) return;
  DesignForm* design = shell_->Tables().User(form);
  if (design != nullptr) window_.Forms().Open(form, *design, DoorsOf(form));
}

void MainView::FormClosing(int form) {
  window_.Forms().Close(form);
  // The next project's pictures may be others under the same names.
  if (window_.Forms().IsEmpty()) window_.Pictures().Clear();
  ScheduleBarRefresh();
}

void MainView::FormChanged(int form) {
  if (DesignWindow* window = window_.Forms().Window(form)) window->SyncWithForm();
}

void MainView::ControlsChanged(int form) {
  if (DesignWindow* window = window_.Forms().Window(form)) window->Surface().update();
}

void MainView::SelectionChanged(int form) {
  ControlsChanged(form);
  ScheduleRefresh();
}

void MainView::CurrentFormChanged() {
  if (shell_ == nullptr) return;
  const DesignForm* current = shell_->Tables().CurrentForm;
  window_.Forms().SetCurrent(current != nullptr ? current->Number() : 0);
  ScheduleBarRefresh();
}

void MainView::FormListChanged() {
  window_.FormLines().Refresh();
  ScheduleRefresh();
}

void MainView::EventsBarChanged(int /*form*/) {
  ScheduleBarRefresh();
}

void MainView::MenuBarChanged(int form) {
  if (DesignWindow* window = window_.Forms().Window(form)) window->SyncMenuBar();
}

}  // namespace tarnwick
