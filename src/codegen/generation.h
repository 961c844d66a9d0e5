// What the section writers share while one source text is made.
#pragma once

#include <algorithm>
#include <span>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <utility>

#include "codegen/event_lookup.h"
#include "codegen/generator_state.h"
#include "codegen/image_index.h"
#include "codegen/source_map.h"
#include "codegen/source_text.h"
#include "model/project_records.h"
#include "text/strings.h"

namespace tarnwick {

/// One run of the generator: the tables it reads, the text it writes, and the form it is at.
class Generation {
 public:
  Generation(ProjectTables& tables, GeneratorState& state, SourceText out = {})
      : Tables(tables), State(state), Out(std::move(out)), Code(tables.EventTable) {}

  /// Selects a form of the project; the members below are then about that form.
  void SelectForm(int form);

  [[nodiscard]] const FormRec& Record() const noexcept { return *record_; }
  [[nodiscard]] DesignForm& User() const noexcept { return *user_; }
  /// The form's number as its design window holds it, as text.
  [[nodiscard]] std::string_view NumeroText() const noexcept { return numero_; }
  [[nodiscard]] bool MenuBarVisible() const noexcept { return menu_bar_visible_; }
  /// Pictures of the form's buttons and of its images.
  [[nodiscard]] ImageIndex& ButtonImages() noexcept { return images_->Buttons; }
  [[nodiscard]] ImageIndex& PictureImages() noexcept { return images_->Images; }

  ProjectTables& Tables;
  GeneratorState& State;
  SourceText Out;
  EventLookup Code;
  /// Collects the addresses of the code texts that become a Sub; null to collect none.
  std::unordered_set<const char*>* Bodies = nullptr;
  /// Collects where the parts of the text start; null to collect nothing.
  SourceMap* Map = nullptr;

  /// The lines from here on are those of a place of the selected form.
  void Mark(SourcePlace place) const {
    if (Map == nullptr) return;
    place.Form = State.i;
    Map->Begin(Out.Size(), place);
  }

 private:
  struct FormImages {
    ImageIndex Buttons;
    ImageIndex Images;
  };

  const FormRec* record_ = nullptr;
  DesignForm* user_ = nullptr;
  std::string_view numero_;
  bool menu_bar_visible_ = false;
  FormImages* images_ = nullptr;
  // By form: several sections read them, and no record changes meanwhile.
  std::unordered_map<int, FormImages> images_of_;
};

/// The first part of an object's Sub name: for a name in array form the stem and a number.
[[nodiscard]] inline Numbered SubNameOf(std::string_view name, int number) noexcept {
  const bool array_form = IsArrayForm(name);
  return {array_form ? ArrayStem(name) : name, number, array_form};
}

/// The sub-items of a popup's item: as many as it counts and holds, slot 0 left out.
[[nodiscard]] inline std::span<const PopUpEntryRec> SubItemsOf(const PopUpMenuRec& item) noexcept {
  if (item.Level <= 0 || item.Entries.empty()) return {};
  const std::size_t held = item.Entries.size() - 1;
  return std::span(item.Entries).subspan(1, std::min(held, static_cast<std::size_t>(item.Level)));
}

/// The rows of popup number `p`; null when the project has none under it.
[[nodiscard]] inline const PopUpFormRec* PopUpRowsOf(const Generation& gen, int p) noexcept {
  return std::as_const(gen.Tables.PopUpMenus).At(p);
}

}  // namespace tarnwick
