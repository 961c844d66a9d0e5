#include <array>
#include <vector>

#include "objects/behaviour.h"

namespace tarnwick::objects {
namespace {

constexpr std::array kGroups = {
    FormBehaviour,       ButtonBehaviour,  ListBehaviour,     MenuBehaviour,   TextBehaviour,
    LabelBehaviour,      FontBehaviour,    PictureBehaviour,  DialogBehaviour, StreamBehaviour,
    StreamDataBehaviour, SystemBehaviour,  GridBehaviour,     PageBehaviour,   SocketBehaviour,
    FileListBehaviour,   PrinterBehaviour, ListViewBehaviour, TreeBehaviour};

using ClassBehaviour = std::vector<Behaviour>;  ///< by member

std::vector<ClassBehaviour> MakeTable() {
  std::vector<ClassBehaviour> table;
  for (const ClassInfo& row : ClassRows()) table.emplace_back(row.Members.size());
  const auto put = [&](std::size_t kind, const BehaviourRow& row) {
    const MemberInfo* const member = ClassRows()[kind].Find(row.Member);
    if (member != nullptr) table[kind][static_cast<std::size_t>(member->Facts.Id)] = row.What;
  };
  // First what holds for all classes: the rows of a class take its place.
  for (const auto group : kGroups) {
    for (const BehaviourRow& row : group()) {
      if (row.Class != ObjectClass::None) continue;
      for (std::size_t kind = 0; kind < table.size(); ++kind) put(kind, row);
    }
  }
  for (const auto group : kGroups) {
    for (const BehaviourRow& row : group()) {
      if (row.Class != ObjectClass::None) put(static_cast<std::size_t>(row.Class) - 1, row);
    }
  }
  return table;
}

struct StartRow {
  ObjectClass Class;
  ObjectState (*Make)();
};
template <class State>
ObjectState MakeState() {
  return State();
}
constexpr StartRow kStartRows[] = {
    {ObjectClass::QForm, MakeState<FormState>},
    {ObjectClass::QListBox, MakeState<ListItems>},
    {ObjectClass::QFileListBox, MakeState<ListItems>},
    {ObjectClass::QComboBox, MakeState<ListItems>},
    {ObjectClass::QStringList, MakeState<ListItems>},
    {ObjectClass::QTabControl, MakeState<ListItems>},
    {ObjectClass::QMainMenu, MakeState<MenuRows>},
    {ObjectClass::QPopupMenu, MakeState<MenuRows>},
    {ObjectClass::QMenuItem, MakeState<MenuRows>},
    {ObjectClass::QFileStream, MakeState<StreamState>},
    {ObjectClass::QMemoryStream, MakeState<StreamState>},
    {ObjectClass::QOpenDialog, MakeState<PickedFiles>},
    {ObjectClass::QSaveDialog, MakeState<PickedFiles>},
    {ObjectClass::QRichEdit, MakeState<TextLines>},
    {ObjectClass::QStringGrid, MakeState<GridCells>},
    {ObjectClass::QStatusBar, MakeState<Panels>},
    {ObjectClass::QListView, MakeState<ListRows>},
    {ObjectClass::QTreeView, MakeState<TreeNodes>},
    {ObjectClass::QImageList, MakeState<PickedFiles>},
};

}  // namespace

const Behaviour& BehaviourOf(basic::ClassId kind, basic::MemberId member) {
  static const std::vector<ClassBehaviour> kTable = MakeTable();
  return kTable[static_cast<std::size_t>(kind) - 1][static_cast<std::size_t>(member)];
}

ObjectState StartStateOf(basic::ClassId kind) {
  for (const StartRow& row : kStartRows) {
    if (kind == static_cast<basic::ClassId>(row.Class)) return row.Make();
  }
  return {};
}

bool LiveValue(ObjectWorld& world, ObjectRecord& object, const MemberInfo& member,
               std::span<const Value> index, Value& out) {
  const bool plain = member.Facts.Kind == basic::MemberKind::Property;
  if (object.Realised && world.Widgets().Live(object, member, index, out)) {
    if (plain) object.Values[member.Slot] = out;
    return true;
  }
  out = plain ? object.Values[member.Slot] : Value();
  return true;
}

bool WidgetMethod(ObjectWorld& world, ObjectRecord& object, const MemberInfo& member,
                  std::span<Value> arguments, Value& result) {
  if (object.Realised) world.Widgets().Invoke(object, member, arguments, result);
  return true;
}

}  // namespace tarnwick::objects
