#include "editor/edit_widget.h"

#include "language/word_at.h"

namespace tarnwick::editor {

std::string CurrentWord(const EditWidget& widget) {
  const EditRange caret = widget.GetSel();
  const std::string line = widget.GetLine(caret.EndLineNo);
  return std::string(language::WordAt(line, static_cast<std::size_t>(caret.EndColNo)));
}

}  // namespace tarnwick::editor
