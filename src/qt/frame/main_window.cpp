#include "qt/frame/main_window.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QLabel>
#include <QScreen>
#include <QSplitter>
#include <QStatusBar>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>

#include "qt/frame/command_actions.h"
#include "qt/frame/events_bar_window.h"
#include "qt/frame/findings_panel.h"
#include "qt/frame/form_list_panel.h"
#include "qt/frame/icon_display.h"
#include "qt/frame/object_bar.h"
#include "qt/frame/objects_examiner_window.h"
#include "qt/frame/output_panel.h"
#include "qt/frame/right_column.h"
#include "qt/frame/tool_box_panel.h"
#include "qt/grid/property_panel.h"
#include "qt/kit/grip_splitter.h"
#include "qt/kit/icon_set.h"
#include "qt/kit/panel_frame.h"
#include "qt/kit/text_bridge.h"
#include "qt/kit/theme.h"
#include "qt/surface/container.h"
#include "shell/command_center.h"
#include "shell/findings_list.h"
#include "shell/mdi_form.h"

namespace tarnwick {

namespace {

constexpr QSize kStartSize(1400, 900);
constexpr int kToolColumns = 2;
constexpr int kRightWidth = 290;
constexpr int kPropertiesHeight = 590;
constexpr int kFormsHeight = 130;
/// Room for the window frame where the desktop does not report its size.
constexpr int kFrameSide = 4;
constexpr int kFrameTop = 32;

}  // namespace

MainWindow::MainWindow(MDIForm1& shell, FilePort& files)
    : shell_(shell),
      pictures_([&files](const std::string& path) { return files.Read(path); }),
      actions_(new CommandActions(*this, shell.Commands(), shell.Projects())),
      container_(new Container(pictures_, texts_, this)),
      tools_(new ToolBoxPanel(shell.Commands(), QStringLiteral("BtnObjet"), kToolColumns, this)),
      properties_(new PropertyPanel(shell.Sheet(), pictures_, this)),
      form_list_(new FormListPanel(shell.Forms(), *actions_, this)),
      icon_(new IconDisplay(shell.Tables(), pictures_, this)),
      object_bar_(new ObjectBar(shell.Commands(), this)),
      events_bar_(new EventsBarWindow(shell.Bar(), shell.Commands(), *container_, this)),
      findings_(new FindingsPanel(shell.Findings(), this)),
      examiner_(new ObjectsExaminerWindow(shell.Examiner(), this)),
      output_(new OutputPanel(shell.Runner(), *actions_, this)),
      panels_(new GripSplitter(Qt::Vertical, this)),
      right_(new RightColumn(panels_, icon_, this)),
      forms_(new GripSplitter(Qt::Vertical, this)),
      middle_(new GripSplitter(Qt::Horizontal, this)),
      status_(new QLabel(this)),
      findings_word_(new QToolButton(this)),
      selection_(new QLabel(this)),
      pointer_(new QLabel(this)) {
  setObjectName(QStringLiteral("MDIForm1"));
  resize(kStartSize);
  BuildPanels();
  BuildStatusBar();
  connect(properties_, &PropertyPanel::ShownWanted, this,
          [this](bool shown) { shell_.Commands().SetPanelShown(Panel::Properties, shown); });
  connect(findings_, &FindingsPanel::HideWanted, this,
          [this] { shell_.Commands().SetPanelShown(Panel::Findings, false); });
  connect(output_, &OutputPanel::HideWanted, this,
          [this] { shell_.Commands().SetPanelShown(Panel::Output, false); });
  connect(properties_, &PropertyPanel::Left, this, [this] { GoToForm(); });
  connect(events_bar_, &EventsBarWindow::Left, this, [this] { GoToForm(); });
}

MainWindow::~MainWindow() = default;

void MainWindow::BuildPanels() {
  auto* tool_frame = new PanelFrame(QStringLiteral("Picture4"), QStringLiteral("Tools"), this);
  tool_frame->Body().addWidget(tools_);
  tool_frame->Body().addStretch();
  tool_frame->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);

