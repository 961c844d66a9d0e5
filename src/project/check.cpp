#include "project/check.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <utility>

#include "codegen/emitted_code.h"
#include "codegen/object_init.h"
#include "model/form_list.h"
#include "text/code_page.h"
#include "text/numbers.h"
#include "text/strings.h"

namespace tarnwick::project {

namespace {

using FoldedSet = std::unordered_set<std::string, FoldedHash, FoldedEqual>;

/// Who has a name of the generated program, in which forms, objects and items share one space.
struct NameUse {
  std::string Place;
  int Form = 0;
  Kind Of = Kind::Form;
  bool Family = false;  ///< the name is that of an array, which objects of one kind share
};
using NameMap = std::unordered_map<std::string, NameUse, FoldedHash, FoldedEqual>;

/// A member whose text stands between quotes in the generated program, and its row.
struct TextRow {
  Member Of;
  std::string_view Row;
};
constexpr std::array kTextRows{TextRow{Member::Caption, "Caption"}, TextRow{Member::Text, "Text"},
                               TextRow{Member::ToolTipText, "Hint"},
                               TextRow{Member::FontName, "Font"}};

struct DialogRow {
  std::string ObjectRec::*Field;
  std::string_view Row;
};
constexpr std::array kDialogRows{
    DialogRow{&ObjectRec::Title, "Title"}, DialogRow{&ObjectRec::Filter, "Filter"},
    DialogRow{&ObjectRec::InitialDir, "InitialDir"}, DialogRow{&ObjectRec::FileName, "FileName"}};

struct SocketRow {
  std::string WinSockRec::*Field;
  std::string_view Row;
};
constexpr std::array kSocketRows{
    SocketRow{&WinSockRec::Family, "Family"}, SocketRow{&WinSockRec::Protocol, "Protocol"},
    SocketRow{&WinSockRec::Type, "Type"}, SocketRow{&WinSockRec::WMessage, "WMessage"}};

/// True when one of the lines makes the compiler ask for a declaration of every variable.
bool IsStrict(std::string_view code) {
  for (std::string_view line : Split(code, "\n")) {
    line = Trim(line);
    const std::size_t end = line.find_first_of(" \t");
    if (!line.starts_with('$') || end == std::string_view::npos) continue;
    const std::string_view directive = line.substr(0, end);
    const std::string_view value = Trim(line.substr(end));
    if (EqualsFolded(directive, "$TYPECHECK") && StartsWithFolded(value, "ON")) return true;
    if (EqualsFolded(directive, "$OPTION") && StartsWithFolded(value, "EXPLICIT")) return true;
  }
  return false;
}

class Checker {
 public:
  Checker(ProjectTables& tables, FilePort& files) : tables_(tables), files_(files) {}

  std::vector<Finding> Run() {
    GatherNames();
    CheckMainForm();
    for (int form = 1; form <= tables_.FormsCount; ++form) {
      if (tables_.IsLive(form)) CheckForm(form);
    }
    CheckStrict();
    CheckCode();
    return std::move(findings_);
  }

 private:
  /// The form or object that the findings are about while it is looked at.
  struct Subject {
    int Form = 0;
    Kind Of = Kind::Form;
    int Index = 0;
    std::string Place;
  };

  void Report(FindingId id, std::string_view row, std::string text) {
    findings_.push_back({.Id = id,
                         .Form = subject_.Form,
                         .Of = subject_.Of,
                         .Index = subject_.Index,
                         .Place = subject_.Place,
                         .Row = row,
                         .Text = std::move(text)});
  }

  // What a popup menu can hang on.
  void GatherNames() {
    for (int form = 1; form <= tables_.FormsCount; ++form) {
      if (!tables_.IsLive(form)) continue;
      parents_.insert(tables_.Form(form)->Name);
      for (const ControlRef& control : tables_.User(form)->Controls()) {
        if (control->Visible && IsObjectKind(control->Id)) parents_.insert(control->Tag);
      }
    }
  }

  void CheckMainForm() {
    const std::string_view name = FormListName(tables_.MainFormName);
    bool there = false;
    for (int form = 1; form <= tables_.FormsCount; ++form) {
      // One that was removed gives way to another before the program is generated.
      there = there || EqualsFolded(tables_.Form(form)->Name, name);
    }
    subject_ = {};
    if (!there && tables_.FormsCount > 0) {
      Report(FindingId::MainFormGone, "",
             "no form has the name of the main form, " + std::string(name));
    }
  }

