// The object clipboard of a design window: a reference to the source, no snapshot of it.
#pragma once

#include <cstdint>
#include <string>

#include "model/project_records.h"

namespace tarnwick {

/// Remembers what was copied on one design window and makes further objects like it. The source
/// is read at the paste: what changed since the copy shows. A source that was deleted gives an
/// object with the template's values, as a press on the form with its tool does.
class ObjectClipboard {
 public:
  ControlRef CopySource;
  std::int16_t CopyIndex = 0;  ///< `IndexObjet` at the copy
  bool CopyReady = false;

  /// Remembers the selection of the form.
  void Copy(const DesignForm& form);
  /// Makes a new object like the source and returns it, visible and not yet selected. Null when
  /// nothing was copied or its kind has no copies.
  ControlRef Paste(ProjectTables& tables, DesignForm& form);
  /// Why a paste makes nothing: what was copied, if anything, has no copies.
  [[nodiscard]] std::string WhyNothing() const;
  /// True when the source still stands on the form.
  [[nodiscard]] bool SourceIsLive(const DesignForm& form) const noexcept;
  /// An object's number was taken out of its kind, or put back: the number of the source follows.
  void NumberMoved(Kind kind, int index, bool back) noexcept;

 private:
  ControlRef last_pasted_;
};

}  // namespace tarnwick
