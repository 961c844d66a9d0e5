// What a design window asks of the program around it.
#pragma once

#include <QPoint>

namespace tarnwick {

/// The main window as a design window sees it. `form` is the number of the window's form.
class DesignWindowHost {
 public:
  DesignWindowHost() = default;
  DesignWindowHost(const DesignWindowHost&) = delete;
  DesignWindowHost& operator=(const DesignWindowHost&) = delete;
  virtual ~DesignWindowHost() = default;

  /// The user pressed into the window, or it has the focus now: commands apply to its form.
  virtual void Activated(int form) = 0;
  /// The user pressed the close button of the frame.
  virtual void CloseRequested(int form) = 0;
  /// The pointer is over this pixel of a form; (-1, -1) when it left the form.
  virtual void PointerMoved(QPoint pixel) = 0;
  /// Esc was pressed while no gesture ran.
  virtual void EscapePressed() = 0;
  /// A form has taken a new size from its window.
  virtual void Resized() = 0;
  /// True while a value is being typed elsewhere, from where no gesture may take the focus.
  [[nodiscard]] virtual bool FocusIsKept() = 0;
};

}  // namespace tarnwick
