// What is not saved, kept for the day the program does not end as it should.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/ports.h"
#include "project/recovery_text.h"

namespace tarnwick::project {

/// Keeps the project as it would be saved now in a folder of this instance. No file of the project
/// is touched.
///
///   recovery.Begin();         // at the start; Offers() are what earlier runs left
///   recovery.Settle();        // after New, Open, Save: nothing is unsaved
///   recovery.Keep();          // every few seconds while the user works
///   recovery.LeaveBehind();   // ahead of New, Open, Exit: what is unsaved goes to the last ten
///
/// An instance whose folder cannot be made keeps nothing; everything else goes on.
class Recovery {
 public:
  /// As many projects that were left behind stay on offer.
  static constexpr std::size_t kMostKept = 10;

  /// What can be had back.
  struct Offer {
    std::string Path;  ///< of the kept file
    KeptProject Project;
    bool Crashed = false;  ///< its instance ended without closing; else it was left behind
  };

  /// `parent` is the folder of all instances' folders; `now` returns the time as it is shown, and
  /// `typed` the code that is in no table yet.
  Recovery(ProjectTables& tables, FilePort& files, InstanceFolderPort& folders, std::string parent,
           std::function<std::string()> now, std::function<TypedCode()> typed = NoCode);

  /// Takes a folder for this instance.
  void Begin();
  /// The project as it stands is what the disk holds, or is new.
  void Settle();
  /// The project as it stands is nowhere else: it counts as changed from now on.
  void Unsettle() { settled_.clear(); }
  /// True when the project differs from what is settled. Code that is only typed is no part of it.
  [[nodiscard]] bool Changed() { return KeptText(tables_) != settled_; }
  /// Writes the project and the typed code, in one step, when they differ from what was written
  /// last. True when the project differs from what is settled.
  bool Keep();
  /// The project is about to be closed: when it differs from what is settled, or code was typed on
  /// it, it stays on offer. True when it does.
  bool LeaveBehind();
  /// The program ends: the folder goes when nothing was left behind in it.
  void End();

  /// What earlier runs, and this one, left; the newest first. Kept files that cannot be read are
  /// passed over.
  [[nodiscard]] std::vector<Offer> Offers();
  void Forget(const Offer& offer);
  /// True when another running instance has this project open.
  [[nodiscard]] bool IsOpenElsewhere(const std::string& project_file);

 private:
  static TypedCode NoCode() { return {}; }
  [[nodiscard]] std::string PathOf(std::string_view name) const;
  void TellProject();
  void Prune();

  ProjectTables& tables_;
  FilePort& files_;
  InstanceFolderPort& folders_;
  std::string parent_;
  std::function<std::string()> now_;
  std::function<TypedCode()> typed_;
  std::string folder_;   ///< this instance's; "" without one
  std::string settled_;  ///< what needs no keeping
  std::string written_;  ///< what the kept file holds; "" without one
  int left_ = 0;         ///< projects that this instance left behind
};

}  // namespace tarnwick::project
