#include "basic/source/preprocessor.h"

#include <algorithm>
#include <utility>

#include "text/code_page.h"

namespace tarnwick::basic {
namespace {

/// Directives that the parser handles.
constexpr std::array<std::string_view, 4> kHandedOn = {"$TYPECHECK", "$RESOURCE", "$OPTION",
                                                       "$APPTYPE"};

}  // namespace

Preprocessor::Preprocessor(SourceSet& files, SourceReader& reader, SourceOptions options,
                           Messages& messages)
    : files_(files),
      reader_(reader),
      options_(std::move(options)),
      messages_(messages),
      macros_(memory_, messages) {
  if (files_.Count() > 0) OpenUp(0);
}

void Preprocessor::Next(Tokens& line) {
  while (!open_.empty()) {
    LineReader& lines = open_.back().Lines;
    if (!lines.HasNext() || messages_.Full()) {
      CloseFile();
      continue;
    }
    lines.Next(escapes_, Counts(), line);
    if (line.empty()) continue;
    const bool counts = line[0].Kind == SourceTokenKind::Directive
                            ? TakeDirective(line, lines.RestOfDirective())
                            : Counts();
    if (counts && FinishLine(line)) return;
  }
  line.assign(1, {SourceTokenKind::End, false, false, {}, end_});
}

void Preprocessor::OpenUp(std::uint16_t file) {
  open_.push_back(
      {LineReader(files_.File(file), file, memory_, messages_), file, conditions_.size()});
}

void Preprocessor::CloseFile() {
  while (conditions_.size() > open_.back().Conditions) {
    messages_.Error(conditions_.back().At, "The $ENDIF of this test is missing");
    conditions_.pop_back();
  }
  open_.pop_back();
}

/// True for a CONST of an included file whose name the program has defined by itself already.
bool Preprocessor::IsSettled(const Tokens& line) const {
  return open_.back().Index != 0 && line.size() > 1 && EqualsFolded(line[0].Text, "CONST") &&
         macros_.IsKnown(line[1].Text);
}

/// Expands the line and puts its end behind it. False when nothing is left of it.
bool Preprocessor::FinishLine(Tokens& line) {
  if (IsSettled(line)) return false;
  macros_.Expand(line, open_.back().Index);
  if (line.empty()) return false;
  FollowRoutines(line);
  end_ = line.back().At;
  end_.Column = static_cast<std::uint16_t>(std::min(end_.Column + end_.Length, 65535));
  end_.Length = 0;
  line.push_back({SourceTokenKind::LineEnd, false, false, {}, end_});
  return true;
}

/// Keeps in mind whether the lines of a SUB or FUNCTION are being read.
void Preprocessor::FollowRoutines(const Tokens& line) {
  static constexpr std::array<std::string_view, 4> kHeads = {"SUB", "FUNCTION", "SUBI",
                                                             "FUNCTIONI"};
  constexpr std::size_t kLongest = 9;  // FUNCTIONI
  const std::string_view start = line[0].Text;
  const char first = UpperByte(start.empty() ? ' ' : start[0]);
  const bool may_begin =
      (first == 'S' || first == 'F' || first == 'P') && start.size() <= kLongest && line.size() > 1;
  if (!may_begin && !in_routine_) return;
  const auto begins = [&](std::size_t at) {
    return at < line.size() && line[at].Kind == SourceTokenKind::Name &&
           std::any_of(kHeads.begin(), kHeads.end(),
                       [&](std::string_view head) { return EqualsFolded(head, line[at].Text); });
  };
  const auto is = [&](std::size_t at, std::string_view word) {
    return EqualsFolded(line[at].Text, word);
  };
  const std::size_t head = is(0, "PUBLIC") || is(0, "PRIVATE") ? 1 : 0;
  if (begins(head) && line.size() > head + 1) in_routine_ = true;
  // The end may stand on the line of the head.
  for (std::size_t at = 0; at < line.size() && in_routine_; ++at) {
    if (is(at, "END") && begins(at + 1)) in_routine_ = false;
  }
}

/// Carries the line out. True when it is handed on.
bool Preprocessor::TakeDirective(Tokens& line, std::string_view rest) {
  const std::string_view name = line[0].Text;
  const auto* const row = std::find_if(kRows.begin(), kRows.end(), [name](const Row& known) {
    return EqualsFolded(known.Name, name);
  });
  if (row != kRows.end()) {
    if (row->Always || Counts()) (this->*row->Run)(line, rest);
    return false;
  }
  if (!Counts()) return false;
  const bool handed_on =
      std::any_of(kHandedOn.begin(), kHandedOn.end(),
                  [name](std::string_view known) { return EqualsFolded(known, name); });
  if (!handed_on) {
    messages_.Error(line[0].At, "The directive " + std::string(name) + " is not known");
  }
  return handed_on;
}

/// The name behind the directive; null, with an error, when there is none.
const SourceToken* Preprocessor::NameOf(const Tokens& line) {
  if (line.size() > 1 && line[1].Kind == SourceTokenKind::Name) return &line[1];
  messages_.Error(line[0].At, "A name is missing behind " + std::string(line[0].Text));
  return nullptr;
}

void Preprocessor::Include(const Tokens& line, std::string_view rest) {
  seen_include_ = true;
  if (in_routine_) {
    messages_.Error(line[0].At, "A file cannot be included inside a SUB or FUNCTION",
                    "Put the line in front of the SUB");
    return;
  }
  std::string_view name;
  if (line.size() > 1 && line[1].Kind == SourceTokenKind::Text) {
    name = line[1].Text;
  } else if (rest.size() > 1 && rest.front() == '<') {
    name = rest.substr(1, std::min(rest.find('>'), rest.size()) - 1);
  }
  if (name.empty()) {
    messages_.Error(line[0].At, "The name of the file is missing",
                    "Write $INCLUDE \"name\" or $INCLUDE <name>");
    return;
  }
  const SourcePlace at = line.size() > 1 ? line[1].At : line[0].At;
  if (open_.size() > static_cast<std::size_t>(kMaxExpansionDepth)) {
    messages_.Error(
        at, "Files include each other more than " + std::to_string(kMaxExpansionDepth) + " deep");
    return;
  }
  const auto file = files_.Include(reader_, name, options_.ProgramFolder, open_.back().Index);
  if (!file) {
    messages_.Error(at, "The file " + std::string(name) + " was not found or is too large");
    return;
  }
  OpenUp(*file);
}

void Preprocessor::Define(const Tokens& line, std::string_view /*rest*/) {
  const SourceToken* name = NameOf(line);
  if (name != nullptr) macros_.Define(name->Text, Tokens(line.begin() + 2, line.end()));
}
void Preprocessor::Undefine(const Tokens& line, std::string_view /*rest*/) {
  const SourceToken* name = NameOf(line);
  if (name != nullptr) macros_.Undefine(name->Text);
}

void Preprocessor::AddMacro(const Tokens& line, std::string_view /*rest*/) {
  const SourceToken* name = NameOf(line);
  if (name == nullptr) return;
  Macro macro;
  // One that stands in front of all includes holds in every file.
  macro.OnlyInFile = seen_include_ ? open_.back().Index : -1;
  std::size_t at = 2;
  if (at < line.size() && line[at].Text == "(" && line[at].Touches) {
    macro.HasParameters = true;
    for (++at; at < line.size() && line[at].Text != ")"; ++at) {
      if (line[at].Kind == SourceTokenKind::Name) macro.Parameters.emplace_back(line[at].Text);
    }
    if (at == line.size()) {
      messages_.Error(line[2].At, "The closing bracket of the parameters is missing");
      return;
    }
    ++at;
  }
  macro.Text.assign(line.begin() + static_cast<std::ptrdiff_t>(at), line.end());
  macros_.AddMacro(name->Text, std::move(macro));
}

void Preprocessor::Open(const Tokens& line, bool wanted) {
  const bool outer = Counts();
  bool holds = false;
  if (outer) {
    const SourceToken* name = NameOf(line);
    holds = name != nullptr && macros_.IsDefined(name->Text) == wanted;
  }
  conditions_.push_back({line[0].At, outer, holds, false});
}
void Preprocessor::IfDefined(const Tokens& line, std::string_view /*rest*/) {
  Open(line, true);
}
void Preprocessor::IfNotDefined(const Tokens& line, std::string_view /*rest*/) {
  Open(line, false);
}
void Preprocessor::Else(const Tokens& line, std::string_view /*rest*/) {
  if (conditions_.empty() || conditions_.back().Else) {
    messages_.Error(line[0].At, "$ELSE without $IFDEF or $IFNDEF in front of it");
    return;
  }
  Condition& open = conditions_.back();
  open.Else = true;
  open.Holds = open.Outer && !open.Holds;
}
void Preprocessor::EndIf(const Tokens& line, std::string_view /*rest*/) {
  if (conditions_.empty()) {
    messages_.Error(line[0].At, "$ENDIF without $IFDEF or $IFNDEF in front of it");
    return;
  }
  conditions_.pop_back();
}

void Preprocessor::EscapeChars(const Tokens& line, std::string_view /*rest*/) {
  const std::string_view word = line.size() > 1 ? line[1].Text : std::string_view();
  if (EqualsFolded(word, "ON")) {
    escapes_ = true;
  } else if (EqualsFolded(word, "OFF")) {
    escapes_ = false;
  } else {
    messages_.Error(line[0].At, "ON or OFF is missing behind " + std::string(line[0].Text));
  }
}
void Preprocessor::PassOver(const Tokens& /*line*/, std::string_view /*rest*/) {}

const std::array<Preprocessor::Row, 10> Preprocessor::kRows = {{
    {"$INCLUDE", &Preprocessor::Include, false},
    {"$DEFINE", &Preprocessor::Define, false},
    {"$UNDEF", &Preprocessor::Undefine, false},
    {"$MACRO", &Preprocessor::AddMacro, false},
    {"$IFDEF", &Preprocessor::IfDefined, true},
    {"$IFNDEF", &Preprocessor::IfNotDefined, true},
    {"$ELSE", &Preprocessor::Else, true},
    {"$ENDIF", &Preprocessor::EndIf, true},
    {"$ESCAPECHARS", &Preprocessor::EscapeChars, false},
    {"$OPTIMIZE", &Preprocessor::PassOver, false},
}};

}  // namespace tarnwick::basic