  panels_->setObjectName(QStringLiteral("RightPanels"));
  panels_->setHandleWidth(kRoom);
  panels_->addWidget(properties_);
  panels_->addWidget(form_list_);
  panels_->setChildrenCollapsible(false);
  panels_->setStretchFactor(0, 1);
  panels_->setSizes({kPropertiesHeight, kFormsHeight});

  forms_->setObjectName(QStringLiteral("FormsAndFindings"));
  forms_->setHandleWidth(kRoom);
  forms_->addWidget(container_);
  forms_->addWidget(findings_);
  forms_->setStretchFactor(0, 1);
  forms_->setChildrenCollapsible(false);
  findings_->hide();

  middle_->setObjectName(QStringLiteral("MiddleAndRight"));
  middle_->setHandleWidth(kRoom);
  // What the program prints takes its room from the forms: beside them stand columns that would
  // make the window grow.
  auto* centre = new QWidget(this);
  auto* forms_and_output = new QVBoxLayout(centre);
  forms_and_output->setContentsMargins(0, 0, 0, 0);
  forms_and_output->setSpacing(kRoom);
  forms_and_output->addWidget(forms_, 1);
  forms_and_output->addWidget(output_);
  middle_->addWidget(centre);
  middle_->addWidget(right_);
  middle_->setStretchFactor(0, 1);
  middle_->setChildrenCollapsible(false);
  middle_->setSizes({width() - kRightWidth, kRightWidth});

  auto* whole = new QWidget(this);
  auto* column = new QVBoxLayout(whole);
  column->setContentsMargins(kRoom, kRoom, kRoom, kRoom);
  column->setSpacing(kRoom);
  auto* row = new QHBoxLayout;
  row->setSpacing(kRoom);
  row->addWidget(tool_frame);
  row->addWidget(middle_, 1);
  column->addLayout(row, 1);
  setCentralWidget(whole);
}

void MainWindow::BuildStatusBar() {
  status_->setObjectName(QStringLiteral("StatusText"));
  status_->setTextFormat(Qt::PlainText);
  status_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  status_->setAccessibleName(QStringLiteral("Status"));
  selection_->setAccessibleName(QStringLiteral("Selection"));
  pointer_->setAccessibleName(QStringLiteral("Pointer"));
  selection_->setObjectName(QStringLiteral("SelectionText"));
  pointer_->setObjectName(QStringLiteral("PointerText"));
  pointer_->setMinimumWidth(fontMetrics().horizontalAdvance(QStringLiteral("0000, 0000")) +
                            3 * kRoom);
  pointer_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  statusBar()->setSizeGripEnabled(false);
  statusBar()->addWidget(status_, 1);
  findings_word_->setObjectName(QStringLiteral("FindingsWord"));
  findings_word_->setToolTip(QStringLiteral("Show the findings"));
  findings_word_->setAccessibleName(QStringLiteral("Findings"));
  findings_word_->setIcon(IconOf(QStringLiteral("mark")));
  findings_word_->setIconSize(QSize(14, 14));
  findings_word_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  findings_word_->setAutoRaise(true);
  findings_word_->setFocusPolicy(Qt::TabFocus);
  findings_word_->hide();
  connect(findings_word_, &QToolButton::clicked, this,
          [this] { shell_.Commands().Run(Command::Check); });
  statusBar()->addPermanentWidget(findings_word_);
  statusBar()->addPermanentWidget(selection_);
  statusBar()->addPermanentWidget(pointer_);
}

WindowPlacement MainWindow::Placement() const {
  const QRect place = isMaximized() || isFullScreen() ? normalGeometry() : geometry();
  const auto sizes = [](const QSplitter& splitter) {
    const QList<int> list = splitter.sizes();
    return std::vector<int>(list.begin(), list.end());
  };
  return {{place.x(), place.y(), place.width(), place.height()},
          isMaximized(),
          sizes(*middle_),
          sizes(*panels_),
          findings_->isHidden() ? findings_height_ : findings_->height()};
}

