#include "qt/grid/property_grid.h"

#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <QToolButton>
#include <QToolTip>
#include <algorithm>

#include "inspector/property_sheet.h"
#include "qt/grid/cell_keys.h"
#include "qt/grid/property_looks.h"
#include "qt/grid/property_row_view.h"
#include "qt/grid/row_buttons.h"
#include "qt/grid/value_popup.h"
#include "qt/kit/text_bridge.h"

namespace tarnwick {

namespace {

constexpr int kPage = 10;
constexpr int kEnd = 10000;
constexpr double kNamePart = 0.42;
/// Neither column gets narrower.
constexpr int kLeastColumn = 48;

}  // namespace

PropertyGrid::PropertyGrid(PropertySheet& sheet, looks::PictureCache& pictures, QWidget* parent)
    : QWidget(parent),
      sheet_(sheet),
      pictures_(pictures),
      buttons_(new RowButtons(sheet, this)),
      list_(new ValuePopup(this)),
      name_part_(kNamePart) {
  setObjectName(QStringLiteral("GridRows"));
  setAccessibleName(QStringLiteral("Properties"));
  for (QToolButton* button : buttons_->All()) button->installEventFilter(this);
  connect(list_, &ValuePopup::Chosen, this, [this](int index) { ChooseListRow(index); });
  connect(list_, &ValuePopup::Closed, this, [this] { sheet_.CloseList(); });
}

PropertyRowView* PropertyGrid::ViewAt(int row) const {
  const bool is_there = row >= 0 && row < static_cast<int>(rows_.size());
  return is_there ? rows_[static_cast<std::size_t>(row)] : nullptr;
}

/// The row of a field, or the selected row for one of its buttons.
PropertyRowView* PropertyGrid::ViewOf(const QObject* object) const {
  if (buttons_->Holds(object)) return ViewAt(sheet_.RowIndex());
  return qobject_cast<PropertyRowView*>(object->parent());
}

bool PropertyGrid::IsSelected(int row) const {
  return sheet_.HasSelectedRow() && sheet_.RowIndex() == row;
}

int PropertyGrid::ValueLeft() const {
  const int wanted = static_cast<int>(width() * name_part_) + 1;
  return qMax(kLeastColumn, qMin(wanted, width() - kLeastColumn));
}

void PropertyGrid::MoveDivider(int x) {
  if (width() <= 2 * kLeastColumn) return;
  name_part_ = static_cast<double>(qBound(kLeastColumn, x, width() - kLeastColumn)) / width();
  LayOut();
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
      EnterRow(pressed, FocusOn::ByRow);
      if (twice) PickOrCycle(pressed);
    });
    connect(view, &PropertyRowView::TipWanted, this,
            [this](int of, const QPoint& global) { ShowTip(of, global); });
    connect(view, &PropertyRowView::DividerDragged, this, [this](int x) { MoveDivider(x); });
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

/// The row's name, what is wrong with its value and what it is for.
void PropertyGrid::ShowTip(int row, const QPoint& global) {
  QStringList parts{QStringLiteral("<b>%1</b>").arg(ToQString(sheet_.Label(row)).toHtmlEscaped())};
  for (const std::string& text : {sheet_.RowFault(row), sheet_.HelpOf(row)}) {
    if (!text.empty()) parts.append(ToQString(text).toHtmlEscaped());
  }
  QToolTip::showText(global, parts.join(QStringLiteral("<br>")), ViewAt(row));
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
    view->SetValueLeft(ValueLeft());
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
  return {2 * kLeastColumn, minimumHeight()};
}

void PropertyGrid::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  if (event->oldSize().width() != width()) LayOut();
}

void PropertyGrid::ShowSelection() {
  const int present = sheet_.RowIndex();
  for (PropertyRowView* view : rows_) {
    const bool selected = IsSelected(view->Row());
    view->SetSelected(selected);
    if (!selected) view->SetButtonRoom(0);
  }
  PlaceButtons();
  SetTabStop(ViewAt(sheet_.RowTop(present) >= 0 ? present : 0));
}

/// The one row at which the Tab key stops, its buttons behind it.
void PropertyGrid::SetTabStop(PropertyRowView* stop) {
  for (PropertyRowView* view : rows_) {
    const Qt::FocusPolicy policy =
        stop != nullptr && view == stop ? Qt::StrongFocus : Qt::ClickFocus;
    if (view->Field().focusPolicy() != policy) view->Field().setFocusPolicy(policy);
  }
  if (stop == nullptr || stop == tab_stop_) return;
  tab_stop_ = stop;
  if (tab_before_ != nullptr) setTabOrder(tab_before_, &stop->Field());
  QWidget* before = &stop->Field();
  for (QToolButton* button : buttons_->All()) {
    setTabOrder(before, button);
    before = button;
  }
}

void PropertyGrid::PlaceButtons() {
  PropertyRowView* view = sheet_.HasSelectedRow() ? ViewAt(sheet_.RowIndex()) : nullptr;
  if (view != nullptr && view->isHidden()) view = nullptr;
  const QRect line = view != nullptr ? view->geometry().adjusted(0, 0, 0, -1) : QRect();
  const int room = buttons_->Place(line);
  if (view != nullptr) view->SetButtonRoom(room);
}

