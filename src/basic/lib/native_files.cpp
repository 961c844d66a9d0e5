#include "basic/hosts/file_host.h"
#include "basic/lib/native_help.h"
#include "basic/lib/native_table.h"
#include "basic/semantics.h"

namespace tarnwick::basic {
namespace {

/// A change on the disk that failed is a note, and the program goes on: it may well ask afterwards
/// whether the file is there.
void NoteUnless(LibraryCall& call, bool done, std::string note) {
  if (!done) call.State.Notes.push_back(std::move(note));
}

/// A statement with one path.
template <bool (FileHost::*kChange)(std::string_view)>
void OfPath(LibraryCall& call, const char* what) {
  FileHost* files = NeedFiles(call);
  if (files == nullptr) return;
  const std::string_view path = TextAt(call, 0);
  NoteUnless(call, (files->*kChange)(path), what + (" \"" + std::string(path)) + '"');
}

void Chdir(LibraryCall& call) {
  OfPath<&FileHost::ChangeFolder>(call, "CHDIR: there is no folder");
}

void Chdrive(LibraryCall& call) {
  OfPath<&FileHost::ChangeDrive>(call, "CHDRIVE: there is no drive");
}

void Kill(LibraryCall& call) {
  OfPath<&FileHost::Delete>(call, "KILL could not delete");
}

void Mkdir(LibraryCall& call) {
  OfPath<&FileHost::MakeFolder>(call, "MKDIR could not make the folder");
}

void Rmdir(LibraryCall& call) {
  OfPath<&FileHost::RemoveFolder>(call, "RMDIR could not remove the folder");
}

void Rename(LibraryCall& call) {
  FileHost* files = NeedFiles(call);
  if (files == nullptr) return;
  const std::string from(TextAt(call, 0));
  const std::string to(TextAt(call, 1));
  NoteUnless(call, files->Rename(from, to),
             "RENAME could not rename \"" + from + "\" to \"" + to + '"');
}

void Curdir(LibraryCall& call) {
  if (FileHost* files = NeedFiles(call)) call.Result = Value::Text(files->CurrentFolder());
}

void DirExists(LibraryCall& call) {
  if (FileHost* files = NeedFiles(call)) {
    call.Result = Value::Truth(files->FolderExists(TextAt(call, 0)));
  }
}

void FileExists(LibraryCall& call) {
  if (FileHost* files = NeedFiles(call)) {
    call.Result = Value::Truth(files->FileExists(TextAt(call, 0)));
  }
}

/// With a mask the first match, with "" or nothing the next one; "" when there is none left.
void Dir(LibraryCall& call) {
  FileHost* files = NeedFiles(call);
  if (files == nullptr) return;
  LibraryState& state = call.State;
  const std::string_view mask = TextAt(call, 0);
  if (!mask.empty()) {
    state.Found = files->List(mask, IntAt(call, 1));
    state.NextFound = 0;
  }
  const bool more = state.NextFound < state.Found.size();
  ReturnText(call, more ? std::string_view(state.Found[state.NextFound].Name) : "");
  if (more) ++state.NextFound;
}

/// The handle of the n-th resource, from 0.
void Resource(LibraryCall& call) {
  const std::int64_t number = WholeOr(call, 0, 0);
  const auto count = static_cast<std::int64_t>(call.State.Resources.size());
  if (number < 0 || number >= count) {
    return call.Fail("RESOURCE(" + std::to_string(number) + "): the program has " +
                     std::to_string(count) + " resources, counted from 0");
  }
  call.Result = Value::Integer(kFirstResource + number);
}

void ResourceCount(LibraryCall& call) {
  call.Result = Value::Integer(static_cast<std::int64_t>(call.State.Resources.size()));
}

/// Copies one open file into another; false when a part could not be written.
bool CopyAll(FileStream& from, FileStream& to) {
  constexpr std::size_t kPiece = std::size_t{64} << 10U;
  for (;;) {
    const std::string piece = from.Read(kPiece);
    if (piece.empty()) return true;
    if (!to.Write(piece)) return false;
  }
}

void ExtractResource(LibraryCall& call) {
  FileHost* files = NeedFiles(call);
  if (files == nullptr) return;
  const std::int64_t handle = WholeOr(call, 0, 0);
  const auto count = static_cast<std::int64_t>(call.State.Resources.size());
  if (handle < kFirstResource || handle - kFirstResource >= count) {
    return call.Fail("EXTRACTRESOURCE: this number is no resource of the program");
  }
  const auto index = static_cast<std::size_t>(handle - kFirstResource);
  const std::string& source = call.State.Resources[index];
  const std::string target(TextAt(call, 1));
  const auto from = files->Open(source, FileMode::Read);
  const auto to = from ? files->Open(target, FileMode::Create) : nullptr;
  NoteUnless(call, from && to && CopyAll(*from, *to),
             "EXTRACTRESOURCE could not copy \"" + source + "\" to \"" + target + '"');
}

constexpr NativeRow kRows[] = {
    {FunctionId::Chdir, Chdir},           {FunctionId::Chdrive, Chdrive},
    {FunctionId::Curdir, Curdir},         {FunctionId::Dir, Dir},
    {FunctionId::DirExists, DirExists},   {FunctionId::ExtractResource, ExtractResource},
    {FunctionId::FileExists, FileExists}, {FunctionId::Kill, Kill},
    {FunctionId::Mkdir, Mkdir},           {FunctionId::Rename, Rename},
    {FunctionId::Resource, Resource},     {FunctionId::ResourceCount, ResourceCount},
    {FunctionId::Rmdir, Rmdir},
};

}  // namespace

std::span<const NativeRow> FileNatives() {
  return kRows;
}

}  // namespace tarnwick::basic
