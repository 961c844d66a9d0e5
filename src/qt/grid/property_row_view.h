// One row of the property grid.
#pragma once

#include <QFont>
#include <QPixmap>
#include <QWidget>
#include <string_view>

class QLabel;
class QLineEdit;

namespace tarnwick {

/// What a row shows beside its value's text.
struct RowLook {
  QPixmap Picture;     ///< before the text: a colour, a picture; may be null
  QString Note;        ///< behind the text, pale: the size of a font
  QFont Face;          ///< of the text itself
  QString Tip;         ///< of the value
  bool Typed = false;  ///< the value can be typed
};

/// The row's name and its value. Buttons of the grid lie over the row's right end.
class PropertyRowView final : public QWidget {
  Q_OBJECT

 public:
  PropertyRowView(int row, QWidget* parent);

  [[nodiscard]] int Row() const { return row_; }
  [[nodiscard]] QLineEdit& Field() { return *text_; }
  void SetName(std::string_view name);
  /// Shows a value; the caret stays where it is when the field shows it already.
  void SetValue(std::string_view text, const RowLook& look);
  /// Paints the name in the given colours, or plainly for invalid ones.
  void SetColors(const QColor& back, const QColor& text);
  /// Room for buttons at the right of the value.
  void SetButtonRoom(int pixels);
  /// Left edge of the values in a row of that width.
  [[nodiscard]] static int ValueLeft(int width);
  [[nodiscard]] static int HeightPixels() { return 26; }
  /// Side of the square that a picture before the text fills.
  [[nodiscard]] static int PicturePixels() { return 16; }

 Q_SIGNALS:
  /// The mouse went down on the name, twice in quick succession or once.
  void NamePressed(int row, bool twice);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;

 private:
  void LayOut();

  int row_;
  QLabel* label_;
  QLineEdit* text_;
  QPixmap picture_;
  QString note_;
  bool selected_ = false;
  int button_room_ = 0;
};

}  // namespace tarnwick
