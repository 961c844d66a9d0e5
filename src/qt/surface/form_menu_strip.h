// The menu bar of a design form.
#pragma once

#include <QWidget>
#include <functional>
#include <vector>

#include "looks/frame_metrics.h"
#include "model/design_form.h"

class QMenu;

namespace tarnwick {

class FormMenuTitle;

/// Shows a form's own menu controls as the form's menu bar: titles, and under each of them its
/// items in one level. A press on a title opens its items; a chosen item goes to the callback.
/// F10 on the watched widget opens the first title; Left and Right go from one to the next.
class FormMenuStrip final : public QWidget {
  Q_OBJECT

 public:
  FormMenuStrip(std::function<void(const ControlRef&)> chosen, QWidget* parent);

  /// Reads titles and items again from the form.
  void Rebuild(const DesignForm& form);
  /// Opens the items of a title by its index from the left; no effect for an index without a title.
  void Open(int title);
  [[nodiscard]] static int HeightPixels() { return looks::kMenuStripHeight; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  struct Title {
    FormMenuTitle* Button = nullptr;
    QMenu* Items = nullptr;
  };
  void OpenByKey(int title);
  void AddItem(QMenu& menu, const ControlRef& item);
  [[nodiscard]] bool PressInMenu(const QObject* menu, int key);

  std::function<void(const ControlRef&)> chosen_;
  std::vector<Title> titles_;
};

}  // namespace tarnwick
