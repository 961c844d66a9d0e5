#include "objects/streams.h"

#include <algorithm>

#include "objects/behaviour.h"
#include "objects/text_files.h"

namespace tarnwick::objects {

Stream::Stream(ObjectWorld& world, ObjectId object)
    : world_(world),
      object_(world.Find(object)),
      state_(object_ == nullptr ? nullptr : object_->As<StreamState>()) {}

Stream::Stream(ObjectWorld& world, ObjectRecord& object)
    : world_(world), object_(&object), state_(object.As<StreamState>()) {}

bool Stream::Check() {
  if (state_ == nullptr) return world_.Fail("A QFILESTREAM or QMEMORYSTREAM is expected here");
  if (object_->Is(ObjectClass::QMemoryStream) || state_->File != nullptr) return true;
  return world_.Fail(object_->FullName() + " is not open");
}

std::string Stream::Read(std::int64_t count) {
  if (count <= 0) return {};
  count = std::min(count, std::max<std::int64_t>(Size() - Position(), 0));
  if (state_->File != nullptr) return state_->File->Read(static_cast<std::size_t>(count));
  std::string bytes =
      state_->Bytes.substr(static_cast<std::size_t>(std::min(state_->Position, Size())),
                           static_cast<std::size_t>(count));
  state_->Position += count;
  return bytes;
}

std::string Stream::ReadLine() {
  constexpr std::int64_t kPiece = 256;
  const std::int64_t start = Position();
  std::string line;
  std::size_t end = std::string::npos;
  std::int64_t piece = kPiece;
  while (end == std::string::npos) {
    const std::string bytes = Read(piece);
    if (bytes.empty()) break;
    end = bytes.find('\n');
    if (end != std::string::npos) end += line.size();
    line += bytes;
    piece *= 2;
  }
  if (end == std::string::npos) return line;
  Seek(start + static_cast<std::int64_t>(end) + 1);
  line.resize(end);
  if (!line.empty() && line.back() == '\r') line.pop_back();
  return line;
}

bool Stream::Write(std::string_view bytes) {
  if (bytes.empty()) return true;
  if (state_->File != nullptr) {
    return state_->File->Write(bytes) ||
           world_.Fail(object_->FullName() + ": the file " + state_->Path + " cannot be written");
  }
  const std::int64_t end = state_->Position + static_cast<std::int64_t>(bytes.size());
  if (end > kMostStreamBytes) {
    return world_.Fail(object_->FullName() + " holds more than " +
                       std::to_string(kMostStreamBytes) + " bytes");
  }
  if (end > Size()) state_->Bytes.resize(static_cast<std::size_t>(end));
  state_->Bytes.replace(static_cast<std::size_t>(state_->Position), bytes.size(), bytes);
  state_->Position = end;
  return true;
}

std::int64_t Stream::Position() {
  return state_->File != nullptr ? state_->File->Position() : state_->Position;
}

void Stream::Seek(std::int64_t position) {
  position = std::max<std::int64_t>(position, 0);
  if (state_->File != nullptr) {
    state_->File->Seek(position);
  } else {
    state_->Position = position;
  }
}

std::int64_t Stream::Size() {
  return state_->File != nullptr ? state_->File->Size()
                                 : static_cast<std::int64_t>(state_->Bytes.size());
}

namespace {

constexpr std::int64_t kCreate = 65535;

bool Open(ObjectWorld& world, ObjectRecord& object, const MemberInfo& /*member*/,
          std::span<Value> arguments, Value& result) {
  constexpr basic::FileMode kModes[] = {basic::FileMode::Read, basic::FileMode::Write,
                                        basic::FileMode::ReadWrite};
  StreamState& state = *object.As<StreamState>();
  state.File.reset();
  state.Path = arguments[0].AsText();
  const std::int64_t mode = arguments.size() > 1 ? arguments[1].AsInteger() : 0;
  const basic::FileMode how =
      mode == kCreate ? basic::FileMode::Create : kModes[static_cast<std::size_t>(mode & 3) % 3];
  if (world.Files() != nullptr) state.File = world.Files()->Open(state.Path, how);
  if (state.File == nullptr) {
    world.Note(object.FullName() + ": the file " + state.Path + " cannot be opened");
  }
  result = Value::Truth(state.File != nullptr);
  return true;
}

/// Closes a file; a stream in memory is emptied.
bool Close(ObjectWorld& /*world*/, ObjectRecord& object, const MemberInfo& /*member*/,
           std::span<Value> /*arguments*/, Value& /*result*/) {
  object.State = StreamState();
  return true;
}

bool GetPosition(ObjectWorld& world, ObjectRecord& object, const MemberInfo& /*member*/,
                 std::span<const Value> /*index*/, Value& out) {
  Stream stream(world, object);
  if (!stream.Check()) return false;
  out = Value::Integer(stream.Position());
  return true;
}

bool SetPosition(ObjectWorld& world, ObjectRecord& object, const MemberInfo& /*member*/,
                 std::span<const Value> /*index*/, const Value& in) {
  Stream stream(world, object);
  if (!stream.Check()) return false;
  stream.Seek(in.AsInteger());
  return true;
}

bool GetSize(ObjectWorld& world, ObjectRecord& object, const MemberInfo& /*member*/,
             std::span<const Value> /*index*/, Value& out) {
  Stream stream(world, object);
  if (!stream.Check()) return false;
  out = Value::Integer(stream.Size());
  return true;
}

bool GetEnd(ObjectWorld& world, ObjectRecord& object, const MemberInfo& /*member*/,
            std::span<const Value> /*index*/, Value& out) {
  Stream stream(world, object);
  if (!stream.Check()) return false;
  out = Value::Truth(stream.Position() >= stream.Size());
  return true;
}

/// Line feeds, and a last line without one. The position stays.
bool CountLines(ObjectWorld& world, ObjectRecord& object, const MemberInfo& /*member*/,
                std::span<const Value> /*index*/, Value& out) {
  constexpr std::int64_t kPiece = 1 << 16;
  Stream stream(world, object);
  if (!stream.Check()) return false;
  const std::int64_t before = stream.Position();
  stream.Seek(0);
  std::int64_t count = 0;
  char last = '\n';
  for (std::string bytes = stream.Read(kPiece); !bytes.empty(); bytes = stream.Read(kPiece)) {
    count += std::count(bytes.begin(), bytes.end(), '\n');
    last = bytes.back();
  }
  stream.Seek(before);
  out = Value::Integer(count + (last == '\n' ? 0 : 1));
  return true;
}

bool Seek(ObjectWorld& world, ObjectRecord& object, const MemberInfo& /*member*/,
          std::span<Value> arguments, Value& /*result*/) {
  constexpr std::int64_t kFromCurrent = 1;
  constexpr std::int64_t kFromEnd = 2;
  Stream stream(world, object);
  if (!stream.Check()) return false;
  const std::int64_t origin = arguments.size() > 1 ? arguments[1].AsInteger() : 0;
  std::int64_t position = arguments[0].AsInteger();
  if (origin == kFromCurrent) position += stream.Position();
  if (origin == kFromEnd) position += stream.Size();
  stream.Seek(position);
  return true;
}

bool ReadLine(ObjectWorld& world, ObjectRecord& object, const MemberInfo& /*member*/,
              std::span<Value> /*arguments*/, Value& result) {
  Stream stream(world, object);
  if (!stream.Check()) return false;
  result = Value::Text(stream.ReadLine());
  return true;
}

bool ReadText(ObjectWorld& world, ObjectRecord& object, const MemberInfo& /*member*/,
              std::span<Value> arguments, Value& result) {
  Stream stream(world, object);
  if (!stream.Check()) return false;
  result = Value::Text(stream.Read(arguments[0].AsInteger()));
  return true;
}

bool WriteLine(ObjectWorld& world, ObjectRecord& object, const MemberInfo& /*member*/,
               std::span<Value> arguments, Value& /*result*/) {
  Stream stream(world, object);
  return stream.Check() && stream.Write(arguments[0].AsText() + "\r\n");
}

/// As many bytes as asked for: of a text that is shorter all, without a number all.
bool WriteText(ObjectWorld& world, ObjectRecord& object, const MemberInfo& /*member*/,
               std::span<Value> arguments, Value& /*result*/) {
  Stream stream(world, object);
  if (!stream.Check()) return false;
  const std::string text = arguments[0].AsText();
  std::size_t count = text.size();
  if (arguments.size() > 1) {
    count = static_cast<std::size_t>(std::max<std::int64_t>(arguments[1].AsInteger(), 0));
  }
  return stream.Write(std::string_view(text).substr(0, count));
}

/// Copies from the position of the other stream on; 0 bytes: all of it from its start.
bool CopyFrom(ObjectWorld& world, ObjectRecord& object, const MemberInfo& /*member*/,
              std::span<Value> arguments, Value& /*result*/) {
  constexpr std::int64_t kPiece = 1 << 16;
  Stream to(world, object);
  Stream from(world, arguments[0].AsObject());
  if (!to.Check() || !from.Check()) return false;
  std::int64_t count = arguments.size() > 1 ? arguments[1].AsInteger() : 0;
  if (count <= 0) {
    from.Seek(0);
    count = from.Size();
  }
  while (count > 0) {
    const std::string bytes = from.Read(std::min(count, kPiece));
    if (bytes.empty()) break;
    if (!to.Write(bytes)) return false;
    count -= static_cast<std::int64_t>(bytes.size());
  }
  return true;
}

bool ExtractResource(ObjectWorld& world, ObjectRecord& object, const MemberInfo& /*member*/,
                     std::span<Value> arguments, Value& /*result*/) {
  Stream stream(world, object);
  if (!stream.Check()) return false;
  const std::string path(world.ResourceFile(arguments[0].AsInteger()));
  const std::optional<std::string> bytes = ReadTextFile(world, object, path);
  return !bytes || stream.Write(*bytes);
}

bool LoadFromFile(ObjectWorld& world, ObjectRecord& object, const MemberInfo& /*member*/,
                  std::span<Value> arguments, Value& /*result*/) {
  std::optional<std::string> bytes = ReadTextFile(world, object, arguments[0].AsText());
  if (!bytes) return true;
  StreamState& state = *object.As<StreamState>();
  state.Bytes = *std::move(bytes);
  state.Position = 0;
  return true;
}

bool SaveToFile(ObjectWorld& world, ObjectRecord& object, const MemberInfo& /*member*/,
                std::span<Value> arguments, Value& /*result*/) {
  return WriteTextFile(world, object, arguments[0].AsText(), object.As<StreamState>()->Bytes);
}

using enum ObjectClass;
constexpr BehaviourRow kRows[] = {
    {QFileStream, Word::Open, {.Call = Open}},
    {QFileStream, Word::Close, {.Call = Close}},
    {QMemoryStream, Word::Close, {.Call = Close}},
    {QFileStream, Word::Position, {.Get = GetPosition, .Set = SetPosition}},
    {QMemoryStream, Word::Position, {.Get = GetPosition, .Set = SetPosition}},
    {QFileStream, Word::Size, {.Get = GetSize}},
    {QMemoryStream, Word::Size, {.Get = GetSize}},
    {None, Word::Eof, {.Get = GetEnd}},
    {QFileStream, Word::LineCount, {.Get = CountLines}},
    {QMemoryStream, Word::LineCount, {.Get = CountLines}},
    {None, Word::Seek, {.Call = Seek}},
    {None, Word::ReadLine, {.Call = ReadLine}},
    {None, Word::ReadStr, {.Call = ReadText}},
    {None, Word::ReadBinStr, {.Call = ReadText}},
    {None, Word::WriteLine, {.Call = WriteLine}},
    {None, Word::WriteStr, {.Call = WriteText}},
    {None, Word::WriteBinStr, {.Call = WriteText}},
    {None, Word::CopyFrom, {.Call = CopyFrom}},
    {None, Word::ExtractRes, {.Call = ExtractResource}},
    {QMemoryStream, Word::LoadFromFile, {.Call = LoadFromFile}},
    {QMemoryStream, Word::SaveToFile, {.Call = SaveToFile}},
};

}  // namespace

BehaviourRows StreamBehaviour() {
  return kRows;
}

}  // namespace tarnwick::objects
