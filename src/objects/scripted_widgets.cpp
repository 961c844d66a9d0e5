#include "objects/scripted_widgets.h"

#include <algorithm>
#include <charconv>
#include <utility>

#include "objects/text_files.h"
#include "text/code_page.h"
#include "text/strings.h"

namespace tarnwick::objects {
namespace {

/// The first word of the rest, which is taken off with the blank behind it.
std::string_view TakeWord(std::string_view& rest) {
  rest = TrimLeft(rest);
  const std::size_t end = std::min(rest.find(' '), rest.size());
  const std::string_view word = rest.substr(0, end);
  rest.remove_prefix(std::min(end + 1, rest.size()));
  return word;
}

std::int64_t TakeNumber(std::string_view& rest) {
  const std::string_view word = TakeWord(rest);
  std::int64_t number = 0;
  std::from_chars(word.data(), word.data() + word.size(), number);
  return number;
}

}  // namespace

ScriptedWidgets::ScriptedWidgets(std::string_view script) {
  for (std::string& line : LinesOf(script)) {
    const std::string_view text = Trim(line);
    if (!text.empty() && text.front() != '\'') lines_.emplace_back(text);
  }
}

bool ScriptedWidgets::PumpEvents(int /*wait_ms*/) {
  if (lines_.empty() || world_ == nullptr) return false;
  const std::string line = std::move(lines_.front());
  lines_.pop_front();
  if (Played) Played("> " + line);
  Step(line);
  return true;
}

void ScriptedWidgets::Step(std::string_view line) {
  std::string_view rest = line;
  const std::string_view verb = TakeWord(rest);
  if (EqualsFolded(verb, "file")) {
    picked_.Files.clear();
    if (!Trim(rest).empty()) picked_.Files.emplace_back(Trim(rest));
    return;
  }
  if (EqualsFolded(verb, "filter")) {
    picked_.FilterIndex = TakeNumber(rest);
    return;
  }
  const std::string_view name = TakeWord(rest);
  ObjectId id = ObjectId::None;
  world_->ForEach([&](const ObjectRecord& record) {
    if (id == ObjectId::None && EqualsFolded(record.FullName(), name)) id = record.Id;
  });
  const ObjectRecord* const object = world_->Find(id);
  if (object == nullptr) {
    Faults.push_back(std::string(line) + ": there is no object of this name");
    return;
  }
  const auto is = [&](std::string_view word) { return EqualsFolded(verb, word); };
  if (is("click")) {
    world_->Click(id);
  } else if (is("key")) {
    Key(*object, TakeNumber(rest));
  } else if (is("type")) {
    world_->UserSet(id, Word::Text, Value::Text(std::string(rest)));
  } else if (is("pick")) {
    world_->UserSet(id, Word::ItemIndex, Value::Integer(TakeNumber(rest)));
  } else if (is("set")) {
    const MemberInfo* const member = object->Info().Find(TakeWord(rest));
    if (member != nullptr) world_->UserSet(id, member->Name, Value::Text(std::string(rest)));
  } else if (is("tick")) {
    world_->Tick(id);
  } else if (is("popup")) {
    world_->PopupShows(id);
  } else if (is("close")) {
    world_->CloseForm(id);
  } else if (is("down") || is("up")) {
    const std::int64_t x = TakeNumber(rest);
    const std::int64_t y = TakeNumber(rest);
    Value arguments[] = {Value::Integer(TakeNumber(rest)), Value::Integer(x), Value::Integer(y),
                         Value::Integer(0)};
    world_->Raise(id, is("down") ? Word::OnMouseDown : Word::OnMouseUp, arguments);
  } else if (is("move")) {
    const std::int64_t x = TakeNumber(rest);
    Value arguments[] = {Value::Integer(x), Value::Integer(TakeNumber(rest)), Value::Integer(0)};
    world_->Raise(id, Word::OnMouseMove, arguments);
  } else {
    Faults.push_back(std::string(line) + ": " + std::string(verb) + " is nothing that a user does");
  }
}

/// The key goes down, the character comes, the key is let go.
void ScriptedWidgets::Key(const ObjectRecord& object, std::int64_t code) {
  constexpr std::int64_t kBackspace = 8;
  const ObjectId id = object.Id;
  const std::int64_t upper = static_cast<unsigned char>(UpperByte(static_cast<char>(code & 0xFF)));
  Value down[] = {Value::Integer(upper), Value::Integer(0)};
  Value press = Value::Integer(code);
  if (!world_->RaiseKey(id, Word::OnKeyDown, down)) return;
  if (down[0].AsInteger() != 0) {
    if (!world_->RaiseKey(id, Word::OnKeyPress, {&press, 1})) return;
    const ObjectRecord* const box = world_->Find(id);
    const std::int64_t typed = press.AsInteger();
    if (box != nullptr && typed != 0 && box->Has(Word::SelText) && !box->Truth(Word::ReadOnly)) {
      std::string text(box->Text(Word::Text));
      if (typed != kBackspace) {
        text += static_cast<char>(typed);
      } else if (!text.empty()) {
        text.pop_back();
      }
      world_->UserSet(id, Word::Text, Value::Text(std::move(text)));
    }
  }
  Value up[] = {Value::Integer(upper), Value::Integer(0)};
  world_->RaiseKey(id, Word::OnKeyUp, up);
}

TextSize ScriptedWidgets::Measure(const FontValues& font, std::string_view text, int wrap_width) {
  constexpr std::int64_t kPoints = 8;
  constexpr std::int64_t kWidth = 6;    // of a letter of 8 points
  constexpr std::int64_t kHeight = 13;  // of a line of 8 points
  std::int64_t width = 0;
  std::int64_t lines = 0;
  for (const std::string& line : LinesOf(text)) {
    const auto length = static_cast<std::int64_t>(line.size());
    const std::int64_t needed = (length * font.Size * kWidth + kPoints - 1) / kPoints;
    const bool wraps = wrap_width > 0 && needed > wrap_width;
    lines += wraps ? (needed + wrap_width - 1) / wrap_width : 1;
    width = std::max<std::int64_t>(width, wraps ? wrap_width : needed);
  }
  const std::int64_t height = std::max<std::int64_t>(lines, 1) * font.Size * kHeight / kPoints;
  return {static_cast<int>(width), static_cast<int>(height)};
}

PickedNames ScriptedWidgets::PickFiles(const ObjectRecord& /*object*/) {
  return std::exchange(picked_, {});
}

}  // namespace tarnwick::objects
