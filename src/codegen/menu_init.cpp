#include "codegen/menu_init.h"

#include <string>
#include <vector>

#include "model/menu_row.h"
#include "text/strings.h"

namespace tarnwick {

namespace {

std::string TitleList(const std::vector<MenuBarRec>& titles) {
  std::string list;
  for (std::size_t n = 1; n < titles.size(); ++n) {
    if (n > 1) list += ", ";
    list += titles[n].Name;
  }
  return list;
}

/// The indexes of the items under each title, in order, so that titles and items are walked once.
std::vector<std::vector<std::size_t>> ItemsByTitle(const std::vector<MenuItemRec>& items,
                                                   std::size_t title_count) {
  std::vector<std::vector<std::size_t>> indexes(title_count);
  for (std::size_t q = 0; q < items.size(); ++q) {
    const std::int16_t title = items[q].Parent;
    if (title >= 0 && static_cast<std::size_t>(title) < title_count && !items[q].Name.empty()) {
      indexes[static_cast<std::size_t>(title)].push_back(q);
    }
  }
  return indexes;
}

/// The menu has two levels even if the designer showed more: one depth prefix is taken off and the
/// item hangs under its title.
void WriteMenuItem(Generation& gen, std::string_view title, const MenuItemRec& item,
                   std::size_t index) {
  gen.Out.Line(title, ".AddItems ", item.Name);
  gen.Out.Line(item.Name, ".Caption = ", Quoted{WithoutMenuDepth(item.Caption)});
  if (gen.Code.OnClickOf(item.Name).empty()) return;
  gen.Out.Line(item.Name, ".OnClick = ", SubNameOf(item.Name, static_cast<int>(index)), "_OnClick");
}

/// An item or sub-item of a popup under `parent`. Names in array form are written unchanged.
void WritePopUpItem(Generation& gen, std::string_view parent, std::string_view name,
                    std::string_view caption) {
  gen.Out.Line(parent, ".AddItems ", name);
  gen.Out.Line(name, ".Caption = ", Quoted{caption});
  if (gen.Code.OnClickOf(name).empty()) return;
  gen.Out.Line(name, ".OnClick = ", name, "_OnClick");
}

}  // namespace

void WriteMenuBarInit(Generation& gen) {
  const auto& titles = gen.Tables.MenuTitles;
  const auto& items = gen.Tables.MenuItems;
  gen.Out.Line("MenuBar.Parent = ", gen.Record().Name);
  gen.Out.Line("MenuBar.AddItems  ", TitleList(titles));
  gen.Out.Blank();
  const auto indexes = ItemsByTitle(items, titles.size());
  for (std::size_t n = 1; n < titles.size(); ++n) {
    const std::string& title = titles[n].Name;
    if (title.empty()) continue;
    gen.Out.Line(title, ".Caption = ", Quoted{titles[n].Caption});
    for (const std::size_t q : indexes[n]) WriteMenuItem(gen, title, items[q], q);
    gen.Out.Blank();
  }
}

void WritePopUpInit(Generation& gen, std::string_view name) {
  const int p = gen.State.KindCounters.Of(Kind::PopUpMenu);
  const PopUpItemRec& popup = RecordOrEmpty(gen.Record().PopUps, p);
  gen.Out.Line(popup.PopUpMenu, ".PopUpMenu = ", name);
  gen.Out.Line(name, ".Alignment = ", popup.Alignment);
  gen.Out.Line(name, ".AutoPopUp = ", popup.AutoPopUp);
  if (!gen.Code.OnPopUpOf(name, p).empty()) gen.Out.Line(name, ".OnPopUp = ", name, "_OnPopUp");
  const PopUpFormRec* rows = PopUpRowsOf(gen, p);
  if (rows == nullptr) return;
  for (std::size_t q = 1; q < rows->Items.size(); ++q) {
    const PopUpMenuRec& item = rows->Items[q];
    if (item.Name.empty()) continue;
    WritePopUpItem(gen, name, item.Name, item.Caption);
    for (const PopUpEntryRec& entry : SubItemsOf(item)) {
      if (!entry.Name.empty()) WritePopUpItem(gen, item.Name, entry.Name, entry.Text);
    }
  }
}

}  // namespace tarnwick
