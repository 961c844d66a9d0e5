#include "qt/grid/property_grid.h"

#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QScopedValueRollback>
#include <QScreen>
#include <QSignalBlocker>
#include <QToolButton>
#include <algorithm>
#include <array>

#include "inspector/property_sheet.h"
#include "looks/platform_colors.h"
#include "qt/grid/property_looks.h"
#include "qt/grid/property_row_view.h"
#include "qt/kit/icon_set.h"
#include "qt/kit/text_bridge.h"
#include "qt/kit/theme.h"

namespace tarnwick {

namespace {

constexpr int kButton = 22;
constexpr int kButtonIcon = 14;
constexpr int kMostListRows = 12;
constexpr int kListFrame = 6;  ///< border and padding, both sides
constexpr int kPage = 10;
constexpr int kEnd = 10000;

bool IsColor(int mark) {
  return mark == row_mark::kColor || mark == row_mark::kColorToo;
}

bool OpensPicker(const QKeyEvent& event) {
  return event.key() == Qt::Key_F4 ||
         (event.key() == Qt::Key_Down && event.modifiers().testFlag(Qt::AltModifier));
}

bool IsEnter(int key) {
  return key == Qt::Key_Return || key == Qt::Key_Enter;
}

/// Keys that a menu command has too, and that here belong to the cell.
bool BelongsToCell(const QKeyEvent& event) {
  constexpr std::array kKeys{QKeySequence::Cut,      QKeySequence::Copy, QKeySequence::Paste,
                             QKeySequence::Undo,     QKeySequence::Redo, QKeySequence::Delete,
                             QKeySequence::SelectAll};
  const auto same = [&event](QKeySequence::StandardKey key) { return event.matches(key); };
  return OpensPicker(event) || std::any_of(kKeys.begin(), kKeys.end(), same);
}

bool IsTyping(const QKeyEvent& event) {
  const Qt::KeyboardModifiers held =
      event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
  const bool plain = held == Qt::NoModifier || held == (Qt::ControlModifier | Qt::AltModifier);
  return plain && !event.text().isEmpty() && event.text().at(0).isPrint();
}

}  // namespace

PropertyGrid::PropertyGrid(PropertySheet& sheet, looks::PictureCache& pictures, QWidget* parent)
    : QWidget(parent),
      sheet_(sheet),
      pictures_(pictures),
      boton1_(MakeButton("Boton1", "choose", "Choose...")),
      boton2_(MakeButton("Boton2", "drop", "List")),
      boton3_(MakeButton("Boton3", "reset", "Reset")),
      list_(new QListWidget(this)) {
  setObjectName(QStringLiteral("GridRows"));
  const auto pick = [this] { sheet_.PickValue(); };
  connect(boton1_, &QToolButton::clicked, this, pick);
  connect(boton2_, &QToolButton::clicked, this, pick);
  connect(boton3_, &QToolButton::clicked, this, [this] { sheet_.ResetValue(); });
  MakeList();
}

QToolButton* PropertyGrid::MakeButton(const char* name, const char* icon, const char* tip) {
  auto* button = new QToolButton(this);
  button->setObjectName(QString::fromLatin1(name));
  button->setIcon(IconOf(QString::fromLatin1(icon)));
  button->setIconSize(QSize(kButtonIcon, kButtonIcon));
  button->setToolTip(QString::fromLatin1(tip));
  button->setAccessibleName(QString::fromLatin1(tip));
  button->setAutoRaise(true);
  button->setFocusPolicy(Qt::TabFocus);
  button->installEventFilter(this);
  button->hide();
  return button;
}

void PropertyGrid::MakeList() {
  list_->setObjectName(QStringLiteral("ListBox"));
  list_->setWindowFlags(Qt::Popup);
  // A press on the button that opened the list closes it and no more.
  list_->setAttribute(Qt::WA_NoMouseReplay);
  list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  list_->setUniformItemSizes(true);
  list_->setMouseTracking(true);
  list_->installEventFilter(this);
  list_->hide();
  connect(list_, &QListWidget::itemClicked, this,
          [this](QListWidgetItem* item) { ChooseListRow(list_->row(item)); });
}

PropertyRowView* PropertyGrid::ViewAt(int row) const {
  const bool is_there = row >= 0 && row < static_cast<int>(rows_.size());
  return is_there ? rows_[static_cast<std::size_t>(row)] : nullptr;
}

/// The row of a field, or the selected row for one of its buttons.
PropertyRowView* PropertyGrid::ViewOf(const QObject* object) const {
  if (object == boton1_ || object == boton2_ || object == boton3_) {
    return ViewAt(sheet_.RowIndex());
  }
  return qobject_cast<PropertyRowView*>(object->parent());
}

bool PropertyGrid::IsSelected(int row) const {
  return sheet_.HasSelectedRow() && sheet_.RowIndex() == row;
}

void PropertyGrid::Commit() {
  for (PropertyRowView* view : rows_) {
    if (!view->Field().hasFocus() || !IsSelected(view->Row())) continue;
    sheet_.ApplyText(FromQString(view->Field().text()));
  }
}

void PropertyGrid::MakeRows(int count) {
  for (int row = static_cast<int>(rows_.size()); row < count; ++row) {
    auto* view = new PropertyRowView(row, this);
    view->Field().installEventFilter(this);
    connect(&view->Field(), &QLineEdit::textEdited, this,
            [this, row](const QString& text) { Type(row, text); });
    connect(view, &PropertyRowView::NamePressed, this, [this](int pressed, bool twice) {
      EnterRow(pressed, Focus::ByRow);
      if (twice) PickOrCycle(pressed);
    });
    rows_.push_back(view);
  }
}

void PropertyGrid::ShowRows() {
  MakeRows(sheet_.RowCount());
  for (int row = 0; row < sheet_.RowCount(); ++row) {
    ViewAt(row)->SetName(sheet_.Label(row));
    ShowRow(row);
  }
  LayOut();
  ShowSelection();
}

void PropertyGrid::ShowRow(int row) {
  PropertyRowView* view = ViewAt(row);
  if (view == nullptr) return;
  view->SetValue(sheet_.Text(row), LookOfRow(sheet_, pictures_, *this, row));
}

/// Puts the shown rows one under the other; the rest stays for a kind with more rows.
void PropertyGrid::LayOut() {
  const int height = PropertyRowView::HeightPixels();
  std::vector<bool> is_shown(rows_.size());
  int top = 0;
  for (const int row : sheet_.ShownRows()) {
    PropertyRowView* view = ViewAt(row);
    if (view == nullptr) continue;
    is_shown[static_cast<std::size_t>(row)] = true;
    view->setGeometry(0, top, width(), height);
    top += height;
  }
  for (PropertyRowView* view : rows_) {
    view->setVisible(is_shown[static_cast<std::size_t>(view->Row())]);
  }
  if (minimumHeight() != top) setMinimumHeight(top);
  PlaceButtons();
}

QSize PropertyGrid::sizeHint() const {
  return {2 * kButton, minimumHeight()};
}

void PropertyGrid::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  if (event->oldSize().width() != width()) LayOut();
}

