// The text in a code window, and what of it is not stored yet.
#pragma once

#include <string>
#include <string_view>

#include "editor/code_drafts.h"
#include "editor/edit_widget.h"

namespace tarnwick::editor {

/// Knows the key of the code that an editing widget shows and the text as it is stored, so that
/// nothing typed is lost without an offer to have it back.
class TypedText {
 public:
  TypedText(EditWidget& editor, CodeDrafts& drafts) : editor_(editor), drafts_(drafts) {}

  /// Shows the text that is stored under a key; null for a key without an entry, which shows an
  /// empty page. Under the key "" nothing typed is kept.
  void Show(std::string key, const std::string* stored);
  /// The window closes without its Ok: a text that differs from the stored one is a draft now.
  void Leave();
  /// The text is stored now; an older draft is dropped when the text is another one than before.
  void Stored(const std::string& text);

  [[nodiscard]] const std::string& Key() const noexcept { return key_; }
  /// The text in the editor.
  [[nodiscard]] std::string Text() const { return editor_.Text(); }
  /// True while the text differs from what is stored.
  [[nodiscard]] bool Differs() const { return !key_.empty() && editor_.Text() != stored_; }
  /// Adds the text under its key to `texts` when it differs from what is stored.
  void AddTo(CodeDrafts::Texts& texts) const;
  /// Something else has changed what is stored: the editor follows while nothing was typed. True
  /// when it shows another text now.
  bool Follow(const std::string& stored);

  /// The draft of the text that is shown; null when there is none.
  [[nodiscard]] const std::string* Lost() const { return drafts_.Find(key_); }
  /// Puts the draft into the editor, as one step that can be undone there.
  void RestoreLost();
  void DiscardLost() { drafts_.Drop(key_); }

 private:
  EditWidget& editor_;
  CodeDrafts& drafts_;
  std::string key_;
  std::string stored_;
};

}  // namespace tarnwick::editor
