// One row of the property grid.
#pragma once

#include <QWidget>
#include <string_view>

class QAction;
class QLabel;
class QLineEdit;

namespace tarnwick {

/// The row's name and its value. The value's field shows a swatch when the value is a colour.
class PropertyRowView final : public QWidget {
  Q_OBJECT

 public:
  PropertyRowView(int row, QWidget* parent);

  [[nodiscard]] int Row() const { return row_; }
  [[nodiscard]] QLineEdit& Field() { return *text_; }
  void SetName(std::string_view name);
  /// Shows a value; the caret stays where it is when the field shows it already.
  void SetValue(std::string_view text, bool is_color, bool takes_typing);
  void SetSelected(bool selected);
  /// Room for buttons at the right of the value.
  void SetButtonRoom(int pixels);
  [[nodiscard]] static int HeightPixels() { return 26; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void LayOut();

  int row_;
  QLabel* label_;
  QLineEdit* text_;
  QAction* swatch_ = nullptr;
  bool selected_ = false;
  int button_room_ = 0;
};

}  // namespace tarnwick
