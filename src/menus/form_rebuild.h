// A form with another menu bar: written out through its text and read back.
#pragma once

#include "menus/menu_rows.h"
#include "project/project_context.h"

namespace tarnwick::menus {

/// Gives a form the menu of the rows. The menu arrays are refilled; the form is written, with
/// this menu, to "\~1.txt" in the program folder, and read back into its own number, so that it is
/// then what its saved file would make of it. No row with text means no menu.
///
/// The old window goes when the new one stands; it comes up where the old one stood, with the form
/// as its selection, and a lock stays. Form files are not touched, and a temporary text that cannot
/// be written or read back costs nothing: its words are still at hand. False, and nothing changed,
/// for a number without a form.
bool RebuildFormWithMenu(project::ProjectContext& context, int form, const Rows& rows);

}  // namespace tarnwick::menus
