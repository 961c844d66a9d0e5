// A design form as a window of the container: frame, title, menu bar and surface.
#pragma once

#include <QWidget>

#include "qt/surface/design_surface.h"
#include "qt/surface/window_frame.h"

class QMouseEvent;

namespace tarnwick {

class FormMenuStrip;

/// Draws the frame that the form's border style asks for and lets the user move, size, maximise
/// and roll up the window. The size goes to the form's logic; the position is the window's own and
/// never the form's.
class DesignWindow final : public QWidget {
  Q_OBJECT

 public:
  DesignWindow(FormUser& user, SurfaceGestures& gestures, DesignWindowHost& host,
               looks::PictureCache& pictures, TextCache& texts, QWidget* parent);
  ~DesignWindow() override;

  [[nodiscard]] DesignSurface& Surface() { return *surface_; }
  /// Reads caption, size, frame, icon and colours again.
  void SyncWithForm();
  /// Reads the menu bar again.
  void SyncMenuBar();
  /// The form is about to go.
  void Detach();
  /// Draws the title as that of the current form.
  void SetCurrent(bool current);
  /// Gives a rolled-up window its height back.
  void Unroll();
  [[nodiscard]] WindowState State() const { return state_; }
  /// Where the parts of the frame are now.
  [[nodiscard]] WindowFrame Frame() const;
  /// Does what a press on a button of the frame does; no effect for a button that it lacks.
  void PressButton(FramePart button);
  /// Fills the part of the container that can be seen; for a maximised window.
  void Fill(const QRect& visible);
  /// Position and size that the window has or will return to in the normal state.
  [[nodiscard]] QRect NormalGeometry() const {
    return state_ == WindowState::Normal ? geometry() : normal_;
  }
  /// Puts a window that was made again into the state of the one before it. A maximised window
  /// asks for its size by FillRequested.
  void Restore(WindowState state, const QRect& normal);

 signals:
  /// The window was maximised: its size is to be set by Fill.
  void FillRequested();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;

 private:
  /// The height of a window of which only the title is left.
  [[nodiscard]] int RolledUpHeight() const;
  void LayOut();
  void EndSizing();
  void SetState(WindowState state);
  /// Writes the size of the window into the form.
  void StoreSize();
  void DragEdges(const QPoint& global);

  FormUser* user_;
  DesignWindowHost& host_;
  looks::PictureCache& pictures_;
  DesignSurface* surface_;
  FormMenuStrip* menu_;
  bool current_ = false;
  WindowState state_ = WindowState::Normal;
  QRect normal_;  ///< position and size at the return to normal
  QSize stored_;  ///< the size of the form when window and form last agreed

  // A gesture of the frame itself.
  bool moving_ = false;
  Qt::Edges edges_;
  QPoint press_;
  QRect at_press_;
  FramePart hovered_ = FramePart::None;
};

}  // namespace tarnwick
