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

/// The rows and which of them is selected. Editing a row leaves the others as they are. Where a
/// method takes an object, null means the form. A row belongs to its object, whatever the names
/// are: two objects may have the same.
class ObjectCombo {
 public:
  struct Row {
    std::string Text;
    const DesignControl* Object = nullptr;  ///< whose row it is, null for the form; never followed
  };

  [[nodiscard]] const std::vector<Row>& Rows() const noexcept { return rows_; }
  /// Index of the selected row; -1 for none.
  [[nodiscard]] int Selected() const noexcept { return selected_; }

  void Clear() noexcept;
  /// The form's row, then a row for each object in the order of the form's controls.
  void Fill(const DesignForm& form, std::string_view form_name);
  /// Selects an object's row, and adds one of the name with the suffix where it has none; true when
  /// it was added.
  bool Bring(const DesignControl* object, std::string_view name, std::string_view suffix);
  /// Gives an object's row another text, and returns its index; -1 when it has none.
  int Rename(const DesignControl* object, std::string text);
  /// Takes an object's row out; false when it has none.
  bool Remove(const DesignControl& object);
  /// The first row whose name begins with a text, in any case; else the first that holds it, so
  /// that the part behind a form's name finds an object too. -1 for none.
  [[nodiscard]] int Search(std::string_view text) const noexcept;
  /// The rows a popup menu can hang on: the names of all but the kinds without a surface.
  [[nodiscard]] std::vector<std::string> ParentNames() const;

 private:
  [[nodiscard]] int PositionOf(const DesignControl* object) const noexcept;

  std::vector<Row> rows_;
  int selected_ = -1;
};

}  // namespace tarnwick