  void CheckForm(int form) {
    const FormRec& record = *tables_.Form(form);
    const DesignForm& window = *tables_.User(form);
    subject_ = {form, Kind::Form, 0, record.Name};
    families_.clear();
    undeclared_ = {};
    popups_ = 0;
    CheckName(record.Name, "Name");
    CheckText("Caption", window.Caption);
    CheckText("Hint", record.Hint);
    CheckFormPictures(form, record);
    owners_.insert(window.KeyPrefix());
    const std::string form_key = window.KeyPrefix() + ".";
    for (const ControlRef& control : window.Controls()) {
      if (!control->Visible || control->Id == Kind::Handle) continue;
      subject_ = {form, control->Id, control->Index, record.Name};
      subject_.Place.append(".").append(control->Tag.empty() ? control->ArrayAndIndex()
                                                             : control->Tag);
      CheckName(control->Tag, "Name");
      CheckObject(record, *control, form_key);
    }
  }

  void CheckObject(const FormRec& record, const DesignControl& control,
                   const std::string& form_key) {
    owners_.insert(form_key + control.ArrayAndIndex());
    CheckDeclared(control);
    CheckTexts(record, control);
    switch (control.Id) {
      case Kind::Menu:
      case Kind::MenuItem:
        owners_.insert(form_key + control.Tag);
        CheckText("Caption", control.Caption);
        break;
      case Kind::PopUpMenu:
        owners_.insert(form_key + control.Tag);
        CheckPopUp(record, control, form_key);
        break;
      case Kind::WinSock:
        CheckSocket(record, control);
        break;
      case Kind::HtmlViewer:
        CheckFile("Navigate", "the page",
                  RecordOrEmpty(record.HtmlViewers, control.Index).Navigate);
        break;
      case Kind::Button:
      case Kind::Image:
        CheckFile("BmpHandle", "the picture",
                  RecordOrEmpty(*record.Objects(control.Id), control.Index).ImageFile);
        break;
      default:
        break;
    }
  }

  // ---- names

  void CheckName(const std::string& name, std::string_view row) {
    const Kind kind = subject_.Of;
    if (const auto fault = FaultOfName(name, kind)) {
      Report(*fault, row, TextOfNameFault(*fault, name));
      if (*fault == FindingId::NameEmpty) return;
    }
    TakeName(name, {subject_.Place, subject_.Form, kind, false}, row);
    if (FormsArrays(kind) && IsArrayForm(name)) TakeFamily(std::string(ArrayStem(name)), kind, row);
  }

  void TakeName(const std::string& name, NameUse use, std::string_view row) {
    const auto [first, added] = names_.try_emplace(name, std::move(use));
    if (!added) {
      Report(FindingId::NameDoubled, row,
             "the name " + name + " is used before, by " + first->second.Place);
    }
  }

  /// All objects of a kind share the first array that one of them names: there is one declaration.
  void TakeFamily(const std::string& stem, Kind kind, std::string_view row) {
    const bool shared = InfoOf(kind).Program.Dim.Rule != DimRule::Plain;
    const auto first = names_.find(stem);
    if (first != names_.end()) {
      const NameUse& use = first->second;
      if (shared && use.Family && use.Form == subject_.Form && use.Of == kind) return;
      Report(FindingId::NameDoubled, row, "the name " + stem + " is used before, by " + use.Place);
      return;
    }
    names_.emplace(stem, NameUse{subject_.Place, subject_.Form, kind, true});
    if (!shared) return;
    const auto [family, is_first] = families_.try_emplace(kind, stem);
    if (!is_first) {
      Report(FindingId::SecondFamily, row,
             "the array " + stem + " is not declared: " + std::string(InfoOf(kind).Name) +
                 " objects of this form have the array " + family->second);
    }
  }

