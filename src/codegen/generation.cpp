#include "codegen/generation.h"

namespace tarnwick {

void Generation::SelectForm(int form) {
  State.i = static_cast<std::int16_t>(form);
  record_ = Tables.Form(form);
  user_ = Tables.User(form);
  numero_ = user_->Element(Kind::Numero, 0)->Caption;
  menu_bar_visible_ = user_->MenuBarVisible();
  Code.SetForm(form);
  const FormImages none{ImageIndex(record_->Buttons), ImageIndex(record_->Images)};
  images_ = &images_of_.try_emplace(form, none).first->second;
}

}  // namespace tarnwick