void PropertyGrid::ShowSelection() {
  const int present = sheet_.RowIndex();
  PropertyRowView* stop = ViewAt(sheet_.RowTop(present) >= 0 ? present : 0);
  for (PropertyRowView* view : rows_) {
    const bool selected = IsSelected(view->Row());
    view->SetColors(selected ? looks::ColorOf(sheet_.RowBackColor(view->Row())) : QColor(),
                    selected ? looks::ColorOf(sheet_.RowTextColor(view->Row())) : QColor());
    const Qt::FocusPolicy policy = view == stop ? Qt::StrongFocus : Qt::ClickFocus;
    if (view->Field().focusPolicy() != policy) view->Field().setFocusPolicy(policy);
    if (!selected) view->SetButtonRoom(0);
  }
  PlaceButtons();
  if (stop == nullptr || stop == tab_stop_) return;
  tab_stop_ = stop;
  QWidget* before = tab_before_;
  for (QWidget* next : {static_cast<QWidget*>(&stop->Field()), static_cast<QWidget*>(boton1_),
                        static_cast<QWidget*>(boton2_), static_cast<QWidget*>(boton3_)}) {
    if (before != nullptr) setTabOrder(before, next);
    before = next;
  }
}

void PropertyGrid::PlaceButtons() {
  PropertyRowView* view = sheet_.HasSelectedRow() ? ViewAt(sheet_.RowIndex()) : nullptr;
  const bool shown = view != nullptr && !view->isHidden();
  if (shown) {
    const bool color = IsColor(sheet_.RowMark(view->Row()));
    const QString tip = color ? QStringLiteral("Colour...") : QStringLiteral("List");
    if (boton2_->toolTip() != tip) {
      boton2_->setIcon(IconOf(color ? QStringLiteral("colour") : QStringLiteral("drop")));
      boton2_->setToolTip(tip);
      boton2_->setAccessibleName(tip);
    }
  }
  const struct {
    QToolButton* Button;
    bool Shown;
  } buttons[] = {{boton3_, shown && sheet_.Boton3Shown()},
                 {boton2_, shown && sheet_.Boton2Shown()},
                 {boton1_, shown && sheet_.Boton1Shown()}};
  const int top = shown ? view->y() + (view->height() - 1 - kButton) / 2 : 0;
  int room = 0;
  for (const auto& [button, is_shown] : buttons) {
    if (is_shown) {
      room += kButton + 1;
      button->setGeometry(width() - room, top, kButton, kButton);
      button->raise();
    }
    button->setVisible(is_shown);
  }
  if (shown) view->SetButtonRoom(room);
}

