#include "project/form_files.h"

#include <optional>

#include "text/code_page.h"
#include "text/path_text.h"

namespace tarnwick::project {

namespace {

constexpr std::string_view kExtension = ".ftn";

}  // namespace

bool SaveFormDialog(ProjectContext& context, int form) {
  FormRec* record = context.Tables.Form(form);
  if (form < 1 || record == nullptr) return false;
  context.Container.HideContainer();
  context.Container.ActivateForm(form);
  const FileDialogRequest request{"Save Form", "Form (*.ftn)|*.ftn|All Files|*.*",
                                  context.Tables.ProjectFolder(), record->Name};
  for (;;) {
    std::optional<std::string> chosen = context.Dialogs.SaveFile(request);
    if (!chosen || chosen->empty()) return false;
    if (context.Files.Exists(*chosen) &&
        !context.Messages.AskYesNo("The File " + *chosen + "\r\nalready exists. Replace it?",
                                   "Tarnwick", MessageIcon::None)) {
      continue;
    }
    if (!Lower(*chosen).ends_with(kExtension)) *chosen += kExtension;
    record->FileName = std::move(*chosen);
    return true;
  }
}

void RefreshFormListEntry(ProjectContext& context, int form) {
  const FormRec* record = context.Tables.Form(form);
  if (form < 1 || record == nullptr) return;
  context.Tables.ListaFrms.SetText(form, FormListText(record->Name, record->FileName));
}

}  // namespace tarnwick::project
