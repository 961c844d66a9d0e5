// An editing widget in memory, with keys that act as a person's do.
#pragma once

#include <algorithm>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "editor/edit_widget.h"
#include "text/strings.h"

namespace tarnwick::test {

/// Holds the text as lines. SetText counts as the start of a new undo history.
class FakeEditWidget final : public editor::EditWidget {
 public:
  [[nodiscard]] std::string Text() const override;
  void SetText(std::string_view text) override;
  [[nodiscard]] int LineCount() const override;
  [[nodiscard]] std::string GetLine(int line) const override;
  [[nodiscard]] editor::EditRange GetSel() const override { return sel_; }
  void SetSel(const editor::EditRange& range) override { sel_ = range; }
  void SetSelText(std::string_view text) override;
  void SetCaretPos(int line, int column) override;
  void SetFocus() override;

  /// The caret's line with "|" where the caret stands.
  [[nodiscard]] std::string CaretLine() const;
  /// Takes the character in front of the caret away, or the line end.
  void Backspace();

  int Focused = 0;
  int Histories = 0;
  std::function<void()> OnSetText;  ///< called at the end of each SetText

 private:
  std::vector<std::string> lines_{""};
  editor::EditRange sel_;
};

}  // namespace tarnwick::test
