#include "inspector/row_subject.h"

#include "text/code_page.h"

namespace tarnwick {

RowSubject::RowSubject(const DesignForm* window, std::string_view kind_word) {
  const std::optional<Kind> kind = KindOfTag(Lower(kind_word));
  if (!kind || window == nullptr) return;
  if (*kind != Kind::Form) {
    const ControlRef& selected = window->ControlSel;
    if (!selected || selected->Id != *kind) return;
    control_ = selected;
  }
  form_ = window->Number();
  window_ = window;
  id_ = *kind;
}

std::optional<RowTarget> RowSubject::In(ProjectTables& tables) const {
  if (window_ == nullptr || tables.UserIfAny(form_) != window_ || !tables.IsLive(form_)) {
    return std::nullopt;
  }
  DesignForm& window = *tables.User(form_);
  FormRec& record = *tables.Form(form_);
  if (id_ == Kind::Form) return RowTarget{window, record, nullptr, Kind::Form, 0};
  const ControlRef control = control_.lock();
  // A control that was unloaded may live on in someone's hand; it is no object any more. One whose
  // number changed, because an earlier one of its kind went, is the same object.
  if (!control || window.Element(control->Id, control->Index) != control) return std::nullopt;
  return RowTarget{window, record, control.get(), id_, control->Index};
}

std::string RowSubject::Key() const {
  const ControlRef control = control_.lock();
  return control ? control->ArrayAndIndex() : std::string(InfoOf(Kind::Form).NameWord);
}

bool RowSubject::IsSame(const RowSubject& other) const noexcept {
  return window_ == other.window_ && id_ == other.id_ && control_.lock() == other.control_.lock();
}

}  // namespace tarnwick
