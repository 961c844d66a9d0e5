// Fonts: an object copies the values of the font that is assigned to it.
#include <cmath>

#include "objects/behaviour.h"

namespace tarnwick::objects {
namespace {

constexpr double kPixelsPerInch = 96;
constexpr double kPointsPerInch = 72;

bool SetFont(ObjectWorld& world, ObjectRecord& object, const MemberInfo& /*member*/,
             std::span<const Value> /*index*/, const Value& in) {
  const ObjectRecord* const source = world.Find(in.AsObject());
  if (source == nullptr || !source->Is(ObjectClass::QFont)) {
    return world.Fail("A font is a QFONT object");
  }
  ObjectRecord& own = world.OwnFont(object);
  const bool other = world.FontOf(own) != world.FontOf(*world.Find(in.AsObject()));
  own.Values = world.Find(in.AsObject())->Values;
  if (!other) return true;
  world.Show(object, Word::Font);
  FitText(world, object);
  return true;
}

bool GetFont(ObjectWorld& world, ObjectRecord& object, const MemberInfo& /*member*/,
             std::span<const Value> /*index*/, Value& out) {
  out = Value::Object(world.OwnFont(object).Id);
  return true;
}

void Follow(ObjectWorld& world, ObjectRecord& font, const MemberInfo& /*member*/,
            Origin /*origin*/) {
  world.Show(font, Word::Name);
  if (ObjectRecord* const owner = world.Find(font.Parent)) FitText(world, *owner);
}

void SizeFollows(ObjectWorld& world, ObjectRecord& font, const MemberInfo& member, Origin origin) {
  const double pixels = static_cast<double>(font.Number(Word::Size)) * kPixelsPerInch;
  font.Put(Word::Height, Value::Integer(-std::lround(pixels / kPointsPerInch)));
  Follow(world, font, member, origin);
}

/// Pixels of the letters; a negative number leaves out the space above them.
void HeightFollows(ObjectWorld& world, ObjectRecord& font, const MemberInfo& member,
                   Origin origin) {
  const double points = std::abs(static_cast<double>(font.Number(Word::Height))) * kPointsPerInch;
  font.Put(Word::Size, Value::Integer(std::lround(points / kPixelsPerInch)));
  Follow(world, font, member, origin);
}

bool ChangeStyles(ObjectWorld& world, ObjectRecord& font, const MemberInfo& method,
                  std::span<Value> arguments, Value& /*result*/) {
  constexpr Word kStyles[] = {Word::Bold, Word::Italic, Word::Underline, Word::StrikeOut};
  const Value value = Value::Integer(method.Name == Word::AddStyles ? 1 : 0);
  for (const Value& argument : arguments) {
    const std::int64_t style = argument.AsInteger();
    if (style < 0 || style >= static_cast<std::int64_t>(std::size(kStyles))) continue;
    world.Change(font, kStyles[style], value, Origin::Code);
  }
  return true;
}

using enum ObjectClass;
constexpr BehaviourRow kRows[] = {
    {None, Word::Font, {.Get = GetFont, .Set = SetFont}},
    {QFont, Word::Name, {.Changed = Follow}},
    {QFont, Word::Size, {.Changed = SizeFollows}},
    {QFont, Word::Height, {.Changed = HeightFollows}},
    {QFont, Word::Color, {.Changed = Follow}},
    {QFont, Word::Bold, {.Changed = Follow}},
    {QFont, Word::Italic, {.Changed = Follow}},
    {QFont, Word::Underline, {.Changed = Follow}},
    {QFont, Word::StrikeOut, {.Changed = Follow}},
    {QFont, Word::AddStyles, {.Call = ChangeStyles}},
    {QFont, Word::DelStyles, {.Call = ChangeStyles}},
};

}  // namespace

BehaviourRows FontBehaviour() {
  return kRows;
}

}  // namespace tarnwick::objects
