#include "project/save_dialogs.h"

#include <string_view>
#include <utility>

#include "text/code_page.h"
#include "text/path_text.h"

namespace tarnwick::project {

namespace {

constexpr std::string_view kFormExtension = ".ftn";

/// Shows the dialog until a path is chosen that may be written; `exists` is how the question about
/// an existing file goes on behind its path.
std::optional<std::string> AskPath(ProjectContext& context, const FileDialogRequest& request,
                                   std::string_view exists) {
  for (;;) {
    std::optional<std::string> chosen = context.Dialogs.SaveFile(request);
    if (!chosen || chosen->empty()) return std::nullopt;
    if (!context.Files.Exists(*chosen) ||
        context.Messages.AskYesNo(std::string("The File ").append(*chosen).append(exists),
                                  "Tarnwick", MessageIcon::None)) {
      return chosen;
    }
  }
}

}  // namespace

std::optional<std::string> SaveProjectDialog(ProjectContext& context) {
  const FileDialogRequest request{"Save Project", "Tarnwick Project|*.tnp|All Files|*.*",
                                  context.Tables.ProjectFolder(),
                                  std::string(BareName(context.Tables.ProjectFile))};
  return AskPath(context, request, "\r\nalready exist. Replace it?");
}

bool SaveFormDialog(ProjectContext& context, int form) {
  FormRec* record = context.Tables.Form(form);
  if (form < 1 || record == nullptr) return false;
  context.Container.HideContainer();
  context.Container.ActivateForm(form);
  const FileDialogRequest request{"Save Form", "Form (*.ftn)|*.ftn|All Files|*.*",
                                  context.Tables.ProjectFolder(), record->Name};
  std::optional<std::string> chosen = AskPath(context, request, "\r\nalready exists. Replace it?");
  if (!chosen) return false;
  if (!Lower(*chosen).ends_with(kFormExtension)) *chosen += kFormExtension;
  record->FileName = *std::move(chosen);
  return true;
}

void RefreshFormListEntry(ProjectContext& context, int form) {
  const FormRec* record = context.Tables.Form(form);
  if (form < 1 || record == nullptr) return;
  context.Tables.ListaFrms.SetText(form, FormListText(record->Name, record->FileName));
}

}  // namespace tarnwick::project
