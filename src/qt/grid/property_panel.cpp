#include "qt/grid/property_panel.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QShortcut>
#include <QSignalBlocker>
#include <QSplitter>
#include <QToolButton>
#include <QVBoxLayout>

#include "inspector/property_sheet.h"
#include "qt/grid/property_grid.h"
#include "qt/kit/icon_set.h"
#include "qt/kit/panel_frame.h"
#include "qt/kit/text_bridge.h"
#include "qt/kit/theme.h"

namespace tarnwick {

namespace {

constexpr int kCloseIcon = 14;
constexpr int kHelpHeight = 92;
constexpr int kGridHeight = 400;

}  // namespace

PropertyPanel::PropertyPanel(PropertySheet& sheet, looks::PictureCache& pictures, QWidget* parent)
    : QWidget(parent),
      sheet_(sheet),
      combo_(new QComboBox),
      filter_(new QLineEdit),
      scroll_(new QScrollArea),
      grid_(new PropertyGrid(sheet, pictures, scroll_)),
      help_name_(new QLabel),
      help_(new QPlainTextEdit) {
  BuildHead();
  BuildGrid();
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
  close->setAutoRaise(true);
  close->setFocusPolicy(Qt::NoFocus);
  frame->AddToHead(close);
  connect(close, &QToolButton::clicked, this, [this] { Q_EMIT ShownWanted(false); });
  combo_->setObjectName(QStringLiteral("Combo"));
  combo_->setToolTip(QStringLiteral("Objects of the form"));
  combo_->setAccessibleName(combo_->toolTip());
  combo_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  combo_->setMinimumContentsLength(8);
  connect(combo_, &QComboBox::activated, this, [this](int place) { sheet_.ChooseComboRow(place); });
  filter_->setObjectName(QStringLiteral("RowFilter"));
  filter_->setPlaceholderText(QStringLiteral("Filter rows"));
  filter_->setToolTip(QStringLiteral("Show only rows whose name holds this text"));
  filter_->setAccessibleName(QStringLiteral("Filter rows"));
  filter_->setClearButtonEnabled(true);
  filter_->addAction(IconOf(QStringLiteral("search")), QLineEdit::LeadingPosition);
  filter_->installEventFilter(this);
  connect(filter_, &QLineEdit::textChanged, this,
          [this](const QString& text) { sheet_.SetFilter(FromQString(text)); });

  auto* help = new QWidget;
  auto* help_column = new QVBoxLayout(help);
  help_column->setContentsMargins(0, kGap, 0, 0);
  help_column->setSpacing(0);
  help_column->addWidget(help_name_);
  help_column->addWidget(help_);
  auto* parts = new QSplitter(Qt::Vertical);
  parts->setObjectName(QStringLiteral("GridAndHelp"));
  parts->setHandleWidth(kGap);
  parts->addWidget(scroll_);
  parts->addWidget(help);
  parts->setStretchFactor(0, 1);
  parts->setSizes({kGridHeight, kHelpHeight});

  frame->Body().addWidget(combo_);
  frame->Body().addWidget(filter_);
  frame->Body().addWidget(parts, 1);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(frame);
}

void PropertyPanel::BuildGrid() {
  scroll_->setObjectName(QStringLiteral("PropertyGrid"));
  scroll_->setFrameShape(QFrame::NoFrame);
  scroll_->setFocusPolicy(Qt::NoFocus);
  scroll_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  scroll_->verticalScrollBar()->setObjectName(QStringLiteral("VScroll1"));
  scroll_->setWidgetResizable(true);
  grid_->setBackgroundRole(QPalette::Base);
  scroll_->setWidget(grid_);
  grid_->SetTabBefore(filter_);
  connect(grid_, &PropertyGrid::RowEntered, this, [this](const QWidget& row) {
    scroll_->ensureVisible(0, row.y() + row.height() / 2, 0, row.height());
  });
  connect(grid_, &PropertyGrid::Left, this, &PropertyPanel::Left);

  help_name_->setObjectName(QStringLiteral("RowHelpName"));
  help_name_->setProperty("heading", true);
  help_name_->setTextFormat(Qt::PlainText);
  help_->setObjectName(QStringLiteral("RowHelp"));
  help_->setAccessibleName(QStringLiteral("What the row is for"));
  help_->setReadOnly(true);
  help_->setFrameShape(QFrame::NoFrame);
  help_->setFocusPolicy(Qt::ClickFocus);
  help_->document()->setDocumentMargin(0);
}

void PropertyPanel::Commit() {
  grid_->Commit();
}

bool PropertyPanel::KeepsFocus() const {
  return grid_->IsApplying();
}

void PropertyPanel::RowsChanged() {
  grid_->ShowRows();
  ShowHelp();
}

void PropertyPanel::RowTextChanged(int row) {
  grid_->ShowRow(row);
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
  const QString text = ToQString(sheet_.Help());
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
