// The box with the program's name and version.
#pragma once

#include <string_view>

class QWidget;

namespace tarnwick {

/// Shows name, version and program folder.
void RunAboutDialog(std::string_view program_folder, QWidget* parent);

}  // namespace tarnwick
