// The client area of a design window.
#pragma once

#include <QWidget>

#include "designer/form_user.h"
#include "qt/surface/design_window_host.h"
#include "qt/surface/form_painter.h"
#include "qt/surface/surface_gestures.h"

namespace tarnwick {

/// Paints the form, with the rubber band of its gestures above it, and forwards presses, moves,
/// releases, double clicks and keys to the form's logic.
class DesignSurface final : public QWidget {
  Q_OBJECT

 public:
  /// `user` is used until Detach. `gestures` are those that `user` works with.
  DesignSurface(FormUser& user, SurfaceGestures& gestures, DesignWindowHost& host,
                looks::PictureCache& pictures, TextCache& texts, QWidget* parent);
  ~DesignSurface() override;

  /// The form that is painted; null when it is gone.
  [[nodiscard]] const DesignForm* Form() const {
    return user_ == nullptr ? nullptr : &user_->Form();
  }
  /// The name of the form, "" when it is gone.
  [[nodiscard]] std::string FormName() const;
  /// Selects an object as a press on it does, or the form for null.
  void PressObject(const ControlRef& object);
  /// The form is about to go: from now on nothing is painted and nothing forwarded.
  void Detach();
  /// Takes the focus unless a value is being typed elsewhere.
  void TakeFocus();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  bool focusNextPrevChild(bool next) override;
  void leaveEvent(QEvent* event) override;

 private:
  void ShowPointerOver(const QPointF& position);

  FormUser* user_;
  SurfaceGestures& gestures_;
  DesignWindowHost& host_;
  FormPainter painter_;
};

}  // namespace tarnwick
