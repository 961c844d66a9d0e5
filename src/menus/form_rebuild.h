// A form with another menu bar: written out through its text and read back.
#pragma once

#include "menus/menu_rows.h"
#include "project/project_context.h"

namespace tarnwick::menus {

/// Gives a form the menu of the rows. The menu arrays are refilled; the form is written, with
/// this menu, to "\~1.txt" in the program folder, and read back into its own number, so that it is
/// then what its saved file would make of it. No row with text means no menu.
///
/// The old window is closed when the new form could be read; the new one is shown in its position
/// and state, with the form selected, and a lock stays. Form files are not touched. When the
/// temporary text cannot be written or read back the form is made from the text in memory. Returns
/// false, and changes nothing, for a number without a form.
bool RebuildFormWithMenu(project::ProjectContext& context, int form, const Rows& rows);

}  // namespace tarnwick::menus