void PropertyGrid::FocusRow() {
  const auto& shown = sheet_.ShownRows();
  if (shown.empty()) return;
  const int wanted = sheet_.HasSelectedRow() ? sheet_.RowIndex() : sheet_.RowToEnter();
  const int first = shown[shown.size() > 1 && !sheet_.Filter().empty() ? 1 : 0];
  const bool is_there = sheet_.RowTop(wanted) >= 0 && sheet_.Filter().empty();
  EnterRow(is_there ? wanted : first, FocusOn::ByRow);
}

/// Selects a row and gives the focus to its value, or to its button where the row's type says so.
void PropertyGrid::EnterRow(int row, FocusOn focus) {
  PropertyRowView* view = ViewAt(row);
  if (view == nullptr || entering_) return;
  const QScopedValueRollback<bool> guard(entering_, true);
  if (!IsSelected(row)) {
    // A value half typed elsewhere is taken while its row is still the selected one.
    Commit();
    sheet_.SelectRow(row);
  }
  if (focus == FocusOn::ByRow && sheet_.ButtonTakesFocus()) {
    buttons_->Picker().setFocus(Qt::OtherFocusReason);
  } else {
    view->Field().setFocus(Qt::OtherFocusReason);
    view->Field().selectAll();
  }
  Q_EMIT RowEntered(*view);
}

void PropertyGrid::Type(int row, const QString& text) {
  PropertyRowView* view = ViewAt(row);
  if (view == nullptr) return;
  if (!IsSelected(row)) sheet_.SelectRow(row);
  const QScopedValueRollback<bool> guard(applying_, true);
  sheet_.ApplyText(FromQString(text));
  // Its colour, its picture or its mark may be another.
  ShowRow(row);
}

void PropertyGrid::MoveBy(int row, int steps) {
  const auto& shown = sheet_.ShownRows();
  if (shown.empty()) return;
  const auto here = std::lower_bound(shown.begin(), shown.end(), row);
  const auto last = static_cast<int>(shown.size()) - 1;
  const int index = std::clamp(static_cast<int>(here - shown.begin()) + steps, 0, last);
  EnterRow(shown[static_cast<std::size_t>(index)], FocusOn::ByRow);
}

/// A double click: the next value of a list, the dialog of another row.
void PropertyGrid::PickOrCycle(int row) {
  if (!IsSelected(row)) return;
  const auto& values = sheet_.List().Values();
  if (!sheet_.Boton2Shown() || values.empty()) {
    if (sheet_.Boton1Shown() || sheet_.Boton2Shown()) sheet_.PickValue();
    return;
  }
  const auto present = std::find(values.begin(), values.end(), sheet_.Text(row));
  const auto next = present == values.end() || std::next(present) == values.end()
                        ? values.begin()
                        : std::next(present);
  const int index = static_cast<int>(next - values.begin());
  // A copy: the choice may fill the list again.
  sheet_.ApplyChoice(std::string(*next), index);
}

void PropertyGrid::ShowList(bool is_open) {
  PropertyRowView* view = ViewAt(sheet_.RowIndex());
  if (!is_open || view == nullptr) {
    list_->hide();
    return;
  }
  const int left = ValueLeft();
  list_->Open(sheet_.List().Values(), sheet_.List().Marked(),
              QRect(view->mapToGlobal(QPoint(left, 0)), QSize(width() - left, view->height())));
}

void PropertyGrid::ChooseListRow(int index) {
  const auto& values = sheet_.List().Values();
  if (index < 0 || index >= static_cast<int>(values.size())) return;
  const std::string value = values[static_cast<std::size_t>(index)];
  sheet_.ApplyChoice(value, index);
}

bool PropertyGrid::eventFilter(QObject* object, QEvent* event) {
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
        EnterRow(row, FocusOn::Text);
      }
      break;
    case QEvent::FocusOut:
      if (is_field && IsSelected(row)) LeaveCell(row, *static_cast<QFocusEvent*>(event));
      break;
    case QEvent::MouseButtonPress:
      // The press that selects the row leaves the text selected; the next one sets the caret.
      if (is_field && !(IsSelected(row) && ViewAt(row)->Field().hasFocus())) {
        EnterRow(row, IsSelected(row) ? FocusOn::Text : FocusOn::ByRow);
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

/// What was typed last is applied, and then the row shows what is stored. A menu over the cell does
/// not end its editing.
void PropertyGrid::LeaveCell(int row, const QFocusEvent& event) {
  sheet_.ApplyText(FromQString(ViewAt(row)->Field().text()));
  if (event.reason() != Qt::PopupFocusReason && event.reason() != Qt::MenuBarFocusReason) {
    sheet_.LeaveRow();
  }
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
      if (sheet_.Revert()) {
        view.Field().selectAll();
      } else {
        Q_EMIT Left();
      }
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
  EnterRow(view.Row(), FocusOn::Text);
  QApplication::sendEvent(&field, &event);
  return true;
}

}  // namespace tarnwick
