#include "run/views/tree_view.h"

#include <algorithm>

#include "looks/object_faces.h"
#include "looks/text_bridge.h"
#include "run/stage.h"
#include "run/views/fields.h"
#include "run/views/tree_field.h"

namespace tarnwick::run {
namespace {

using objects::ItemsChange;
using objects::TreeNodes;

TreeField* MakeField(TreeView& view) {
  return new TreeField(view);
}

}  // namespace

TreeView::TreeView(Stage& stage, const ObjectRecord& tree)
    : TableView(stage, tree, MakeField(*this), WidgetEvents::Mouse::OwnClicks) {
  TreeField& field = Field();
  Events().Watch(field, *field.viewport());
  refresh_.setSingleShot(true);
  connect(&refresh_, &QTimer::timeout, this, [this] {
    if (const ObjectRecord* const now = Record()) ShowNodes(*now);
  });
  field.setHeaderHidden(true);
  field.setColumnCount(1);
  connect(&field, &QTreeWidget::currentItemChanged, this, [this] { Picked(); });
  connect(&field, &QTreeWidget::itemSelectionChanged, this, [this] { Picked(); });
  connect(&field, &QTreeWidget::itemExpanded, this,
          [this](QTreeWidgetItem* item) { Opened(*item, true); });
  connect(&field, &QTreeWidget::itemCollapsed, this,
          [this](QTreeWidgetItem* item) { Opened(*item, false); });
  connect(&field, &QTreeWidget::itemChanged, this,
          [this](QTreeWidgetItem* item, int) { Renamed(*item); });
}

TreeField& TreeView::Field() const {
  return *static_cast<TreeField*>(Widget());
}

void TreeView::ShowItems(const ObjectRecord& tree, const ItemsChange& change) {
  if (change.What == ItemsChange::Kind::Replaced && !Waiting()) {
    return ShowNode(tree, change.First);
  }
  if (!Waiting()) refresh_.start(0);
}

void TreeView::ShowNode(const ObjectRecord& tree, std::size_t index) {
  const auto* const nodes = tree.As<TreeNodes>();
  if (nodes == nullptr || index >= nodes->All.size() || index >= shown_.size()) return;
  const TreeNodes::Node& node = nodes->All[index];
  QTreeWidgetItem& shown = *shown_[index];
  const bool before = showing_;
  showing_ = true;
  shown.setText(0, looks::ToQString(node.Text));
  const bool picked = tree.Number(Word::ItemIndex) == static_cast<std::int64_t>(index);
  const int image = picked && node.SelectedImage >= 0 ? node.SelectedImage : node.Image;
  shown.setIcon(0, PictureOfList(stage(), tree, Word::Images, image));
  shown.setExpanded(node.Expanded);
  showing_ = before;
}

void TreeView::ShowNodes(const ObjectRecord& tree) {
  const auto* const nodes = tree.As<TreeNodes>();
  if (nodes == nullptr) return;
  showing_ = true;
  Field().clear();
  Field().setIconSize(PictureSizeOfList(stage(), tree, Word::Images));
  shown_.clear();
  QList<QTreeWidgetItem*> top;
  std::vector<QTreeWidgetItem*> above;  // the last node of each level
  for (const TreeNodes::Node& node : nodes->All) {
    auto* const item = MakeTreeItem();
    item->setData(0, Qt::UserRole, static_cast<int>(shown_.size()));
    const auto level = static_cast<std::size_t>(node.Level);
    above.resize(level + 1);
    if (level == 0) {
      top << item;
    } else {
      above[level - 1]->addChild(item);
    }
    above[level] = item;
    shown_.push_back(item);
  }
  Field().addTopLevelItems(top);
  for (std::size_t i = 0; i < shown_.size(); ++i) ShowNode(tree, i);
  showing_ = false;
  ShowMode(tree);
  ShowPicked(tree);
}

void TreeView::ShowMode(const ObjectRecord& tree) {
  constexpr std::int64_t kWidest = 200;
  const std::int64_t indent = std::clamp<std::int64_t>(tree.Number(Word::Indent), 0, kWidest);
  Field().setIndentation(static_cast<int>(indent));
  Field().SetLook(TreeField::LookOf(tree));
  // The nodes at the top have room for what stands in it.
  Field().setRootIsDecorated(tree.Truth(Word::ShowRoot) &&
                             (tree.Truth(Word::ShowButtons) || tree.Truth(Word::ShowLines)));
  Field().setLineWidth(EdgeOf(tree) == looks::FieldEdge::None ? 0 : looks::kListEdge);
}

void TreeView::ShowPicked(const ObjectRecord& tree) {
  if (Waiting()) return;
  const std::int64_t index = tree.Number(Word::ItemIndex);
  const bool there = index >= 0 && index < static_cast<std::int64_t>(shown_.size());
  QTreeWidgetItem* const wanted = there ? shown_[static_cast<std::size_t>(index)] : nullptr;
  if (Field().currentItem() == wanted) return;
  showing_ = true;
  if (wanted == nullptr) Field().clearSelection();
  Field().setCurrentItem(wanted);
  if (wanted != nullptr) Field().scrollToItem(wanted);
  showing_ = false;
}

// --- Reported by the field

int TreeView::IndexOf(const QTreeWidgetItem* shown) const {
  return shown == nullptr ? -1 : shown->data(0, Qt::UserRole).toInt();
}

void TreeView::Picked() {
  const ObjectRecord* const before = Record();
  const QTreeWidgetItem* const item = Field().currentItem();
  if (showing_ || Waiting() || before == nullptr) return;
  // The focus goes to a node without picking it, and comes to one before a press picks it.
  if (item == nullptr || !item->isSelected()) return;
  const int index = IndexOf(item);
  const auto last = static_cast<int>(before->Number(Word::ItemIndex));
  if (index == last) return;
  stage().Report([this, index, last] {
    stage().World().UserSet(Id(), Word::ItemIndex, Value::Integer(index));
    // A node may have another picture while it is picked.
    const ObjectRecord* const tree = Record();
    if (tree == nullptr || Waiting()) return;
    if (last >= 0) ShowNode(*tree, static_cast<std::size_t>(last));
    ShowNode(*tree, static_cast<std::size_t>(index));
  });
}

void TreeView::Opened(const QTreeWidgetItem& shown, bool open) {
  objects::ObjectRecord* const tree = stage().World().Find(Id());
  if (showing_ || Waiting() || tree == nullptr) return;
  std::vector<TreeNodes::Node>& nodes = tree->As<TreeNodes>()->All;
  const int index = IndexOf(&shown);
  if (index < 0 || static_cast<std::size_t>(index) >= nodes.size()) return;
  nodes[static_cast<std::size_t>(index)].Expanded = open;
  stage().Raise(Id(), open ? Word::OnExpanded : Word::OnCollapsed, {Value::Integer(index)});
}

void TreeView::Renamed(const QTreeWidgetItem& shown) {
  objects::ObjectRecord* const tree = stage().World().Find(Id());
  if (showing_ || Waiting() || tree == nullptr) return;
  std::vector<TreeNodes::Node>& nodes = tree->As<TreeNodes>()->All;
  const int index = IndexOf(&shown);
  if (index < 0 || static_cast<std::size_t>(index) >= nodes.size()) return;
  std::string text = looks::FromQString(shown.text(0));
  if (nodes[static_cast<std::size_t>(index)].Text == text) return;
  nodes[static_cast<std::size_t>(index)].Text = std::move(text);
  stage().Raise(Id(), Word::OnChange);
}

}  // namespace tarnwick::run
