// The part of the property panel in which the rows scroll.
#pragma once

#include <QScrollArea>

namespace tarnwick {

/// Shows whole rows only: what is left below the last one stays empty.
class RowArea final : public QScrollArea {
  Q_OBJECT

 public:
  RowArea();

  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  void resizeEvent(QResizeEvent* event) override;
};

}  // namespace tarnwick
