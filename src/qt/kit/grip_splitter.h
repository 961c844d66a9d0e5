// A splitter whose handles can be seen.
#pragma once

#include <QSplitter>

namespace tarnwick {

/// Each handle shows a short grip in its middle, stronger under the mouse.
class GripSplitter final : public QSplitter {
  Q_OBJECT

 public:
  using QSplitter::QSplitter;

 protected:
  QSplitterHandle* createHandle() override;
};

}  // namespace tarnwick
