// The frame that all panels of the main window share.
#pragma once

#include <QFrame>
#include <QString>

class QHBoxLayout;
class QLabel;
class QVBoxLayout;

namespace tarnwick {

/// A panel with a head strip: a heading at its left, room for small buttons at its right.
class PanelFrame final : public QFrame {
  Q_OBJECT

 public:
  PanelFrame(const QString& name, const QString& heading, QWidget* parent);

  [[nodiscard]] QLabel& Heading() { return *heading_; }
  /// Adds a widget at the right end of the head strip.
  void AddToHead(QWidget* widget);
  /// The column under the head strip.
  [[nodiscard]] QVBoxLayout& Body() { return *body_; }

 private:
  QLabel* heading_;
  QHBoxLayout* head_;
  QVBoxLayout* body_;
};

}  // namespace tarnwick