void PropertyGrid::FocusRow() {
  if (sheet_.ShownRows().empty()) return;
  const auto& shown = sheet_.ShownRows();
  const int present = sheet_.RowIndex();
  const bool is_there = sheet_.RowTop(present) >= 0;
  const int first = shown[shown.size() > 1 && !sheet_.Filter().empty() ? 1 : 0];
  EnterRow(is_there && sheet_.Filter().empty() ? present : first, Focus::ByRow);
}

/// Selects a row and gives the focus to its value, or to its button where the row's type says so.
void PropertyGrid::EnterRow(int row, Focus focus) {
  PropertyRowView* view = ViewAt(row);
  if (view == nullptr || entering_) return;
  const QScopedValueRollback<bool> guard(entering_, true);
  if (!IsSelected(row)) {
    // A value half typed elsewhere is taken while its row is still the selected one.
    Commit();
    before_ = sheet_.Text(row);
    sheet_.SelectRow(row);
  }
  if (focus == Focus::ByRow && sheet_.ButtonTakesFocus()) {
    (sheet_.Boton1Shown() ? boton1_ : boton2_)->setFocus(Qt::OtherFocusReason);
  } else {
    view->Field().setFocus(Qt::OtherFocusReason);
    view->Field().selectAll();
  }
  Q_EMIT RowEntered(*view);
}

void PropertyGrid::Type(int row, const QString& text) {
  PropertyRowView* view = ViewAt(row);
  if (view == nullptr) return;
  if (!IsSelected(row)) {
    before_ = sheet_.Text(row);
    sheet_.SelectRow(row);
  }
  const QScopedValueRollback<bool> guard(applying_, true);
  if (sheet_.ApplyText(FromQString(text))) ShowRow(row);
}

void PropertyGrid::MoveBy(int row, int steps) {
  const auto& shown = sheet_.ShownRows();
  if (shown.empty()) return;
  const auto here = std::lower_bound(shown.begin(), shown.end(), row);
  const auto last = static_cast<int>(shown.size()) - 1;
  const int place = std::clamp(static_cast<int>(here - shown.begin()) + steps, 0, last);
  EnterRow(shown[static_cast<std::size_t>(place)], Focus::ByRow);
}

/// A double click: the next value of a list, the dialog of another row.
void PropertyGrid::PickOrCycle(int row) {
  if (!IsSelected(row)) return;
  const auto& values = sheet_.ListRows();
  if (!sheet_.Boton2Shown() || values.empty()) {
    if (sheet_.Boton1Shown() || sheet_.Boton2Shown()) sheet_.PickValue();
    return;
  }
  const auto present = std::find(values.begin(), values.end(), sheet_.Text(row));
  const auto next = present == values.end() || std::next(present) == values.end()
                        ? values.begin()
                        : std::next(present);
  const int place = static_cast<int>(next - values.begin());
  sheet_.ApplyChoice(std::string{*next}, place);
}

/// Puts back the value that the row had when it was entered; with nothing to put back the grid is
/// left.
void PropertyGrid::Revert(int row) {
  QLineEdit& field = ViewAt(row)->Field();
  const QString before = ToQString(before_);
  if (sheet_.Text(row) == before_ && field.text() == before) {
    Q_EMIT Left();
    return;
  }
  field.setText(before);
  Type(row, before);
  field.selectAll();
}

void PropertyGrid::ShowList(bool is_open) {
  PropertyRowView* view = ViewAt(sheet_.RowIndex());
  if (!is_open || view == nullptr) {
    list_->hide();
    return;
  }
  const QSignalBlocker quiet(list_);
  list_->clear();
  for (const std::string& text : sheet_.ListRows()) list_->addItem(ToQString(text));
  list_->setCurrentRow(sheet_.ListMarked());
  const int rows = qBound(1, list_->count(), kMostListRows);
  const int row_height = list_->count() > 0 ? list_->sizeHintForRow(0) : view->height();
  const int left = PropertyRowView::ValueLeft(width());
  QRect place(view->mapToGlobal(QPoint(left, view->height())),
              QSize(width() - left, row_height * rows + kListFrame));
  // At the foot of the screen the list opens upwards.
  if (const QScreen* desk = screen(); place.bottom() > desk->availableGeometry().bottom()) {
    place.moveBottom(view->mapToGlobal(QPoint(0, 0)).y() - 1);
  }
  list_->setGeometry(place);
  list_->show();
  list_->setFocus();
  if (list_->currentItem() != nullptr) list_->scrollToItem(list_->currentItem());
}

