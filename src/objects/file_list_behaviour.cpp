// Lists of the files of a folder.
#include <algorithm>
#include <set>

#include "basic/hosts/file_host.h"
#include "objects/behaviour.h"
#include "text/code_page.h"
#include "text/path_text.h"
#include "text/strings.h"

namespace tarnwick::objects {
namespace {

/// Kinds of files by their numbers in AddFileTypes, and their bits of a file.
struct TypeRow {
  std::uint32_t Type;
  int Attribute;
  bool Hides;  ///< files with the attribute are not listed unless this kind is asked for
};
constexpr TypeRow kTypes[] = {
    {0, 1, false}, {1, 2, true}, {2, 4, true}, {4, 16, true}, {5, 32, false}};
constexpr std::uint32_t kNormal = 6;
constexpr int kFolder = 16;
constexpr int kAnything = 1 | 2 | 4 | kFolder | 32;

bool HasType(const ListItems& list, std::uint32_t type) {
  return (list.FileTypes >> type & 1U) != 0;
}

bool IsListed(const ListItems& list, int attributes) {
  bool wanted = HasType(list, kNormal);
  for (const TypeRow& row : kTypes) {
    if ((attributes & row.Attribute) == 0) continue;
    if (!HasType(list, row.Type) && row.Hides) return false;
    wanted = wanted || HasType(list, row.Type);
  }
  return wanted;
}

/// The folder of a list as a full path without a "\" at its end, that of a drive alone excepted.
std::string FolderOfList(ObjectWorld& world, const ObjectRecord& list) {
  std::string folder(list.Text(Word::Directory));
  const bool full = folder.find(':') != std::string::npos || folder.starts_with('\\');
  if (!full && world.Files() != nullptr) {
    const std::string current = world.Files()->CurrentFolder();
    folder = folder.empty() ? current : current + "\\" + folder;
  }
  while (folder.size() > 1 && folder.ends_with('\\')) folder.pop_back();
  if (folder.ends_with(':')) folder += '\\';
  return folder;
}

std::string Joined(const std::string& folder, std::string_view name) {
  return folder + (folder.ends_with('\\') ? "" : "\\") + std::string(name);
}

/// The entries of the folder: first the folders in it, then the files, by name.
std::vector<std::string> EntriesOf(ObjectWorld& world, const ObjectRecord& list) {
  const ListItems& items = *list.As<ListItems>();
  const std::string folder = FolderOfList(world, list);
  const auto less = [](const std::string& a, const std::string& b) { return Lower(a) < Lower(b); };
  std::set<std::string, decltype(less)> folders(less);
  std::set<std::string, decltype(less)> files(less);
  const std::string masks(list.Text(Word::Mask));
  const std::string_view shown = masks.empty() ? std::string_view("*.*") : masks;
  for (const std::string_view part : Split(shown, ";")) {
    const std::string_view mask = Trim(part);
    if (mask.empty()) continue;
    for (basic::FileEntry& entry : world.Files()->List(Joined(folder, mask), kAnything)) {
      if (!IsListed(items, entry.Attributes)) continue;
      if ((entry.Attributes & kFolder) != 0) {
        folders.insert("[" + entry.Name + "]");
      } else {
        files.insert(std::move(entry.Name));
      }
    }
  }
  std::vector<std::string> entries;
  if (HasType(items, 4) && !folder.ends_with('\\')) entries.emplace_back("[..]");
  entries.insert(entries.end(), folders.begin(), folders.end());
  entries.insert(entries.end(), files.begin(), files.end());
  return entries;
}

void Refresh(ObjectWorld& world, ObjectRecord& list) {
  list.As<ListItems>()->Filled = true;
  if (world.Files() == nullptr) return;
  const std::string folder = FolderOfList(world, list);
  if (!world.Files()->FolderExists(folder)) {
    world.Note(list.FullName() + ": there is no folder " + folder);
  }
  FillList(world, list, EntriesOf(world, list));
}

bool Update(ObjectWorld& world, ObjectRecord& list, const MemberInfo& /*member*/,
            std::span<Value> /*arguments*/, Value& /*result*/) {
  Refresh(world, list);
  return true;
}

void SourceChanged(ObjectWorld& world, ObjectRecord& list, const MemberInfo& /*member*/,
                   Origin /*origin*/) {
  Refresh(world, list);
}

bool GetDirectory(ObjectWorld& world, ObjectRecord& list, const MemberInfo& /*member*/,
                  std::span<const Value> /*index*/, Value& out) {
  out = Value::Text(FolderOfList(world, list));
  return true;
}

bool ChangeTypes(ObjectWorld& world, ObjectRecord& list, const MemberInfo& method,
                 std::span<Value> arguments, Value& /*result*/) {
  std::uint32_t& types = list.As<ListItems>()->FileTypes;
  for (const Value& argument : arguments) {
    const std::int64_t type = argument.AsInteger();
    if (type < 0 || type > kNormal) continue;
    const std::uint32_t bit = std::uint32_t{1} << static_cast<unsigned>(type);
    types = method.Name == Word::AddFileTypes ? types | bit : types & ~bit;
  }
  Refresh(world, list);
  return true;
}

/// The full path of the entry that is picked; "" when none is.
bool GetFileName(ObjectWorld& world, ObjectRecord& list, const MemberInfo& /*member*/,
                 std::span<const Value> /*index*/, Value& out) {
  FillFileList(world, list);
  const std::vector<ListItems::Item>& items = list.As<ListItems>()->Items;
  const std::int64_t picked = list.Number(Word::ItemIndex);
  out = Value::Text({});
  if (picked < 0 || picked >= static_cast<std::int64_t>(items.size())) return true;
  std::string_view name = items[static_cast<std::size_t>(picked)].Text;
  if (name.starts_with('[') && name.ends_with(']')) name = name.substr(1, name.size() - 2);
  out = Value::Text(Joined(FolderOfList(world, list), name));
  return true;
}

/// A path sets the folder too; a name with a mask in it is a mask, any other one is picked.
bool SetFileName(ObjectWorld& world, ObjectRecord& list, const MemberInfo& /*member*/,
                 std::span<const Value> /*index*/, const Value& in) {
  const std::string path = in.AsText();
  const std::string_view folder = FolderOf(path);
  const std::string_view name = BareName(path);
  if (!folder.empty()) {
    world.Change(list, Word::Directory, Value::Text(std::string(folder)), Origin::Code);
  }
  if (name.find_first_of("*?") != std::string_view::npos) {
    world.Change(list, Word::Mask, Value::Text(std::string(name)), Origin::Code);
    return true;
  }
  FillFileList(world, list);
  const std::vector<ListItems::Item>& items = list.As<ListItems>()->Items;
  const auto found = std::find_if(items.begin(), items.end(), [&](const ListItems::Item& item) {
    return EqualsFolded(item.Text, name);
  });
  world.Change(list, Word::ItemIndex,
               Value::Integer(found == items.end() ? -1 : found - items.begin()), Origin::Code);
  return true;
}

using enum ObjectClass;
constexpr BehaviourRow kRows[] = {
    {QFileListBox, Word::Directory, {.Get = GetDirectory, .Changed = SourceChanged}},
    {QFileListBox, Word::Mask, {.Changed = SourceChanged}},
    {QFileListBox, Word::FileName, {.Get = GetFileName, .Set = SetFileName}},
    {QFileListBox, Word::AddFileTypes, {.Call = ChangeTypes}},
    {QFileListBox, Word::DelFileTypes, {.Call = ChangeTypes}},
    {QFileListBox, Word::Update, {.Call = Update}},
};

}  // namespace

void FillFileList(ObjectWorld& world, ObjectRecord& object) {
  if (object.Is(QFileListBox) && !object.As<ListItems>()->Filled) Refresh(world, object);
}

BehaviourRows FileListBehaviour() {
  return kRows;
}

}  // namespace tarnwick::objects
