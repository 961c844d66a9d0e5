// What has to lie in the program folder.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "platform/ports.h"

namespace tarnwick {

/// The files beside the program. The compiler is not among them: it is the user's own, and is
/// started where it lies.
inline constexpr std::array<std::string_view, 7> kProgramFiles{
    "Add001.tn",     "Add002.tn",   "Add003.tn",   "Add004.tn",
    "Tarnwick1.lib", "IconApp.ico", "Tarnwick.chm"};

/// Fills a program folder on first use: copies the files that it lacks from the folder that the
/// program was installed with. What is there stays, so a user's own icon or include file is never
/// overwritten. Folders come without a closing "\". Answers how many files were copied.
int FillProgramFolder(FilePort& files, const std::string& installed,
                      const std::string& program_folder);

}  // namespace tarnwick
