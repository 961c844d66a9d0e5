// The widget of a form.
#pragma once

#include <QWidget>

class QMenuBar;
class QScrollArea;

namespace tarnwick::run {

class FormView;
class Stage;

/// A top-level window that reports to its view.
class RunForm final : public QWidget {
 public:
  RunForm(FormView& view, Stage& stage);

  [[nodiscard]] QWidget* Client() const { return client_; }
  [[nodiscard]] QMenuBar* Strip() const { return strip_; }
  /// Shows or hides the menu strip; the client area takes the rest.
  void SetStrip(bool there);
  [[nodiscard]] int StripHeight() const;
  /// Makes the client area as large as its objects need, with bars, when the window is smaller by
  /// more than the difference of a frame; else as large as the window leaves it.
  void FitClient();

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void moveEvent(QMoveEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void changeEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void Arrange();

  FormView& view_;
  QScrollArea* area_;
  QWidget* client_;
  QMenuBar* strip_;
  QSize room_;  ///< of the client area without bars
  bool has_strip_ = false;
};

}  // namespace tarnwick::run
