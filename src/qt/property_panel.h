// The property panel: head strip, list of objects, and the grid.
#pragma once

#include <QWidget>
#include <vector>

#include "inspector/inspector_host.h"

class QComboBox;
class QLineEdit;
class QListWidget;
class QScrollArea;
class QToolButton;

namespace tarnwick {

class MDIForm1;
class PropertyRowView;
class PropertySheet;

/// View of `PropertySheet`: paints its rows and forwards what the user does in them.
class PropertyPanel final : public QWidget, public PropertySheetView {
  Q_OBJECT

 public:
  explicit PropertyPanel(QWidget* parent);
  ~PropertyPanel() override;

  void Attach(MDIForm1& shell);
  /// Takes a half-typed value into the tables.
  void Commit();

  void RowsChanged() override;
  void RowTextChanged(int row) override;
  void RowSelected() override;
  void ListOpened(bool is_open) override;
  void ComboChanged() override;

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  void BuildHead();
  void BuildGrid();
  void BuildList();
  void FillRow(int row);
  void PlaceButtons();
  void SelectRow(int row);
  void ChooseListRow(int place);

  MDIForm1* shell_ = nullptr;
  PropertySheet* sheet_ = nullptr;
  QComboBox* combo_;
  QLineEdit* filter_;
  QScrollArea* scroll_;
  QWidget* grid_;
  QToolButton* boton1_;
  QToolButton* boton2_;
  QToolButton* boton3_;
  QListWidget* list_;
  std::vector<PropertyRowView*> rows_;
  bool filling_ = false;
};

}  // namespace tarnwick
