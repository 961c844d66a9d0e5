// A project with fakes for all that reading and saving ask of the platform and of the views.
#pragma once

#include <string>
#include <utility>

#include "fakes/call_log.h"
#include "fakes/fake_ports.h"
#include "fakes/project_builder.h"
#include "persistence/form_writer.h"
#include "project/open_project.h"
#include "project/project_context.h"
#include "project/save_project.h"

namespace tarnwick::test {

/// Log entries: "hide", "container", "activate N".
class FakeContainer final : public project::ContainerHost {
 public:
  explicit FakeContainer(CallLog& log);
  void HideContainer() override;
  void ShowContainer() override;
  void ActivateForm(int form) override;

 private:
  CallLog* log_;
};

/// Log entries: "opened N", "closing N", "current", "list", "bar N".
class FakeObserver final : public ProjectObserver {
 public:
  explicit FakeObserver(CallLog& log);
  void FormOpened(int form) override;
  void FormClosing(int form) override;
  void CurrentFormChanged() override;
  void FormListChanged() override;
  void EventsBarChanged(int form) override;

 private:
  CallLog* log_;
};

/// A project in "C:\Work" over a file port in memory; the program lies in "C:\Tarnwick".
///
///   FakeProject project;
///   project.Load("[Form](1) {F}\r\n");         // one form, read as a.ftn of Demo.tnp
///   EXPECT_EQ(project.Saved(), "...");         // the text that saving form 1 would write
struct FakeProject {
  FakePorts Ports;
  ProjectBuilder Builder;
  ProjectTables& Tables = Builder.Tables;
  FakeContainer Container{Ports.Log};
  FakeObserver Observer{Ports.Log};
  project::ProjectContext Context{Tables,       Ports.Files, Ports.Messages, Ports.Dialogs,
                                  Ports.Screen, Observer,    Container};

  FakeProject();
  ~FakeProject();
  FakeProject(const FakeProject&) = delete;
  FakeProject& operator=(const FakeProject&) = delete;

  /// Lays down an index of the given text and loads it.
  bool LoadIndex(std::string index);
  /// Lays down one form file and an index that names it, and loads that.
  bool Load(std::string form_text);
  /// The bytes that saving a form would write.
  [[nodiscard]] std::string Saved(int form = 1) const;

  [[nodiscard]] FormRec& Form(int number = 1);
  [[nodiscard]] DesignForm& User(int number = 1);
  /// An object's control; the test has to know that it is there.
  [[nodiscard]] DesignControl& Control(Kind kind, int index = 1, int form = 1);
  /// An object's record; an empty one where none is.
  [[nodiscard]] const ObjectRec& Record(Kind kind, int index = 1, int form = 1);
  /// The code under a key; "(none)" when there is no such key.
  [[nodiscard]] std::string Code(std::string_view key) const;
};

}  // namespace tarnwick::test
