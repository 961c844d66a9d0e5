// Pictures, and drawing on them, on forms and on lists.
#include "objects/behaviour.h"

namespace tarnwick::objects {
namespace {

/// The port keeps what is drawn, whether or not the object is shown yet.
bool Draw(ObjectWorld& world, ObjectRecord& object, const MemberInfo& method,
          std::span<Value> arguments, Value& result) {
  object.Drawn = true;
  world.Widgets().Invoke(object, method, arguments, result);
  return true;
}

bool SetPixel(ObjectWorld& world, ObjectRecord& object, const MemberInfo& /*member*/,
              std::span<const Value> index, const Value& in) {
  Value arguments[] = {index[0], index[1], in};
  Value nothing;
  return Draw(world, object, *object.Info().Find(Word::PSet), arguments, nothing);
}

bool GetPixel(ObjectWorld& world, ObjectRecord& object, const MemberInfo& member,
              std::span<const Value> index, Value& out) {
  if (!world.Widgets().Live(object, member, index, out)) out = Value::Integer(0);
  return true;
}

bool Measure(ObjectWorld& world, ObjectRecord& object, const MemberInfo& method,
             std::span<Value> arguments, Value& result) {
  const TextSize size = world.Widgets().Measure(world.FontOf(object), arguments[0].AsText(), 0);
  result = Value::Integer(method.Name == Word::TextWidth ? size.Width : size.Height);
  return true;
}

/// A picture that is read stands for the object that has it, so that it can be drawn elsewhere.
bool GetPicture(ObjectWorld& /*world*/, ObjectRecord& object, const MemberInfo& /*member*/,
                std::span<const Value> /*index*/, Value& out) {
  out = Value::Object(object.Id);
  return true;
}

/// Assigning a picture wipes what was drawn, also when it is the same file once more.
bool SetPicture(ObjectWorld& world, ObjectRecord& object, const MemberInfo& member,
                std::span<const Value> /*index*/, const Value& in) {
  object.Values[member.Slot] = in;
  if (object.Realised || object.Drawn || object.Is(ObjectClass::QBitmap)) {
    object.Drawn = object.Drawn || object.Is(ObjectClass::QBitmap);
    world.Widgets().Apply(object, member);
  }
  return true;
}

using enum ObjectClass;
constexpr BehaviourRow kRows[] = {
    {None, Word::Circle, {.Call = Draw}},
    {None, Word::CopyRect, {.Call = Draw}},
    {None, Word::Draw, {.Call = Draw}},
    {None, Word::FillRect, {.Call = Draw}},
    {QForm, Word::ShapeForm, {.Call = Draw}},
    {QForm, Word::Line, {.Call = Draw}},
    {QImage, Word::Line, {.Call = Draw}},
    {QCanvas, Word::Line, {.Call = Draw}},
    {QBitmap, Word::Line, {.Call = Draw}},
    {QListBox, Word::Line, {.Call = Draw}},
    {QComboBox, Word::Line, {.Call = Draw}},
    {QStringGrid, Word::Line, {.Call = Draw}},
    {None, Word::Paint, {.Call = Draw}},
    {None, Word::PSet, {.Call = Draw}},
    {None, Word::Rectangle, {.Call = Draw}},
    {None, Word::RoundRect, {.Call = Draw}},
    {None, Word::StretchDraw, {.Call = Draw}},
    {None, Word::TextOut, {.Call = Draw}},
    {None, Word::TextRect, {.Call = Draw}},
    {None, Word::TextWidth, {.Call = Measure}},
    {None, Word::TextHeight, {.Call = Measure}},
    {None, Word::Pixel, {.Get = GetPixel, .Set = SetPixel}},
    {QImage, Word::Bmp, {.Get = GetPicture, .Set = SetPicture}},
    {QButton, Word::Bmp, {.Get = GetPicture, .Set = SetPicture}},
    {QCoolBtn, Word::Bmp, {.Get = GetPicture, .Set = SetPicture}},
    {QBitmap, Word::Bmp, {.Get = GetPicture, .Set = SetPicture}},
    {QImage, Word::BMPHandle, {.Set = SetPicture}},
    {QImage, Word::Icon, {.Set = SetPicture}},
    {QImage, Word::IcoHandle, {.Set = SetPicture}},
    {QBitmap, Word::BMPHandle, {.Set = SetPicture}},
    {QImage, Word::SaveToFile, {.Call = Draw}},
    {QImage, Word::SaveToStream, {.Call = Draw}},
    {QImage, Word::LoadFromStream, {.Call = Draw}},
    {QBitmap, Word::SaveToFile, {.Call = Draw}},
    {QBitmap, Word::SaveToStream, {.Call = Draw}},
    {QBitmap, Word::LoadFromStream, {.Call = Draw}},
};

}  // namespace

BehaviourRows PictureBehaviour() {
  return kRows;
}

}  // namespace tarnwick::objects
