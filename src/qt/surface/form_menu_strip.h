// The menu bar of a design form.
#pragma once

#include <QWidget>
#include <functional>
#include <vector>

#include "model/design_form.h"

class QMenu;

namespace tarnwick {

/// Shows a form's own menu controls as the generated program's menu bar does. A press on a title
/// opens its items; a chosen item goes to the callback.
class FormMenuStrip final : public QWidget {
  Q_OBJECT

 public:
  FormMenuStrip(std::function<void(const ControlRef&)> chosen, QWidget* parent);

  /// Reads titles and items anew from the form.
  void Rebuild(const DesignForm& form);
  [[nodiscard]] static int HeightPixels() { return 20; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;

 private:
  struct Title {
    QString Caption;
    QRect Place;
    QMenu* Items = nullptr;
    ControlRef Control;
  };
  [[nodiscard]] int TitleAt(const QPoint& place) const;
  void Hover(int title);

  std::function<void(const ControlRef&)> chosen_;
  std::vector<Title> titles_;
  int hovered_ = -1;
};

}  // namespace tarnwick
