#include "fakes/fake_project.h"

namespace tarnwick::test {

FakeProject::FakeProject() = default;

FakeProject::~FakeProject() = default;

FakeContainer::FakeContainer(CallLog& log) : log_(&log) {}

void FakeContainer::HideContainer() {
  log_->Add("hide");
}

void FakeContainer::ShowContainer() {
  log_->Add("container");
}

void FakeContainer::ActivateForm(int form) {
  log_->Add("activate " + std::to_string(form));
}

FakeObserver::FakeObserver(CallLog& log) : log_(&log) {}

void FakeObserver::FormOpened(int form) {
  log_->Add("opened " + std::to_string(form));
}

void FakeObserver::FormClosing(int form) {
  log_->Add("closing " + std::to_string(form));
}

void FakeObserver::CurrentFormChanged() {
  log_->Add("current");
}

void FakeObserver::FormListChanged() {
  log_->Add("list");
}

void FakeObserver::EventsBarChanged(int form) {
  log_->Add("bar " + std::to_string(form));
}

bool FakeProject::LoadIndex(std::string index) {
  Ports.Files.Put(Tables.ProjectFile, std::move(index));
  return project::LoadProject(Context, Tables.ProjectFile);
}

bool FakeProject::Load(std::string form_text) {
  Ports.Files.Put("C:\\Work\\a.ftn", std::move(form_text));
  return LoadIndex(
      "1\x95"
      "a.ftn\r\nMF##F (a.ftn)\r\n");
}

std::string FakeProject::Saved(int form) const {
  return FormFileText(Tables, form);
}

FormRec& FakeProject::Form(int number) {
  return *Tables.Form(number);
}

DesignForm& FakeProject::User(int number) {
  return *Tables.User(number);
}

DesignControl& FakeProject::Control(Kind kind, int index, int form) {
  return *User(form).Element(kind, index);
}

const ObjectRec& FakeProject::Record(Kind kind, int index, int form) {
  return RecordOrEmpty(*Form(form).Objects(kind), index);
}

std::string FakeProject::Code(std::string_view key) const {
  const std::string* code = Tables.EventTable.Find(key);
  return code == nullptr ? "(none)" : *code;
}

}  // namespace tarnwick::test
