#include "qt/property_panel.h"

#include <QComboBox>
#include <QEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QToolButton>
#include <QVBoxLayout>

#include "inspector/property_sheet.h"
#include "qt/icon_set.h"
#include "qt/panel_frame.h"
#include "qt/property_row_view.h"
#include "qt/text_bridge.h"
#include "qt/theme.h"
#include "shell/mdi_form.h"

namespace tarnwick {

namespace {

constexpr int kButton = 22;
constexpr int kButtonIcon = 14;
constexpr int kMostListRows = 12;

bool IsColor(int mark) {
  return mark == row_mark::kColor || mark == row_mark::kColorToo;
}

QToolButton* MakeButton(const char* name, const char* icon, const char* tip, QWidget* parent) {
  auto* button = new QToolButton(parent);
  button->setObjectName(QString::fromLatin1(name));
  button->setIcon(IconOf(QString::fromLatin1(icon)));
  button->setIconSize(QSize(kButtonIcon, kButtonIcon));
  button->setToolTip(QString::fromLatin1(tip));
  button->setAutoRaise(true);
  button->hide();
  return button;
}

}  // namespace

PropertyPanel::PropertyPanel(QWidget* parent)
    : QWidget(parent),
      combo_(new QComboBox),
      filter_(new QLineEdit),
      scroll_(new QScrollArea),
      grid_(new QWidget),
      boton1_(MakeButton("Boton1", "choose", "Choose...", grid_)),
      boton2_(MakeButton("Boton2", "drop", "List", grid_)),
      boton3_(MakeButton("Boton3", "reset", "Reset", grid_)),
      list_(new QListWidget(this)) {
  BuildHead();
  BuildGrid();
  BuildList();
}

PropertyPanel::~PropertyPanel() {
  if (sheet_ != nullptr) sheet_->SetView(nullptr);
}

void PropertyPanel::BuildHead() {
  auto* frame = new PanelFrame(QStringLiteral("Picture1"), QStringLiteral("Properties"), this);
  frame->Heading().setObjectName(QStringLiteral("LabelBarra"));
  auto* close = new QToolButton(frame);
  close->setObjectName(QStringLiteral("btnClose"));
  close->setIcon(IconOf(QStringLiteral("close")));
  close->setIconSize(QSize(kButtonIcon, kButtonIcon));
  close->setToolTip(QStringLiteral("Close"));
  close->setAutoRaise(true);
  close->setFocusPolicy(Qt::NoFocus);
  frame->AddToHead(close);
  connect(close, &QToolButton::clicked, this, [this] {
    if (shell_ != nullptr) shell_->SetPanelShown(Panel::Properties, false);
  });
  combo_->setObjectName(QStringLiteral("Combo"));
  combo_->setToolTip(QStringLiteral("Objects of the form"));
  combo_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  combo_->setMinimumContentsLength(8);
  connect(combo_, &QComboBox::activated, this, [this](int place) {
    if (sheet_ != nullptr) sheet_->ChooseComboRow(place);
  });
  filter_->setObjectName(QStringLiteral("RowFilter"));
  filter_->setPlaceholderText(QStringLiteral("Filter rows"));
  filter_->setToolTip(QStringLiteral("Show only rows whose name holds this text"));
  filter_->setClearButtonEnabled(true);
  filter_->addAction(IconOf(QStringLiteral("search")), QLineEdit::LeadingPosition);
  connect(filter_, &QLineEdit::textChanged, this, [this](const QString& text) {
    if (sheet_ != nullptr) sheet_->SetFilter(FromQString(text));
  });
  frame->Body().addWidget(combo_);
  frame->Body().addWidget(filter_);
  frame->Body().addWidget(scroll_, 1);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(frame);
}

void PropertyPanel::BuildGrid() {
  scroll_->setObjectName(QStringLiteral("PropertyGrid"));
  scroll_->setFrameShape(QFrame::NoFrame);
  scroll_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  scroll_->verticalScrollBar()->setObjectName(QStringLiteral("VScroll1"));
  scroll_->setWidgetResizable(true);
  grid_->setObjectName(QStringLiteral("GridRows"));
  grid_->setBackgroundRole(QPalette::Base);
  auto* column = new QVBoxLayout(grid_);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  column->addStretch();
  scroll_->setWidget(grid_);
  const auto pick = [this] {
    if (sheet_ != nullptr) sheet_->PickValue();
  };
  connect(boton1_, &QToolButton::clicked, this, pick);
  connect(boton2_, &QToolButton::clicked, this, pick);
  connect(boton3_, &QToolButton::clicked, this, [this] {
    if (sheet_ != nullptr) sheet_->ResetValue();
  });
}

void PropertyPanel::BuildList() {
  list_->setObjectName(QStringLiteral("ListBox"));
  list_->setWindowFlags(Qt::Popup);
  list_->installEventFilter(this);
  list_->hide();
  connect(list_, &QListWidget::itemClicked, this,
          [this](QListWidgetItem* item) { ChooseListRow(list_->row(item)); });
}

void PropertyPanel::Attach(MDIForm1& shell) {
  shell_ = &shell;
  sheet_ = &shell.Sheet();
  sheet_->SetView(this);
  ComboChanged();
  RowsChanged();
}

void PropertyPanel::Commit() {
  for (PropertyRowView* row : rows_) {
    if (!row->Field().hasFocus() || sheet_ == nullptr || row->Row() != sheet_->RowIndex()) continue;
    sheet_->ApplyText(FromQString(row->Field().text()));
  }
}

void PropertyPanel::RowsChanged() {
  if (sheet_ == nullptr) return;
  auto* column = static_cast<QVBoxLayout*>(grid_->layout());
  const int count = sheet_->RowCount();
  for (int row = static_cast<int>(rows_.size()); row < count; ++row) {
    auto* view = new PropertyRowView(row, grid_);
    view->Field().installEventFilter(this);
    connect(&view->Field(), &QLineEdit::textEdited, this, [this, row](const QString& text) {
      SelectRow(row);
      if (sheet_ != nullptr) sheet_->ApplyText(FromQString(text));
    });
    column->insertWidget(row, view);
    rows_.push_back(view);
  }
  for (PropertyRowView* view : rows_) view->hide();
  for (const int row : sheet_->ShownRows()) {
    if (row < static_cast<int>(rows_.size())) rows_[static_cast<std::size_t>(row)]->show();
  }
  for (int row = 0; row < count; ++row) FillRow(row);
  RowSelected();
}

void PropertyPanel::FillRow(int row) {
  if (row < 0 || row >= static_cast<int>(rows_.size())) return;
  PropertyRowView* view = rows_[static_cast<std::size_t>(row)];
  view->SetName(sheet_->Label(row));
  view->SetValue(sheet_->Text(row), IsColor(sheet_->RowMark(row)), sheet_->TakesTyping(row));
}

void PropertyPanel::RowTextChanged(int row) {
  if (sheet_ != nullptr) FillRow(row);
}

void PropertyPanel::RowSelected() {
  if (sheet_ == nullptr) return;
  for (PropertyRowView* view : rows_) {
    const bool selected = sheet_->HasSelectedRow() && view->Row() == sheet_->RowIndex();
    view->SetSelected(selected);
    if (!selected) view->SetButtonRoom(0);
  }
  PlaceButtons();
}

void PropertyPanel::PlaceButtons() {
  const int row = sheet_->RowIndex();
  const bool shown = sheet_->HasSelectedRow() && row >= 0 && row < static_cast<int>(rows_.size());
  boton1_->setVisible(shown && sheet_->Boton1Shown());
  boton2_->setVisible(shown && sheet_->Boton2Shown());
  boton3_->setVisible(shown && sheet_->Boton3Shown());
  if (!shown) return;
  const bool color = IsColor(sheet_->RowMark(row));
  boton2_->setIcon(IconOf(color ? QStringLiteral("colour") : QStringLiteral("drop")));
  boton2_->setToolTip(color ? QStringLiteral("Colour...") : QStringLiteral("List"));
  PropertyRowView* view = rows_[static_cast<std::size_t>(row)];
  int room = 0;
  for (QToolButton* button : {boton3_, boton2_, boton1_}) {
    if (button->isHidden()) continue;
    button->setParent(view);
    button->setGeometry(view->width() - room - kButton - 1, (view->height() - kButton) / 2, kButton,
                        kButton);
    button->show();
    button->raise();
    room += kButton + 1;
  }
  view->SetButtonRoom(room);
}

void PropertyPanel::SelectRow(int row) {
  if (sheet_ == nullptr || filling_) return;
  if (sheet_->HasSelectedRow() && sheet_->RowIndex() == row) return;
  filling_ = true;
  sheet_->SelectRow(row);
  filling_ = false;
  scroll_->ensureWidgetVisible(rows_[static_cast<std::size_t>(row)], 0, 0);
}

void PropertyPanel::ListOpened(bool is_open) {
  if (sheet_ == nullptr) return;
  if (!is_open) {
    list_->hide();
    return;
  }
  const QSignalBlocker quiet(list_);
  list_->clear();
  for (const std::string& text : sheet_->ListRows()) list_->addItem(ToQString(text));
  list_->setCurrentRow(sheet_->ListMarked());
  const auto row = static_cast<std::size_t>(sheet_->RowIndex());
  if (row >= rows_.size() || list_->count() == 0) return;
  QWidget& field = rows_[row]->Field();
  const int height = list_->sizeHintForRow(0) * qMin(list_->count(), kMostListRows) + 6;
  const int width = rows_[row]->width() - field.x();
  list_->setGeometry(QRect(field.mapToGlobal(QPoint(0, field.height())), QSize(width, height)));
  list_->show();
  list_->setFocus();
}

void PropertyPanel::ChooseListRow(int place) {
  if (sheet_ == nullptr || place < 0 || place >= list_->count()) return;
  list_->hide();
  sheet_->ApplyChoice(FromQString(list_->item(place)->text()), place);
}

void PropertyPanel::ComboChanged() {
  if (sheet_ == nullptr) return;
  const QSignalBlocker quiet(combo_);
  const auto& rows = sheet_->Combo().Rows();
  const bool same = combo_->count() == static_cast<int>(rows.size());
  if (!same) combo_->clear();
  for (int i = 0; i < static_cast<int>(rows.size()); ++i) {
    const QString text = ToQString(rows[static_cast<std::size_t>(i)].Text);
    if (!same) {
      combo_->addItem(text);
    } else if (combo_->itemText(i) != text) {
      combo_->setItemText(i, text);
    }
  }
  combo_->setCurrentIndex(sheet_->Combo().Selected());
}

bool PropertyPanel::eventFilter(QObject* object, QEvent* event) {
  if (object == list_) {
    if (event->type() == QEvent::Hide && sheet_ != nullptr && sheet_->ListOpen()) {
      sheet_->CloseList();
    }
    if (event->type() == QEvent::KeyPress) {
      const int key = static_cast<QKeyEvent*>(event)->key();
      if (key == Qt::Key_Return || key == Qt::Key_Enter) {
        ChooseListRow(list_->currentRow());
        return true;
      }
    }
    return QWidget::eventFilter(object, event);
  }
  auto* view = qobject_cast<PropertyRowView*>(object->parent());
  if (view == nullptr || sheet_ == nullptr) return QWidget::eventFilter(object, event);
  switch (event->type()) {
    case QEvent::FocusIn:
      SelectRow(view->Row());
      break;
    case QEvent::FocusOut:
      if (view->Row() == sheet_->RowIndex()) sheet_->ApplyText(FromQString(view->Field().text()));
      break;
    case QEvent::ShortcutOverride: {
      // These keys are the cell's, also where it takes no typing: the menu would otherwise delete
      // or paste objects while the user works in the grid.
      auto* key = static_cast<QKeyEvent*>(event);
      if (key->matches(QKeySequence::Delete) || key->matches(QKeySequence::Copy) ||
          key->matches(QKeySequence::Cut) || key->matches(QKeySequence::Paste)) {
        key->accept();
        return true;
      }
      break;
    }
    case QEvent::MouseButtonDblClick:
      if (!sheet_->TakesTyping(view->Row()) || sheet_->Boton2Shown()) {
        sheet_->PickValue();
        return true;
      }
      break;
    case QEvent::KeyPress: {
      const int key = static_cast<QKeyEvent*>(event)->key();
      const bool down = key == Qt::Key_Down || key == Qt::Key_Return || key == Qt::Key_Enter;
      if (!down && key != Qt::Key_Up) break;
      const bool opens = static_cast<QKeyEvent*>(event)->modifiers().testFlag(Qt::AltModifier);
      if (down && opens && sheet_->Boton2Shown()) {
        sheet_->PickValue();
        return true;
      }
      const auto& shown = sheet_->ShownRows();
      const auto here = std::find(shown.begin(), shown.end(), view->Row());
      if (here == shown.end()) break;
      const auto next = down ? std::next(here) : (here == shown.begin() ? here : std::prev(here));
      if (next != shown.end()) {
        QLineEdit& field = rows_[static_cast<std::size_t>(*next)]->Field();
        field.setFocus();
        field.selectAll();
      }
      return true;
    }
    default:
      break;
  }
  return QWidget::eventFilter(object, event);
}

}  // namespace tarnwick
