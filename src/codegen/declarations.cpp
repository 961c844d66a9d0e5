#include "codegen/declarations.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

#include "codegen/resources.h"

namespace tarnwick {

namespace {

constexpr bool IsDeclared(const KindInfo& kind) noexcept {
  return kind.Program.Dim.Rule != DimRule::None;
}
constexpr auto kDeclaredCount =
    static_cast<std::size_t>(std::count_if(kKinds.begin(), kKinds.end(), IsDeclared));

/// The kinds in the order of their lines.
constexpr std::array<Kind, kDeclaredCount> kDimKinds = [] {
  std::array<Kind, kDeclaredCount> kinds{};
  for (const KindInfo& kind : kKinds) {
    const auto line = static_cast<std::size_t>(kind.Program.Dim.Order) - 1;
    if (IsDeclared(kind) && line < kinds.size()) kinds[line] = kind.Id;
  }
  return kinds;
}();
static_assert(
    [] {
      for (std::size_t line = 0; line < kDimKinds.size(); ++line) {
        const int order = InfoOf(kDimKinds[line]).Program.Dim.Order;
        if (order != static_cast<int>(line) + 1) return false;
      }
      return true;
    }(),
    "the declarations of the kinds are not numbered from 1, each once");

/// Declares names of one kind: plain ones each, those in array form with one line for the first.
class NameDeclarer {
 public:
  NameDeclarer(Generation& gen, const Declaration& row, std::size_t highest)
      : out_(gen.Out), row_(row), highest_(highest) {}

  void Declare(std::string_view name) {
    const bool as_it_stands = row_.Rule == DimRule::Plain || row_.Rule == DimRule::FirstOnly;
    if (as_it_stands || !IsArrayForm(name)) {
      out_.Line("Dim ", name, " As ", row_.Class);
    } else if (!seen_) {
      const std::string_view family = row_.Rule == DimRule::WholeName ? name : ArrayStem(name);
      out_.Line("Dim ", family, "(", highest_, ") As ", row_.Class);
      seen_ = true;
    }
  }

 private:
  SourceText& out_;
  const Declaration& row_;
  std::size_t highest_;
  bool seen_ = false;
};

void DeclareObjects(Generation& gen, Kind kind) {
  const Declaration& row = InfoOf(kind).Program.Dim;
  if (row.FocusGuard &&
      (gen.Tables.CurrentForm == nullptr || !gen.Tables.CurrentForm->HasObjects(kind))) {
    return;
  }
  const auto& objects = gen.User().Elements(kind);
  NameDeclarer declarer(gen, row, objects.size() - 1);
  if (row.Rule == DimRule::FirstOnly) {
    if (objects.size() > 1 && objects[1]) declarer.Declare(objects[1]->Tag);
    return;
  }
  for (std::size_t i = 1; i < objects.size(); ++i) {
    if (objects[i]) declarer.Declare(objects[i]->Tag);
  }
}

void DeclarePopUpItems(Generation& gen, int number) {
  const PopUpFormRec* popup = PopUpRowsOf(gen, number);
  if (popup == nullptr) return;
  for (const PopUpMenuRec& item : popup->Items) {
    if (item.Name.empty()) continue;
    gen.Out.Line("Dim ", item.Name, " As QMenuItem");
    for (const PopUpEntryRec& entry : SubItemsOf(item)) {
      gen.Out.Line("Dim ", entry.Name, " As QMenuItem");
    }
  }
}

void DeclarePopUps(Generation& gen, Kind kind) {
  const int highest = gen.User().UBound(kind);
  for (int p = 1; p <= highest; ++p) {
    if (const ControlRef popup = gen.User().Element(kind, p)) {
      gen.Out.Line("Dim ", popup->Tag, " As ", InfoOf(kind).Program.Dim.Class);
    }
    DeclarePopUpItems(gen, p);
  }
}

template <class Records>
void DeclareMenuNames(Generation& gen, const Declaration& row, const Records& records,
                      std::size_t from) {
  NameDeclarer declarer(gen, row, records.empty() ? 0 : records.size() - 1);
  for (std::size_t n = from; n < records.size(); ++n) {
    if (!records[n].Name.empty()) declarer.Declare(records[n].Name);
  }
}

void DeclareMenuBar(Generation& gen, const Declaration& row) {
  if (!gen.MenuBarVisible()) return;
  gen.Out.Line("Dim MenuBar As QMainMenu");
  DeclareMenuNames(gen, row, gen.Tables.MenuTitles, 1);
  DeclareMenuNames(gen, row, gen.Tables.MenuItems, 0);
}

}  // namespace

void WriteDeclarations(Generation& gen) {
  gen.Mark({.Part = SourcePart::Dims});
  // The record is that of the number in the window's label, not that of the loop.
  static const FormRec empty{};
  const FormRec* record = gen.Tables.Form(gen.User().Number());
  gen.Out.Line("Dim ", (record == nullptr ? empty : *record).Name, " As QForm");
  for (const Kind kind : kDimKinds) {
    switch (InfoOf(kind).Program.Dim.Rule) {
      case DimRule::PopUps:
        DeclarePopUps(gen, kind);
        break;
      case DimRule::MenuBar:
        DeclareMenuBar(gen, InfoOf(kind).Program.Dim);
        break;
      default:
        DeclareObjects(gen, kind);
    }
  }
  gen.Out.Blank();
  WriteResources(gen);
}

}  // namespace tarnwick
