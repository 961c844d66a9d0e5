// The objects that are there without a DIM: the program, the screen, the clipboard.
#include "objects/behaviour.h"

namespace tarnwick::objects {
namespace {

bool Terminate(ObjectWorld& world, ObjectRecord& /*object*/, const MemberInfo& /*member*/,
               std::span<Value> /*arguments*/, Value& /*result*/) {
  world.Terminate();
  return true;
}

bool ClearClipboard(ObjectWorld& world, ObjectRecord& clipboard, const MemberInfo& /*member*/,
                    std::span<Value> /*arguments*/, Value& /*result*/) {
  world.Change(clipboard, Word::Text, Value::Text({}), Origin::Code);
  return true;
}

bool HasText(ObjectWorld& world, ObjectRecord& clipboard) {
  Value text;
  LiveValue(world, clipboard, *clipboard.Info().Find(Word::Text), {}, text);
  return !text.View().empty();
}

bool HasFormat(ObjectWorld& world, ObjectRecord& clipboard, const MemberInfo& method,
               std::span<Value> arguments, Value& result) {
  constexpr std::int64_t kText = 1;
  result = Value::Integer(0);
  if (world.Widgets().Invoke(clipboard, method, arguments, result)) return true;
  if (arguments[0].AsInteger() == kText && HasText(world, clipboard)) result = Value::Integer(1);
  return true;
}

bool CountFormats(ObjectWorld& world, ObjectRecord& clipboard, const MemberInfo& /*member*/,
                  std::span<const Value> /*index*/, Value& out) {
  out = Value::Integer(HasText(world, clipboard) ? 1 : 0);
  return true;
}

/// What is copied is there at once, whether or not the clipboard was opened.
bool Nothing(ObjectWorld& /*world*/, ObjectRecord& /*object*/, const MemberInfo& /*member*/,
             std::span<Value> /*arguments*/, Value& /*result*/) {
  return true;
}

/// The clipboard is not the program's own: a text that it holds already may be another by now.
bool SetClipboard(ObjectWorld& world, ObjectRecord& clipboard, const MemberInfo& member,
                  std::span<const Value> /*index*/, const Value& in) {
  clipboard.Put(member.Name, Value::Text(in.AsText()));
  world.Show(clipboard, member.Name);
  return true;
}

using enum ObjectClass;
constexpr BehaviourRow kRows[] = {
    {Application, Word::Terminate, {.Call = Terminate}},
    {Application, Word::Active, {.Get = LiveValue}},
    {Screen, Word::Width, {.Get = LiveValue}},
    {Screen, Word::Height, {.Get = LiveValue}},
    {Screen, Word::MouseX, {.Get = LiveValue}},
    {Screen, Word::MouseY, {.Get = LiveValue}},
    {Screen, Word::FontCount, {.Get = LiveValue}},
    {Screen, Word::FontName, {.Get = LiveValue}},
    {Screen, Word::Cursors, {.Get = LiveValue}},
    {Clipboard, Word::Text, {.Get = LiveValue, .Set = SetClipboard}},
    {Clipboard, Word::Clear, {.Call = ClearClipboard}},
    {Clipboard, Word::HasFormat, {.Call = HasFormat}},
    {Clipboard, Word::FormatCount, {.Get = CountFormats}},
    {Clipboard, Word::Open, {.Call = Nothing}},
    {Clipboard, Word::Close, {.Call = Nothing}},
};

}  // namespace

BehaviourRows SystemBehaviour() {
  return kRows;
}

}  // namespace tarnwick::objects