  void CheckDeclared(const DesignControl& control) {
    const Declaration& dim = InfoOf(control.Id).Program.Dim;
    bool& reported = undeclared_[static_cast<std::size_t>(control.Id)];
    if (reported) return;
    const DesignForm* current = tables_.CurrentForm;
    if (dim.FocusGuard && (current == nullptr || !current->HasObjects(control.Id))) {
      const FormRec* form = current == nullptr ? nullptr : tables_.RecordOf(*current);
      std::string text = "it is not declared: the current form";
      if (form != nullptr) text.append(", ").append(form->Name).append(",");
      Report(FindingId::NotDeclared, "", text.append(" has no ").append(InfoOf(control.Id).Name));
      reported = true;
    } else if (dim.Rule == DimRule::FirstOnly && control.Index != 1) {
      Report(FindingId::NotDeclared, "", "it is not declared: only the first of its kind is");
    }
  }

  // ---- texts

  /// A text that stands between quotes in the program.
  void CheckText(std::string_view row, std::string_view text) {
    if (text.find('"') != std::string_view::npos) {
      Report(FindingId::TextQuote, row,
             "the text has a double quote, which ends it in the program");
    }
    CheckLine(row, text);
  }

  void CheckLine(std::string_view row, std::string_view text) {
    if (text.find_first_of("\r\n") != std::string_view::npos) {
      Report(FindingId::TextLineBreak, row,
             "the text has a line break, which ends its line in the program");
    }
  }

  void CheckTexts(const FormRec& record, const DesignControl& control) {
    const RecordArray<ObjectRec>* records = record.Objects(control.Id);
    if (InfoOf(control.Id).Program.SetUp == SetUpRule::AllLines) {
      for (const TextRow& row : kTextRows) {
        if (!control.Has(row.Of)) continue;
        CheckText(row.Row, control.*std::get<std::string DesignControl::*>(FieldOf(row.Of)));
      }
    }
    if (control.Id == Kind::ListBox && HasListLines(control)) {
      for (const std::string& item : control.Items) CheckText("AddItems", item);
    } else if (control.Id == Kind::ComboBox) {
      CheckText("AddItems", RecordOrEmpty(*records, control.Index).Items);
    } else if (control.Id == Kind::OpenDialog || control.Id == Kind::SaveDialog) {
      const ObjectRec& texts = RecordOrEmpty(*records, control.Index);
      for (const DialogRow& row : kDialogRows) CheckText(row.Row, texts.*row.Field);
    }
  }

  // ---- sockets and popup menus

  /// The generator counts sockets through all forms and asks each form for its record of that
  /// number.
  void CheckSocket(const FormRec& record, const DesignControl& control) {
    ++sockets_;
    const WinSockRec& written = RecordOrEmpty(record.WinSocks, sockets_);
    const WinSockRec& own = RecordOrEmpty(record.WinSocks, control.Index);
    bool miscounted = false;
    for (const SocketRow& row : kSocketRows) {
      CheckLine(row.Row, own.*row.Field);
      if (!Trim(written.*row.Field).empty()) continue;
      if (Trim(own.*row.Field).empty()) {
        Report(FindingId::SocketValueEmpty, row.Row, std::string(row.Row) + " has no value");
      } else {
        miscounted = true;
      }
    }
    if (miscounted) {
      std::string text = "its values are left out: it is socket ";
      AppendNumber(text, std::int64_t{sockets_});
      Report(FindingId::SocketMiscounted, "", text + " of the project, but not of its form");
    }
  }

  void CheckPopUp(const FormRec& record, const DesignControl& control,
                  const std::string& form_key) {
    ++popups_;
    const std::string& parent = RecordOrEmpty(record.PopUps, popups_).PopUpMenu;
    if (!parents_.contains(parent)) {
      Report(FindingId::PopUpParentGone, "Parent",
             parent.empty() ? std::string("the popup menu hangs on nothing")
                            : "nothing has the name that the popup menu hangs on, " + parent);
    }
    const PopUpFormRec& rows = RecordOrEmpty(std::as_const(tables_.PopUpMenus), control.Index);
    for (std::size_t row = 1; row < rows.Items.size(); ++row) {
      CheckItem(form_key, rows.Items[row].Name, rows.Items[row].Caption);
      const std::vector<PopUpEntryRec>& entries = rows.Items[row].Entries;
      for (std::size_t entry = 1; entry < entries.size(); ++entry) {
        CheckItem(form_key, entries[entry].Name, entries[entry].Text);
      }
    }
  }

  void CheckItem(const std::string& form_key, const std::string& name, std::string_view caption) {
    owners_.insert(form_key + name);
    CheckName(name, "AddItems");
    CheckText("AddItems", caption);
  }

