// The buttons at the right end of the selected row.
#pragma once

#include <QObject>
#include <QRect>
#include <array>

class QToolButton;

namespace tarnwick {

class PropertySheet;

/// `Boton1` picks by a dialog, `Boton2` by the list or the colour dialog, `Boton3` resets. They are
/// children of the grid; which of them show is the sheet's word.
class RowButtons final : public QObject {
  Q_OBJECT

 public:
  RowButtons(PropertySheet& sheet, QWidget* grid);

  /// Shows the buttons of the selected row at the right end of a line of the grid, none for an
  /// empty rectangle, and returns the width that they take.
  int Place(const QRect& line);
  [[nodiscard]] bool Holds(const QObject* object) const;
  /// The button that the row's type gives the focus to.
  [[nodiscard]] QToolButton& Picker() const;
  /// The three in the order of the Tab key.
  [[nodiscard]] const std::array<QToolButton*, 3>& All() const { return all_; }

 private:
  QToolButton* Make(QWidget* grid, const char* name, const char* icon, const char* tip);

  PropertySheet& sheet_;
  std::array<QToolButton*, 3> all_;
};

}  // namespace tarnwick
