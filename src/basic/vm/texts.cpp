#include "basic/vm/texts.h"

namespace tarnwick::basic {

Slot NewText(std::string bytes) {
  Slot slot{0};
  if (!bytes.empty()) slot.B = new TextBody(std::move(bytes));
  return slot;
}

void SetText(Slot& target, std::string bytes) {
  const Slot text = NewText(std::move(bytes));
  Release(target.B);
  target = text;
}

bool Join(Slot& target, Slot left, Slot right, std::size_t limit) {
  if (target.B == left.B) return Append(target, right, limit);
  const std::string_view a = ViewOf(left);
  const std::string_view b = ViewOf(right);
  if (b.size() > limit || a.size() > limit - b.size()) return false;
  Slot result{0};
  if (a.empty() || b.empty()) {
    result = a.empty() ? right : left;
    Retain(result.B);
  } else {
    std::string bytes;
    bytes.reserve(a.size() + b.size());
    bytes.append(a).append(b);
    result.B = new TextBody(std::move(bytes));
  }
  Release(target.B);
  target = result;
  return true;
}

bool Append(Slot& target, Slot more, std::size_t limit) {
  if (more.B == nullptr) return true;
  if (target.B == nullptr) {
    Retain(more.B);
    target = more;
    return true;
  }
  auto& body = *static_cast<TextBody*>(target.B);
  const std::string_view bytes = ViewOf(more);
  if (bytes.size() > limit || body.Bytes.size() > limit - bytes.size()) return false;
  if (body.Count == 1) {
    body.Bytes.append(bytes);
    return true;
  }
  std::string joined;
  joined.reserve(body.Bytes.size() + bytes.size());
  joined.append(body.Bytes).append(bytes);
  SetText(target, std::move(joined));
  return true;
}

std::string Removed(std::string_view text, std::string_view part) {
  if (part.empty()) return std::string(text);
  std::string result;
  std::size_t from = 0;
  for (;;) {
    const std::size_t at = text.find(part, from);
    result.append(text.substr(from, at - from));
    if (at == std::string_view::npos) return result;
    from = at + part.size();
  }
}

std::string_view CharacterOf(std::string_view text, std::int64_t position) {
  if (position < 1 || position > static_cast<std::int64_t>(text.size())) return {};
  return text.substr(static_cast<std::size_t>(position) - 1, 1);
}

std::string Padded(std::string_view text, std::size_t length) {
  std::string result(text.substr(0, length));
  result.resize(length, ' ');
  return result;
}

}  // namespace tarnwick::basic
