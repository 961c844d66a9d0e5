// A property sheet with everything around it recorded, over the delivered property rows.
#pragma once

#include <fstream>
#include <iterator>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "designer/history/history.h"
#include "designer/object_kinds.h"
#include "designer/selection.h"
#include "fakes/build_paths.h"
#include "fakes/fake_ports.h"
#include "inspector/property_sheet.h"
#include "model/new_form.h"
#include "persistence/support_files.h"

namespace tarnwick {

using language::SupportTables;

inline const SupportTables& DeliveredRows() {
  static const SupportTables tables = [] {
    std::ifstream file(test::ProgramFolder() + "/Add004.tn", std::ios::binary);
    SupportTables read;
    AddKindFile(read, std::string{std::istreambuf_iterator<char>(file), {}});
    return read;
  }();
  return tables;
}

/// Selects as the design surface does. Log entries: "select NAME", "border N", "recolor",
/// "place N", "name OLD>NEW", "popup N", "items".
class RecordingHost final : public InspectorHost {
 public:
  explicit RecordingHost(CallLog& log) : log_(log) {}
  std::set<std::string> Pictures;  ///< the files that are pictures

  void SelectObject(DesignForm& form, const ControlRef& control) override {
    Select(form, control);
    log_.Add("select " + form.NameObjet);
  }
  void borderstylea(DesignForm& /*form*/, std::int16_t style) override {
    log_.Add("border " + std::to_string(style));
  }
  void FormRecolored(DesignForm& /*form*/) override { log_.Add("recolor"); }
  void PlaceChanged(DesignForm& form) override {
    log_.Add("place " + std::to_string(form.Number()));
  }
  bool PictureLoads(const std::string& path) override { return Pictures.contains(path); }
  void NameChanged(DesignForm& /*form*/, std::string_view old_name,
                   std::string_view new_name) override {
    log_.Add("name " + std::string{old_name} + ">" + std::string{new_name});
  }
  void OpenFormPopUp(DesignForm& /*form*/, int index) override {
    log_.Add("popup " + std::to_string(index));
  }
  void OpenFormAddItems(DesignForm& /*form*/) override { log_.Add("items"); }

 private:
  CallLog& log_;
};

/// Log entries: "form N", "controls N", "bar N", "list".
class RecordingObserver final : public ProjectObserver {
 public:
  explicit RecordingObserver(CallLog& log) : log_(log) {}
  void FormChanged(int form) override { log_.Add("form " + std::to_string(form)); }
  void ControlsChanged(int form) override { log_.Add("controls " + std::to_string(form)); }
  void EventsBarChanged(int form) override { log_.Add("bar " + std::to_string(form)); }
  void FormListChanged() override { log_.Add("list"); }

 private:
  CallLog& log_;
};

/// Counts what it hears; a head list that changes picks its selected row, as a widget might.
class CountingView final : public PropertySheetView {
 public:
  PropertySheet* Sheet = nullptr;
  int Rows = 0;
  int Subjects = 0;
  std::vector<int> Texts;  ///< the rows told, in order
  int Combos = 0;
  void RowsChanged() override { ++Rows; }
  void SubjectChanged() override { ++Subjects; }
  void RowTextChanged(int row) override { Texts.push_back(row); }
  void ComboChanged() override {
    ++Combos;
    if (Sheet != nullptr) Sheet->ChooseComboRow(Sheet->Combo().Selected());
  }
};

/// One form with its sheet. Objects are made as a press makes them.
struct SheetBench {
  FakePorts Fakes;
  Ports Given = Fakes.All();
  ProjectTables Tables;
  RecordingHost Host{Fakes.Log};
  RecordingObserver Observer{Fakes.Log};
  CountingView View;
  History Steps{Tables, Observer};
  PropertySheet Sheet;

  explicit SheetBench(const SupportTables& support = DeliveredRows())
      : Sheet(Tables, support, Given, Observer, Host, Steps) {
    Tables.ProgramFolder = "C:\\T";
    Tables.ProjectFile = "C:\\P\\a.tnp";
    Tables.CurrentForm = Tables.User(AddForm(Tables));
    Sheet.SetView(&View);
    Sheet.FillCombo();
  }

  [[nodiscard]] DesignForm& Form() { return *Tables.CurrentForm; }
  [[nodiscard]] FormRec& Record() { return *Tables.Form(Form().Number()); }

  ControlRef Make(Kind kind, float x = 150, float y = 300) {
    ControlRef control = CreateObject(Tables, Form(), kind, x, y);
    Pick(control);
    return control;
  }
  /// Selects an object, or the form, and shows its rows: what a press and its release do.
  void Pick(const ControlRef& control) {
    Select(Form(), control);
    Sheet.ClearPanel();
    Sheet.ShowSelection();
  }
  ControlRef MakeOrForm(Kind kind) {
    if (kind != Kind::Form) return Make(kind);
    Pick(nullptr);
    return nullptr;
  }

  [[nodiscard]] int RowOf(std::string_view name) const {
    for (int i = 0; i < Sheet.RowCount(); ++i) {
      if (EqualsFolded(Sheet.Label(i), name)) return i;
    }
    return -1;
  }
  [[nodiscard]] const std::string& Text(std::string_view name) const {
    return Sheet.Text(RowOf(name));
  }
  bool Type(std::string_view row, std::string_view text) {
    Sheet.SelectRow(RowOf(row));
    return Sheet.ApplyText(text);
  }
  bool Choose(std::string_view row, int place) {
    Sheet.SelectRow(RowOf(row));
    const auto& rows = Sheet.List().Values();
    const auto at = static_cast<std::size_t>(place);
    return Sheet.ApplyChoice(at < rows.size() ? rows[at] : std::string{}, place);
  }
  /// Selects a row and presses its button.
  void PressButton(std::string_view row) {
    Sheet.SelectRow(RowOf(row));
    Sheet.PickValue();
  }
  [[nodiscard]] std::vector<std::string> Labels() const {
    std::vector<std::string> labels;
    for (int i = 0; i < Sheet.RowCount(); ++i) labels.emplace_back(Sheet.Label(i));
    return labels;
  }
  [[nodiscard]] std::vector<std::string> ComboRows() const {
    std::vector<std::string> rows;
    for (const ObjectCombo::Row& row : Sheet.Combo().Rows()) rows.push_back(row.Text);
    return rows;
  }
  [[nodiscard]] bool Logged(std::string_view entry) const { return Fakes.Log.Find(entry) >= 0; }
};

}  // namespace tarnwick
