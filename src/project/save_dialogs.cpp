#include "project/save_dialogs.h"

#include <string_view>
#include <utility>

#include "text/code_page.h"
#include "text/path_text.h"

namespace tarnwick::project {

namespace {

constexpr std::string_view kProjectExtension = ".tnp";
constexpr std::string_view kFormExtension = ".ftn";

/// The name with the extension that it lacks.
std::string Completed(std::string name, std::string_view extension) {
  if (!Lower(name).ends_with(extension)) name += extension;
  return name;
}

/// Shows the dialog until a path is chosen that may be written, completed by the extension;
/// `exists` is how the question about an existing file goes on behind its path.
std::optional<std::string> AskPath(ProjectContext& context, const FileDialogRequest& request,
                                   std::string_view extension, std::string_view exists) {
  for (;;) {
    std::optional<std::string> chosen = context.Dialogs.SaveFile(request);
    if (!chosen || chosen->empty()) return std::nullopt;
    // The question is about the file that will be written, not about the name as typed.
    chosen = Completed(*std::move(chosen), extension);
    if (!context.Files.Exists(*chosen) ||
        context.Messages.AskYesNo(std::string("The File ").append(*chosen).append(exists),
                                  "Tarnwick", MessageIcon::None)) {
      return chosen;
    }
  }
}

}  // namespace

std::optional<std::string> SaveProjectDialog(ProjectContext& context) {
  const FileDialogRequest request{
      "Save Project", "Tarnwick Project|*.tnp|All Files|*.*", context.Tables.ProjectFolder(),
      Completed(std::string(BareName(context.Tables.ProjectFile)), kProjectExtension)};
  return AskPath(context, request, kProjectExtension, "\r\nalready exist. Replace it?");
}

bool SaveFormDialog(ProjectContext& context, int form) {
  FormRec* record = context.Tables.Form(form);
  if (form < 1 || record == nullptr) return false;
  context.Container.HideContainer();
  context.Container.ActivateForm(form);
  const FileDialogRequest request{"Save Form", "Form (*.ftn)|*.ftn|All Files|*.*",
                                  context.Tables.ProjectFolder(),
                                  Completed(record->Name, kFormExtension)};
  std::optional<std::string> chosen =
      AskPath(context, request, kFormExtension, "\r\nalready exists. Replace it?");
  if (!chosen) return false;
  record->FileName = *std::move(chosen);
  return true;
}

void RefreshFormListEntry(ProjectContext& context, int form) {
  const FormRec* record = context.Tables.Form(form);
  if (form < 1 || record == nullptr) return;
  context.Tables.ListaFrms.SetText(form, FormListText(record->Name, record->FileName));
}

}  // namespace tarnwick::project
