// The support files: what the program knows of the language and of its own property rows.
#pragma once

#include <string>
#include <string_view>

#include "language/support_tables.h"
#include "platform/ports.h"

namespace tarnwick {

/// Reads "\Add001.tn" to "\Add004.tn" of the program folder. A file that is missing leaves its
/// tables empty, an incomplete line is skipped; nothing is reported.
[[nodiscard]] language::SupportTables ReadSupportTables(FilePort& files,
                                                        const std::string& program_folder);

/// The text of the first file: kinds, member lists, member help, event lists.
void AddMemberFile(language::SupportTables& tables, std::string_view text);
/// The text of the second file: functions with their help, and the two lists of the panel.
void AddFunctionFile(language::SupportTables& tables, std::string_view text);
/// The text of the third file: the keywords, of which the last line counts.
void AddKeywordFile(language::SupportTables& tables, std::string_view text);
/// The text of the fourth file: the property rows of every kind.
void AddKindFile(language::SupportTables& tables, std::string_view text);

}  // namespace tarnwick
