// Projects built in memory, for tests and benchmarks.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "model/new_form.h"
#include "model/project_records.h"
#include "model/units.h"
#include "text/numbers.h"

namespace tarnwick::test {

/// An object on a form. Its control and record are open to be changed; the calls that answer the
/// object itself can be put in a row:
///
///   form.Add(Kind::Button, "Button1").At(10, 10).Code(Event::OnClick, "Beep").Record.TabOrder = 3;
struct BuiltObject {
  ProjectTables& Tables;
  DesignForm& User;
  DesignControl& Control;
  ObjectRec& Record;  ///< of a kind without such records it belongs to nothing

  BuiltObject& At(int left, int top);
  BuiltObject& Size(int width, int height);
  /// Stores code under the object's key, as the editor does.
  BuiltObject& Code(Event event, std::string code);
  BuiltObject& Picture(std::string path);
  BuiltObject& Rows(std::vector<std::string> rows);
  /// Takes the object off the form, as a deletion does: its record stays.
  void Delete();
};

/// A form of the project.
struct BuiltForm {
  ProjectTables& Tables;
  int Number;

  [[nodiscard]] FormRec& Record() const;
  [[nodiscard]] DesignForm& User() const;

  /// Adds an object of a kind with the name the user sees, and its record: visible and enabled,
  /// as the tool box makes it, but without its texts.
  BuiltObject Add(Kind kind, std::string_view name) const;
  /// Stores code of an event of the form.
  const BuiltForm& Code(Event event, std::string code) const;
  /// Stores OnClick code of a menu or popup item.
  const BuiltForm& ItemCode(std::string_view item, std::string code) const;
  /// Gives the form a menu control for each title of the project's menu, so that its bar shows.
  const BuiltForm& ShowMenuBar() const;
  /// Marks the form as removed by the user: its slot and its line in the list go.
  void Remove() const;

 private:
  ObjectRec& RecordOf(Kind kind, int index) const;
};

/// A project under construction, by default with its program in "C:\Tarnwick" and itself in
/// "C:\Work":
///
///   ProjectBuilder project;
///   project.AddForm().Add(Kind::Label, "Hello");
///   GenerateSource(project.Tables, state);
class ProjectBuilder {
 public:
  ProjectBuilder();
  ~ProjectBuilder();
  ProjectBuilder(const ProjectBuilder&) = delete;
  ProjectBuilder& operator=(const ProjectBuilder&) = delete;

  /// Adds a form with its defaults; the first one is the main form and has the focus. Forms are
  /// named "Form1", "Form2", ... unless another name is given.
  BuiltForm AddForm(std::string_view name = {});
  [[nodiscard]] BuiltForm Form(int number) { return {Tables, number}; }

  /// Adds a title to the menu bar.
  ProjectBuilder& Title(std::string name, std::string caption);
  /// Adds an item under the title that came last.
  ProjectBuilder& Item(std::string name, std::string caption);
  /// Adds a top-level row to popup number `popup`.
  ProjectBuilder& PopUpItem(int popup, std::string name, std::string caption);
  /// Adds a sub-item under the row that came last in popup number `popup`.
  ProjectBuilder& PopUpEntry(int popup, std::string name, std::string text);

  ProjectTables Tables;
};

}  // namespace tarnwick::test
