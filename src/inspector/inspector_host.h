// What the property sheet needs of other rooms, and how its view is notified.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "model/design_form.h"

namespace tarnwick {

/// What an edit in the grid sets going elsewhere.
class InspectorHost {
 public:
  InspectorHost() = default;
  InspectorHost(const InspectorHost&) = delete;
  InspectorHost& operator=(const InspectorHost&) = delete;
  virtual ~InspectorHost() = default;

  /// Selects an object of the form as a press on it does, handles included; null selects the
  /// form itself. While the code editor is open nothing is selected.
  virtual void SelectObject(DesignForm& form, const ControlRef& control) = 0;
  /// Gives the design window the frame of a border code.
  virtual void borderstylea(DesignForm& form, std::int16_t style) = 0;
  /// The window has another background: its dot grid is drawn again, it is refreshed and takes
  /// the focus.
  virtual void FormRecolored(DesignForm& form) = 0;
  /// Position or size of the form's selected object changed: its handles follow.
  virtual void PlaceChanged(DesignForm& form) = 0;
  /// True when the file is a picture or an icon that can be shown.
  [[nodiscard]] virtual bool PictureLoads(const std::string& path) = 0;
  /// Names shown by code editor and events bar follow: what read `old_name` takes the new one.
  virtual void NameChanged(DesignForm& form, std::string_view old_name,
                           std::string_view new_name) = 0;
  /// Opens `FormPopUp` on a popup menu of the form and comes back when it is closed.
  virtual void OpenFormPopUp(DesignForm& form, int index) = 0;
  /// Opens `FormAddItems` on the selected list of the form and comes back when it is closed.
  virtual void OpenFormAddItems(DesignForm& form) = 0;
};

/// The view of the property sheet. Each method is called after the change.
class PropertySheetView {
 public:
  PropertySheetView() = default;
  PropertySheetView(const PropertySheetView&) = delete;
  PropertySheetView& operator=(const PropertySheetView&) = delete;
  virtual ~PropertySheetView() = default;

  /// The rows stand for another object or form now. RowsChanged follows.
  virtual void SubjectChanged() {}
  /// The rows were replaced, or the filter shows other ones.
  virtual void RowsChanged() {}
  /// The value of one row changed, or what is shown beside it.
  virtual void RowTextChanged(int /*row*/) {}
  /// Another row is selected, or none; buttons, list and colours go with it.
  virtual void RowSelected() {}
  /// The drop-down list opened or closed.
  virtual void ListOpened(bool /*is_open*/) {}
  /// Rows of the head list were added or removed, or the list was replaced.
  virtual void ComboChanged() {}
  /// One row of the head list has another text. A view that does not update single rows takes
  /// it for any change.
  virtual void ComboRowTextChanged(int /*row*/) { ComboChanged(); }
  /// Another row of the head list is selected; its rows are the same. Likewise.
  virtual void ComboRowSelected(int /*row*/) { ComboChanged(); }
};

}  // namespace tarnwick
