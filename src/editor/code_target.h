// What the code editor was opened on, and the keys of its code.
#pragma once

#include <string>
#include <string_view>

#include "model/project_records.h"

namespace tarnwick::editor {

/// What a code window works on from its opening to its closing: whatever is selected meanwhile, all
/// of its steps mean this.
struct CodeTarget {
  enum class Sort {
    Nothing,    ///< the editor is closed
    Form,       ///< the form itself
    Object,     ///< an object of a kind
    MenuItem,   ///< an item of the form's menu bar
    NamedItem,  ///< an item of a menu, named by its key
  };
  Sort What = Sort::Nothing;
  int Form = 0;
  std::string NameObjet;  ///< kind word and index, "Form", or an item's name
  int IndexObjet = 0;
  std::string KindWord;  ///< of an object: its `NameObjet` without digits

  friend bool operator==(const CodeTarget&, const CodeTarget&) = default;
};

/// The target that a form's selection names. An item of the form's own menu bar comes before an
/// object; the form is meant only by "Form".
[[nodiscard]] CodeTarget TargetOfSelection(const DesignForm& window);
/// The target of a key such as "Form2.mnuOpen": its form's number and what stands behind the first
/// ".". A key that does not begin with a form belongs to the form given.
[[nodiscard]] CodeTarget TargetOfKey(std::string_view key, int form);

/// A whole key such as "Form2.Button3.OnKeyDown", cut before its event. The key of an item, such as
/// "Form2.mnuOpen", has none and means OnClick.
struct EventKey {
  std::string_view Owner;
  Event Id = Event::OnClick;
  bool OfObject = false;  ///< it had an event: the owner is an object
};
[[nodiscard]] EventKey EventKeyOf(std::string_view key) noexcept;

/// The first half of the target's keys in `EventTable` and `IniEvents`: "Form2", "Form2.Button1",
/// "Form2.Images3", "Form2.PopUpMnu1", "Form2.mnuOpen".
[[nodiscard]] std::string KeyPrefixOf(const CodeTarget& target);
/// The name by which the events bar knows the target.
[[nodiscard]] std::string BarNameOf(const CodeTarget& target);

/// A row of `Events`.
struct EventRow {
  std::string Text;  ///< "Sub Button1_OnClick"
  Event Id = Event::OnClick;
};

/// The rows of a kind word in their order, without regard to case; none for a word without events.
/// Brackets in the caption are left out: "Image(3)" gives "Sub Image3_OnClick".
[[nodiscard]] std::vector<EventRow> EventRowsOf(std::string_view kind_word,
                                                std::string_view caption);
/// The row that opens where nothing is remembered: a form's OnShow, the first row of every other
/// kind; -1 without rows.
[[nodiscard]] int DefaultRowOf(std::string_view kind_word, const std::vector<EventRow>& rows);

}  // namespace tarnwick::editor
