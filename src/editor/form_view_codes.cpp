#include "editor/form_view_codes.h"

namespace tarnwick::editor {

bool FormViewCodes::Open(int form) {
  const FormRec* record = project_.IsLive(form) ? project_.Form(form) : nullptr;
  if (record == nullptr) return false;
  form_ = form;
  caption_ = "Form: " + record->Name + "  (Public Declarations)";
  editor_.SetText(record->DeclarePbl);
  return true;
}

void FormViewCodes::Accept() {
  FormRec* record = IsOpen() ? project_.Form(form_) : nullptr;
  if (record == nullptr) return;
  const int form = form_;
  host_.AcceptBegins(form, "Public Declarations");
  record->DeclarePbl = editor_.Text();
  host_.CodeAccepted(form);
  Close();
}

void FormViewCodes::Cancel() {
  if (IsOpen()) Close();
}

void FormViewCodes::Close() {
  form_ = 0;
  host_.Unload();
}

}  // namespace tarnwick::editor
