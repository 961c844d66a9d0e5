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

const SupportTables& DeliveredRows();

/// Selects as the design surface does. Log entries: "select NAME", "border N", "recolor",
/// "place N", "name OLD>NEW", "popup N", "items".
class RecordingHost final : public InspectorHost {
 public:
  explicit RecordingHost(CallLog& log);
  std::set<std::string> Pictures;  ///< the files that are pictures

  void SelectObject(DesignForm& form, const ControlRef& control) override;
  void borderstylea(DesignForm& /*form*/, std::int16_t style) override;
  void FormRecolored(DesignForm& /*form*/) override;
  void PlaceChanged(DesignForm& form) override;
  bool PictureLoads(const std::string& path) override;
  void NameChanged(DesignForm& /*form*/, std::string_view old_name,
                   std::string_view new_name) override;
  void OpenFormPopUp(DesignForm& /*form*/, int index) override;
  void OpenFormAddItems(DesignForm& /*form*/) override;

 private:
  CallLog& log_;
};

/// Log entries: "form N", "controls N", "bar N", "list".
class RecordingObserver final : public ProjectObserver {
 public:
  explicit RecordingObserver(CallLog& log);
  void FormChanged(int form) override;
  void ControlsChanged(int form) override;
  void EventsBarChanged(int form) override;
  void FormListChanged() override;

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
  void RowsChanged() override;
  void SubjectChanged() override;
  void RowTextChanged(int row) override;
  void ComboChanged() override;
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

  explicit SheetBench(const SupportTables& support = DeliveredRows());
  ~SheetBench();
  SheetBench(const SheetBench&) = delete;
  SheetBench& operator=(const SheetBench&) = delete;

  [[nodiscard]] DesignForm& Form() { return *Tables.CurrentForm; }
  [[nodiscard]] FormRec& Record();

  ControlRef Make(Kind kind, float x = 150, float y = 300);
  /// Selects an object, or the form, and shows its rows: what a press and its release do.
  void Pick(const ControlRef& control);
  ControlRef MakeOrForm(Kind kind);

  [[nodiscard]] int RowOf(std::string_view name) const;
  [[nodiscard]] const std::string& Text(std::string_view name) const;
  bool Type(std::string_view row, std::string_view text);
  bool Choose(std::string_view row, int place);
  /// Selects a row and presses its button.
  void PressButton(std::string_view row);
  [[nodiscard]] std::vector<std::string> Labels() const;
  [[nodiscard]] std::vector<std::string> ComboRows() const;
  [[nodiscard]] bool Logged(std::string_view entry) const;
};

}  // namespace tarnwick
