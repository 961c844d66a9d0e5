// For whom the rows of the grid stand.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "inspector/row_bindings.h"

namespace tarnwick {

/// An object of a form, or a form. It may go while its rows are shown: its target is then none.
class RowSubject {
 public:
  RowSubject() = default;
  /// What a kind word means on a form: the form itself, or its selected object if that is of the
  /// kind; no subject otherwise.
  RowSubject(const DesignForm* window, std::string_view kind_word);

  /// Record and control of the subject; nothing once they are gone.
  [[nodiscard]] std::optional<RowTarget> In(ProjectTables& tables) const;
  /// True when both are the same object, or the same form.
  [[nodiscard]] bool IsSame(const RowSubject& other) const noexcept;
  [[nodiscard]] Kind Id() const noexcept { return id_; }
  /// A text for the object within its form: array and index ("Button3"), or "Form".
  [[nodiscard]] std::string Key() const;
  /// The number of its form; 0 for none.
  [[nodiscard]] int FormNumber() const noexcept { return form_; }

 private:
  int form_ = 0;
  const DesignForm* window_ = nullptr;
  std::weak_ptr<DesignControl> control_;
  Kind id_ = Kind::Form;
};

}  // namespace tarnwick
