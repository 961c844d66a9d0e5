#include "model/new_form.h"

#include "model/units.h"
#include "text/numbers.h"

namespace tarnwick {

namespace {

constexpr float kWindowWidth = 6000;   // twips
constexpr float kWindowHeight = 5000;  // twips

}  // namespace

void LoadFormWindow(ProjectTables& tables, int form) {
  DesignForm* window = tables.User(form);
  FormRec* record = tables.Form(form);
  if (window == nullptr || record == nullptr) return;
  window->SetNumber(form);
  window->Caption = window->KeyPrefix();
  record->Name = window->Caption;
  window->Width = kWindowWidth;
  window->Height = kWindowHeight;
  window->oldWidth = static_cast<std::int32_t>(kWindowWidth);
  window->oldHeight = static_cast<std::int32_t>(kWindowHeight);
  record->Width = ToInt16(kWindowWidth / kTwipsPerPixel).value_or(0);
  record->Height = ToInt16(kWindowHeight / kTwipsPerPixel).value_or(0);
  record->FileName.clear();
  record->Visible = 1;
  record->BorderStyle = 2;
  if (record->IconFile.empty()) record->IconFile = kDefaultFile;
  if (record->ImageFile.empty()) record->ImageFile = kDefaultFile;
  for (const Event event : NewFormEvents()) tables.EventTable.Add(window->Caption, event, "");
}

int NewForm(ProjectTables& tables) {
  const int form = tables.GrowForms();
  if (form == 0) return 0;
  tables.ListaFrms.Add(FormListText("Form" + NumberText(std::int64_t{form}), ""), form);
  LoadFormWindow(tables, form);
  return form;
}

int AddForm(ProjectTables& tables) {
  if (tables.FormsCount == 0) tables.MainFormName = kFirstMainForm;
  return NewForm(tables);
}

}  // namespace tarnwick
