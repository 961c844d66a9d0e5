// The events bar as a small window over the container.
#pragma once

#include <QFrame>
#include <QPoint>
#include <string>
#include <vector>

#include "shell/events_bar.h"

class QLabel;
class QMenu;
class QScrollArea;
class QToolButton;

namespace tarnwick {

class CommandCenter;

/// `FrmBarra`: shows the bar of the current form. It floats over the container, at its lower edge
/// until the user drags it elsewhere by its head, and is never out of the main window. Beyond three
/// rows its buttons scroll. Closing it hides it.
class EventsBarWindow final : public QFrame {
  Q_OBJECT

 public:
  /// Floats over `container`, within `parent`.
  EventsBarWindow(EventsBar& bar, CommandCenter& commands, QWidget& container, QWidget* parent);

  /// Reads buttons, tips and title of the current form again; hidden while there is none.
  void Refresh();

 Q_SIGNALS:
  /// The bar gives the focus up: the user goes back to the form.
  void Left();

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QToolButton* MakeButton(const QString& name);
  void SetButtons(std::vector<BarButton> buttons);
  void PutButtons();
  void ShowTitle(const QString& title);
  void Press(int number);
  void PopUp(QToolButton& button);
  void Hide();
  void Place();

  EventsBar& bar_;
  CommandCenter& commands_;
  QWidget& container_;
  QLabel* title_;
  QScrollArea* scroll_;
  QWidget* room_;  ///< where the buttons stand
  QToolButton* declare_;
  QMenu* pross_;
  std::vector<BarButton> shown_;
  std::vector<QToolButton*> buttons_;  ///< `btncodigo` from element 1
  bool placed_ = false;                ///< the user has given it a place
  bool dragging_ = false;
  QPoint grip_;
};

}  // namespace tarnwick
