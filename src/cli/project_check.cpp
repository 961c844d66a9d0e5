#include "cli/project_check.h"

#include <unordered_map>
#include <unordered_set>

#include "codegen/emitted_code.h"
#include "persistence/record_check.h"
#include "text/code_page.h"
#include "text/numbers.h"
#include "text/path_text.h"
#include "text/strings.h"

namespace tarnwick {

namespace {

using FoldedSet = std::unordered_set<std::string, FoldedHash, FoldedEqual>;
using FoldedMap = std::unordered_map<std::string, std::string, FoldedHash, FoldedEqual>;

class Checker {
 public:
  explicit Checker(LoadedProject& project) : project_(project), tables_(project.Tables) {}

  std::vector<std::string> Run() {
    for (const std::string& message : project_.Messages.Texts) findings_.push_back(message);
    for (int form = 1; form <= tables_.FormsCount; ++form) {
      if (tables_.IsLive(form)) CheckForm(form);
    }
    CheckCode();
    return std::move(findings_);
  }

 private:
  void Tell(std::string_view form, std::string_view object, std::string_view what) {
    std::string line(form);
    if (!object.empty()) line.append(".").append(object);
    findings_.push_back(line.append(": ").append(what));
  }

  void CheckForm(int form) {
    const FormRec& record = *tables_.Form(form);
    const DesignForm& window = *tables_.User(form);
    if (!record.FileName.empty()) CheckRecords(record);
    CheckName(record.Name, "", record.Name);
    CheckFormPictures(form, record);
    for (const ControlRef& control : window.Controls()) {
      if (control->Visible && control->Id != Kind::Handle) CheckObject(form, record, *control);
    }
    Own(window.KeyPrefix());
  }

  void CheckRecords(const FormRec& record) {
    const auto text = project_.Files.Read(record.FileName);
    if (!text) return;
    for (const RecordFault& fault : FaultsOfFormText(*text)) {
      std::string what = "line " + NumberText(static_cast<std::int64_t>(fault.Line));
      if (!fault.Kind.empty()) what.append(", [").append(fault.Kind).append("]");
      Tell(record.Name, fault.Name == record.Name ? std::string_view() : fault.Name,
           what.append(": ").append(fault.What));
    }
  }

  void CheckFile(std::string_view form, std::string_view object, std::string_view what,
                 const std::string& path) {
    if (project_.Files.Exists(path)) return;
    Tell(form, object, std::string(what).append(" does not exist: ").append(path));
  }

  void CheckFormPictures(int form, const FormRec& record) {
    if (record.ImageFile != kDefaultFile) {
      CheckFile(record.Name, "", "the window's icon",
                ResolveProjectPath(tables_, record.ImageFile, false));
    }
    // Only the first form gives the program its icon.
    if (form == 1 && record.IconFile != kDefaultFile) {
      CheckFile(record.Name, "", "the program's icon", record.IconFile);
    }
  }

  void CheckObject(int form, const FormRec& record, const DesignControl& control) {
    CheckName(record.Name, ObjectName(control), control.Tag);
    const std::string form_key = tables_.User(form)->KeyPrefix();
    Own(form_key + "." + control.ArrayAndIndex());
    if (control.Id == Kind::Menu || control.Id == Kind::MenuItem) {
      Own(form_key + "." + control.Tag);
    } else if (control.Id == Kind::PopUpMenu) {
      CheckPopUp(form_key, record, control);
    } else if (control.Id == Kind::HtmlViewer) {
      const std::string& page = RecordOrEmpty(record.HtmlViewers, control.Index).Navigate;
      CheckObjectFile(record, control, "the page", page);
    } else if (control.Id == Kind::Button || control.Id == Kind::Image) {
      const std::string& picture =
          RecordOrEmpty(*record.Objects(control.Id), control.Index).ImageFile;
      CheckObjectFile(record, control, "the picture", picture);
    }
  }

  void CheckObjectFile(const FormRec& record, const DesignControl& control, std::string_view what,
                       const std::string& file) {
    if (!HasPicturePath(file)) return;
    CheckFile(record.Name, ObjectName(control), what, ResolveProjectPath(tables_, file, false));
  }

  void CheckPopUp(const std::string& form_key, const FormRec& record,
                  const DesignControl& control) {
    Own(form_key + "." + control.Tag);
    const PopUpFormRec& popup = RecordOrEmpty(tables_.PopUpMenus, control.Index);
    for (std::size_t row = 1; row < popup.Items.size(); ++row) {
      OwnItem(form_key, record, popup.Items[row].Name);
      const std::vector<PopUpEntryRec>& entries = popup.Items[row].Entries;
      for (std::size_t entry = 1; entry < entries.size(); ++entry) {
        OwnItem(form_key, record, entries[entry].Name);
      }
    }
  }

  void OwnItem(const std::string& form_key, const FormRec& record, const std::string& name) {
    CheckName(record.Name, "", name);
    Own(form_key + "." + name);
  }

  /// Kind and index of an object whose name says nothing.
  static std::string ObjectName(const DesignControl& control) {
    return control.Tag.empty() ? control.ArrayAndIndex() : control.Tag;
  }

  /// All names of the generated program share one space, forms and menu items included.
  void CheckName(std::string_view form, std::string_view object, const std::string& name) {
    if (Trim(name).empty()) {
      Tell(form, object, "the name is empty");
      return;
    }
    std::string place(form);
    if (!object.empty()) place.append(".").append(object);
    const auto [first, added] = names_.emplace(name, place);
    if (!added) Tell(form, object, "the name " + name + " is used before, by " + first->second);
  }

  void Own(const std::string& key) { owners_.insert(key); }

  void CheckCode() {
    const EmittedCode emitted = FindEmittedCode(tables_);
    tables_.EventTable.ForEach([&](const std::string& key, const std::string& code) {
      if (Trim(code).empty() || emitted.Holds(code)) return;
      const std::size_t dot = key.rfind('.');
      const std::string owner = key.substr(0, dot);
      if (owners_.find(owner) == owners_.end()) {
        Tell(key, "", "no object owns this code");
      } else {
        Tell(key, "", "this code will not be in the program");
      }
    });
  }

  LoadedProject& project_;
  ProjectTables& tables_;
  std::vector<std::string> findings_;
  FoldedMap names_;
  FoldedSet owners_;
};

}  // namespace

std::vector<std::string> CheckProject(LoadedProject& project) {
  return Checker(project).Run();
}

}  // namespace tarnwick
