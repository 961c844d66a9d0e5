// A design form as a window of the container: frame, title, menu bar and surface.
#pragma once

#include <QWidget>

#include "qt/surface/design_surface.h"
#include "qt/surface/window_frame.h"

class QMouseEvent;

namespace tarnwick {

class FormMenuStrip;

/// Draws the frame that the form's border style asks for and lets the user move, size, maximise
/// and roll up the window. The size goes to the form's logic; the place is the window's own and
/// never the form's.
class DesignWindow final : public QWidget {
  Q_OBJECT

 public:
  DesignWindow(DesignForm& form, looks::PictureCache& pictures, TextCache& texts,
               DesignWindowDoors doors, QWidget* parent);
  ~DesignWindow() override;

  [[nodiscard]] DesignSurface& Surface() { return *surface_; }
  /// Reads caption, size, frame, icon and colours anew.
  void SyncWithForm();
  void SyncMenuBar();
  /// The form is about to go.
  void Detach();
  /// Draws the title as that of the current form.
  void SetCurrent(bool current);
  /// Gives a rolled-up window its height back.
  void Unroll();
  [[nodiscard]] WindowState State() const { return state_; }
  /// Fills the part of the container that can be seen; for a maximised window.
  void Fill(const QRect& visible);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;

 private:
  [[nodiscard]] WindowFrame FrameOf() const;
  /// The height of a window of which only the title is left.
  [[nodiscard]] int RolledUpHeight() const;
  void LayOut();
  void EndSizing();
  void SetState(WindowState state);
  void TellSize();
  void DragEdges(const QPoint& global);

  DesignForm* form_;
  DesignWindowDoors doors_;
  looks::PictureCache& pictures_;
  DesignSurface* surface_;
  FormMenuStrip* menu_;
  bool current_ = false;
  WindowState state_ = WindowState::Normal;
  QRect normal_;  ///< place and size at the return to normal
  QSize told_;    ///< the size that the form has, as window and form last agreed

  // A gesture of the frame itself.
  bool moving_ = false;
  Qt::Edges edges_;
  QPoint press_;
  QRect at_press_;
  FramePart hovered_ = FramePart::None;
};

}  // namespace tarnwick
