#include "shell/observer_hub.h"

namespace tarnwick {

void ObserverHub::FormOpened(int form) {
  for (ProjectObserver* listener : listeners_) listener->FormOpened(form);
}

void ObserverHub::FormClosing(int form) {
  for (ProjectObserver* listener : listeners_) listener->FormClosing(form);
}

void ObserverHub::FormChanged(int form) {
  for (ProjectObserver* listener : listeners_) listener->FormChanged(form);
}

void ObserverHub::ControlsChanged(int form) {
  for (ProjectObserver* listener : listeners_) listener->ControlsChanged(form);
}

void ObserverHub::SelectionChanged(int form) {
  for (ProjectObserver* listener : listeners_) listener->SelectionChanged(form);
}

void ObserverHub::CurrentFormChanged() {
  for (ProjectObserver* listener : listeners_) listener->CurrentFormChanged();
}

void ObserverHub::FormListChanged() {
  for (ProjectObserver* listener : listeners_) listener->FormListChanged();
}

void ObserverHub::EventsBarChanged(int form) {
  for (ProjectObserver* listener : listeners_) listener->EventsBarChanged(form);
}

void ObserverHub::MenuBarChanged(int form) {
  for (ProjectObserver* listener : listeners_) listener->MenuBarChanged(form);
}

}  // namespace tarnwick
