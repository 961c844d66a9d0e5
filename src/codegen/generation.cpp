#include "codegen/generation.h"

namespace tarnwick {

void Generation::SelectForm(int form) {
  State.i = static_cast<std::int16_t>(form);
  record_ = Tables.Form(form);
  user_ = Tables.User(form);
  numero_ = user_->Element(Kind::Numero, 0)->Caption;
  menu_bar_visible_ = user_->MenuBarVisible();
  Code.SetForm(form);
  ButtonImages.SetRecords(record_->Buttons);
  PictureImages.SetRecords(record_->Images);
}

}  // namespace tarnwick
