// Dialogs in which the user picks files or a font.
#include "objects/behaviour.h"

namespace tarnwick::objects {
namespace {

bool Execute(ObjectWorld& world, ObjectRecord& dialog, const MemberInfo& /*member*/,
             std::span<Value> /*arguments*/, Value& result) {
  const ObjectId id = dialog.Id;
  PickedNames picked = world.Widgets().PickFiles(dialog);
  result = Value::Integer(0);
  ObjectRecord* const after = world.Find(id);
  if (after == nullptr || picked.Files.empty()) return true;
  after->Put(Word::FileName, Value::Text(picked.Files.front()));
  if (picked.FilterIndex > 0) after->Put(Word::FilterIndex, Value::Integer(picked.FilterIndex));
  after->As<PickedFiles>()->Files = std::move(picked.Files);
  result = Value::Integer(1);
  return true;
}

bool ExecuteWidget(ObjectWorld& world, ObjectRecord& dialog, const MemberInfo& method,
                   std::span<Value> arguments, Value& result) {
  result = Value::Integer(0);
  world.OwnFont(dialog);
  world.Widgets().Invoke(dialog, method, arguments, result);
  return true;
}

bool GetFile(ObjectWorld& world, ObjectRecord& dialog, const MemberInfo& /*member*/,
             std::span<const Value> index, Value& out) {
  const std::vector<std::string>& files = dialog.As<PickedFiles>()->Files;
  const std::int64_t number = index[0].AsInteger();
  if (number < 0 || number >= static_cast<std::int64_t>(files.size())) {
    return world.Fail(dialog.FullName() + " has no file " + std::to_string(number) + ": it has " +
                      std::to_string(files.size()) + ", counted from 0");
  }
  out = Value::Text(files[static_cast<std::size_t>(number)]);
  return true;
}

bool ChangeOptions(ObjectWorld& /*world*/, ObjectRecord& dialog, const MemberInfo& method,
                   std::span<Value> arguments, Value& /*result*/) {
  std::int64_t& options = dialog.As<PickedFiles>()->Options;
  for (const Value& argument : arguments) {
    const std::int64_t option = argument.AsInteger();
    if (option < 0 || option > 31) continue;
    const std::int64_t bit = std::int64_t{1} << option;
    options = method.Name == Word::AddOptions ? options | bit : options & ~bit;
  }
  return true;
}

/// Pictures of a list are known by their files.
bool AddPictures(ObjectWorld& world, ObjectRecord& list, const MemberInfo& method,
                 std::span<Value> arguments, Value& /*result*/) {
  const bool handles = method.Name == Word::AddBMPHandle || method.Name == Word::AddICOHandle;
  for (const Value& argument : arguments) {
    list.As<PickedFiles>()->Files.push_back(
        handles ? std::string(world.ResourceFile(argument.AsInteger())) : argument.AsText());
  }
  return true;
}

bool CountPictures(ObjectWorld& /*world*/, ObjectRecord& list, const MemberInfo& /*member*/,
                   std::span<const Value> /*index*/, Value& out) {
  out = Value::Integer(static_cast<std::int64_t>(list.As<PickedFiles>()->Files.size()));
  return true;
}

bool ClearPictures(ObjectWorld& /*world*/, ObjectRecord& list, const MemberInfo& /*member*/,
                   std::span<Value> /*arguments*/, Value& /*result*/) {
  list.As<PickedFiles>()->Files.clear();
  return true;
}

using enum ObjectClass;
constexpr BehaviourRow kRows[] = {
    {QOpenDialog, Word::Execute, {.Call = Execute}},
    {QSaveDialog, Word::Execute, {.Call = Execute}},
    {QFontDialog, Word::Execute, {.Call = ExecuteWidget}},
    {QOpenDialog, Word::Files, {.Get = GetFile}},
    {QOpenDialog, Word::AddOptions, {.Call = ChangeOptions}},
    {QOpenDialog, Word::DelOptions, {.Call = ChangeOptions}},
    {QSaveDialog, Word::AddOptions, {.Call = ChangeOptions}},
    {QSaveDialog, Word::DelOptions, {.Call = ChangeOptions}},
    {QImageList, Word::AddBMPFile, {.Call = AddPictures}},
    {QImageList, Word::AddICOFile, {.Call = AddPictures}},
    {QImageList, Word::AddBMPHandle, {.Call = AddPictures}},
    {QImageList, Word::AddICOHandle, {.Call = AddPictures}},
    {QImageList, Word::Count, {.Get = CountPictures}},
    {QImageList, Word::Clear, {.Call = ClearPictures}},
};

}  // namespace

BehaviourRows DialogBehaviour() {
  return kRows;
}

}  // namespace tarnwick::objects
