// The list of values under a row.
#pragma once

#include <QListWidget>
#include <string>
#include <vector>

namespace tarnwick {

/// A pop-up list: a click, Enter or Tab chooses, Esc and the keys that opened it close it.
class ValuePopup final : public QListWidget {
  Q_OBJECT

 public:
  explicit ValuePopup(QWidget* parent);

  /// Shows the values under a line of the screen, or above it at the foot of the screen; `marked`
  /// is the value chosen now, -1 for none.
  void Open(const std::vector<std::string>& values, int marked, const QRect& line);

 Q_SIGNALS:
  void Chosen(int index);
  void Closed();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  /// The Tab key chooses and does not go on from here.
  bool focusNextPrevChild(bool /*next*/) override { return false; }
  void hideEvent(QHideEvent* event) override;

 private:
  void Choose(int index);
};

}  // namespace tarnwick
