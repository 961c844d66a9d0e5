#include "qt/frame/main_window.h"

#include <QCloseEvent>
#include <QLabel>
#include <QStatusBar>
#include <QVBoxLayout>

#include "qt/frame/command_actions.h"
#include "qt/frame/events_bar_window.h"
#include "qt/frame/form_list_panel.h"
#include "qt/frame/icon_display.h"
#include "qt/frame/object_bar.h"
#include "qt/frame/objects_examiner_window.h"
#include "qt/frame/tool_box_panel.h"
#include "qt/grid/property_panel.h"
#include "qt/kit/grip_splitter.h"
#include "qt/kit/panel_frame.h"
#include "qt/kit/theme.h"
#include "qt/surface/container.h"
#include "shell/command_center.h"
#include "shell/mdi_form.h"

namespace tarnwick {

namespace {

constexpr int kToolColumns = 2;
constexpr int kRightWidth = 290;
constexpr int kPropertiesHeight = 590;
constexpr int kFormsHeight = 130;

}  // namespace

MainWindow::MainWindow(MDIForm1& shell, FilePort& files)
    : shell_(shell),
      pictures_([&files](const std::string& path) { return files.Read(path); }),
      actions_(new CommandActions(*this, shell.Commands())),
      container_(new Container(pictures_, texts_, this)),
      tools_(new ToolBoxPanel(shell.Commands(), QStringLiteral("BtnObjet"), kToolColumns, this)),
      properties_(new PropertyPanel(shell.Sheet(), pictures_, this)),
      form_list_(new FormListPanel(shell.Forms(), *actions_, this)),
      icon_(new IconDisplay(shell.Tables(), pictures_, this)),
      object_bar_(new ObjectBar(shell.Commands(), this)),
      events_bar_(new EventsBarWindow(shell.Bar(), shell.Commands(), *container_, this)),
      examiner_(new ObjectsExaminerWindow(shell.Examiner(), this)),
      right_(new QWidget(this)),
      panels_(new GripSplitter(Qt::Vertical, right_)),
      status_(new QLabel(this)),
      selection_(new QLabel(this)),
      pointer_(new QLabel(this)) {
  setObjectName(QStringLiteral("MDIForm1"));
  resize(1400, 900);
  BuildPanels();
  BuildStatusBar();
  connect(properties_, &PropertyPanel::ShownWanted, this,
          [this](bool shown) { shell_.Commands().SetPanelShown(Panel::Properties, shown); });
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
  auto* right_column = new QVBoxLayout(right_);
  right_column->setContentsMargins(0, 0, 0, 0);
  right_column->setSpacing(kRoom);
  right_column->addWidget(panels_, 1);
  right_column->addWidget(icon_);

  auto* middle = new GripSplitter(Qt::Horizontal, this);
  middle->setObjectName(QStringLiteral("MiddleAndRight"));
  middle->setHandleWidth(kRoom);
  middle->addWidget(container_);
  middle->addWidget(right_);
  middle->setStretchFactor(0, 1);
  middle->setChildrenCollapsible(false);
  middle->setSizes({width() - kRightWidth, kRightWidth});

  auto* whole = new QWidget(this);
  auto* row = new QHBoxLayout(whole);
  row->setContentsMargins(kRoom, kRoom, kRoom, kRoom);
  row->setSpacing(kRoom);
  row->addWidget(tool_frame);
  row->addWidget(middle, 1);
  setCentralWidget(whole);
}

void MainWindow::BuildStatusBar() {
  status_->setObjectName(QStringLiteral("StatusText"));
  selection_->setObjectName(QStringLiteral("SelectionText"));
  pointer_->setObjectName(QStringLiteral("PointerText"));
  pointer_->setMinimumWidth(fontMetrics().horizontalAdvance(QStringLiteral("0000, 0000")) +
                            3 * kRoom);
  pointer_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  statusBar()->setSizeGripEnabled(false);
  statusBar()->addWidget(status_, 1);
  statusBar()->addPermanentWidget(selection_);
  statusBar()->addPermanentWidget(pointer_);
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

void MainWindow::closeEvent(QCloseEvent* event) {
  if (shell_.Close()) {
    event->accept();
  } else {
    event->ignore();
  }
}

}  // namespace tarnwick
