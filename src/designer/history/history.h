// Undo and redo: the user's steps on the open project, and the way back.
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "model/project_observer.h"
#include "model/project_records.h"

namespace tarnwick {

/// The one history of the open project. A step is everything that changed in the tables, on the
/// forms and in the code while it ran; who makes changes only says where a step begins and ends:
///
///   const HistoryStep step(history, form, "Move");         // a step until the end of the scope
///   history.Stay(form, "Button3.Caption", "Caption");      // one step for many edits of a row,
///   history.Leave();                                       //   which ends here
///   if (const auto form = history.Undo()) ...              // shows the form that it is about
///
/// A step that changed nothing leaves no entry. A change that no step announced is taken back with
/// the step after it, never lost. Recording costs one look at each object of the form, whatever
/// the step; what is kept are the differences, and values that did not change are shared.
///
/// Not part of a step: the lock, the armed tool, the copy source, file names and what a save
/// writes. The observer hears of everything that an undo or redo changes.
class History {
 public:
  /// The oldest step is forgotten beyond this many.
  static constexpr std::size_t kMostSteps = 500;

  History(ProjectTables& tables, ProjectObserver& observer);
  History(const History&) = delete;
  History& operator=(const History&) = delete;
  ~History();

  /// Begins a step on a form; 0 for one on the project alone. A form that is added within the step
  /// belongs to it by itself. Steps nest: those within another one are part of it and of its
  /// name. Nothing is recorded while a project is being read.
  void Begin(int form, std::string_view name);
  /// Ends the step. The step that Begin opened must be ended, whatever happened between.
  void End();
  /// Gives the running step another name: that of an object which it has just made. Nothing within
  /// a step of another.
  void NameStep(std::string_view name);

  /// Begins a step that goes on until Leave, until a stay with another key, or until any other
  /// step: all edits of one row of the property grid while the user stays in it. To be called
  /// ahead of each edit; a further call with the same form and key changes nothing. False within a
  /// step, whose part the edit is then.
  bool Stay(int form, std::string_view key, std::string_view name);
  /// True while the stay of this form and key goes on.
  [[nodiscard]] bool InStay(int form, std::string_view key) const noexcept;
  void Leave();

  [[nodiscard]] bool CanUndo() const noexcept;
  [[nodiscard]] bool CanRedo() const noexcept;
  /// The name of the step that Undo would take back, or Redo do again; "" for none.
  [[nodiscard]] std::string_view UndoName() const noexcept;
  [[nodiscard]] std::string_view RedoName() const noexcept;

  /// Takes the last step back, or does the one taken back last again. Returns the number of the
  /// form that was the current one before the step (Undo) or behind it (Redo), 0 for none; nothing
  /// when there is no such step or one is running. `CurrentForm` is null afterwards when its
  /// window has gone.
  std::optional<int> Undo();
  std::optional<int> Redo();
  /// Forgets all steps, for another project.
  void Clear();

  [[nodiscard]] std::size_t Size() const noexcept;
  /// Called after each change of what can be undone or redone.
  std::function<void()> Changed;
  /// Called when an undo or redo takes the number of an object out of its kind (false) or puts it
  /// back (true): lines that are kept under numbers elsewhere move with the objects behind it.
  std::function<void(const ObjectPlace& object, bool back)> NumberMoved;

 private:
  struct Entry;
  struct Shadow;
  struct Running;

  void Start(int form, std::string_view key, std::string_view name);
  void Record();
  void RecordUnannounced();
  /// Adds an entry of all that differs from the shadow; false when nothing does.
  bool RecordChanges(Entry&& entry);
  int Restore(const Entry& entry, bool back);
  void Notify() const;

  ProjectTables& tables_;
  ProjectObserver& observer_;
  std::unique_ptr<Shadow> shadow_;    ///< the project as the last entry left it
  std::unique_ptr<Running> running_;  ///< null while no step runs
  int depth_ = 0;                     ///< of steps within steps; 0 in a stay
  std::vector<std::unique_ptr<Entry>> undo_;
  std::vector<std::unique_ptr<Entry>> redo_;
};

/// A step that ends with its scope.
class HistoryStep {
 public:
  HistoryStep(History& history, int form, std::string_view name) : history_(history) {
    history_.Begin(form, name);
  }
  HistoryStep(const HistoryStep&) = delete;
  HistoryStep& operator=(const HistoryStep&) = delete;
  ~HistoryStep() { history_.End(); }

 private:
  History& history_;
};

}  // namespace tarnwick
