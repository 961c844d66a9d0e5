// How objects come into being on a design form, by the table of kinds.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "model/project_records.h"

namespace tarnwick {

/// The kind that `Objeto` arms; nothing for "", "Form" and unknown words.
[[nodiscard]] std::optional<Kind> ArmedKind(std::string_view objeto) noexcept;

/// Name of a new object of an index: form name, prefix, index; a TransparentFrame has none.
[[nodiscard]] std::string NewObjectName(std::string_view form_name, Kind kind, int index,
                                        std::string_view prefix);
/// True when a popup menu of that number stands on a form other than `form`: the rows of all
/// forms' popups share one array.
[[nodiscard]] bool PopUpElsewhere(const ProjectTables& tables, int form, int index);
/// Gives the record of an object what a new one of its kind holds beyond empty texts and zeros.
void SetRecordDefaults(FormRec& record, Kind kind, int index);
/// Puts an empty record into the slot of an object, growing the kind's arrays to it, no further.
void PutFreshRecord(ProjectTables& tables, int form, Kind kind, int index);
/// The next element of a kind's control array, its record fresh, its name given, visible and
/// showing its name. Null when the form has no record or the kind's numbers are used up.
ControlRef LoadObject(ProjectTables& tables, DesignForm& form, Kind kind,
                      std::string_view name_prefix);
/// Hands out the form's next tab order number to an object.
void TakeTabOrder(ProjectTables& tables, DesignForm& form, const DesignControl& control,
                  TabRule rule);

/// A new object at a position in twips: element, record with its defaults, and an empty entry for
/// each of the eleven object events under the object's name. Entries under that name are not
/// read: code is kept under kind word and index, and comes there when it is first stored.
ControlRef CreateObject(ProjectTables& tables, DesignForm& form, Kind kind, float x, float y);
/// Takes an object off the form: the entries under its name go, the control is unloaded. Its
/// record stays where it is.
void DeleteObject(ProjectTables& tables, DesignForm& form, const ControlRef& control);
/// Writes position and size of a TransparentFrame into the record of its form, pixels.
void StoreFramePlace(FormRec& record, const DesignControl& frame);

}  // namespace tarnwick