void PropertyGrid::ChooseListRow(int place) {
  if (place < 0 || place >= list_->count()) return;
  const std::string text = FromQString(list_->item(place)->text());
  list_->hide();
  sheet_.ApplyChoice(text, place);
}

bool PropertyGrid::FilterList(QEvent* event) {
  if (event->type() == QEvent::Hide && sheet_.ListOpen()) {
    sheet_.CloseList();
  }
  if (event->type() != QEvent::KeyPress) return false;
  const auto& key = *static_cast<QKeyEvent*>(event);
  if (IsEnter(key.key()) || key.key() == Qt::Key_Tab) {
    ChooseListRow(list_->currentRow());
    return true;
  }
  if (key.key() == Qt::Key_Escape || key.key() == Qt::Key_F4 ||
      key.modifiers().testFlag(Qt::AltModifier)) {
    list_->hide();
    return true;
  }
  return false;
}

bool PropertyGrid::eventFilter(QObject* object, QEvent* event) {
  if (object == list_) return FilterList(event) || QWidget::eventFilter(object, event);
  const PropertyRowView* view = ViewOf(object);
  if (view != nullptr && FilterCell(object, view->Row(), event)) return true;
  return QWidget::eventFilter(object, event);
}

bool PropertyGrid::FilterCell(QObject* object, int row, QEvent* event) {
  const bool is_field = object == &ViewAt(row)->Field();
  switch (event->type()) {
    case QEvent::FocusIn:
      // A press says itself what it does.
      if (is_field && !IsSelected(row) &&
          static_cast<QFocusEvent*>(event)->reason() != Qt::MouseFocusReason) {
        EnterRow(row, Focus::Text);
      }
      break;
    case QEvent::FocusOut:
      if (is_field && IsSelected(row)) {
        sheet_.ApplyText(FromQString(ViewAt(row)->Field().text()));
      }
      break;
    case QEvent::MouseButtonPress:
      // The press that selects the row leaves the text selected; the next one sets the caret.
      if (is_field && !(IsSelected(row) && ViewAt(row)->Field().hasFocus())) {
        EnterRow(row, IsSelected(row) ? Focus::Text : Focus::ByRow);
        return true;
      }
      break;
    case QEvent::MouseButtonDblClick:
      if (is_field && (sheet_.Boton1Shown() || sheet_.Boton2Shown())) {
        PickOrCycle(row);
        return true;
      }
      break;
    case QEvent::ShortcutOverride:
      if (BelongsToCell(*static_cast<QKeyEvent*>(event))) {
        event->accept();
        return true;
      }
      break;
    case QEvent::KeyPress:
      return PressKey(object, row, *static_cast<QKeyEvent*>(event));
    default:
      break;
  }
  return false;
}

bool PropertyGrid::PressKey(QObject* object, int row, QKeyEvent& event) {
  PropertyRowView& view = *ViewAt(row);
  const bool control = event.modifiers().testFlag(Qt::ControlModifier);
  if (OpensPicker(event)) {
    if (sheet_.Boton1Shown() || sheet_.Boton2Shown()) sheet_.PickValue();
    return true;
  }
  switch (event.key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
      MoveBy(row, event.key() == Qt::Key_Up ? -1 : 1);
      return true;
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
      MoveBy(row, event.key() == Qt::Key_PageUp ? -kPage : kPage);
      return true;
    case Qt::Key_Home:
    case Qt::Key_End:
      if (!control) break;
      MoveBy(row, event.key() == Qt::Key_Home ? -kEnd : kEnd);
      return true;
    case Qt::Key_Escape:
      Revert(row);
      return true;
    default:
      break;
  }
  if (object == &view.Field()) {
    if (!IsEnter(event.key())) return false;
    Commit();
    MoveBy(row, 1);
    return true;
  }
  if (IsEnter(event.key())) {
    static_cast<QToolButton*>(object)->click();
    return true;
  }
  return TypeOnButton(view, event);
}

/// A key that reaches a button goes to the value beside it.
bool PropertyGrid::TypeOnButton(PropertyRowView& view, QKeyEvent& event) {
  QLineEdit& field = view.Field();
  if (event.matches(QKeySequence::Copy)) {
    QApplication::clipboard()->setText(field.text());
    return true;
  }
  if (event.matches(QKeySequence::Delete) && sheet_.Boton3Shown()) {
    sheet_.ResetValue();
    return true;
  }
  const bool edits = BelongsToCell(event) || event.key() == Qt::Key_Backspace ||
                     (IsTyping(event) && event.key() != Qt::Key_Space);
  if (!edits) return false;
  if (!sheet_.TakesTyping(view.Row())) return true;
  EnterRow(view.Row(), Focus::Text);
  QApplication::sendEvent(&field, &event);
  return true;
}

}  // namespace tarnwick
