#include "qt/frame/findings_panel.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QToolButton>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <array>

#include "qt/kit/icon_set.h"
#include "qt/kit/panel_frame.h"
#include "qt/kit/text_bridge.h"
#include "shell/findings_list.h"
#include "text/enum_table.h"

namespace tarnwick {

namespace {

using project::Severity;

constexpr int kCloseIcon = 14;
constexpr int kLeastList = 60;
/// The columns but the last are as wide as their texts, up to this; the last takes what is left.
constexpr int kMostWidth = 160;

struct SeverityLook {
  Severity Id;
  const char* Name;
  const char* Icon;
};
constexpr std::array<SeverityLook, 3> kLooks{{
    {Severity::Note, "Note", "finding-note"},
    {Severity::Warning, "Warning", "mark"},
    {Severity::Error, "Error", "finding-error"},
}};
static_assert(HasRowOfEach(kLooks, kLooks.size()));

}  // namespace

FindingsPanel::FindingsPanel(FindingsList& findings, QWidget* parent)
    : QWidget(parent), findings_(findings), list_(new QTreeWidget) {
  setObjectName(QStringLiteral("FindingsPanel"));
  auto* frame = new PanelFrame(QStringLiteral("FindingsFrame"), QStringLiteral("Findings"), this);
  auto* close = new QToolButton(frame);
  close->setObjectName(QStringLiteral("FindingsClose"));
  close->setIcon(IconOf(QStringLiteral("close")));
  close->setIconSize(QSize(kCloseIcon, kCloseIcon));
  close->setToolTip(QStringLiteral("Close"));
  close->setAccessibleName(QStringLiteral("Close findings"));
  close->setAutoRaise(true);
  close->setFocusPolicy(Qt::NoFocus);
  frame->AddToHead(close);
  connect(close, &QToolButton::clicked, this, &FindingsPanel::HideWanted);

  list_->setObjectName(QStringLiteral("Findings"));
  list_->setAccessibleName(QStringLiteral("Findings"));
  list_->setHeaderLabels({QStringLiteral("Gravity"), QStringLiteral("Form"),
                          QStringLiteral("Object"), QStringLiteral("Row or event"),
                          QStringLiteral("Finding")});
  list_->setRootIsDecorated(false);
  list_->setUniformRowHeights(true);
  list_->setAllColumnsShowFocus(true);
  list_->setTextElideMode(Qt::ElideRight);
  list_->setFrameShape(QFrame::NoFrame);
  list_->setMinimumHeight(kLeastList);
  list_->installEventFilter(this);
  connect(list_, &QTreeWidget::itemActivated, this,
          [this](QTreeWidgetItem* item) { findings_.GoTo(list_->indexOfTopLevelItem(item)); });
  frame->Body().addWidget(list_);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(frame);
  Refresh();
}

void FindingsPanel::Refresh() {
  const int selected = list_->indexOfTopLevelItem(list_->currentItem());
  list_->clear();
  QList<QTreeWidgetItem*> rows;
  for (const FindingLine& line : findings_.Lines()) {
    const SeverityLook& look = kLooks[static_cast<std::size_t>(line.How)];
    // What comes from a damaged file stays on its line.
    const QString text = ToQString(line.Text).simplified();
    auto* row = new QTreeWidgetItem({QLatin1String(look.Name), ToQString(line.Form),
                                     ToQString(line.Object), ToQString(line.Row), text});
    row->setIcon(0, IconOf(QLatin1String(look.Icon)));
    row->setToolTip(list_->columnCount() - 1, text);
    rows.append(row);
  }
  const bool any = !rows.isEmpty();
  if (!any) {
    rows.append(new QTreeWidgetItem({QStringLiteral("Nothing was found.")}));
  }
  list_->addTopLevelItems(rows);
  for (int column = 0; column + 1 < list_->columnCount(); ++column) {
    list_->resizeColumnToContents(column);
    list_->setColumnWidth(column, qMin(list_->columnWidth(column), kMostWidth));
  }
  // A row spans the columns of the tree that it is in.
  if (!any) rows.front()->setFirstColumnSpanned(true);
  if (selected >= 0) {
    list_->setCurrentItem(list_->topLevelItem(qMin(selected, list_->topLevelItemCount() - 1)));
  }
}

void FindingsPanel::FocusList() {
  if (list_->currentItem() == nullptr) list_->setCurrentItem(list_->topLevelItem(0));
  list_->setFocus(Qt::OtherFocusReason);
}

bool FindingsPanel::eventFilter(QObject* object, QEvent* event) {
  // As a shortcut Esc may belong to the window; here it closes the panel.
  const bool key = event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride;
  if (object != list_ || !key || static_cast<QKeyEvent*>(event)->key() != Qt::Key_Escape) {
    return QWidget::eventFilter(object, event);
  }
  event->accept();
  if (event->type() == QEvent::KeyPress) Q_EMIT HideWanted();
  return true;
}

}  // namespace tarnwick