  // ---- files

  void CheckFormPictures(int form, const FormRec& record) {
    if (record.ImageFile != kDefaultFile) {
      CheckThere("IcoHandle", "the window's icon",
                 ResolveProjectPath(tables_, record.ImageFile, false));
    }
    // Only the first form gives the program its icon.
    if (form == 1 && record.IconFile != kDefaultFile) {
      CheckThere("Icon(App)", "the program's icon", record.IconFile);
    }
  }

  void CheckFile(std::string_view row, std::string_view what, const std::string& file) {
    if (!HasPicturePath(file)) return;
    CheckText(row, file);
    CheckThere(row, what, ResolveProjectPath(tables_, file, false));
  }

  void CheckThere(std::string_view row, std::string_view what, const std::string& path) {
    if (files_.Exists(path)) return;
    Report(FindingId::PictureMissing, row,
           std::string(what).append(" does not exist: ").append(path));
  }

  // ---- code

  void CheckStrict() {
    bool strict = false;
    for (int form = 1; form <= tables_.FormsCount; ++form) {
      strict = strict || (tables_.IsLive(form) && IsStrict(tables_.Form(form)->DeclarePbl));
    }
    tables_.EventTable.ForEach(
        [&](const std::string&, const std::string& code) { strict = strict || IsStrict(code); });
    if (!strict) return;
    for (int form = 1; form <= tables_.FormsCount; ++form) {
      if (!tables_.IsLive(form)) continue;
      const ControlRef frame = tables_.User(form)->FirstOf(Kind::TransparentFrame);
      if (!frame) continue;
      subject_ = {form, frame->Id, frame->Index, tables_.Form(form)->Name + "." + frame->Tag};
      Report(FindingId::StrictWithFrame, "",
             "the lines that show its form use a variable, which $TYPECHECK ON wants declared");
    }
  }

  void CheckCode() {
    const EmittedCode emitted = FindEmittedCode(tables_);
    tables_.EventTable.ForEach([&](const std::string& key, const std::string& code) {
      if (Trim(code).empty() || emitted.Holds(code)) return;
      const std::string owner = key.substr(0, key.rfind('.'));
      subject_ = SubjectOfKey(owner);
      // The code of a form that was removed waits for an undo, and goes with the next save.
      if (subject_.Form > 0 && subject_.Form <= tables_.FormsCount &&
          !tables_.IsLive(subject_.Form)) {
        return;
      }
      subject_.Place = key;
      const bool owned = owners_.contains(owner);
      Report(owned ? FindingId::CodeLeftOut : FindingId::CodeOwnerless, "",
             owned ? "this code will not be in the program" : "no object owns this code");
    });
  }

  /// Form and object of a key such as "Form1.Button2".
  static Subject SubjectOfKey(std::string_view owner) {
    constexpr std::string_view kForm = "Form";
    Subject subject;
    const std::size_t dot = owner.find('.');
    if (StartsWithFolded(owner, kForm)) {
      subject.Form = ToInt16(Val(owner.substr(kForm.size(), dot - kForm.size()))).value_or(0);
    }
    if (dot == std::string_view::npos) return subject;
    const std::string_view name = owner.substr(dot + 1);
    const std::size_t digits = name.find_last_not_of("0123456789") + 1;
    const std::optional<Kind> kind = KindOfTag(Lower(name.substr(0, digits)));
    if (kind && IsObjectKind(*kind)) {
      subject.Of = *kind;
      subject.Index = ToInt16(Val(name.substr(digits))).value_or(0);
    }
    return subject;
  }

  ProjectTables& tables_;
  FilePort& files_;
  std::vector<Finding> findings_;
  Subject subject_;
  NameMap names_;
  FoldedSet parents_;
  FoldedSet owners_;
  std::unordered_map<Kind, std::string> families_;  ///< of the form looked at
  std::array<bool, kKindCount> undeclared_{};       ///< kinds reported as undeclared on it
  int popups_ = 0;                                  ///< popup menus met on it
  int sockets_ = 0;                                 ///< sockets met in the project
};

}  // namespace

std::vector<Finding> CheckProject(ProjectTables& tables, FilePort& files) {
  return Checker(tables, files).Run();
}

}  // namespace tarnwick::project
