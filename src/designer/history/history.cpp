#include "designer/history/history.h"

#include <utility>

#include "designer/history/project_shadow.h"
#include "designer/selection.h"

namespace tarnwick {

namespace {

/// What is selected on a form at some time.
struct SelectionValue {
  ControlRef Control;
  std::string NameObjet;
  std::int16_t IndexObjet = 0;
};

SelectionValue SelectionOf(const ProjectTables& tables, int form) {
  const DesignForm* const window = tables.UserIfAny(form);
  if (window == nullptr) return {nullptr, std::string(InfoOf(Kind::Form).NameWord), 0};
  return {window->ControlSel, window->NameObjet, window->IndexObjet};
}

int CurrentNumber(const ProjectTables& tables) {
  return tables.CurrentForm == nullptr ? 0 : tables.CurrentForm->Number();
}

void PutSelection(DesignForm& window, const SelectionValue& selection) {
  const ControlRef& control = selection.Control;
  if (control && window.Element(control->Id, control->Index) == control) {
    Select(window, control);
    return;
  }
  Select(window, nullptr);
  // The name of a menu item stands for no control.
  if (!control) {
    window.NameObjet = selection.NameObjet;
    window.IndexObjet = selection.IndexObjet;
  }
}

}  // namespace

struct History::Shadow : ProjectShadow {
  using ProjectShadow::ProjectShadow;
};

/// A step while it runs.
struct History::Running {
  int Form = 0;
  std::string Key;  ///< of a stay; "" for a step with an end of its own
  std::string Name;
  int Current = 0;
  SelectionValue Selection;
};

struct History::Entry {
  int Form = 0;
  std::string Name;
  int CurrentBefore = 0;
  int CurrentAfter = 0;
  SelectionValue SelectionBefore;
  SelectionValue SelectionAfter;
  ProjectChange Change;
};

History::History(ProjectTables& tables, ProjectObserver& observer)
    : tables_(tables), observer_(observer) {}

History::~History() = default;

void History::Begin(int form, std::string_view name) {
  if (depth_++ > 0) return;
  Leave();
  Start(form, "", name);
}

void History::Start(int form, std::string_view key, std::string_view name) {
  if (tables_.LoadingProject == 1) return;
  if (!shadow_) shadow_ = std::make_unique<Shadow>(tables_);
  shadow_->TakeSaved(tables_);
  shadow_->Watch(tables_, form);
  running_ = std::make_unique<Running>(Running{form, std::string(key), std::string(name),
                                               CurrentNumber(tables_), SelectionOf(tables_, form)});
}

void History::End() {
  if (depth_ == 0 || --depth_ > 0) return;
  Record();
}

void History::NameStep(std::string_view name) {
  if (running_ && depth_ <= 1) running_->Name = name;
}

bool History::Stay(int form, std::string_view key, std::string_view name) {
  if (depth_ > 0) return false;
  if (InStay(form, key)) return true;
  Leave();
  Start(form, key, name);
  Notify();
  return true;
}

bool History::InStay(int form, std::string_view key) const noexcept {
  return depth_ == 0 && running_ && running_->Form == form && running_->Key == key;
}

void History::Leave() {
  if (running_ && !running_->Key.empty()) Record();
}

void History::Record() {
  const std::unique_ptr<Running> step = std::move(running_);
  if (!step) return;
  Entry entry;
  entry.Form = step->Form;
  entry.Name = step->Name;
  entry.CurrentBefore = step->Current;
  entry.SelectionBefore = std::move(step->Selection);
  if (RecordChanges(std::move(entry))) {
    redo_.clear();
  }
  Notify();
}

bool History::RecordChanges(Entry&& entry) {
  entry.Change = shadow_->Renew(tables_, entry.Form);
  if (entry.Change.Empty()) return false;
  entry.CurrentAfter = CurrentNumber(tables_);
  entry.SelectionAfter = SelectionOf(tables_, entry.Form);
  undo_.push_back(std::make_unique<Entry>(std::move(entry)));
  if (undo_.size() > kMostSteps) undo_.erase(undo_.begin());
  return true;
}

void History::RecordUnannounced() {
  if (undo_.empty()) return;
  shadow_->TakeSaved(tables_);
  Entry entry;
  entry.Form = undo_.back()->Form;
  entry.Name = "Change";
  entry.CurrentBefore = CurrentNumber(tables_);
  entry.SelectionBefore = SelectionOf(tables_, entry.Form);
  RecordChanges(std::move(entry));
}

bool History::CanUndo() const noexcept {
  return !undo_.empty() || (running_ && !running_->Key.empty());
}

bool History::CanRedo() const noexcept {
  return !redo_.empty();
}

std::string_view History::UndoName() const noexcept {
  if (running_ && !running_->Key.empty()) return running_->Name;
  return undo_.empty() ? std::string_view() : undo_.back()->Name;
}

std::string_view History::RedoName() const noexcept {
  return redo_.empty() ? std::string_view() : redo_.back()->Name;
}

std::optional<int> History::Undo() {
  if (depth_ > 0) return std::nullopt;
  Leave();
  RecordUnannounced();
  if (undo_.empty()) return std::nullopt;
  std::unique_ptr<Entry> entry = std::move(undo_.back());
  undo_.pop_back();
  const int form = Restore(*entry, true);
  redo_.push_back(std::move(entry));
  Notify();
  return form;
}

std::optional<int> History::Redo() {
  if (depth_ > 0) return std::nullopt;
  Leave();
  if (redo_.empty()) return std::nullopt;
  std::unique_ptr<Entry> entry = std::move(redo_.back());
  redo_.pop_back();
  const int form = Restore(*entry, false);
  undo_.push_back(std::move(entry));
  Notify();
  return form;
}

int History::Restore(const Entry& entry, bool back) {
  if (NumberMoved) {
    const auto& numbers = entry.Change.Numbers;
    if (back) {
      for (auto at = numbers.rbegin(); at != numbers.rend(); ++at) NumberMoved(at->Object, true);
    } else {
      for (const auto& number : numbers) NumberMoved(number.Object, false);
    }
  }
  shadow_->Put(tables_, observer_, entry.Change, back);
  const int form = back ? entry.CurrentBefore : entry.CurrentAfter;
  if (DesignForm* const window = tables_.IsLive(entry.Form) ? tables_.User(entry.Form) : nullptr) {
    PutSelection(*window, back ? entry.SelectionBefore : entry.SelectionAfter);
    observer_.SelectionChanged(entry.Form);
  }
  return tables_.IsLive(form) ? form : 0;
}

void History::Clear() {
  shadow_.reset();
  running_.reset();
  undo_.clear();
  redo_.clear();
  Notify();
}

std::size_t History::Size() const noexcept {
  return undo_.size();
}

void History::Notify() const {
  if (Changed) Changed();
}

}  // namespace tarnwick
