#include "editor/form_view_codes.h"

namespace tarnwick::editor {

FormRec* FormViewCodes::Record() const {
  return project_.IsLive(form_) ? project_.Form(form_) : nullptr;
}

bool FormViewCodes::Open(int form) {
  if (!project_.IsLive(form)) return false;
  if (form == form_) return true;
  if (IsOpen()) typed_.Leave();
  form_ = form;
  typed_.Show(DeclarationsKey(form), &project_.Form(form)->DeclarePbl);
  return true;
}

std::string FormViewCodes::Caption() const {
  const FormRec* const record = Record();
  return record == nullptr ? std::string() : "Form: " + record->Name + "  (Public Declarations)";
}

void FormViewCodes::Store() {
  FormRec* const record = Record();
  if (record == nullptr || !typed_.Differs()) return;
  const std::string text = typed_.Text();
  host_.AcceptBegins(form_, "Public Declarations");
  record->DeclarePbl = text;
  typed_.Stored(text);
  host_.CodeAccepted(form_);
}

void FormViewCodes::Accept() {
  if (!IsOpen()) return;
  Store();
  Close();
}

void FormViewCodes::Cancel() {
  if (IsOpen()) Close();
}

void FormViewCodes::Refresh() {
  if (const FormRec* const record = Record()) typed_.Follow(record->DeclarePbl);
}

void FormViewCodes::Close() {
  typed_.Leave();
  form_ = 0;
  host_.Unload();
}

}  // namespace tarnwick::editor
