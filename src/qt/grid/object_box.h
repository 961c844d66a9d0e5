// The head list of the property panel.
#pragma once

#include <QComboBox>
#include <QElapsedTimer>
#include <functional>

namespace tarnwick {

/// A combo box of many rows: the list has a scroll bar, and letters typed one after the other go to
/// the row that the search names for all of them.
class ObjectBox final : public QComboBox {
  Q_OBJECT

 public:
  /// `search` returns the row for a text; -1 for none.
  ObjectBox(std::function<int(const QString&)> search, QWidget* parent);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  /// True when the key was a letter of the search.
  bool Search(const QKeyEvent& event);
  void GoTo(int row);

  std::function<int(const QString&)> search_;
  QString typed_;
  QElapsedTimer since_;  ///< since the row of the last letter was shown
};

}  // namespace tarnwick
