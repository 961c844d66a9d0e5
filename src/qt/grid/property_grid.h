// The rows of the property panel with their buttons and their drop-down list.
#pragma once

#include <QWidget>
#include <vector>

class QFocusEvent;
class QKeyEvent;
class QToolButton;

namespace tarnwick::looks {
class PictureCache;
}

namespace tarnwick {

class PropertyRowView;
class PropertySheet;
class RowButtons;
class ValuePopup;

/// Paints the rows of the sheet and forwards what the user does in them. The selected row alone
/// takes part in the order of Tab, so that the grid is one stop on the way through the window:
///
///   Up, Down, Page Up, Page Down, Ctrl+Home, Ctrl+End   another row
///   F4, Alt+Down                                        the list or the dialog of the row
///   Enter                                               the button with the focus, else the next
///   row Esc                                                 the value the row had, then back to
///   the form
///
/// Where a button has the focus, typing still goes to the value.
class PropertyGrid final : public QWidget {
  Q_OBJECT

 public:
  PropertyGrid(PropertySheet& sheet, looks::PictureCache& pictures, QWidget* parent);

  /// The widget from which the Tab key comes to the grid.
  void SetTabBefore(QWidget* widget) { tab_before_ = widget; }
  /// Takes a half-typed value into the tables.
  void Commit();
  /// True while a keystroke is being applied: nothing may take the focus from its cell.
  [[nodiscard]] bool IsApplying() const { return applying_; }

  void ShowRows();
  void ShowRow(int row);
  void ShowSelection();
  void ShowList(bool is_open);
  /// Gives the focus to the selected row, or to the first one below the name that is shown.
  void FocusRow();

  [[nodiscard]] QSize sizeHint() const override;

 Q_SIGNALS:
  /// The row has the focus and should be seen.
  void RowEntered(const QWidget& row);
  /// Esc with nothing to put back.
  void Left();

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  enum class FocusOn { ByRow, Text };

  [[nodiscard]] PropertyRowView* ViewAt(int row) const;
  [[nodiscard]] PropertyRowView* ViewOf(const QObject* object) const;
  [[nodiscard]] bool IsSelected(int row) const;
  [[nodiscard]] int ValueLeft() const;
  void MakeRows(int count);
  void LayOut();
  void PlaceButtons();
  void SetTabStop(PropertyRowView* stop);
  void MoveDivider(int x);
  void ShowTip(int row, const QPoint& global);
  void EnterRow(int row, FocusOn focus);
  void Type(int row, const QString& text);
  void MoveBy(int row, int steps);
  void PickOrCycle(int row);
  void ChooseListRow(int index);
  void LeaveCell(int row, const QFocusEvent& event);
  bool FilterCell(QObject* object, int row, QEvent* event);
  bool PressKey(QObject* object, int row, QKeyEvent& event);
  bool TypeOnButton(PropertyRowView& view, QKeyEvent& event);

  PropertySheet& sheet_;
  looks::PictureCache& pictures_;
  std::vector<PropertyRowView*> rows_;
  QWidget* tab_before_ = nullptr;
  const PropertyRowView* tab_stop_ = nullptr;
  RowButtons* buttons_;
  ValuePopup* list_;
  double name_part_;  ///< part of the width that the names take
  bool applying_ = false;
  bool entering_ = false;
};

}  // namespace tarnwick
