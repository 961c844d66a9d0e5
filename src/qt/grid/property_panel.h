// The property panel: head strip, list of objects, filter, grid, and what a row is for.
#pragma once

#include <QWidget>

#include "inspector/inspector_host.h"

class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QSplitter;

namespace tarnwick::looks {
class PictureCache;
}

namespace tarnwick {

class ObjectBox;
class PropertyGrid;
class PropertySheet;
class RowArea;

/// View of `PropertySheet`. F4 anywhere in the main window goes to the grid.
class PropertyPanel final : public QWidget, public PropertySheetView {
  Q_OBJECT

 public:
  /// `sheet` outlives the panel's last event and notifies it of changes from now on.
  PropertyPanel(PropertySheet& sheet, looks::PictureCache& pictures, QWidget* parent);
  ~PropertyPanel() override;

  /// Gives the focus to the value of the selected row, also where the filter hid that row.
  void FocusRow();
  /// Takes a half-typed value into the tables.
  void Commit();
  /// True while a keystroke in the grid is being applied: a window that takes the focus for itself
  /// would take it from the cell being typed in.
  [[nodiscard]] bool KeepsFocus() const;

  void SubjectChanged() override;
  void RowsChanged() override;
  void RowTextChanged(int row) override;
  void RowSelected() override;
  void ListOpened(bool is_open) override;
  void ComboChanged() override;
  void ComboRowTextChanged(int row) override;
  void ComboRowSelected(int row) override;

 Q_SIGNALS:
  /// Esc: the user goes back to the form.
  void Left();
  /// The user shows or hides the panel from within.
  void ShownWanted(bool shown);

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void BuildHead();
  void BuildGrid();
  void BuildHelp();
  void ShareHeight();
  void ShowHelp();

  PropertySheet& sheet_;
  ObjectBox* combo_;
  QLineEdit* filter_;
  RowArea* scroll_;
  PropertyGrid* grid_;
  QLabel* help_name_;
  QPlainTextEdit* help_;
  QSplitter* parts_;
  QWidget* help_part_;
  bool is_shared_by_user_ = false;  ///< the user moved the handle between rows and help
  bool starts_at_top_ = false;      ///< the next rows are those of another object
};

}  // namespace tarnwick
