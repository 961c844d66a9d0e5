// Boxes of typed text: one line, and many.
#include <algorithm>

#include "objects/behaviour.h"
#include "objects/rich_text.h"
#include "objects/streams.h"
#include "objects/text_files.h"
#include "text/code_page.h"

namespace tarnwick::objects {
namespace {

std::string_view TextOf(const ObjectRecord& box) {
  return box.Text(Word::Text);
}

void SetTextOf(ObjectWorld& world, ObjectRecord& box, std::string text) {
  world.Change(box, Word::Text, Value::Text(std::move(text)), Origin::Code);
}

bool SetText(ObjectWorld& world, ObjectRecord& box, const MemberInfo& member,
             std::span<const Value> /*index*/, const Value& in) {
  constexpr std::int64_t kUpper = 1;
  constexpr std::int64_t kLower = 2;
  const std::int64_t letters = box.Number(Word::CharCase);
  Value text = in;
  if (letters == kUpper) text = Value::Text(Upper(in.AsText()));
  if (letters == kLower) text = Value::Text(Lower(in.AsText()));
  world.Change(box, member, text, Origin::Code);
  return true;
}

void TextChanged(ObjectWorld& world, ObjectRecord& box, const MemberInfo& /*member*/,
                 Origin origin) {
  if (auto* const lines = box.As<TextLines>()) lines->Starts.clear();
  box.Put(Word::Modified, Value::Integer(origin == Origin::User ? 1 : 0));
  if (origin == Origin::Code) {
    box.Put(Word::SelStart, Value::Integer(0));
    box.Put(Word::SelLength, Value::Integer(0));
  }
  world.Raise(box.Id, Word::OnChange);
}

// --- The selection

struct Selection {
  std::size_t Start = 0;
  std::size_t Length = 0;
};

Selection SelectionOf(ObjectWorld& world, ObjectRecord& box) {
  const auto number = [&](Word word) {
    Value value;
    LiveValue(world, box, *box.Info().Find(word), {}, value);
    return static_cast<std::size_t>(std::max<std::int64_t>(value.AsInteger(), 0));
  };
  const std::size_t size = TextOf(box).size();
  Selection selection;
  selection.Start = std::min(number(Word::SelStart), size);
  selection.Length = std::min(number(Word::SelLength), size - selection.Start);
  return selection;
}

bool GetSelected(ObjectWorld& world, ObjectRecord& box, const MemberInfo& /*member*/,
                 std::span<const Value> /*index*/, Value& out) {
  const Selection selection = SelectionOf(world, box);
  out = Value::Text(std::string(TextOf(box).substr(selection.Start, selection.Length)));
  return true;
}

/// Puts a text in place of what is selected; the caret stands behind it.
void ReplaceSelected(ObjectWorld& world, ObjectRecord& box, std::string_view text) {
  const ObjectId id = box.Id;
  const MemberInfo& member = *box.Info().Find(Word::SelText);
  Value argument = Value::Text(std::string(text));
  Value nothing;
  // The widget does it itself, so that the user can undo it.
  if (box.Realised && world.Widgets().Invoke(box, member, {&argument, 1}, nothing)) return;
  const Selection selection = SelectionOf(world, box);
  std::string whole(TextOf(box));
  whole.replace(selection.Start, selection.Length, text);
  SetTextOf(world, box, std::move(whole));
  ObjectRecord* const after = world.Find(id);
  if (after == nullptr) return;
  const auto caret = static_cast<std::int64_t>(selection.Start + text.size());
  world.Change(*after, Word::SelStart, Value::Integer(caret), Origin::Code);
  world.Change(*after, Word::SelLength, Value::Integer(0), Origin::Code);
}

bool SetSelected(ObjectWorld& world, ObjectRecord& box, const MemberInfo& /*member*/,
                 std::span<const Value> /*index*/, const Value& in) {
  ReplaceSelected(world, box, in.AsText());
  return true;
}

bool SelectAll(ObjectWorld& world, ObjectRecord& box, const MemberInfo& /*member*/,
               std::span<Value> /*arguments*/, Value& /*result*/) {
  const auto size = static_cast<std::int64_t>(TextOf(box).size());
  world.Change(box, Word::SelStart, Value::Integer(0), Origin::Code);
  world.Change(box, Word::SelLength, Value::Integer(size), Origin::Code);
  return true;
}

bool ClearSelection(ObjectWorld& world, ObjectRecord& box, const MemberInfo& /*member*/,
                    std::span<Value> /*arguments*/, Value& /*result*/) {
  ReplaceSelected(world, box, {});
  return true;
}

ObjectRecord& ClipboardOf(ObjectWorld& world) {
  return *world.Find(world.BuiltIn(static_cast<basic::ClassId>(ObjectClass::Clipboard)));
}

bool Copy(ObjectWorld& world, ObjectRecord& box, const MemberInfo& method,
          std::span<Value> /*arguments*/, Value& /*result*/) {
  Value selected;
  GetSelected(world, box, method, {}, selected);
  if (selected.View().empty()) return true;
  world.Change(ClipboardOf(world), Word::Text, selected, Origin::Code);
  if (method.Name == Word::CutToClipboard) ReplaceSelected(world, box, {});
  return true;
}

bool Paste(ObjectWorld& world, ObjectRecord& box, const MemberInfo& /*member*/,
           std::span<Value> /*arguments*/, Value& /*result*/) {
  ObjectRecord& clipboard = ClipboardOf(world);
  Value text;
  LiveValue(world, clipboard, *clipboard.Info().Find(Word::Text), {}, text);
  ReplaceSelected(world, box, text.View());
  return true;
}

bool Clear(ObjectWorld& world, ObjectRecord& box, const MemberInfo& /*member*/,
           std::span<Value> /*arguments*/, Value& /*result*/) {
  SetTextOf(world, box, {});
  return true;
}

// --- Lines

/// Where each line begins, and behind the last one the end of the text.
const std::vector<std::size_t>& StartsOf(ObjectRecord& box) {
  std::vector<std::size_t>& starts = box.As<TextLines>()->Starts;
  if (!starts.empty()) return starts;
  const std::string_view text = TextOf(box);
  starts.push_back(0);
  for (std::size_t at = text.find('\n'); at != std::string_view::npos; at = text.find('\n', at)) {
    starts.push_back(++at);
  }
  if (starts.back() != text.size()) starts.push_back(text.size());
  return starts;
}

std::size_t LineCountOf(ObjectRecord& box) {
  return StartsOf(box).size() - 1;
}

/// The line with its end.
std::string_view WholeLine(ObjectRecord& box, std::size_t line) {
  const std::vector<std::size_t>& starts = StartsOf(box);
  return TextOf(box).substr(starts[line], starts[line + 1] - starts[line]);
}

bool GetLine(ObjectWorld& world, ObjectRecord& box, const MemberInfo& /*member*/,
             std::span<const Value> index, Value& out) {
  const std::int64_t line = index[0].AsInteger();
  const std::size_t count = LineCountOf(box);
  if (line < 0 || line >= static_cast<std::int64_t>(count)) {
    return world.Fail(box.FullName() + " has no line " + std::to_string(line) + ": it has " +
                      std::to_string(count) + ", counted from 0");
  }
  std::string_view text = WholeLine(box, static_cast<std::size_t>(line));
  while (!text.empty() && (text.back() == '\n' || text.back() == '\r')) text.remove_suffix(1);
  out = Value::Text(std::string(text));
  return true;
}

/// Replaces `count` lines from `line` on by a text; past the end it is appended.
void Splice(ObjectWorld& world, ObjectRecord& box, std::int64_t line, std::size_t count,
            std::string_view with) {
  const std::size_t lines = LineCountOf(box);
  const auto first =
      static_cast<std::size_t>(std::clamp<std::int64_t>(line, 0, static_cast<std::int64_t>(lines)));
  const std::size_t last = std::min(first + count, lines);
  const std::vector<std::size_t>& starts = StartsOf(box);
  std::string text(TextOf(box));
  const std::size_t from = first < starts.size() ? starts[first] : text.size();
  const std::size_t to = last < starts.size() ? starts[last] : text.size();
  std::string put(with);
  // A line behind one without an end begins a line of its own.
  if (!put.empty() && from == text.size() && from > 0 && text.back() != '\n') {
    put.insert(0, "\r\n");
  }
  text.replace(from, to - from, put);
  SetTextOf(world, box, std::move(text));
}

bool SetLine(ObjectWorld& world, ObjectRecord& box, const MemberInfo& /*member*/,
             std::span<const Value> index, const Value& in) {
  Splice(world, box, index[0].AsInteger(), 1, in.AsText() + "\r\n");
  return true;
}

bool CountLines(ObjectWorld& /*world*/, ObjectRecord& box, const MemberInfo& /*member*/,
                std::span<const Value> /*index*/, Value& out) {
  out = Value::Integer(static_cast<std::int64_t>(LineCountOf(box)));
  return true;
}

bool InsertLine(ObjectWorld& world, ObjectRecord& box, const MemberInfo& /*member*/,
                std::span<Value> arguments, Value& /*result*/) {
  Splice(world, box, arguments[0].AsInteger(), 0, arguments[1].AsText() + "\r\n");
  return true;
}

bool DeleteLine(ObjectWorld& world, ObjectRecord& box, const MemberInfo& /*member*/,
                std::span<Value> arguments, Value& /*result*/) {
  Splice(world, box, arguments[0].AsInteger(), 1, {});
  return true;
}

bool AddStrings(ObjectWorld& world, ObjectRecord& box, const MemberInfo& /*member*/,
                std::span<Value> arguments, Value& /*result*/) {
  std::string lines;
  for (const Value& argument : arguments) lines += argument.AsText() + "\r\n";
  Splice(world, box, static_cast<std::int64_t>(LineCountOf(box)), 0, lines);
  return true;
}

bool GetColumn(ObjectWorld& world, ObjectRecord& box, const MemberInfo& /*member*/,
               std::span<const Value> /*index*/, Value& out) {
  const std::size_t caret = SelectionOf(world, box).Start;
  const std::size_t end = caret == 0 ? std::string_view::npos : TextOf(box).rfind('\n', caret - 1);
  out = Value::Integer(
      static_cast<std::int64_t>(end == std::string_view::npos ? caret : caret - end - 1));
  return true;
}

bool GetRow(ObjectWorld& world, ObjectRecord& box, const MemberInfo& /*member*/,
            std::span<const Value> /*index*/, Value& out) {
  const std::string_view before = TextOf(box).substr(0, SelectionOf(world, box).Start);
  out = Value::Integer(std::count(before.begin(), before.end(), '\n'));
  return true;
}

// --- Files and streams

void TakeContent(ObjectWorld& world, ObjectRecord& box, std::string bytes) {
  const bool plain = box.Truth(Word::PlainText) || !IsRichText(bytes);
  SetTextOf(world, box, plain ? std::move(bytes) : PlainTextOf(bytes));
}

std::string ContentOf(const ObjectRecord& box) {
  return box.Truth(Word::PlainText) ? std::string(TextOf(box)) : RichTextOf(TextOf(box));
}

bool LoadFromFile(ObjectWorld& world, ObjectRecord& box, const MemberInfo& /*member*/,
                  std::span<Value> arguments, Value& /*result*/) {
  std::optional<std::string> bytes = ReadTextFile(world, box, arguments[0].AsText());
  if (bytes) TakeContent(world, box, *std::move(bytes));
  return true;
}

bool SaveToFile(ObjectWorld& world, ObjectRecord& box, const MemberInfo& /*member*/,
                std::span<Value> arguments, Value& /*result*/) {
  if (!WriteTextFile(world, box, arguments[0].AsText(), ContentOf(box))) return false;
  box.Put(Word::Modified, Value::Integer(0));
  return true;
}

bool LoadFromStream(ObjectWorld& world, ObjectRecord& box, const MemberInfo& /*member*/,
                    std::span<Value> arguments, Value& /*result*/) {
  Stream stream(world, arguments[0].AsObject());
  if (!stream.Check()) return false;
  const std::int64_t count = arguments.size() > 1 ? arguments[1].AsInteger() : 0;
  TakeContent(world, box, stream.Read(count > 0 ? count : stream.Size() - stream.Position()));
  return true;
}

bool SaveToStream(ObjectWorld& world, ObjectRecord& box, const MemberInfo& /*member*/,
                  std::span<Value> arguments, Value& /*result*/) {
  Stream stream(world, arguments[0].AsObject());
  return stream.Check() && stream.Write(ContentOf(box));
}

/// The font of what is selected: known to the widget alone.
bool SetSelAttributes(ObjectWorld& world, ObjectRecord& box, const MemberInfo& member,
                      std::span<const Value> /*index*/, const Value& in) {
  Value font = in;
  Value nothing;
  if (box.Realised) world.Widgets().Invoke(box, member, {&font, 1}, nothing);
  return true;
}

/// Without a mask the text that is edited is the text.
bool GetEditText(ObjectWorld& world, ObjectRecord& box, const MemberInfo& member,
                 std::span<const Value> index, Value& out) {
  if (box.Realised && !box.Text(Word::InputMask).empty()) {
    return LiveValue(world, box, member, index, out);
  }
  out = box.At(Word::Text);
  return true;
}

bool IsMasked(ObjectWorld& /*world*/, ObjectRecord& box, const MemberInfo& /*member*/,
              std::span<const Value> /*index*/, Value& out) {
  out = Value::Integer(box.Text(Word::InputMask).empty() ? 0 : 1);
  return true;
}

bool SetEditText(ObjectWorld& world, ObjectRecord& box, const MemberInfo& /*member*/,
                 std::span<const Value> index, const Value& in) {
  return SetText(world, box, *box.Info().Find(Word::Text), index, in);
}

using enum ObjectClass;
constexpr Behaviour kText{.Set = SetText, .Changed = TextChanged};
constexpr BehaviourRow kRows[] = {
    {QEdit, Word::Text, kText},
    {QRichEdit, Word::Text, kText},
    {QEdit, Word::EditText, {.Get = GetEditText, .Set = SetEditText}},
    {QEdit, Word::IsMasked, {.Get = IsMasked}},
    {None, Word::SelText, {.Get = GetSelected, .Set = SetSelected}},
    {None, Word::SelStart, {.Get = LiveValue}},
    {None, Word::SelLength, {.Get = LiveValue}},
    {None, Word::SelectAll, {.Call = SelectAll}},
    {None, Word::ClearSelection, {.Call = ClearSelection}},
    {None, Word::CopyToClipboard, {.Call = Copy}},
    {None, Word::CutToClipboard, {.Call = Copy}},
    {None, Word::PasteFromClipboard, {.Call = Paste}},
    {QEdit, Word::Clear, {.Call = Clear}},
    {QRichEdit, Word::Clear, {.Call = Clear}},
    {QRichEdit, Word::Line, {.Get = GetLine, .Set = SetLine}},
    {QRichEdit, Word::LineCount, {.Get = CountLines}},
    {QRichEdit, Word::InsertLine, {.Call = InsertLine}},
    {QRichEdit, Word::DeleteLine, {.Call = DeleteLine}},
    {QRichEdit, Word::AddStrings, {.Call = AddStrings}},
    {QRichEdit, Word::WhereX, {.Get = GetColumn}},
    {QRichEdit, Word::WhereY, {.Get = GetRow}},
    {QRichEdit, Word::LoadFromFile, {.Call = LoadFromFile}},
    {QRichEdit, Word::SaveToFile, {.Call = SaveToFile}},
    {QRichEdit, Word::LoadFromStream, {.Call = LoadFromStream}},
    {QRichEdit, Word::SaveToStream, {.Call = SaveToStream}},
    {QRichEdit, Word::SelAttributes, {.Set = SetSelAttributes}},
};

}  // namespace

BehaviourRows TextBehaviour() {
  return kRows;
}

}  // namespace tarnwick::objects
