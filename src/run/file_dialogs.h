// Dialogs in which the user picks files or a font.
#pragma once

#include <QStringList>
#include <string_view>

#include "run/object_view.h"

namespace tarnwick::run {

/// The filters of a Filter text such as "Texts|*.txt;*.ini|All|*.*", as the toolkit's dialog takes
/// them.
[[nodiscard]] QStringList DialogFilters(std::string_view filter);
/// Shows the dialog of a QOPENDIALOG or QSAVEDIALOG and returns the Windows paths picked, none when
/// the user gave up, and the filter chosen.
[[nodiscard]] objects::PickedNames PickFilesByDialog(const ObjectRecord& dialog, QWidget* parent);

/// Shows the dialog of a QFONTDIALOG and stores the font that was picked in its Font. False when
/// the user gave up.
[[nodiscard]] bool PickFontByDialog(Stage& stage, const ObjectRecord& dialog, QWidget* parent);

}  // namespace tarnwick::run
