// A widget without a behaviour of its own that its view paints.
#pragma once

#include <QPainter>
#include <QWidget>

namespace tarnwick::run {

/// Calls `View::Paint(QPainter&)` to paint itself, and `View::Resized()` when it has one.
template <class View>
class PaintedFace final : public QWidget {
 public:
  explicit PaintedFace(View& view) : view_(view) {}

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    view_.Paint(painter);
  }
  void resizeEvent(QResizeEvent* event) override {
    QWidget::resizeEvent(event);
    if constexpr (requires(View & view) { view.Resized(); }) view_.Resized();
  }

 private:
  View& view_;
};

}  // namespace tarnwick::run