void MainWindow::TakePlacement(const WindowPlacement& last) {
  const bool known = last.Window.Width > 0;
  const QPoint middle = known ? QPoint(last.Window.Left + last.Window.Width / 2,
                                       last.Window.Top + last.Window.Height / 2)
                              : QPoint();
  // A screen that has gone since leaves its windows to the first one.
  const QScreen* on = known ? QGuiApplication::screenAt(middle) : nullptr;
  if (on == nullptr) on = QGuiApplication::primaryScreen();
  if (on == nullptr) return;
  QRect area = on->availableGeometry();
  // The frame that the desktop draws around the window belongs to it.
  area.adjust(kFrameSide, kFrameTop, -kFrameSide, -kFrameSide);
  const WindowRect free{area.x(), area.y(), area.width(), area.height()};
  const WindowRect wanted = known ? last.Window
                                  : WindowRect{area.center().x() - width() / 2,
                                               area.center().y() - height() / 2, width(), height()};
  const WindowRect place = FitInto(wanted, free);
  setGeometry(place.Left, place.Top, place.Width, place.Height);
  const auto give = [](QSplitter& splitter, const std::vector<int>& sizes) {
    const bool fits = static_cast<int>(sizes.size()) == splitter.count() &&
                      std::any_of(sizes.begin(), sizes.end(), [](int size) { return size > 0; });
    if (fits) splitter.setSizes(QList<int>(sizes.begin(), sizes.end()));
  };
  give(*middle_, last.Columns);
  give(*panels_, last.Panels);
  if (last.Findings > 0) findings_height_ = last.Findings;
  if (last.Maximised) setWindowState(windowState() | Qt::WindowMaximized);
}

void MainWindow::GoToForm() {
  const DesignForm* current = shell_.Tables().CurrentForm;
  DesignWindow* form = current != nullptr ? container_->Window(current->Number()) : nullptr;
  if (form != nullptr) form->Surface().setFocus();
}

void MainWindow::RefreshCommands() {
  actions_->Refresh();
  tools_->Refresh();
  object_bar_->Refresh();
}

void MainWindow::SetStatus(const QString& text) {
  status_->setText(text);
  // A path may be longer than the window is wide.
  status_->setToolTip(text);
}

void MainWindow::SetSelectionText(const QString& text) {
  selection_->setText(text);
}

void MainWindow::SetPointerText(const QPoint& place) {
  pointer_->setText(place.x() < 0 || place.y() < 0
                        ? QString()
                        : QStringLiteral("%1, %2").arg(place.x()).arg(place.y()));
}

void MainWindow::SetPropertiesVisible(bool visible) {
  properties_->setVisible(visible);
  right_->setVisible(visible || !form_list_->isHidden());
}

void MainWindow::SetFormListVisible(bool visible) {
  form_list_->setVisible(visible);
  right_->setVisible(visible || !properties_->isHidden());
}

void MainWindow::SetFindingsVisible(bool visible) {
  if (visible == findings_->isVisibleTo(this)) return;
  const bool had_focus = findings_->isAncestorOf(focusWidget());
  if (!visible) findings_height_ = findings_->height();
  findings_->setVisible(visible);
  if (visible) forms_->setSizes({forms_->height() - findings_height_, findings_height_});
  if (!visible && had_focus) GoToForm();
}

void MainWindow::SetOutputVisible(bool visible) {
  const bool had_focus = output_->isAncestorOf(focusWidget());
  output_->setVisible(visible);
  if (!visible && had_focus) GoToForm();
}

void MainWindow::RefreshFindings() {
  findings_->Refresh();
  const QString word = ToQString(shell_.Findings().Word());
  findings_word_->setText(word);
  findings_word_->setAccessibleName(word);
  findings_word_->setVisible(!word.isEmpty());
}

void MainWindow::closeEvent(QCloseEvent* event) {
  if (shell_.Close()) {
    event->accept();
  } else {
    event->ignore();
  }
}

}  // namespace tarnwick
