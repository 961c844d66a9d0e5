#include "qt/frame/form_list_panel.h"

#include <QLabel>
#include <QListWidget>
#include <QSignalBlocker>
#include <QToolButton>
#include <QVBoxLayout>

#include "qt/frame/command_actions.h"
#include "qt/kit/icon_set.h"
#include "qt/kit/panel_frame.h"
#include "qt/kit/text_bridge.h"
#include "shell/form_commands.h"

namespace tarnwick {

namespace {

/// Two lines of the list: less would show nothing of use.
constexpr int kLeastList = 44;

}  // namespace

FormListPanel::FormListPanel(FormCommands& forms, CommandActions& commands, QWidget* parent)
    : QWidget(parent), forms_(forms), list_(new QListWidget), warning_(new QLabel) {
  auto* frame = new PanelFrame(QStringLiteral("Picture3"), QStringLiteral("Forms"), this);
  frame->Heading().setObjectName(QStringLiteral("Label1"));
  int index = 0;
  for (const ToolbarButton& row : FormListBar()) {
    QToolButton* button = commands.MakeButton(row, QStringLiteral("BtnBarMenu"), index++, frame);
    button->setIconSize(QSize(16, 16));
    frame->AddToHead(button);
  }
  list_->setObjectName(QStringLiteral("ListaFrms"));
  list_->setAccessibleName(QStringLiteral("Forms"));
  list_->setIconSize(QSize(16, 16));
  list_->setMinimumHeight(kLeastList);
  list_->setTextElideMode(Qt::ElideMiddle);
  warning_->setObjectName(QStringLiteral("MainFormWarning"));
  warning_->setProperty("quiet", true);
  warning_->setWordWrap(true);
  warning_->hide();
  frame->Body().addWidget(list_);
  frame->Body().addWidget(warning_);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(frame);
  // A press selects, also on the line that is marked already.
  connect(list_, &QListWidget::itemClicked, this,
          [this](QListWidgetItem* item) { forms_.SelectLine(list_->row(item)); });
  // Enter or a double click goes on to the form; arrows stay in the list.
  connect(list_, &QListWidget::itemActivated, this,
          [this](QListWidgetItem* item) { forms_.GoToLine(list_->row(item)); });
  connect(list_, &QListWidget::currentRowChanged, this, [this](int row) {
    if (row >= 0) forms_.SelectLine(row);
  });
}

void FormListPanel::Refresh() {
  const QSignalBlocker quiet(list_);
  const int selected = list_->currentRow();
  const auto& lines = forms_.Lines();
  const FormListMarks marks = forms_.Marks();
  while (list_->count() > static_cast<int>(lines.size()))
    delete list_->takeItem(list_->count() - 1);
  for (int i = 0; i < static_cast<int>(lines.size()); ++i) {
    if (i == list_->count()) list_->addItem(new QListWidgetItem);
    const auto& line = lines[static_cast<std::size_t>(i)];
    const bool is_main = line.FormNumber == marks.MainForm;
    QListWidgetItem* item = list_->item(i);
    item->setText(ToQString(line.Text));
    item->setIcon(IconOf(is_main ? QStringLiteral("main-form") : QStringLiteral("form")));
    item->setToolTip(is_main ? QStringLiteral("Main form") : QString());
  }
  list_->setCurrentRow(qMin(selected, list_->count() - 1));
  const bool lost = !lines.empty() && marks.MainForm == 0;
  warning_->setVisible(lost);
  if (lost) {
    warning_->setText(QStringLiteral("No form is named \"%1\", the main form. Choose one with "
                                     "Project, Select Main Form.")
                          .arg(ToQString(marks.MainName)));
  }
}

void FormListPanel::Select(int index) {
  const QSignalBlocker quiet(list_);
  list_->setCurrentRow(index);
}

}  // namespace tarnwick
