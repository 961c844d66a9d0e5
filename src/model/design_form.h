// A design window as data: its own values, its control collection and its selection.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "model/design_control.h"
#include "model/kinds.h"

namespace tarnwick {

using ControlRef = std::shared_ptr<DesignControl>;

/// One design window. The collection holds, in order, the templates (element 0 of each control
/// array, hidden), `Numero`, `Frame`, `picHandle` 0 to 7, and then objects in the order in which
/// they were added. A control that is unloaded leaves the collection; the order of the others is
/// kept.
class DesignForm {
 public:
  DesignForm();
  DesignForm(const DesignForm&) = delete;
  DesignForm& operator=(const DesignForm&) = delete;
  DesignForm(DesignForm&&) = delete;
  DesignForm& operator=(DesignForm&&) = delete;
  ~DesignForm();

  // The window itself; Left, Top, Width and Height are twips.
  std::string Caption;
  std::string WindowPicture;  ///< path of the background picture, "" for none
  std::string WindowIcon;     ///< path of the window's icon, "" for none
  bool Visible = false;
  std::int32_t BackColor = 12632256;
  float Left = 0;
  float Top = 0;
  float Width = 0;
  float Height = 0;

  // Public state of the design surface.
  std::string Objeto;              ///< kind the tool box has armed; "Form" or "" for none
  std::string NameObjet = "Form";  ///< what is selected: kind word and index, or "Form"
  std::int16_t IndexObjet = 0;     ///< index of the selected object
  ControlRef ControlSel;           ///< selected control; null for the form
  float medida = 0;
  std::int32_t oldHeight = 0;  ///< twips
  std::int32_t oldWidth = 0;   ///< twips
  bool m_bDesignMode = true;   ///< false: the form is blocked
  std::int16_t NextTabOrder = 0;

  /// The form's number as the hidden label holds it; 0 for an unnumbered window.
  [[nodiscard]] int Number() const noexcept;
  void SetNumber(int number);
  /// "Form" and the number, as keys of event code begin.
  [[nodiscard]] std::string KeyPrefix() const;

  [[nodiscard]] const std::vector<ControlRef>& Controls() const noexcept { return controls_; }
  /// How many controls at the head of the collection are parts of the window and no objects.
  [[nodiscard]] std::size_t PartCount() const noexcept { return part_count_; }
  /// Loads the next element of a control array: a copy of the template with the highest index
  /// plus 1, hidden, at the end of the collection.
  const ControlRef& Load(Kind kind);
  /// Takes a control out of the collection; selection references to it are cleared.
  void Unload(const ControlRef& control);
  /// Unloads every element of an array but its template.
  void UnloadAll(Kind kind);
  /// Lets exactly these objects stand on the form, menu controls among them: in the order of the
  /// collection and in that of drawing. Each is found under its own index. A selection that is
  /// not among them is cleared.
  void Arrange(std::vector<ControlRef> objects, std::vector<ControlRef> drawn);
  /// Closes the gap that an unloaded element left in an array: the elements behind it move down
  /// by one. Nothing when an element stands at the index.
  void CloseGap(Kind kind, int index);
  /// The element of an array, template included; null when there is none.
  [[nodiscard]] ControlRef Element(Kind kind, int index) const noexcept;
  /// The elements of an array by index, template first; null where one was unloaded.
  [[nodiscard]] const std::vector<ControlRef>& Elements(Kind kind) const noexcept {
    return arrays_[static_cast<std::size_t>(kind)];
  }
  /// Highest index of an array; 0 when it holds no object.
  [[nodiscard]] int UBound(Kind kind) const noexcept;
  /// First live object of a kind, or null.
  [[nodiscard]] ControlRef FirstOf(Kind kind) const noexcept;
  [[nodiscard]] bool HasObjects(Kind kind) const noexcept { return UBound(kind) > 0; }
  /// True when the form's menu bar has a visible title.
  [[nodiscard]] bool MenuBarVisible() const noexcept;
  /// The control of a name as `Tag` holds it, objects only; null when there is none.
  [[nodiscard]] ControlRef FindByTag(std::string_view tag) const noexcept;
  /// Moves a control in front of (true) or behind its neighbours in drawing order.
  void ZOrder(const ControlRef& control, bool to_front);
  /// Drawing order, back to front; the collection's own order never changes by it.
  [[nodiscard]] const std::vector<ControlRef>& DrawOrder() const noexcept { return draw_order_; }

 private:
  std::size_t part_count_ = 0;
  std::vector<ControlRef> controls_;
  std::vector<ControlRef> draw_order_;
  std::array<std::vector<ControlRef>, kKindCount> arrays_;
};

}  // namespace tarnwick
