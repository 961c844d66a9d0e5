// Keys and mouse of a widget as events of its object.
#pragma once

#include <QObject>

#include "run/object_view.h"

class QKeyEvent;
class QMouseEvent;
class QWheelEvent;
class QWidget;

namespace tarnwick::run {

/// Raises the events of an object for what comes to its widgets. A handler that sets Key to 0
/// keeps the key from the widget.
class WidgetEvents final : public QObject {
 public:
  /// What the widget does with the mouse by itself.
  enum class Mouse {
    Own,        ///< it is a control: events go on to it
    OwnClicks,  ///< it is a control that reports no clicks: a press and release within it is one
    Plain       ///< it has none of its own: a press and release within it is a click
  };
  WidgetEvents(Stage& stage, ObjectId object, Mouse mouse)
      : stage_(stage), object_(object), mouse_(mouse) {}

  /// Begins to watch: the widget that has the focus, and the one that the pointer meets.
  void Watch(QWidget& keys, QWidget& mouse);
  /// One more part that the pointer meets.
  void WatchPart(QWidget& part);
  [[nodiscard]] bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  [[nodiscard]] bool Pressed(const QMouseEvent& event);
  [[nodiscard]] bool Released(const QMouseEvent& event);
  [[nodiscard]] bool Moved(const QMouseEvent& event);
  [[nodiscard]] bool DoubleClicked(const QMouseEvent& event);
  void Turned(QWheelEvent& event);
  [[nodiscard]] bool KeyPressed(QWidget& widget, const QKeyEvent& event);
  [[nodiscard]] bool KeyReleased(const QKeyEvent& event);
  void ShowPopup(const QPoint& global);
  [[nodiscard]] QPoint Within(const QMouseEvent& event) const;
  /// The pointer comes to the object or leaves it: its hint is that of the application.
  void ShowHint(bool enters);
  [[nodiscard]] bool ByMouse(QEvent& event);
  [[nodiscard]] bool ByKey(QWidget& widget, QEvent& event);

  Stage& stage_;
  ObjectId object_;
  Mouse mouse_;
  QWidget* keys_ = nullptr;
  QWidget* pointed_ = nullptr;
  QWidget* part_ = nullptr;
  bool pressed_ = false;
  bool sending_ = false;
};

/// The platform's code of a key as programs know it (13 for Enter, 112 for F1); 0 for one that has
/// none.
[[nodiscard]] int VirtualKey(const QKeyEvent& event);
/// The keys and buttons that are held, as the parameter Shift has them.
[[nodiscard]] int ShiftBits(Qt::KeyboardModifiers keys, Qt::MouseButtons buttons);

}  // namespace tarnwick::run
