#include "build/class_text.h"

#include <algorithm>
#include <map>

#include "objects/name_hash.h"
#include "text/code_page.h"

namespace tarnwick::support {
namespace {

constexpr std::size_t kMostMembers = 255;
constexpr int kNoIndex = 255;

/// The names of members of all classes in order of appearance; case does not count.
class Words {
 public:
  explicit Words(const std::vector<RunClass>& classes) {
    for (const RunClass& owner : classes) {
      for (const RunMember& member : owner.Members) {
        if (numbers_.try_emplace(Upper(member.Name), names_.size()).second) {
          names_.push_back(member.Name);
        }
      }
    }
  }
  [[nodiscard]] const std::vector<std::string>& Names() const { return names_; }
  [[nodiscard]] std::size_t NumberOf(const std::string& name) const {
    return numbers_.at(Upper(name));
  }

 private:
  std::map<std::string, std::size_t> numbers_;
  std::vector<std::string> names_;
};

/// The name as an enumerator: one in capitals alone, such as EOF, may be a macro somewhere.
std::string Enumerator(const std::string& name) {
  return Upper(name) == name ? name.substr(0, 1) + Lower(name.substr(1)) : name;
}

std::string QuotedText(const std::string& text) {
  std::string quoted = "\"";
  for (const char c : text) {
    if (c == '"' || c == '\\') quoted += '\\';
    quoted += c;
  }
  return quoted + '"';
}

std::string TypeText(CellType type, const std::string& owner,
                     const std::vector<RunClass>& classes) {
  switch (type) {
    case CellType::None:
      return "kNoType";
    case CellType::Whole:
    case CellType::Truth:
      return "kInteger";
    case CellType::Byte:
      return "kByte";
    case CellType::Word:
      return "kWord";
    case CellType::Real:
      return "basic::kRealType";
    case CellType::Text:
      return "basic::kTextType";
    case CellType::Variant:
      return "basic::kVariantType";
    case CellType::Object:
      break;
  }
  for (std::size_t i = 0; i < classes.size(); ++i) {
    if (EqualsFolded(classes[i].Name, owner)) {
      return "ObjectType(" + std::to_string(i + 1) + ")";
    }
  }
  return "basic::kAnyObjectType";
}

std::string KindText(const RunMember& member) {
  if (member.Category == "method") return "Method";
  if (member.Category == "event") return "Event";
  return member.Parameters.empty() ? "Property" : "ArrayProperty";
}

std::string LevelText(const RunMember& member) {
  return member.Level == "full" ? "Full" : member.Level == "stored" ? "Stored" : "None";
}

std::string Truth(bool truth) {
  return truth ? "true" : "false";
}

/// The table by which a name is found with one look: for each remainder of its hash the member, or
/// none. The seed is the first one under which no two names meet.
std::vector<int> PerfectHash(const RunClass& owner, std::uint32_t& seed) {
  std::size_t size = 4;
  while (size < 2 * owner.Members.size()) size *= 2;
  for (seed = 1;; ++seed) {
    if (seed % 4096 == 0) size *= 2;
    std::vector<int> table(size, kNoIndex);
    bool good = true;
    for (std::size_t i = 0; i < owner.Members.size() && good; ++i) {
      int& cell = table[objects::NameHash(owner.Members[i].Name, seed) & (size - 1)];
      good = cell == kNoIndex;
      cell = static_cast<int>(i);
    }
    if (good) return table;
  }
}

template <class Numbers>
std::string List(const Numbers& numbers) {
  std::string text;
  for (const auto number : numbers) text += std::to_string(number) + ",";
  return text;
}

}  // namespace

std::string ClassWordsHeader(const std::vector<RunClass>& classes) {
  std::string text =
      "// Made by the build from support/objects.\n#pragma once\n\n#include <cstdint>\n\n"
      "namespace tarnwick::objects {\n\n"
      "/// The classes; the value is the ClassId.\nenum class ObjectClass : std::uint16_t {\n"
      "  None,\n";
  for (const RunClass& owner : classes) text += "  " + owner.Label + ",\n";
  text +=
      "};\n\n/// The names of members, whatever class has them.\n"
      "enum class Word : std::uint16_t {\n";
  const Words words(classes);
  for (const std::string& name : words.Names()) text += "  " + Enumerator(name) + ",\n";
  return text + "};\n\ninline constexpr int kWordCount = " + std::to_string(words.Names().size()) +
         ";\n\n}  // namespace tarnwick::objects\n";
}

std::string ClassRowsSource(const std::vector<RunClass>& classes, Faults& faults) {
  const Words words(classes);
  std::string parameters;
  std::string members;
  std::string tables;
  std::string rows;
  std::size_t parameter_count = 0;
  std::size_t member_count = 0;
  for (const RunClass& owner : classes) {
    if (owner.Members.size() >= kMostMembers) faults.Add(owner.Where, "too many members");
    std::size_t slots = 0;
    std::size_t hooks = 0;
    std::vector<int> by_word(words.Names().size(), kNoIndex);
    for (std::size_t i = 0; i < owner.Members.size(); ++i) {
      const RunMember& member = owner.Members[i];
      by_word[words.NumberOf(member.Name)] = static_cast<int>(i);
      std::size_t slot = 0;
      if (member.Category == "event") slot = hooks++;
      if (member.Category == "property") slot = slots++;
      const std::size_t first = parameter_count;
      for (const ParameterRow& parameter : member.Parameters) {
        parameters += "  {" + TypeText(parameter.Type, parameter.Class, classes) + ", " +
                      Truth(parameter.Reference) + "},\n";
        ++parameter_count;
      }
      // The value of an event has no type: its name alone says what it is.
      const CellType type = member.Category == "event" ? CellType::None : member.Type;
      members +=
          "  {{basic::MemberId{" + std::to_string(i) + "}, " + QuotedText(member.Name) +
          ", basic::MemberKind::" + KindText(member) + ", " +
          TypeText(type, member.Class, classes) + ", Parameters(" + std::to_string(first) + ", " +
          std::to_string(member.Parameters.size()) + "), " + std::to_string(member.Required) +
          ", " + Truth(member.Repeats) + ", " + Truth(member.Readable) + ", " +
          Truth(member.Writable) + ", basic::SupportLevel::" + LevelText(member) + ", " +
          QuotedText(member.Note) + "}, Word{" + std::to_string(words.NumberOf(member.Name)) +
          "}, " + std::to_string(slot) + ", " + Truth(member.Type == CellType::Truth) + ", " +
          std::to_string(member.DefaultNumber) + ", " + QuotedText(member.DefaultText) + "},\n";
    }
    std::uint32_t seed = 0;
    const std::vector<int> hash = PerfectHash(owner, seed);
    tables += "constexpr std::uint8_t k" + owner.Label + "Hash[] = {" + List(hash) + "};\n";
    tables += "constexpr std::uint8_t k" + owner.Label + "Words[] = {" + List(by_word) + "};\n";
    std::string flags;
    for (const std::string& flag : owner.Flags) flags += " | ClassFlag::" + flag;
    rows += "  {" + QuotedText(owner.Name) + ", ClassFlag::Plain" + flags + ", Members(" +
            std::to_string(member_count) + ", " + std::to_string(owner.Members.size()) + "), k" +
            owner.Label + "Hash, k" + owner.Label + "Words, " + std::to_string(seed) + "U, " +
            std::to_string(slots) + ", " + std::to_string(hooks) + ", " + QuotedText(owner.Note) +
            "},\n";
    member_count += owner.Members.size();
  }
  return "// Made by the build from support/objects.\n#include \"objects/class_info.h\"\n\n"
         "namespace tarnwick::objects {\nnamespace {\n\n"
         "constexpr basic::Type kNoType = basic::kNoType;\n"
         "constexpr basic::Type kInteger{basic::Storage::Integer, 0, 0};\n"
         "constexpr basic::Type kByte{basic::Storage::Byte, 0, 0};\n"
         "constexpr basic::Type kWord{basic::Storage::Word, 0, 0};\n"
         "constexpr basic::Type ObjectType(std::uint32_t detail) {\n"
         "  return {basic::Storage::Object, 0, detail};\n}\n\n"
         "constexpr basic::MemberParameter kParameters[] = {\n" +
         parameters +
         "};\nconstexpr std::span<const basic::MemberParameter> Parameters(std::size_t first, "
         "std::size_t count) {\n  return {kParameters + first, count};\n}\n\n"
         "constexpr MemberInfo kMembers[] = {\n" +
         members +
         "};\nconstexpr std::span<const MemberInfo> Members(std::size_t first, std::size_t count) "
         "{\n  return {kMembers + first, count};\n}\n\n" +
         tables + "\nconstexpr ClassInfo kClasses[] = {\n" + rows +
         "};\n\n}  // namespace\n\nstd::span<const ClassInfo> ClassRows() {\n"
         "  return kClasses;\n}\n\n}  // namespace tarnwick::objects\n";
}

}  // namespace tarnwick::support
