// The editing widget of the code windows alone in a window, for tests of its keys and its looks.
#pragma once

#include <QTest>
#include <QWidget>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "editor/editor_project.h"
#include "qt/editor/code_edit.h"

namespace tarnwick {

class CodeEditWindow : public testing::Test {
 protected:
  explicit CodeEditWindow(const std::vector<std::string>& keywords = {}) {
    window_.resize(500, 300);
    code_ = new CodeEdit(QStringLiteral("Editor"), keywords, lookup_, "Courier New", &window_);
    code_->setGeometry(0, 0, 500, 280);
    window_.show();
    window_.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window_));
    code_->setFocus();
  }
  /// Left and top of a character in the widget.
  QPoint PlaceOf(int line, int column) {
    const long at = code_->positionFromLineIndex(line, column);
    return {static_cast<int>(code_->SendScintilla(QsciScintilla::SCI_POINTXFROMPOSITION, 0UL, at)),
            static_cast<int>(code_->SendScintilla(QsciScintilla::SCI_POINTYFROMPOSITION, 0UL, at))};
  }
  int LineHeight() {
    return static_cast<int>(code_->SendScintilla(QsciScintilla::SCI_TEXTHEIGHT, 0UL));
  }

  test::EditorProject project_;
  editor::MemberLookup lookup_{project_.Tables, project_.Language, editor::kFixedWordsOfCode};
  QWidget window_;
  CodeEdit* code_ = nullptr;
};

}  // namespace tarnwick
