// Trees of nodes.
#include <algorithm>

#include "objects/behaviour.h"
#include "objects/part_objects.h"
#include "objects/text_files.h"
#include "text/code_page.h"

namespace tarnwick::objects {
namespace {

using Kind = ItemsChange::Kind;
using Nodes = std::vector<TreeNodes::Node>;

constexpr int kMostLevels = 1000;  ///< below each other, so that a tree can always be shown

Nodes& NodesOf(ObjectRecord& tree) {
  return tree.As<TreeNodes>()->All;
}

void ShowAll(ObjectWorld& world, const ObjectRecord& tree) {
  world.ShowItems(tree, {Kind::All, 0, tree.As<TreeNodes>()->All.size()});
}

/// The index behind the last node below the one at `index`.
std::size_t EndOf(const Nodes& nodes, std::size_t index) {
  std::size_t end = index + 1;
  while (end < nodes.size() && nodes[end].Level > nodes[index].Level) ++end;
  return end;
}

void MovePick(ObjectRecord& tree, std::int64_t index) {
  tree.Put(Word::ItemIndex, Value::Integer(index));
}

bool IsSorted(const ObjectRecord& tree) {
  constexpr std::int64_t kByText = 2;
  return tree.Number(Word::SortType) >= kByText;
}

bool LessByText(const TreeNodes::Node& a, const TreeNodes::Node& b) {
  return Lower(a.Text) < Lower(b.Text);
}

/// The nodes that begin at `first` and stand beside each other, each group of them in order, with
/// what is below. `order` has the index that each node had.
void SortBeside(Nodes& nodes, std::vector<std::size_t>& order, std::size_t first, std::size_t end) {
  std::vector<std::size_t> starts;
  for (std::size_t at = first; at < end; at = EndOf(nodes, at)) starts.push_back(at);
  for (const std::size_t start : starts) {
    const std::size_t last = EndOf(nodes, start);
    if (last > start + 1) SortBeside(nodes, order, start + 1, last);
  }
  std::stable_sort(starts.begin(), starts.end(),
                   [&](std::size_t a, std::size_t b) { return LessByText(nodes[a], nodes[b]); });
  Nodes sorted;
  std::vector<std::size_t> from;
  for (const std::size_t start : starts) {
    const std::size_t last = EndOf(nodes, start);
    const auto begin = static_cast<std::ptrdiff_t>(start);
    const auto behind = static_cast<std::ptrdiff_t>(last);
    from.insert(from.end(), order.begin() + begin, order.begin() + behind);
    sorted.insert(sorted.end(), nodes.begin() + begin, nodes.begin() + behind);
  }
  std::copy(from.begin(), from.end(), order.begin() + static_cast<std::ptrdiff_t>(first));
  std::move(sorted.begin(), sorted.end(), nodes.begin() + static_cast<std::ptrdiff_t>(first));
}

/// Sorts all nodes of a tree with SortType; the one that is picked stays picked.
void SortAll(ObjectRecord& tree) {
  if (!IsSorted(tree)) return;
  Nodes& nodes = NodesOf(tree);
  std::vector<std::size_t> order(nodes.size());
  for (std::size_t i = 0; i < order.size(); ++i) order[i] = i;
  SortBeside(nodes, order, 0, nodes.size());
  const std::int64_t picked = tree.Number(Word::ItemIndex);
  const auto found = std::find(order.begin(), order.end(), static_cast<std::size_t>(picked));
  if (picked >= 0 && found != order.end()) MovePick(tree, found - order.begin());
}

void SortChanged(ObjectWorld& world, ObjectRecord& tree, const MemberInfo& /*member*/,
                 Origin /*origin*/) {
  if (!IsSorted(tree)) return;
  SortAll(tree);
  ShowAll(world, tree);
}

/// Puts a node in front of the one at `at`; in a sorted tree among those beside it.
void Insert(ObjectRecord& tree, std::size_t at, std::string text, int level) {
  Nodes& nodes = NodesOf(tree);
  if (IsSorted(tree)) {
    while (at > 0 && nodes[at - 1].Level >= level) --at;
    const std::string folded = Lower(text);
    while (at < nodes.size() && nodes[at].Level == level && Lower(nodes[at].Text) <= folded) {
      at = EndOf(nodes, at);
    }
  }
  nodes.insert(nodes.begin() + static_cast<std::ptrdiff_t>(at),
               {std::move(text), level, false, -1, -1});
  const std::int64_t picked = tree.Number(Word::ItemIndex);
  if (picked >= static_cast<std::int64_t>(at)) MovePick(tree, picked + 1);
}

bool AddItems(ObjectWorld& world, ObjectRecord& tree, const MemberInfo& /*member*/,
              std::span<Value> arguments, Value& /*result*/) {
  for (const Value& argument : arguments) {
    Insert(tree, NodesOf(tree).size(), argument.AsText(), 0);
  }
  ShowAll(world, tree);
  return true;
}

bool AddChildItems(ObjectWorld& world, ObjectRecord& tree, const MemberInfo& /*member*/,
                   std::span<Value> arguments, Value& /*result*/) {
  Nodes& nodes = NodesOf(tree);
  const std::int64_t index = arguments[0].AsInteger();
  if (!HasPart(world, tree, "item", nodes.size(), index)) return false;
  const auto parent = static_cast<std::size_t>(index);
  if (nodes[parent].Level + 1 >= kMostLevels) {
    return world.Fail(tree.FullName() + ": nodes can stand " + std::to_string(kMostLevels) +
                      " levels deep at most");
  }
  std::size_t at = EndOf(nodes, parent);
  for (const Value& argument : arguments.subspan(1)) {
    Insert(tree, at++, argument.AsText(), nodes[parent].Level + 1);
  }
  ShowAll(world, tree);
  return true;
}

/// In front of a node, beside it; behind the last one at the top.
bool InsertItem(ObjectWorld& world, ObjectRecord& tree, const MemberInfo& /*member*/,
                std::span<Value> arguments, Value& /*result*/) {
  const Nodes& nodes = NodesOf(tree);
  const std::int64_t index = arguments[0].AsInteger();
  const bool last = index == static_cast<std::int64_t>(nodes.size());
  if (!last && !HasPart(world, tree, "item", nodes.size(), index)) return false;
  const auto at = static_cast<std::size_t>(index);
  Insert(tree, at, arguments[1].AsText(), last ? 0 : nodes[at].Level);
  ShowAll(world, tree);
  return true;
}

/// What is below a node goes with it.
bool DelItems(ObjectWorld& world, ObjectRecord& tree, const MemberInfo& /*member*/,
              std::span<Value> arguments, Value& /*result*/) {
  Nodes& nodes = NodesOf(tree);
  std::vector<std::int64_t> indexes;
  for (const Value& argument : arguments) {
    indexes.push_back(argument.AsInteger());
    if (!HasPart(world, tree, "item", nodes.size(), indexes.back())) return false;
  }
  // From the last one on, so that the others stay where the program means them.
  std::sort(indexes.rbegin(), indexes.rend());
  indexes.erase(std::unique(indexes.begin(), indexes.end()), indexes.end());
  for (const std::int64_t index : indexes) {
    const auto end = static_cast<std::int64_t>(EndOf(nodes, static_cast<std::size_t>(index)));
    nodes.erase(nodes.begin() + index, nodes.begin() + end);
    const std::int64_t picked = tree.Number(Word::ItemIndex);
    if (picked >= index) MovePick(tree, picked < end ? -1 : picked - (end - index));
  }
  ShowAll(world, tree);
  return true;
}

bool Clear(ObjectWorld& world, ObjectRecord& tree, const MemberInfo& /*member*/,
           std::span<Value> /*arguments*/, Value& /*result*/) {
  NodesOf(tree).clear();
  MovePick(tree, -1);
  ShowAll(world, tree);
  return true;
}

bool ExpandAll(ObjectWorld& world, ObjectRecord& tree, const MemberInfo& method,
               std::span<Value> /*arguments*/, Value& /*result*/) {
  for (TreeNodes::Node& node : NodesOf(tree)) node.Expanded = method.Name == Word::FullExpand;
  ShowAll(world, tree);
  return true;
}

/// A line for each node, with a tab for each level.
bool LoadFromFile(ObjectWorld& world, ObjectRecord& tree, const MemberInfo& /*member*/,
                  std::span<Value> arguments, Value& /*result*/) {
  const std::optional<std::string> text = ReadTextFile(world, tree, arguments[0].AsText());
  if (!text) return true;
  Nodes& nodes = NodesOf(tree);
  nodes.clear();
  MovePick(tree, -1);
  for (const std::string& line : LinesOf(*text)) {
    const std::size_t tabs = std::min(line.find_first_not_of('\t'), line.size());
    // A node stands one level below the one in front of it at most.
    const int deepest = nodes.empty() ? 0 : std::min(nodes.back().Level + 1, kMostLevels - 1);
    const int level =
        static_cast<int>(std::min<std::size_t>(tabs, static_cast<std::size_t>(deepest)));
    nodes.push_back({line.substr(tabs), level, false, -1, -1});
  }
  SortAll(tree);
  ShowAll(world, tree);
  return true;
}

bool SaveToFile(ObjectWorld& world, ObjectRecord& tree, const MemberInfo& /*member*/,
                std::span<Value> arguments, Value& /*result*/) {
  std::string text;
  for (const TreeNodes::Node& node : NodesOf(tree)) {
    text += std::string(static_cast<std::size_t>(node.Level), '\t') + node.Text + "\r\n";
  }
  return WriteTextFile(world, tree, arguments[0].AsText(), text);
}

bool Count(ObjectWorld& /*world*/, ObjectRecord& tree, const MemberInfo& /*member*/,
           std::span<const Value> /*index*/, Value& out) {
  out = Value::Integer(static_cast<std::int64_t>(NodesOf(tree).size()));
  return true;
}

bool GetItem(ObjectWorld& world, ObjectRecord& tree, const MemberInfo& /*member*/,
             std::span<const Value> index, Value& out) {
  const std::int64_t number = index[0].AsInteger();
  if (!HasPart(world, tree, "item", NodesOf(tree).size(), number)) return false;
  out = Value::Object(PartObject(world, tree, tree.As<TreeNodes>()->Objects, ObjectClass::QTreeNode,
                                 "Item", number));
  return true;
}

/// An index outside picks nothing.
bool SetIndex(ObjectWorld& world, ObjectRecord& tree, const MemberInfo& member,
              std::span<const Value> /*index*/, const Value& in) {
  const std::int64_t index = in.AsInteger();
  const bool inside = index >= 0 && index < static_cast<std::int64_t>(NodesOf(tree).size());
  world.Change(tree, member, Value::Integer(inside ? index : -1), Origin::Code);
  return true;
}

void Picked(ObjectWorld& world, ObjectRecord& tree, const MemberInfo& /*member*/, Origin origin) {
  if (origin == Origin::User) world.Raise(tree.Id, Word::OnChange);
}

// --- Nodes

/// The nodes of an object's tree and its index; null, and the world has the reason, when it is
/// gone.
Nodes* NodesBehind(ObjectWorld& world, const ObjectRecord& node, ObjectRecord*& tree) {
  tree = world.Find(node.Parent);
  if (tree == nullptr || !HasPart(world, *tree, "item", NodesOf(*tree).size(), node.Index)) {
    return nullptr;
  }
  return &NodesOf(*tree);
}

std::int64_t ParentOf(const Nodes& nodes, std::size_t index) {
  auto at = static_cast<std::int64_t>(index);
  while (at >= 0 && nodes[static_cast<std::size_t>(at)].Level >= nodes[index].Level) --at;
  return at;
}

bool GetOfNode(ObjectWorld& world, ObjectRecord& node, const MemberInfo& member,
               std::span<const Value> /*index*/, Value& out) {
  ObjectRecord* tree = nullptr;
  const Nodes* const nodes = NodesBehind(world, node, tree);
  if (nodes == nullptr) return false;
  const auto index = static_cast<std::size_t>(node.Index);
  const TreeNodes::Node& of = (*nodes)[index];
  std::int64_t number = 0;
  switch (member.Name) {
    case Word::Text:
    case Word::Caption:
      out = Value::Text(of.Text);
      return true;
    case Word::Level:
      number = of.Level;
      break;
    case Word::Expanded:
      number = of.Expanded ? 1 : 0;
      break;
    case Word::ImageIndex:
      number = of.Image;
      break;
    case Word::SelectedIndex:
      number = of.SelectedImage;
      break;
    case Word::ParentIndex:
      number = ParentOf(*nodes, index);
      break;
    case Word::HasChildren:
      number = EndOf(*nodes, index) > index + 1 ? 1 : 0;
      break;
    default:
      number = std::count_if(nodes->begin() + node.Index,
                             nodes->begin() + static_cast<std::ptrdiff_t>(EndOf(*nodes, index)),
                             [&](const TreeNodes::Node& n) { return n.Level == of.Level + 1; });
      break;
  }
  out = Value::Integer(number);
  return true;
}

bool SetOfNode(ObjectWorld& world, ObjectRecord& node, const MemberInfo& member,
               std::span<const Value> /*index*/, const Value& in) {
  ObjectRecord* tree = nullptr;
  Nodes* const nodes = NodesBehind(world, node, tree);
  if (nodes == nullptr) return false;
  const auto index = static_cast<std::size_t>(node.Index);
  TreeNodes::Node& of = (*nodes)[index];
  const auto image = static_cast<int>(std::clamp<std::int64_t>(in.AsInteger(), -1, 65'535));
  switch (member.Name) {
    case Word::Expanded:
      of.Expanded = in.AsTruth();
      break;
    case Word::ImageIndex:
      of.Image = image;
      break;
    case Word::SelectedIndex:
      of.SelectedImage = image;
      break;
    default:
      of.Text = in.AsText();
      if (!IsSorted(*tree)) break;
      SortAll(*tree);
      ShowAll(world, *tree);
      return true;
  }
  world.ShowItems(*tree, {Kind::Replaced, index, 1});
  return true;
}

using enum ObjectClass;
constexpr BehaviourRow kRows[] = {
    {QTreeView, Word::AddItems, {.Call = AddItems}},
    {QTreeView, Word::AddChildItems, {.Call = AddChildItems}},
    {QTreeView, Word::InsertItem, {.Call = InsertItem}},
    {QTreeView, Word::DelItems, {.Call = DelItems}},
    {QTreeView, Word::Clear, {.Call = Clear}},
    {QTreeView, Word::FullExpand, {.Call = ExpandAll}},
    {QTreeView, Word::FullCollapse, {.Call = ExpandAll}},
    {QTreeView, Word::LoadFromFile, {.Call = LoadFromFile}},
    {QTreeView, Word::SaveToFile, {.Call = SaveToFile}},
    {QTreeView, Word::SortType, {.Changed = SortChanged}},
    {QTreeView, Word::ItemCount, {.Get = Count}},
    {QTreeView, Word::Item, {.Get = GetItem}},
    {QTreeView, Word::ItemIndex, {.Set = SetIndex, .Changed = Picked}},
    {QTreeNode, Word::Text, {.Get = GetOfNode, .Set = SetOfNode}},
    {QTreeNode, Word::Caption, {.Get = GetOfNode, .Set = SetOfNode}},
    {QTreeNode, Word::Expanded, {.Get = GetOfNode, .Set = SetOfNode}},
    {QTreeNode, Word::ImageIndex, {.Get = GetOfNode, .Set = SetOfNode}},
    {QTreeNode, Word::SelectedIndex, {.Get = GetOfNode, .Set = SetOfNode}},
    {QTreeNode, Word::Level, {.Get = GetOfNode}},
    {QTreeNode, Word::ParentIndex, {.Get = GetOfNode}},
    {QTreeNode, Word::HasChildren, {.Get = GetOfNode}},
    {QTreeNode, Word::Count, {.Get = GetOfNode}},
};

}  // namespace

BehaviourRows TreeBehaviour() {
  return kRows;
}

}  // namespace tarnwick::objects
