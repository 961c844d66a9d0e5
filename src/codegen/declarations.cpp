#include "codegen/declarations.h"

#include <array>
#include <string_view>

#include "codegen/resources.h"
#include "model/control_walk.h"

namespace tarnwick {

namespace {

enum class DimRule {
  Plain,      ///< every object by its name
  Stem,       ///< names in array form: one line with the stem and the highest index
  WholeName,  ///< the same, but with the whole name in front of the highest index
  FirstOnly,  ///< object 1 alone
  PopUps,     ///< every object, each followed by its items
  MenuBar,    ///< the menu bar, its titles and items
};

struct DimRow {
  Kind Id;
  DimRule Rule;
  std::string_view Class;
  /// The kind is declared only while the form in focus has an object of it too.
  bool FocusGuard = false;
};

/// The kinds in the order of their lines. The capitals of the classes are what the compiler's
/// users know, irregular as they are.
constexpr std::array kDimRows{
    DimRow{Kind::PopUpMenu, DimRule::PopUps, "QPopupmenu"},
    DimRow{Kind::WinSock, DimRule::WholeName, "QSocket"},
    DimRow{Kind::Button, DimRule::Stem, "QButton"},
    DimRow{Kind::CheckBox, DimRule::Stem, "QCheckBox"},
    DimRow{Kind::ComboBox, DimRule::Stem, "Qcombobox", true},
    DimRow{Kind::Image, DimRule::Plain, "QImage"},
    DimRow{Kind::Label, DimRule::Stem, "Qlabel"},
    DimRow{Kind::ListBox, DimRule::Stem, "Qlistbox", true},
    DimRow{Kind::OptionButton, DimRule::Stem, "QRadiobutton"},
    DimRow{Kind::RichTextBox, DimRule::Stem, "Qrichedit"},
    DimRow{Kind::TextBox, DimRule::Stem, "Qedit"},
    DimRow{Kind::Menu, DimRule::MenuBar, "QMenuItem"},
    DimRow{Kind::Time, DimRule::Stem, "Qtimer"},
    DimRow{Kind::OpenDialog, DimRule::Stem, "Qopendialog"},
    DimRow{Kind::SaveDialog, DimRule::Stem, "Qsavedialog"},
    DimRow{Kind::FileStream, DimRule::Plain, "QFileStream"},
    DimRow{Kind::TransparentFrame, DimRule::FirstOnly, "QGlassFrame"},
    DimRow{Kind::HtmlViewer, DimRule::Stem, "QOleContainer"},
};

/// Declares names of one kind: plain ones each, those in array form with one line for the first.
class NameDeclarer {
 public:
  NameDeclarer(Generation& gen, const DimRow& row, std::size_t highest)
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
  const DimRow& row_;
  std::size_t highest_;
  bool seen_ = false;
};

void DeclareObjects(Generation& gen, const DimRow& row) {
  if (row.FocusGuard &&
      (gen.Tables.CurrentForm == nullptr || !gen.Tables.CurrentForm->HasObjects(row.Id))) {
    return;
  }
  const auto& objects = gen.User().Elements(row.Id);
  NameDeclarer declarer(gen, row, objects.size() - 1);
  if (row.Rule == DimRule::FirstOnly) {
    if (objects.size() > 1 && objects[1]) declarer.Declare(objects[1]->Tag);
    return;
  }
  WalkControls<ControlPart::Head>(objects, 1, [&](const ControlRef& object) {
    if (object) declarer.Declare(object->Tag);
  });
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

void DeclarePopUps(Generation& gen, const DimRow& row) {
  const int highest = gen.User().UBound(row.Id);
  for (int p = 1; p <= highest; ++p) {
    if (const ControlRef popup = gen.User().Element(row.Id, p)) {
      gen.Out.Line("Dim ", popup->Tag, " As ", row.Class);
    }
    DeclarePopUpItems(gen, p);
  }
}

template <class Records>
void DeclareMenuNames(Generation& gen, const DimRow& row, const Records& records,
                      std::size_t from) {
  NameDeclarer declarer(gen, row, records.empty() ? 0 : records.size() - 1);
  for (std::size_t n = from; n < records.size(); ++n) {
    if (!records[n].Name.empty()) declarer.Declare(records[n].Name);
  }
}

void DeclareMenuBar(Generation& gen, const DimRow& row) {
  if (!gen.MenuBarVisible()) return;
  gen.Out.Line("Dim MenuBar As QMainMenu");
  DeclareMenuNames(gen, row, gen.Tables.MenuTitles, 1);
  DeclareMenuNames(gen, row, gen.Tables.MenuItems, 0);
}

}  // namespace

void WriteDeclarations(Generation& gen) {
  // The record is that of the number in the window's label, not that of the loop.
  static const FormRec empty{};
  const FormRec* record = gen.Tables.Form(gen.User().Number());
  gen.Out.Line("Dim ", (record == nullptr ? empty : *record).Name, " As QForm");
  for (const DimRow& row : kDimRows) {
    switch (row.Rule) {
      case DimRule::PopUps:
        DeclarePopUps(gen, row);
        break;
      case DimRule::MenuBar:
        DeclareMenuBar(gen, row);
        break;
      default:
        DeclareObjects(gen, row);
    }
  }
  gen.Out.Blank();
  WriteResources(gen);
}

}  // namespace tarnwick
