#include "qt/grid/property_panel.h"

#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QShortcut>
#include <QSignalBlocker>
#include <QToolButton>
#include <QVBoxLayout>
#include <utility>

#include "inspector/property_sheet.h"
#include "qt/grid/object_box.h"
#include "qt/grid/property_grid.h"
#include "qt/grid/property_row_view.h"
#include "qt/grid/row_area.h"
#include "qt/kit/grip_splitter.h"
#include "qt/kit/icon_set.h"
#include "qt/kit/panel_frame.h"
#include "qt/kit/text_bridge.h"
#include "qt/kit/theme.h"

namespace tarnwick {

namespace {

constexpr int kCloseIcon = 14;
/// The most and the least that the help takes by itself, and the rows that come before it.
constexpr int kHelpHeight = 92;
constexpr int kLeastHelp = 36;
constexpr int kRowsFirst = 16;

}  // namespace

PropertyPanel::PropertyPanel(PropertySheet& sheet, looks::PictureCache& pictures, QWidget* parent)
    : QWidget(parent),
      sheet_(sheet),
      combo_(new ObjectBox(
          [this](const QString& text) { return sheet_.Combo().Search(FromQString(text)); },
          nullptr)),
      filter_(new QLineEdit),
      scroll_(new RowArea),
      grid_(new PropertyGrid(sheet, pictures, scroll_)),
      help_name_(new QLabel),
      help_(new QPlainTextEdit),
      parts_(new GripSplitter(Qt::Vertical)),
      help_part_(new QWidget) {
  BuildHead();
  BuildGrid();
  BuildHelp();
  auto* go = new QShortcut(QKeySequence(Qt::Key_F4), window());
  connect(go, &QShortcut::activated, this, [this] {
    if (!sheet_.PanelVisible()) Q_EMIT ShownWanted(true);
    grid_->FocusRow();
  });
  sheet_.SetView(this);
  ComboChanged();
  RowsChanged();
}

// Its logic was there first and outlives it.
PropertyPanel::~PropertyPanel() {
  sheet_.SetView(nullptr);
}

void PropertyPanel::BuildHead() {
  auto* frame = new PanelFrame(QStringLiteral("Picture1"), QStringLiteral("Properties"), this);
  frame->Heading().setObjectName(QStringLiteral("LabelBarra"));
  auto* close = new QToolButton(frame);
  close->setObjectName(QStringLiteral("btnClose"));
  close->setIcon(IconOf(QStringLiteral("close")));
  close->setIconSize(QSize(kCloseIcon, kCloseIcon));
  close->setToolTip(QStringLiteral("Close"));
  close->setAccessibleName(QStringLiteral("Close properties"));
  close->setAutoRaise(true);
  close->setFocusPolicy(Qt::NoFocus);
  frame->AddToHead(close);
  connect(close, &QToolButton::clicked, this, [this] { Q_EMIT ShownWanted(false); });
  combo_->setObjectName(QStringLiteral("Combo"));
  combo_->setToolTip(QStringLiteral("Objects of the form"));
  combo_->setAccessibleName(combo_->toolTip());
  combo_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  combo_->setMinimumContentsLength(8);
  connect(combo_, &ObjectBox::activated, this, [this](int index) { sheet_.ChooseComboRow(index); });
  filter_->setObjectName(QStringLiteral("RowFilter"));
  filter_->setPlaceholderText(QStringLiteral("Filter rows"));
  filter_->setToolTip(QStringLiteral("Show only rows whose name holds this text"));
  filter_->setAccessibleName(QStringLiteral("Filter rows"));
  filter_->setClearButtonEnabled(true);
  filter_->addAction(IconOf(QStringLiteral("search")), QLineEdit::LeadingPosition);
  filter_->installEventFilter(this);
  connect(filter_, &QLineEdit::textChanged, this,
          [this](const QString& text) { sheet_.SetFilter(FromQString(text)); });

  auto* help_column = new QVBoxLayout(help_part_);
  help_column->setContentsMargins(0, 0, 0, 0);
  help_column->setSpacing(0);
  help_column->addWidget(help_name_);
  help_column->addWidget(help_);
  parts_->setObjectName(QStringLiteral("GridAndHelp"));
  parts_->setHandleWidth(kRoom);
  parts_->addWidget(scroll_);
  parts_->addWidget(help_part_);
  parts_->setCollapsible(0, false);
  parts_->setStretchFactor(0, 1);
  connect(parts_, &QSplitter::splitterMoved, this, [this] { is_shared_by_user_ = true; });

  frame->Body().addWidget(combo_);
  frame->Body().addWidget(filter_);
  frame->Body().addWidget(parts_, 1);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(frame);
}

void PropertyPanel::BuildGrid() {
  scroll_->setObjectName(QStringLiteral("PropertyGrid"));
  scroll_->verticalScrollBar()->setObjectName(QStringLiteral("VScroll1"));
  grid_->setBackgroundRole(QPalette::Base);
  scroll_->setWidget(grid_);
  grid_->SetTabBefore(filter_);
  connect(grid_, &PropertyGrid::RowEntered, this, [this](const QWidget& row) {
    scroll_->ensureVisible(0, row.y() + row.height() / 2, 0, row.height());
  });
  connect(grid_, &PropertyGrid::Left, this, &PropertyPanel::Left);
}

void PropertyPanel::BuildHelp() {
  help_name_->setObjectName(QStringLiteral("RowHelpName"));
  help_name_->setProperty("heading", true);
  help_name_->setTextFormat(Qt::PlainText);
  help_->setObjectName(QStringLiteral("RowHelp"));
  help_->setAccessibleName(QStringLiteral("What the row is for"));
  help_->setReadOnly(true);
  help_->setFrameShape(QFrame::NoFrame);
  help_->setFocusPolicy(Qt::ClickFocus);
  help_->document()->setDocumentMargin(0);
  // Below what the toolkit asks for, which a height of 0 would bring back.
  help_->setMinimumHeight(1);
  help_part_->setMinimumHeight(1);
}

void PropertyPanel::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  ShareHeight();
}

