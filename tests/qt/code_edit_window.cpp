#include "qt/code_edit_window.h"

namespace tarnwick {

CodeEditWindow::CodeEditWindow(const std::vector<std::string>& keywords) {
  window_.resize(500, 300);
  code_ = new CodeEdit(QStringLiteral("Editor"), keywords, lookup_, "Courier New", &window_);
  code_->setGeometry(0, 0, 500, 280);
  window_.show();
  window_.activateWindow();
  EXPECT_TRUE(QTest::qWaitForWindowActive(&window_));
  code_->setFocus();
}

QPoint CodeEditWindow::PlaceOf(int line, int column) {
  const long at = code_->positionFromLineIndex(line, column);
  return {static_cast<int>(code_->SendScintilla(QsciScintilla::SCI_POINTXFROMPOSITION, 0UL, at)),
          static_cast<int>(code_->SendScintilla(QsciScintilla::SCI_POINTYFROMPOSITION, 0UL, at))};
}

int CodeEditWindow::LineHeight() {
  return static_cast<int>(code_->SendScintilla(QsciScintilla::SCI_TEXTHEIGHT, 0UL));
}

}  // namespace tarnwick
