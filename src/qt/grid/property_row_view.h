// One row of the property grid.
#pragma once

#include <QFont>
#include <QPixmap>
#include <QWidget>
#include <string_view>

class QLabel;
class QLineEdit;

namespace tarnwick {

class ValueField;

/// What a row shows beside its value's text.
struct RowLook {
  QPixmap Picture;      ///< before the text: a colour, a picture; may be null
  QString Note;         ///< behind the text, pale: size and style of a font, name of a colour
  QFont Face;           ///< of the text itself
  QString Tip;          ///< of the value
  QString Fault;        ///< what is wrong with the value; marked by a sign before the text
  bool Typed = false;   ///< the value can be typed
  bool IsPath = false;  ///< of a text that is too long the end counts
};

/// The row's name and its value. Buttons of the grid lie over the row's right end.
class PropertyRowView final : public QWidget {
  Q_OBJECT

 public:
  PropertyRowView(int row, QWidget* parent);

  [[nodiscard]] int Row() const { return row_; }
  [[nodiscard]] QLineEdit& Field();
  void SetName(std::string_view name);
  /// Shows a value; the caret stays where it is when the field shows it already.
  void SetValue(std::string_view text, const RowLook& look);
  void SetSelected(bool selected);
  /// Room for buttons at the right of the value.
  void SetButtonRoom(int pixels);
  /// Left edge of the value, the line between the columns being in front of it.
  void SetValueLeft(int pixels);
  [[nodiscard]] static int HeightPixels() { return 22; }
  /// Side of the square that a picture before the text fills.
  [[nodiscard]] static int PicturePixels() { return 16; }

 Q_SIGNALS:
  /// The mouse went down on the name, twice in quick succession or once.
  void NamePressed(int row, bool twice);
  /// The line between the columns was dragged to a place within the row.
  void DividerDragged(int x);
  /// The mouse rests on the name.
  void TipWanted(int row, const QPoint& global);

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;

 private:
  void LayOut();
  [[nodiscard]] bool IsOnDivider(const QMouseEvent& event) const;

  int row_;
  int value_left_ = 0;
  QLabel* label_;
  ValueField* text_;
  QPixmap picture_;
  QString note_;
  QString fault_;
  bool selected_ = false;
  bool dragging_ = false;
  int button_room_ = 0;
  bool note_fits_ = true;  ///< false while the value needs the note's room
};

}  // namespace tarnwick
