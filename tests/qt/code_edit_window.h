// The editing widget of the code windows alone in a window, for tests of its keys and its looks.
#pragma once

#include <QTest>
#include <QWidget>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "fakes/editor_project.h"
#include "qt/editor/code_edit.h"

namespace tarnwick {

class CodeEditWindow : public testing::Test {
 protected:
  explicit CodeEditWindow(const std::vector<std::string>& keywords = {});
  /// Left and top of a character in the widget.
  QPoint PlaceOf(int line, int column);
  int LineHeight();

  test::EditorProject project_;
  editor::MemberLookup lookup_{project_.Tables, project_.Language, editor::kFixedWordsOfCode};
  QWidget window_;
  CodeEdit* code_ = nullptr;
};

}  // namespace tarnwick
