#include "qt/frame/main_view.h"

#include <QApplication>
#include <QEvent>
#include <QMenu>
#include <utility>

#include "inspector/form_add_items.h"
#include "qt/frame/about_dialog.h"
#include "qt/frame/command_actions.h"
#include "qt/frame/events_bar_window.h"
#include "qt/frame/findings_panel.h"
#include "qt/frame/form_list_panel.h"
#include "qt/frame/help_window.h"
#include "qt/frame/icon_display.h"
#include "qt/frame/logo_window.h"
#include "qt/frame/main_form_dialog.h"
#include "qt/frame/main_window.h"
#include "qt/frame/object_bar.h"
#include "qt/frame/objects_examiner_window.h"
#include "qt/frame/restore_dialog.h"
#include "qt/grid/item_dialog.h"
#include "qt/grid/property_panel.h"
#include "qt/kit/text_bridge.h"
#include "qt/surface/container.h"
#include "shell/form_commands.h"
#include "shell/mdi_form.h"
#include "shell/window_placement.h"

namespace tarnwick {

namespace {

/// How long after the user did something the project is kept for recovery.
constexpr int kKeepAfter = 2000;  // milliseconds

/// Stands for a form without a window; nothing is drawn and nothing is taken.
}  // namespace

/// Starts a timer when the user does anything, unless it runs.
class MainView::WorkWatcher final : public QObject {
 public:
  explicit WorkWatcher(QTimer& timer) : timer_(timer) {}

 protected:
  bool eventFilter(QObject* object, QEvent* event) override {
    switch (event->type()) {
      case QEvent::KeyPress:
      case QEvent::MouseButtonPress:
      case QEvent::MouseButtonRelease:
      case QEvent::InputMethod:
      case QEvent::Drop:
        if (!timer_.isActive()) timer_.start();
        break;
      default:
        break;
    }
    return QObject::eventFilter(object, event);
  }

 private:
  QTimer& timer_;
};

MainView::MainView(MainWindow& window, MDIForm1& shell)
    : window_(window),
      shell_(shell),
      forms_(window, shell),
      code_(shell, window),
      menus_(shell, window, code_) {
  shell.AddObserver(*this);
  shell.AddObserver(forms_);
  time_.setObjectName(QStringLiteral("Time"));
  time_.setInterval(1);
  QObject::connect(&time_, &QTimer::timeout, &window_, [this] {
    shell_.Time_Timer();
    if (!start_project_.empty()) shell_.OpenNamed(std::exchange(start_project_, {}));
    if (!std::exchange(offered_, true)) shell_.OfferCrashedWork();
  });
  keep_.setSingleShot(true);
  keep_.setInterval(kKeepAfter);
  QObject::connect(&keep_, &QTimer::timeout, &window_, [this] {
    if (!shell_.KeepWork()) keep_.start();
  });
  work_ = std::make_unique<WorkWatcher>(keep_);
  qApp->installEventFilter(work_.get());
  refresh_.setSingleShot(true);
  refresh_.setInterval(0);
  QObject::connect(&refresh_, &QTimer::timeout, &window_, [this] { Refresh(); });
}

MainView::~MainView() = default;

void MainView::Load() {
  window_.TakePlacement(ReadPlacement(shell_.SettingsFile()));
  window_.Actions().RefreshRecent();
  shell_.Load({*this, code_, menus_, window_.Examiner()});
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
  // What is hidden loses the focus: it is enough that nothing is painted meanwhile.
  window_.Forms().widget()->setUpdatesEnabled(false);
}

void MainView::ShowContainer() {
  window_.Forms().widget()->setUpdatesEnabled(true);
}

void MainView::BringFormUp(int form) {
  window_.Forms().BringUp(form);
}

void MainView::FocusForm(int form) {
  window_.Forms().Focus(form);
}

void MainView::HoldFocus() {
  held_focus_ = QApplication::focusWidget();
}

void MainView::RestoreFocus() {
  if (held_focus_ != nullptr && QApplication::focusWidget() != held_focus_) {
    held_focus_->setFocus(Qt::OtherFocusReason);
  }
  held_focus_.clear();
}

void MainView::RecentProjectsChanged() {
  window_.Actions().RefreshRecent();
}

void MainView::SetFormVisible(int form, bool visible) {
  if (DesignWindow* window = window_.Forms().Window(form)) window->setVisible(visible);
}

GesturePort& MainView::Gestures(int form) {
  return window_.Forms().Gestures(form);
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
    case Panel::Findings:
      window_.SetFindingsVisible(shown);
      break;
    case Panel::Output:
      window_.SetOutputVisible(shown);
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

void MainView::SelectFormLine(int index) {
  window_.FormLines().Select(index);
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

void MainView::FindingsChanged() {
  window_.RefreshFindings();
}

void MainView::FocusFindings() {
  window_.Findings().FocusList();
}

void MainView::FocusGridRow() {
  window_.Properties().FocusRow();
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

void MainView::RunRestoreDialog() {
  tarnwick::RunRestoreDialog(shell_.Projects(), &window_);
}

void MainView::RunFormMain() {
  RunMainFormDialog(shell_.Forms(), &window_);
}

void MainView::RunItemDialog(int form) {
  DesignForm* design = shell_.Tables().User(form);
  if (design == nullptr) return;
  FormAddItems logic(shell_.Tables(), shell_.Context().Observer, shell_.Steps(), *design);
  tarnwick::RunItemDialog(logic, &window_);
}

void MainView::ShowHelpPage(HelpPage page) {
  if (help_ == nullptr) help_ = new HelpWindow(&window_);
  help_->OpenPage(page);
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
  WritePlacement(shell_.SettingsFile(), window_.Placement());
  window_.Forms().widget()->hide();
}

void MainView::FormClosing(int /*form*/) {
  ScheduleBarRefresh();
}

void MainView::FormChanged(int form) {
  if (form == 1) window_.ProgramIconView().Refresh();
}

void MainView::CurrentFormChanged() {
  window_.ProgramIconView().Refresh();
  ScheduleBarRefresh();
}

void MainView::FormListChanged() {
  window_.FormLines().Refresh();
  ScheduleRefresh();
}

void MainView::EventsBarChanged(int /*form*/) {
  ScheduleBarRefresh();
}

}  // namespace tarnwick
