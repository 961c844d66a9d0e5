// One observer for the tables, many listeners behind it.
#pragma once

#include <vector>

#include "model/project_observer.h"

namespace tarnwick {

/// Passes each call on to all listeners, in the order in which they were added. Listeners outlive
/// every change.
class ObserverHub final : public ProjectObserver {
 public:
  void Add(ProjectObserver& listener) { listeners_.push_back(&listener); }

  void FormOpened(int form) override;
  void FormClosing(int form) override;
  void FormChanged(int form) override;
  void ControlsChanged(int form) override;
  void SelectionChanged(int form) override;
  void CurrentFormChanged() override;
  void FormListChanged() override;
  void EventsBarChanged(int form) override;
  void MenuBarChanged(int form) override;

 private:
  std::vector<ProjectObserver*> listeners_;
};

}  // namespace tarnwick
