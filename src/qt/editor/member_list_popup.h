// `lstIntellisense`: the member list at the caret, with its frame and shadow.
#pragma once

#include <QWidget>
#include <string>
#include <vector>

#include "editor/intellisense.h"

class QListWidget;
class QsciScintilla;

namespace tarnwick {

/// Stands one text line below the caret of the moment it is shown, and is moved only as far as the
/// screen asks for. It never takes the focus: typing goes on in the text.
class MemberListPopup final : public QWidget, public editor::MemberListView {
  Q_OBJECT

 public:
  explicit MemberListPopup(QsciScintilla& code);

  void showintellisense(const std::vector<std::string>& rows) override;
  void SelectRow(int row) override;
  void HideList() override;

 Q_SIGNALS:
  void Clicked(int row);
  void DoubleClicked(int row);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void Place(const QSize& size);

  QsciScintilla& code_;
  QListWidget* list_;
};

}  // namespace tarnwick
