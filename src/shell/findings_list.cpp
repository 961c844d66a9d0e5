#include "shell/findings_list.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <span>
#include <tuple>
#include <utility>

#include "project/check.h"
#include "project/check_code.h"
#include "shell/design_surfaces.h"
#include "text/code_page.h"
#include "text/numbers.h"

namespace tarnwick {

namespace {

using project::Finding;
using project::FindingId;
using project::ProgramPlace;

bool IsAboutCode(FindingId id) noexcept {
  return id == FindingId::CodeOwnerless || id == FindingId::CodeLeftOut;
}

/// The name of the object in a place such as "Form1.Btn1"; "" for the form itself.
std::string_view ObjectIn(std::string_view place, std::string_view form) noexcept {
  const bool behind =
      place.size() > form.size() + 1 && place.starts_with(form) && place[form.size()] == '.';
  return behind ? place.substr(form.size() + 1) : std::string_view();
}

/// The event in a key such as "Form1.Button2.OnClick".
std::string_view EventIn(std::string_view key) noexcept {
  return key.substr(std::min(key.rfind('.'), key.size() - 1) + 1);
}

bool HasEvent(Kind kind, Event event) noexcept {
  const std::span<const Event> events = ListOf(InfoOf(kind).Events).Events;
  return std::find(events.begin(), events.end(), event) != events.end();
}

}  // namespace

void FindingsList::Check(bool with_code) {
  on_files_ = project::CheckFiles(state_.Tables, state_.Ports.Files);
  Find(with_code);
}

bool FindingsList::IsShown() const {
  return state_.IsShown(Panel::Findings) || !findings_.empty();
}

bool FindingsList::FollowsCode() const {
  const auto faulty = [](const Finding& finding) { return finding.Id == FindingId::CodeFaulty; };
  return state_.IsShown(Panel::Findings) || std::any_of(findings_.begin(), findings_.end(), faulty);
}

void FindingsList::Refresh() {
  if (IsShown()) Find(FollowsCode());
}

void FindingsList::ProjectSaved() {
  if (IsShown()) Check();
}

void FindingsList::ProjectReplaced() {
  if (state_.IsShown(Panel::Findings)) return Check();
  Take({});
}

void FindingsList::Find(bool with_code) {
  std::vector<Finding> all = on_files_;
  const auto add = [&all](std::vector<Finding> found) {
    std::move(found.begin(), found.end(), std::back_inserter(all));
  };
  add(project::CheckProject(state_.Tables, state_.Ports.Files));
  if (with_code) {
    project::AddCodeFaults(all, state_.Tables, state_.Ports.Files, state_.Tables.ExecutableFolder);
  }
  const auto before = [](const Finding& a, const Finding& b) {
    return std::tuple(b.How(), a.Form) < std::tuple(a.How(), b.Form);
  };
  std::stable_sort(all.begin(), all.end(), before);
  Take(std::move(all));
}

void FindingsList::Take(std::vector<Finding> findings) {
  findings_ = std::move(findings);
  std::vector<FindingLine> lines;
  lines.reserve(findings_.size());
  for (const Finding& finding : findings_) lines.push_back(LineOf(finding));
  if (lines == lines_) return;
  lines_ = std::move(lines);
  state_.View->FindingsChanged();
}

FindingLine FindingsList::LineOf(const Finding& finding) const {
  FindingLine line{finding.How(), "", "", std::string(finding.Row),
                   std::string(finding.Text).append("; ").append(finding.ToDo())};
  const FormRec* form =
      state_.Tables.IsLive(finding.Form) ? state_.Tables.Form(finding.Form) : nullptr;
  if (form != nullptr) line.Form = form->Name;
  if (IsAboutCode(finding.Id)) {
    NameCode(finding.Place, finding, line);
  } else if (finding.Id != FindingId::CodeFaulty) {
    line.Object = ObjectIn(finding.Place, line.Form);
  } else if (!finding.In) {
    line.Text.insert(0, finding.Place + ": ");
  } else if (finding.In->What == ProgramPlace::Sort::Property) {
    line.Row = finding.In->Member;
    if (const ControlRef object = ObjectOf(finding)) line.Object = object->Tag;
  } else {
    line.Text.insert(0, "line " + NumberText(std::int64_t{finding.In->Line}) + ": ");
    if (finding.In->What == ProgramPlace::Sort::Declarations) {
      line.Row = "Declarations";
    } else {
      NameCode(project::CodeKey(*finding.In), finding, line);
    }
  }
  return line;
}

/// Names object and event of a key such as "Form1.Button2.OnClick".
void FindingsList::NameCode(const std::string& key, const Finding& finding,
                            FindingLine& line) const {
  line.Row = EventIn(key);
  const std::string_view owner = std::string_view(key).substr(0, key.size() - line.Row.size() - 1);
  if (const ControlRef object = ObjectOf(finding)) {
    line.Object = object->Tag;
  } else if (const std::size_t dot = owner.find('.'); dot != std::string_view::npos) {
    line.Object = owner.substr(dot + 1);
  }
}

/// The object that a finding is about; null for the form, and for an object that has gone.
ControlRef FindingsList::ObjectOf(const Finding& finding) const {
  const DesignForm* form = state_.Tables.UserIfAny(finding.Form);
  if (form == nullptr) return nullptr;
  if (finding.Of != Kind::Form) {
    ControlRef object = form->Element(finding.Of, finding.Index);
    return object != nullptr && object->Visible ? object : nullptr;
  }
  // What a line of a file is about goes by its name alone.
  const std::string_view name = ObjectIn(finding.Place, state_.Tables.Form(finding.Form)->Name);
  const bool of_code = IsAboutCode(finding.Id) || finding.Id == FindingId::CodeFaulty;
  return of_code || name.empty() ? nullptr : form->FindByTag(name);
}

/// True while the object is the selection of the current form; of null the form itself.
bool FindingsList::IsSelected(int form, const ControlRef& object) const {
  const DesignForm* const current = state_.Tables.CurrentForm;
  if (current == nullptr || current->Number() != form) return false;
  return object == nullptr ? current->NameObjet == InfoOf(Kind::Form).NameWord
                           : current->ControlSel == object;
}

std::string FindingsList::Word() const {
  if (findings_.empty()) return {};
  std::string word;
  AppendNumber(word, static_cast<std::int64_t>(findings_.size()));
  return word.append(findings_.size() == 1 ? " finding" : " findings");
}

void FindingsList::GoTo(int line) {
  if (state_.Busy || line < 0 || static_cast<std::size_t>(line) >= findings_.size()) return;
  // By value: a command on the way may check again.
  const Finding finding = findings_[static_cast<std::size_t>(line)];
  if (IsAboutCode(finding.Id)) return GoToCode(finding, finding.Place);
  const bool property = finding.In && finding.In->What == ProgramPlace::Sort::Property;
  if (finding.Id == FindingId::CodeFaulty && !property) return GoToFault(finding);
  if (finding.Id == FindingId::MainFormGone) return state_.Run(Command::SelectMainForm);
  if (state_.RaiseOpenCode() || !state_.Tables.IsLive(finding.Form)) return;
  forms_.GoTo(finding.Form);
  FormUser* const surface = surfaces_.Of(finding.Form);
  const ControlRef object = ObjectOf(finding);
  if (object == nullptr) {
    surface->SelectForm();
  } else if (object->Id == Kind::Menu || object->Id == Kind::MenuItem) {
    // An item has no rows in the grid: its designer is where it is mended.
    surface->SelectMenuItem(object);
    return state_.Run(Command::MenuEdit);
  } else {
    surface->SelectObject(object);
  }
  // The row of an object that has gone is no row of the form.
  if (finding.Of != Kind::Form && object == nullptr) return;
  GoToRow(property ? std::string_view(finding.In->Member) : finding.Row);
}

/// To the line of the code that is faulty; nowhere for a line that the user has no place for.
void FindingsList::GoToFault(const Finding& finding) {
  if (!finding.In || !state_.Tables.IsLive(finding.Form)) return;
  const ProgramPlace& place = *finding.In;
  if (place.What == ProgramPlace::Sort::Declarations) return GoToDeclarations(place);
  // The key of a form's own code reads like that of an item: it is reached by the selection alone.
  const bool by_selection = place.Id == Kind::Form && !IsSelected(place.Form, nullptr);
  if (by_selection && state_.RaiseOpenCode()) return;
  GoToCode(finding, project::CodeKey(place));
  state_.Code->ShowLine(place.Line);
}

void FindingsList::GoToDeclarations(const ProgramPlace& place) {
  const DesignForm* const current = state_.Tables.CurrentForm;
  const bool there = current != nullptr && current->Number() == place.Form;
  if (!there && state_.RaiseOpenCode()) return;
  if (!there) forms_.GoTo(place.Form);
  state_.Run(Command::PublicDeclarations);
  state_.Code->ShowLine(place.Line);
}

void FindingsList::GoToRow(std::string_view name) {
  if (name.empty()) return;
  if (!state_.IsShown(Panel::Properties)) state_.Run(Command::Properties);
  for (int row = 0; row < sheet_.RowCount(); ++row) {
    if (!EqualsFolded(sheet_.Label(row), name)) continue;
    sheet_.SelectRow(row);
    state_.View->FocusGridRow();
    return;
  }
}

void FindingsList::GoToCode(const Finding& finding, const std::string& key) {
  FormUser* const surface = surfaces_.Of(finding.Form);
  if (surface == nullptr) return;
  const std::optional<Event> event = EventOfName(EventIn(key));
  const ControlRef object = ObjectOf(finding);
  const bool is_form = key.find('.') == key.rfind('.');
  if (!state_.Code->IsCodeOpen()) {
    forms_.GoTo(finding.Form);
    if (object == nullptr) {
      surface->SelectForm();
    } else {
      surface->SelectObject(object);
    }
  }
  // While the editor is open nothing else can be selected: the whole key says what is meant. So it
  // does where no list of events has the event.
  const bool listed = object != nullptr && event && HasEvent(object->Id, *event);
  const bool by_key = !is_form && !(listed && IsSelected(finding.Form, object));
  state_.Tables.JumpKey = by_key || !event ? key : std::string(InfoOf(*event).Name);
  state_.Busy = true;
  state_.Code->OpenCode();
  state_.Busy = false;
}

}  // namespace tarnwick
