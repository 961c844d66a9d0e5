// What views hear of changes in the project.
#pragma once

namespace tarnwick {

/// The one narrow observer through which windows follow the tables. Every method is called
/// after the change, names a form by its number, and does nothing unless overridden. The logic
/// never reads anything from a view.
class ProjectObserver {
 public:
  ProjectObserver() = default;
  ProjectObserver(const ProjectObserver&) = delete;
  ProjectObserver& operator=(const ProjectObserver&) = delete;
  virtual ~ProjectObserver() = default;

  /// A design window was made, by a command or from a file.
  virtual void FormOpened(int /*form*/) {}
  /// A form's design window is about to go; its controls are still there.
  virtual void FormClosing(int /*form*/) {}
  /// Caption, colour, size, frame, picture or icon of the window itself changed.
  virtual void FormChanged(int /*form*/) {}
  /// Controls were added, removed, moved or changed: the surface must be painted.
  virtual void ControlsChanged(int /*form*/) {}
  /// The selection, or the position or visibility of the handles, changed.
  virtual void SelectionChanged(int /*form*/) {}
  /// `CurrentForm` is another form now.
  virtual void CurrentFormChanged() {}
  /// Lines of `ListaFrms`, or the main form's name, changed.
  virtual void FormListChanged() {}
  /// Entries or caption of a form's events bar changed.
  virtual void EventsBarChanged(int /*form*/) {}
  /// The menu bar of a form was rebuilt.
  virtual void MenuBarChanged(int /*form*/) {}
};

}  // namespace tarnwick
