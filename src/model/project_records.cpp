#include "model/project_records.h"

#include <limits>
#include <variant>

#include "text/code_page.h"
#include "text/numbers.h"
#include "text/path_text.h"

namespace tarnwick {

namespace {

using ObjectArray = RecordArray<ObjectRec> FormRec::*;

ObjectArray ArrayOf(Kind kind) noexcept {
  const ObjectArray* const array = std::get_if<ObjectArray>(&InfoOf(kind).Records);
  return array == nullptr ? nullptr : *array;
}

}  // namespace

RecordArray<ObjectRec>* FormRec::Objects(Kind kind) noexcept {
  const ObjectArray array = ArrayOf(kind);
  return array == nullptr ? nullptr : &(this->*array);
}

const RecordArray<ObjectRec>* FormRec::Objects(Kind kind) const noexcept {
  const ObjectArray array = ArrayOf(kind);
  return array == nullptr ? nullptr : &(this->*array);
}

ProjectTables::ProjectTables() = default;
ProjectTables::ProjectTables(ProjectTables&& other) noexcept = default;
ProjectTables& ProjectTables::operator=(ProjectTables&& other) noexcept = default;
ProjectTables::~ProjectTables() = default;

FormRec* ProjectTables::Form(int number) noexcept {
  if (number < 0 || number > FormsCount) return nullptr;
  const auto slot = static_cast<std::size_t>(number);
  return slot < FormsTable.size() ? &FormsTable[slot] : nullptr;
}

const FormRec* ProjectTables::Form(int number) const noexcept {
  return const_cast<ProjectTables*>(this)->Form(number);
}

bool ProjectTables::IsLive(int number) const noexcept {
  const FormRec* form = number >= 1 ? Form(number) : nullptr;
  return form != nullptr && form->Removed != 1;
}

DesignForm* ProjectTables::User(int number) {
  if (number < 1 || number > FormsCount) return nullptr;
  const auto slot = static_cast<std::size_t>(number);
  if (slot >= FormsUser.size()) FormsUser.resize(slot + 1);
  if (!FormsUser[slot]) FormsUser[slot] = std::make_unique<DesignForm>();
  return FormsUser[slot].get();
}

const DesignForm* ProjectTables::UserIfAny(int number) const noexcept {
  const auto slot = static_cast<std::size_t>(number);
  return number >= 1 && slot < FormsUser.size() ? FormsUser[slot].get() : nullptr;
}

FrmBarra* ProjectTables::Bar(int number) {
  if (number < 1 || number > FormsCount) return nullptr;
  const auto slot = static_cast<std::size_t>(number);
  if (slot >= FormsBar.size()) FormsBar.resize(slot + 1);
  if (!FormsBar[slot]) FormsBar[slot] = std::make_unique<FrmBarra>();
  return FormsBar[slot].get();
}

FormRec* ProjectTables::RecordOf(const DesignForm& form) noexcept {
  const int number = form.Number();
  return number >= 1 ? Form(number) : nullptr;
}

const FormRec* ProjectTables::RecordOf(const DesignForm& form) const noexcept {
  return const_cast<ProjectTables*>(this)->RecordOf(form);
}

int ProjectTables::GrowForms() {
  if (FormsCount == std::numeric_limits<std::int16_t>::max()) return 0;
  const auto count = static_cast<std::size_t>(FormsCount) + 2;
  FormsUser.resize(count);
  FormsBar.resize(count);
  FormsTable.resize(count);
  ++FormsCount;
  return FormsCount;
}

void ProjectTables::ClearMenuArrays() {
  MenuRows.assign(1, {});
  MenuTitles.assign(1, {});
  MenuItems.assign(1, {});
}

void ProjectTables::Reset() {
  CurrentForm = nullptr;
  FormsUser.clear();
  FormsBar.clear();
  FormsTable.clear();
  FormsTable.resize(1);
  FormsCount = 0;
  ListaFrms.Clear();
  EventTable.Clear();
  PopUpMenus.Clear();
  ClearMenuArrays();
}

std::string ProjectTables::ProjectFolder() const {
  return std::string(FolderOf(ProjectFile));
}

std::string ResolveProjectPath(const ProjectTables& tables, std::string_view path,
                               bool ignore_case) {
  const std::string_view drive = std::string_view(tables.ProgramFolder).substr(0, 3);
  const std::string_view start = path.substr(0, 3);
  const bool full = ignore_case ? EqualsFolded(start, drive) : start == drive;
  return full ? std::string(path) : tables.ProjectFolder().append(path);
}

std::string PictureResourceName(int form, Kind kind, int index) {
  std::string name = "Frm";
  AppendNumber(name, std::int64_t{form});
  name += InfoOf(kind).PictureWord;
  AppendNumber(name, std::int64_t{index});
  name += "_Bmp";
  return name;
}

}  // namespace tarnwick
