// The column of panels at the right of the main window.
#pragma once

#include <QWidget>

class QSplitter;

namespace tarnwick {

/// Property panel and form list share the column, the program's icon stands below them. In a low
/// window the icon gives way, then the form list goes down to its least height, so that the rows
/// of the properties are the last to go.
class RightColumn final : public QWidget {
  Q_OBJECT

 public:
  RightColumn(QSplitter* panels, QWidget* icon, QWidget* parent);

  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;
  bool event(QEvent* event) override;

 private:
  void LayOut();
  void ShareWithForms(int height_of_both);

  QSplitter* panels_;
  QWidget* icon_;
  bool is_low_ = false;
  int forms_ = 0;  ///< height of the form list before the window became low
};

}  // namespace tarnwick