/// In a low window the rows come first: the help takes what sixteen of them leave, down to nothing.
void PropertyPanel::ShareHeight() {
  if (is_shared_by_user_) return;
  const int whole = parts_->height() - parts_->handleWidth();
  const int rows = qMin(grid_->minimumHeight(), kRowsFirst * PropertyRowView::HeightPixels());
  const int left = qMin(kHelpHeight, whole - rows);
  const int help = left < kLeastHelp ? 0 : left;
  parts_->setSizes({whole - help, help});
}

void PropertyPanel::FocusRow() {
  // With a filter the grid is entered at the first row that it leaves.
  filter_->clear();
  grid_->FocusRow();
}

void PropertyPanel::Commit() {
  grid_->Commit();
}

bool PropertyPanel::KeepsFocus() const {
  return grid_->IsApplying();
}

void PropertyPanel::SubjectChanged() {
  starts_at_top_ = true;
}

void PropertyPanel::RowsChanged() {
  grid_->ShowRows();
  if (std::exchange(starts_at_top_, false)) scroll_->verticalScrollBar()->setValue(0);
  ShareHeight();
  ShowHelp();
}

void PropertyPanel::RowTextChanged(int row) {
  grid_->ShowRow(row);
  if (row == sheet_.RowIndex()) ShowHelp();
}

void PropertyPanel::RowSelected() {
  grid_->ShowSelection();
  ShowHelp();
}

void PropertyPanel::ListOpened(bool is_open) {
  grid_->ShowList(is_open);
}

void PropertyPanel::ShowHelp() {
  const int row = sheet_.HasSelectedRow() ? sheet_.RowIndex() : -1;
  const QString name = ToQString(sheet_.Label(row));
  const QString fault = ToQString(sheet_.RowFault(row));
  const QString about = ToQString(sheet_.Help());
  const QString text = fault.isEmpty() ? about : fault + QStringLiteral("\n") + about;
  if (help_name_->text() != name) help_name_->setText(name);
  if (help_->toPlainText() != text) help_->setPlainText(text);
}

/// Brings the list to the rows of the sheet. Mostly one row is new at the end or one has gone, so
/// what is the same at the head stays.
void PropertyPanel::ComboChanged() {
  const QSignalBlocker quiet(combo_);
  const auto& rows = sheet_.Combo().Rows();
  const int count = static_cast<int>(rows.size());
  const auto text_of = [&rows](int row) {
    return ToQString(rows[static_cast<std::size_t>(row)].Text);
  };
  int same = 0;
  while (same < count && same < combo_->count() && combo_->itemText(same) == text_of(same)) ++same;
  if (same == 0) combo_->clear();
  if (combo_->count() == count + 1) combo_->removeItem(same);
  while (combo_->count() > count) combo_->removeItem(combo_->count() - 1);
  for (int row = same; row < count; ++row) {
    const QString text = text_of(row);
    if (row >= combo_->count()) {
      combo_->addItem(text);
    } else if (combo_->itemText(row) != text) {
      combo_->setItemText(row, text);
    }
  }
  combo_->setCurrentIndex(sheet_.Combo().Selected());
}

void PropertyPanel::ComboRowTextChanged(int row) {
  const auto& rows = sheet_.Combo().Rows();
  if (row < 0 || row >= static_cast<int>(rows.size()) || row >= combo_->count()) return;
  const QSignalBlocker quiet(combo_);
  combo_->setItemText(row, ToQString(rows[static_cast<std::size_t>(row)].Text));
}

void PropertyPanel::ComboRowSelected(int row) {
  const QSignalBlocker quiet(combo_);
  combo_->setCurrentIndex(row);
}

/// In the filter Down and Enter go on to the rows, Esc empties it and then leaves the panel.
bool PropertyPanel::eventFilter(QObject* object, QEvent* event) {
  if (object != filter_ || event->type() != QEvent::KeyPress) {
    return QWidget::eventFilter(object, event);
  }
  switch (static_cast<QKeyEvent*>(event)->key()) {
    case Qt::Key_Down:
    case Qt::Key_Return:
    case Qt::Key_Enter:
      grid_->FocusRow();
      return true;
    case Qt::Key_Escape:
      if (filter_->text().isEmpty()) {
        Q_EMIT Left();
      } else {
        filter_->clear();
      }
      return true;
    default:
      return QWidget::eventFilter(object, event);
  }
}

}  // namespace tarnwick
