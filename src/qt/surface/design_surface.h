// The client area of a design window.
#pragma once

#include <QPoint>
#include <QWidget>
#include <functional>
#include <optional>

#include "designer/form_user.h"
#include "model/project_records.h"
#include "platform/ports.h"
#include "qt/surface/form_painter.h"

namespace tarnwick {

/// What a design window is given. The callbacks are asked each time, for the logic of a form comes
/// after its window and goes before it.
struct DesignWindowDoors {
  std::function<FormUser*()> User;         ///< null while there is none
  std::function<const FormRec*()> Record;  ///< null while there is none
  std::function<void()> Activated;  ///< the user pressed into this window, or it has the focus now
  std::function<void(QPoint)> PointerMoved;  ///< place in pixels of the form
  std::function<void()> Closed;       ///< the user closed the window; whoever is told hides it
  std::function<void()> Escape;       ///< back to the arrow
  std::function<void()> Resized;      ///< the form has taken a new size from its window
  std::function<bool()> FocusIsKept;  ///< a value is just being typed elsewhere
  std::function<QRect()> Visible;     ///< the part of the container that can be seen
};

/// Paints the form and forwards presses, moves, releases, double clicks and keys. It is the
/// gesture port of its form: it takes the mouse, keeps the pointer within the window and draws the
/// rubber band over the painted form.
class DesignSurface final : public QWidget, public GesturePort {
  Q_OBJECT

 public:
  DesignSurface(DesignForm& form, looks::PictureCache& pictures, TextCache& texts,
                const DesignWindowDoors& doors, QWidget* parent);

  /// The form that is painted; null when it is gone.
  [[nodiscard]] const DesignForm* Form() const { return form_; }
  /// The name of the form, "" when it is gone.
  [[nodiscard]] std::string FormName() const;
  /// Selects an object as a press on it does, or the form for null.
  void PressObject(const ControlRef& object);
  /// The form is about to go: from now on nothing is painted and nothing forwarded.
  void Detach();

  void TakeCapture() override;
  void ReleaseCapture() override;
  void ConfineCursor() override;
  void FreeCursor() override;
  [[nodiscard]] ScreenPoint CursorPosition() override;
  [[nodiscard]] ScreenPoint ClientOrigin() override;
  void DrawRubberBand(const ScreenRect& rect) override;
  void TakeFocus() override;

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
  void NotePointer(const QMouseEvent& event);
  void ShowPointerOver(const QPointF& place);
  [[nodiscard]] QRect Confinement() const;
  void UpdateBand(const QRect& band);

  DesignForm* form_;
  const DesignWindowDoors& doors_;
  FormPainter painter_;
  std::optional<QPoint> pointer_;  ///< of the mouse event being handled, screen pixels
  std::optional<QRect> band_;      ///< pixels of the form
  bool confined_ = false;
};

}  // namespace tarnwick
