#include "persistence/menu_text.h"

#include <algorithm>
#include <cstdint>
#include <vector>

#include "model/menu_bar.h"
#include "persistence/stored_text.h"
#include "text/code_page.h"
#include "text/numbers.h"
#include "text/strings.h"

namespace tarnwick {

namespace {

constexpr std::string_view kItemEnd = "\x8D*\x8D";
constexpr std::string_view kDirectMark = "\x8D#\x8D";
constexpr std::string_view kNestedMark = "\x8E#\x8D";

/// Writes the titles of one form with their items.
class MenuWriter {
 public:
  MenuWriter(std::string& out, const ProjectTables& tables, const DesignForm& window)
      : out_(out), tables_(tables), form_key_(window.KeyPrefix()) {
    items_.resize(static_cast<std::size_t>(window.UBound(Kind::Menu)) + 1);
    for (const ControlRef& control : window.Controls()) {
      const auto title = static_cast<std::size_t>(control->MenuParent);
      if (control->Id != Kind::MenuItem || !control->Visible || control->Index == 0) continue;
      if (title > 0 && title < items_.size()) items_[title].push_back(control.get());
    }
  }

  void WriteTitle(const DesignControl& title) {
    ++titles_done_;
    std::string list;
    bool nested = false;
    for (const DesignControl* item : items_[static_cast<std::size_t>(title.Index)]) {
      WriteItemCode(*item);
      const bool deeper = IsDeeperItem(item->Caption);
      nested = nested || deeper;
      list += WithoutMenuDepth(item->Caption);
      list += deeper ? kNestedMark : kDirectMark;
      list.append(item->Tag).append(kItemEnd);
    }
    // A title with nested items has its own blanks in the head.
    out_ += nested ? "[Menu]   (" : "[Menu]  (";
    AppendNumber(out_, std::int64_t{titles_done_});
    out_ += nested ? ")  {" : ") {";
    out_.append(title.Tag).append(nested ? "}  String<" : "} String<");
    AppendStoredText(out_, title.Caption);
    out_ += ">String   Items<";
    AppendStoredItems(out_, list);
    out_ += ">Items\r\n";
  }

 private:
  void WriteItemCode(const DesignControl& item) {
    ++items_done_;
    std::string code;
    AppendItemCode(code, tables_, form_key_, item.Tag);
    if (code.empty()) return;
    out_ += IsDeeperItem(item.Caption) ? "[ItemMenu]   (" : "[MenuItem]   (";
    AppendNumber(out_, std::int64_t{items_done_});
    out_.append(")  {").append(item.Tag).append("}  Click<").append(code).append(">Click\r\n");
  }

  std::string& out_;
  const ProjectTables& tables_;
  const std::string form_key_;
  std::vector<std::vector<const DesignControl*>> items_;
  int titles_done_ = 0;
  int items_done_ = 0;
};

/// Caption and name of a piece, cut at the first stored comma; a piece without one has an empty
/// name.
struct Piece {
  std::string_view Caption;
  std::string_view Name;
};

Piece CutPiece(std::string_view piece) {
  const std::size_t comma = piece.find(kStoredComma);
  if (comma == std::string_view::npos) return {piece, {}};
  return {piece.substr(0, comma), piece.substr(comma + 1)};
}

}  // namespace

void AppendItemCode(std::string& out, const ProjectTables& tables, std::string_view form_key,
                    std::string_view name) {
  std::string key(form_key);
  key.append(".").append(name);
  const auto* owner = tables.EventTable.OwnerOf(key);
  const std::string* code = owner == nullptr ? nullptr : owner->Find(Event::OnClick);
  if (code != nullptr) AppendStoredCode(out, *code);
}

void AppendMenuRecords(std::string& out, const ProjectTables& tables, const DesignForm& window) {
  if (!window.MenuBarVisible()) return;
  MenuWriter writer(out, tables, window);
  for (int title = 1; title <= window.UBound(Kind::Menu); ++title) {
    const ControlRef control = window.Element(Kind::Menu, title);
    if (control && control->Visible) writer.WriteTitle(*control);
  }
}

void AppendPopUpRows(std::string& out, const PopUpFormRec& popup) {
  for (std::size_t row = 1; row < popup.Items.size(); ++row) {
    const PopUpMenuRec& top = popup.Items[row];
    out.append(top.Caption).append(1, kStoredComma).append(top.Name);
    for (std::size_t entry = 1; entry < top.Entries.size(); ++entry) {
      out.append(1, kPopUpEntry).append(top.Entries[entry].Text);
      out.append(1, kStoredComma).append(top.Entries[entry].Name);
    }
    out += kMenuNested;
  }
}

void ReadMenu(ProjectTables& tables, DesignForm& window, std::string_view caption,
              std::string_view name, std::string_view items) {
  tables.MenuRows.emplace_back(caption);
  AddMenuTitle(tables, caption, name);
  AddTitleControl(window, caption, name);
  for (const std::string_view piece : Split(items, kItemEnd)) {
    const std::size_t direct = piece.find(kDirectMark);
    const std::size_t nested = piece.find(kNestedMark);
    const std::size_t mark = std::min(direct, nested);
    if (mark == std::string_view::npos) continue;
    std::string item_caption(nested < direct ? kMenuDepth : std::string_view());
    item_caption += piece.substr(0, mark);
    const std::string_view item_name = piece.substr(mark + kDirectMark.size());
    tables.MenuRows.push_back(std::string(kMenuDepth) + item_caption);
    AddMenuItem(tables, item_caption, item_name);
    AddItemControl(window, item_caption, item_name);
  }
}

void ReadPopUpRows(PopUpFormRec& popup, std::string_view rows) {
  popup.Items.assign(1, {});
  for (const std::string_view row : Split(rows, std::string_view(&kMenuNested, 1))) {
    if (row.empty()) continue;
    const std::vector<std::string_view> pieces = Split(row, std::string_view(&kPopUpEntry, 1));
    PopUpMenuRec& rec = popup.Items.emplace_back();
    const Piece top = CutPiece(pieces.front());
    rec.Caption = top.Caption;
    rec.Name = top.Name;
    rec.Entries.resize(1);
    for (std::size_t i = 1; i < pieces.size(); ++i) {
      if (pieces[i].empty()) continue;
      const Piece entry = CutPiece(pieces[i]);
      rec.Entries.push_back({std::string(entry.Name), std::string(entry.Caption)});
      if (rec.Level < INT16_MAX) ++rec.Level;
    }
  }
}

}  // namespace tarnwick
