// A design form as a window of the container: frame, title, menu bar and surface.
#pragma once

#include <QWidget>

#include "qt/surface/design_surface.h"

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

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;

 private:
  struct Frame {
    bool Title = true;
    bool Buttons = true;
    bool Minimise = true;
    bool Maximise = true;
    bool Sizable = true;
    bool Tool = false;
  };
  enum class Part { None, Title, Minimise, Maximise, Close };

  [[nodiscard]] Frame FrameOf() const;
  [[nodiscard]] int TitleHeight() const;
  [[nodiscard]] int BorderWidth() const;
  [[nodiscard]] QRect ButtonRect(Part part) const;
  [[nodiscard]] Part PartAt(const QPoint& place) const;
  [[nodiscard]] Qt::Edges EdgesAt(const QPoint& place) const;
  void LayOut();
  void PaintTitle(QPainter& painter);
  void PaintButton(QPainter& painter, Part part);
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
  QRect normal_;

  // A gesture of the frame itself.
  bool moving_ = false;
  Qt::Edges edges_;
  QPoint press_;
  QRect at_press_;
  Part hovered_ = Part::None;
};

}  // namespace tarnwick
