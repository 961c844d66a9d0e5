#include "language/support_tables.h"

namespace tarnwick::language {

SupportTables::SupportTables() = default;
SupportTables::SupportTables(SupportTables&& other) noexcept = default;
SupportTables& SupportTables::operator=(SupportTables&& other) noexcept = default;
SupportTables::~SupportTables() = default;

const std::string* SupportTables::HelpOfKind(std::string_view kind) const {
  return MemberHelp.Find(std::string{kind}.append("%"));
}

const std::string* SupportTables::HelpOfMember(std::string_view kind,
                                               std::string_view member) const {
  return MemberHelp.Find(MemberHelpKey(kind, member));
}

}  // namespace tarnwick::language
