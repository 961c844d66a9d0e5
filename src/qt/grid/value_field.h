// The field of a row's value.
#pragma once

#include <QLineEdit>

namespace tarnwick {

/// Cuts a text that is too long with an ellipsis while the field has no focus: in front for a path,
/// whose file name counts, else at the end.
class ValueField final : public QLineEdit {
  Q_OBJECT

 public:
  using QLineEdit::QLineEdit;

  void SetIsPath(bool is_path);
  /// The text as it shows without the focus.
  [[nodiscard]] QString CutText() const;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  [[nodiscard]] QRect TextRect() const;

  bool is_path_ = false;
};

}  // namespace tarnwick
