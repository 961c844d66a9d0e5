#include "editor/typed_text.h"

#include <utility>

namespace tarnwick::editor {

void TypedText::Show(std::string key, const std::string* stored) {
  key_ = std::move(key);
  stored_ = stored == nullptr ? std::string() : *stored;
  editor_.SetText(stored_);
}

void TypedText::Leave() {
  std::string text = editor_.Text();
  if (!key_.empty() && text != stored_) drafts_.Keep(key_, std::move(text));
  key_.clear();
}

void TypedText::Stored(const std::string& text) {
  // What was only looked at does not take the place of a text that was lost.
  if (text != stored_) drafts_.Drop(key_);
  stored_ = text;
}

void TypedText::AddTo(CodeDrafts::Texts& texts) const {
  if (key_.empty()) return;
  std::string text = editor_.Text();
  if (text != stored_) texts.insert_or_assign(key_, std::move(text));
}

bool TypedText::Follow(const std::string& stored) {
  if (key_.empty() || stored == stored_) return false;
  const bool typed = Differs();
  stored_ = stored;
  if (!typed) editor_.SetText(stored_);
  return !typed;
}

void TypedText::RestoreLost() {
  const std::string* lost = Lost();
  if (lost == nullptr) return;
  // As if it were typed: undo brings the stored text back.
  const std::string text = *lost;
  const int last = editor_.LineCount() - 1;
  editor_.SetSel({0, 0, last, static_cast<int>(editor_.GetLine(last).size())});
  editor_.SetSelText(text);
  DiscardLost();
}

}  // namespace tarnwick::editor
