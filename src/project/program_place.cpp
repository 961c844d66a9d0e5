#include "project/program_place.h"

#include <algorithm>
#include <utility>

#include "codegen/generation.h"
#include "text/numbers.h"
#include "text/strings.h"

namespace tarnwick::project {

namespace {

/// The name of an item of a popup by its running number.
std::string PopUpItemName(const ProjectTables& tables, int popup, int item) {
  int number = 0;
  for (const PopUpMenuRec& row : RecordOrEmpty(tables.PopUpMenus, popup).Items) {
    if (number++ == item) return row.Name;
    for (const PopUpEntryRec& entry : SubItemsOf(row)) {
      if (number++ == item) return entry.Name;
    }
  }
  return {};
}

/// Who the code of a body belongs to, as its key has it.
std::string OwnerOf(const ProjectTables& tables, const SourcePlace& place) {
  if (place.Item >= 0) return PopUpItemName(tables, place.Number, place.Item);
  if (place.Id == Kind::MenuItem) {
    const auto item = static_cast<std::size_t>(place.Number);
    return item < tables.MenuItems.size() ? tables.MenuItems[item].Name : std::string();
  }
  std::string owner(InfoOf(place.Id).Array);
  if (place.Id != Kind::Form) AppendNumber(owner, std::int64_t{place.Number});
  return owner;
}

/// The member that a line sets: what stands between the first dot and the "=" behind it.
std::string_view MemberOf(std::string_view line) {
  const std::size_t dot = line.find('.');
  if (dot == std::string_view::npos) return {};
  const std::string_view rest = line.substr(dot + 1);
  return Trim(rest.substr(0, rest.find('=')));
}

/// The user's name of a control; "" for one that is gone.
std::string NameOf(const ProjectTables& tables, const ProgramPlace& place) {
  const DesignForm* const window = tables.UserIfAny(place.Form);
  const ControlRef control = window == nullptr ? nullptr : window->Element(place.Id, place.Index);
  return control == nullptr ? std::string() : control->Tag;
}

}  // namespace

std::optional<ProgramPlace> PlaceOfLine(const ProjectTables& tables, const SourceLine& line,
                                        std::string_view line_text) {
  const SourcePlace& from = line.Place;
  ProgramPlace place;
  place.Form = from.Form;
  place.Id = from.Id;
  place.Of = from.Of;
  place.Line = static_cast<int>(std::max<std::size_t>(line.Line, 1));
  if (!tables.IsLive(from.Form)) return std::nullopt;
  switch (from.Part) {
    case SourcePart::Body: {
      place.Owner = OwnerOf(tables, from);
      place.Index = from.Number;
      if (place.Owner.empty()) return std::nullopt;
      return place;
    }
    case SourcePart::PublicDeclarations:
      place.What = ProgramPlace::Sort::Declarations;
      return place;
    case SourcePart::FormLines:
      place.What = ProgramPlace::Sort::Property;
      place.Id = Kind::Form;
      place.Member = MemberOf(line_text);
      return place;
    case SourcePart::ObjectLines:
      place.What = ProgramPlace::Sort::Property;
      place.Index = from.Number;
      place.Member = line_text.starts_with("Font.") ? "Font" : std::string(MemberOf(line_text));
      return place;
    case SourcePart::Dims:
    case SourcePart::FrameSub:
    case SourcePart::Include:
    case SourcePart::Declares:
    case SourcePart::MenuLines:
    case SourcePart::Start:
    case SourcePart::Free:
      break;
  }
  return std::nullopt;
}

std::string CodeKey(const ProgramPlace& place) {
  std::string key(InfoOf(Kind::Form).Array);
  AppendNumber(key, std::int64_t{place.Form});
  if (place.Id != Kind::Form) key.append(".").append(place.Owner);
  return key.append(InfoOf(place.Of).Suffix);
}

std::string PlaceText(const ProjectTables& tables, const ProgramPlace& place) {
  const FormRec* const form = tables.Form(place.Form);
  std::string text = form == nullptr ? std::string() : form->Name;
  const std::string line = ", line " + NumberText(std::int64_t{place.Line});
  switch (place.What) {
    case ProgramPlace::Sort::Code: {
      if (place.Id != Kind::Form) {
        const std::string name = IsObjectKind(place.Id) ? NameOf(tables, place) : std::string();
        const bool item = place.Id == Kind::PopUpMenu && place.Of != Event::OnPopUp;
        text.append(".").append(name.empty() || item ? place.Owner : name);
      }
      return text.append(InfoOf(place.Of).Suffix).append(line);
    }
    case ProgramPlace::Sort::Declarations:
      return text.append(", public declarations").append(line);
    case ProgramPlace::Sort::Property:
      if (place.Id != Kind::Form) text.append(".").append(NameOf(tables, place));
      if (!place.Member.empty()) text.append(".").append(place.Member);
      return text;
  }
  return text;
}

}  // namespace tarnwick::project
