// `FrmBarra`: the events bar of a form, and what its buttons and rows do.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "model/project_records.h"
#include "shell/shell_state.h"

namespace tarnwick {

class DesignSurfaces;

inline constexpr std::string_view kPublicDeclarations = "Public Declarations";

/// An element of `btncodigo`.
struct BarButton {
  std::string Tag;  ///< the object's name as in the keys of `EventTable`
  std::string Tip;  ///< the name that the user gave it
  Kind Picture = Kind::Form;
  friend bool operator==(const BarButton&, const BarButton&) = default;
};

/// Left and top of a button within the room for buttons.
struct BarPlace {
  int Left = 0;
  int Top = 0;
  friend bool operator==(const BarPlace&, const BarPlace&) = default;
};

/// The place of a square button counted from 0: behind the one before, or at the start of a new
/// row when it would pass the right edge.
[[nodiscard]] BarPlace SpotOnBar(int number, int bar_width, int side) noexcept;

/// The bars of all forms. Each form's `FrmBarra` holds the names of the objects that have
/// code; here they become buttons, and a button the events that can be opened. A view shows
/// the bar of the current form:
///
///   bar.btncodigo_Click(button.Tag);          // selects the object and fills `ProssItem`
///   ... pops up bar.ProssItem() ...
///   bar.ProssItem_Click(row);                 // opens the code there
///
/// Names are those of a selection or of event keys alike: "Image3" and "Images3" are one object.
class EventsBar {
 public:
  EventsBar(ShellState& state, DesignSurfaces& surfaces) : state_(state), surfaces_(surfaces) {}

  /// The form whose bar is shown; 0 for none.
  [[nodiscard]] int CurrentForm() const;
  /// Title of a form's bar.
  [[nodiscard]] std::string Caption(int form) const;
  /// The buttons of a form, one for each object, in the order in which the objects got code.
  [[nodiscard]] std::vector<BarButton> btncodigo(int form) const;

  /// The object of a form got code: it has a button from now on.
  void PopBoockMarck(int form, std::string_view name);
  /// An event's text of the object became empty: its button goes with the last one. The form's
  /// OnKeyPress does not count.
  void DelBoockMarck(int form, std::string_view name);

  /// A button of the current form was pressed: selects the object, as a press on the form does,
  /// and lists its events that have code. Those of an object that has gone can be opened too; the
  /// form is selected then. While the code editor is open that comes to the front
  /// and nothing is listed.
  void btncodigo_Click(std::string_view tag);
  void btnCDeclare_Click();
  /// The rows of the menu `Pross`, from row 0.
  [[nodiscard]] const std::vector<std::string>& ProssItem() const noexcept { return rows_; }
  /// A row was chosen: opens the code of that event, or `FormViewCodes`.
  void ProssItem_Click(int row);

 private:
  /// What a name means: the form, an object of a kind, or an item of a menu.
  struct Target {
    std::optional<Kind> Id;  ///< nothing for an item of a menu
    int Index = 0;
    std::string Tag;
  };

  [[nodiscard]] static Target TargetOf(std::string_view name);
  [[nodiscard]] static std::vector<Event> EventsOf(const Target& target);
  [[nodiscard]] static std::string KeyPrefix(int form, const Target& target);
  [[nodiscard]] std::string TipOf(int form, const Target& target) const;
  [[nodiscard]] std::vector<std::string> EventsWithCode(int form, const Target& target) const;
  bool Select(int form, const Target& target);
  void SelectOwnerOf(int form, std::string_view popup_item);
  void RemoveButton(int form, const Target& target);

  ShellState& state_;
  DesignSurfaces& surfaces_;
  std::vector<std::string> rows_;
  std::string pressed_;        ///< `Tag` of the button whose events are listed
  bool jumps_by_key_ = false;  ///< no selection can name it: an item of a popup menu, or an object
                               ///< that has gone and left its code
};

}  // namespace tarnwick
