// `FormContenedor`: the area in which the design windows stand.
#pragma once

#include <QScrollArea>
#include <memory>
#include <unordered_map>

#include "qt/surface/design_window.h"

namespace tarnwick {

/// Keeps the design windows by form number and grows with them, so that every one can be scrolled
/// to.
class Container final : public QScrollArea {
  Q_OBJECT

 public:
  Container(looks::PictureCache& pictures, TextCache& texts, QWidget* parent);
  ~Container() override;

  /// Makes the window of a form. The first one of a form is not yet shown; a further one is shown
  /// in the position and state of the one before, with its focus.
  DesignWindow& Open(FormUser& user, DesignWindowHost& host);
  /// The form is about to go: its window is hidden now and deleted when no event of it runs.
  void Close(int form);
  /// Forgets where the windows of the forms above this number stood.
  void ForgetAbove(int form);
  /// The gestures on a form; they exist from the first call on.
  [[nodiscard]] SurfaceGestures& Gestures(int form);
  /// Null for a form without a window.
  [[nodiscard]] DesignWindow* Window(int form) const;
  /// Shows a window in front of the others, also when it was rolled up. The focus stays.
  void BringUp(int form);
  /// Gives a window the focus.
  void Focus(int form);
  /// The part of the area of the windows that can be seen, in its own pixels.
  [[nodiscard]] QRect VisiblePart() const;
  /// The window drawn as that of the current form; 0 for none.
  void SetCurrent(int form);

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;

 private:
  /// What a closed window leaves for the next one of its form.
  struct Left {
    WindowState State = WindowState::Normal;
    QRect Normal;
    bool Shown = false;
    bool Focused = false;
  };
  void FitCanvas();
  /// The rectangle of the canvas that a maximised window fills.
  [[nodiscard]] QRect RoomToFill() const;
  /// The size up to the last pixel of the windows that are not maximised.
  [[nodiscard]] QSize NeededByWindows() const;
  void FitMaximised();
  void LookAtFilesAgain();

  looks::PictureCache& pictures_;
  TextCache& texts_;
  QWidget* canvas_;
  std::unordered_map<int, DesignWindow*> windows_;
  std::unordered_map<int, Left> left_;
  std::unordered_map<int, std::unique_ptr<SurfaceGestures>> gestures_;
  int opened_ = 0;
  int current_ = 0;  ///< the current form; 0 for none
};

}  // namespace tarnwick
