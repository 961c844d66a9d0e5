// The head `Combo`: the list of all objects of the current form.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "model/design_form.h"

namespace tarnwick {

/// A row's text is a name and its kind in round brackets. Names may hold brackets themselves, so
/// a row's name is what stands before the last one.
[[nodiscard]] std::string_view ComboRowName(std::string_view row) noexcept;
/// What stands between the last pair of brackets; "" without one.
[[nodiscard]] std::string_view ComboRowKind(std::string_view row) noexcept;

/// The rows and which of them is selected. Editing a row never builds the others anew. Where a
/// method takes an object, null means the form. A row is found by its name, compared whole; of
/// several objects with one name the row made for the very object is preferred, and the form's
/// row never stands for an object's.
class ObjectCombo {
 public:
  struct Row {
    std::string Text;
    const DesignControl* Object = nullptr;  ///< tells rows apart; never followed
  };

  [[nodiscard]] const std::vector<Row>& Rows() const noexcept { return rows_; }
  /// Place of the selected row from 0; -1 for none.
  [[nodiscard]] int Selected() const noexcept { return selected_; }

  void Clear() noexcept;
  /// The form's row, then a row for each object in the order of the form's controls.
  void Fill(const DesignForm& form, std::string_view form_name);
  /// Selects the row of a name, and adds it with the suffix where there is none; true when it was
  /// added.
  bool Bring(const DesignControl* object, std::string_view name, std::string_view suffix);
  /// Gives the row of the old name another text, and answers its place; -1 when there is none.
  int Rename(const DesignControl* object, std::string_view old_name, std::string text);
  /// Takes an object's row out: the selected one if it has the name, else the first that has; the
  /// name counts in either case when none fits exactly.
  bool Remove(std::string_view name);
  /// The rows a popup menu can hang on: the names of all but the kinds without a surface.
  [[nodiscard]] std::vector<std::string> ParentNames() const;

 private:
  [[nodiscard]] int PositionOf(const DesignControl* object, std::string_view name) const noexcept;
  [[nodiscard]] int PlaceToRemove(std::string_view name) const noexcept;

  std::vector<Row> rows_;
  int selected_ = -1;
};

}  // namespace tarnwick
