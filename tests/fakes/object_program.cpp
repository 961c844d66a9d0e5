#include "fakes/object_program.h"

namespace tarnwick::test {

ObjectProgram::ObjectProgram(std::string text, std::map<std::string, std::string> includes)
    : sources_(std::move(includes)) {
  sources_["C:\\main.bas"] = std::move(text);
  checked_ = basic::CheckProgram("C:\\main.bas", *this, Classes, {});
  for (const basic::Message& message : checked_->Found.All()) {
    const bool error = message.Level == basic::Severity::Error;
    Faults += (error ? "" : "note: ") + std::to_string(message.At.Line) + ": " + message.Text +
              (message.Remedy.empty() ? "" : ". " + message.Remedy) + "\n";
  }
}

ObjectProgram::~ObjectProgram() {
  World.reset();
}

std::optional<std::string> ObjectProgram::ReadSource(const std::string& path) {
  const auto found = sources_.find(path);
  if (found == sources_.end()) return std::nullopt;
  return found->second;
}

std::string ObjectProgram::Run() {
  if (!checked_->Checked) return Faults;
  code_ = basic::Emit(*checked_->Checked);
  Faults += code_.Error;
  objects::ProgramFacts facts;
  facts.ExeName = "C:\\work\\demo.exe";
  facts.Title = "demo";
  for (const basic::Resource& resource : checked_->Checked->Resources) {
    facts.Resources.emplace_back(resource.File);
  }
  std::vector<std::string> resources = facts.Resources;
  World = std::make_unique<objects::ObjectWorld>(Widgets, &Files, std::move(facts));
  basic::Hosts hosts{&console_, World.get(), &Files, &clock_, &system_, nullptr};
  basic::RunOptions options;
  options.MaxSteps = 5'000'000;
  machine_ = std::make_unique<basic::Machine>(code_.Made, hosts, options);
  machine_->SetResources(std::move(resources));
  World->Connect(*machine_);
  if (Network != nullptr) World->UseNetwork(*Network);
  Result = machine_->Run();
  return Printed + (Result.Text.empty() ? "" : "error: " + Result.Text);
}

const objects::ObjectRecord* ObjectProgram::Object(std::string_view name) const {
  const objects::ObjectRecord* found = nullptr;
  World->ForEach([&](const objects::ObjectRecord& record) {
    if (record.FullName() == name) found = &record;
  });
  return found;
}

basic::ObjectId ObjectProgram::Id(std::string_view name) const {
  const objects::ObjectRecord* const record = Object(name);
  return record == nullptr ? basic::ObjectId::None : record->Id;
}

void ObjectProgram::Then(std::function<void()> step) {
  Widgets.Steps.push_back(std::move(step));
}

void ObjectProgram::ThenClick(std::string name) {
  Then([this, name] { World->Click(Id(name)); });
}

std::string PrintedBy(const std::string& text) {
  return ObjectProgram(text).Run();
}

}  // namespace tarnwick::test
