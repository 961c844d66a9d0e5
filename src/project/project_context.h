// What reading and saving a project works on.
#pragma once

#include "model/project_observer.h"
#include "model/project_records.h"
#include "platform/ports.h"

namespace tarnwick::project {

/// The container of the design windows, as far as saving and reading touch it.
class ContainerHost {
 public:
  ContainerHost() = default;
  ContainerHost(const ContainerHost&) = delete;
  ContainerHost& operator=(const ContainerHost&) = delete;
  virtual ~ContainerHost() = default;

  /// Hides `FormContenedor`, so that no design window repaints during a long step.
  virtual void HideContainer() {}
  virtual void ShowContainer() {}
  /// Makes a form the active design form.
  virtual void ActivateForm(int /*form*/) {}
};

/// The tables, the ports and the views that a command on the project needs.
struct ProjectContext {
  ProjectTables& Tables;
  FilePort& Files;
  MessagePort& Messages;
  DialogPort& Dialogs;
  ScreenPort& Screen;
  ProjectObserver& Observer;
  ContainerHost& Container;
};

}  // namespace tarnwick::project
