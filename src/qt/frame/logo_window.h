// The logo window of the start.
#pragma once

#include <QWidget>
#include <string_view>

class QLabel;

namespace tarnwick {

/// The window that stays on top of all until the first form stands.
class LogoWindow final : public QWidget {
  Q_OBJECT

 public:
  explicit LogoWindow(QWidget* parent);
  /// Shows the window over its parent with this text, or changes the text.
  void ShowText(std::string_view text);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QLabel* text_;
};

}  // namespace tarnwick
