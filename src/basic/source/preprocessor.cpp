#include "basic/source/preprocessor.h"

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

#include "basic/source/logical_line.h"
#include "basic/source/macro_table.h"
#include "text/code_page.h"

namespace tarnwick::basic {
namespace {

/// One $IFDEF that is open.
struct Condition {
  SourcePlace At;
  bool Outer;  ///< the lines around it count
  bool Holds;  ///< the lines of the present branch count
  bool Else;   ///< $ELSE has been met
};

class Preprocessor {
 public:
  Preprocessor(SourceSet& files, SourceReader& reader, const SourceOptions& options,
               Messages& messages, TokenStream& out)
      : files_(files),
        reader_(reader),
        options_(options),
        messages_(messages),
        out_(out),
        macros_(out.Memory, messages) {}

  void Run() {
    // About as many tokens as most files have; what is not used of it is never touched.
    constexpr std::size_t kBytesPerToken = 2;
    constexpr std::size_t kMostExpected = std::size_t{1} << 21U;
    out_.Tokens.reserve(std::min(files_.File(0).Bytes.size() / kBytesPerToken, kMostExpected));
    ReadFile(0, 0);
    SourcePlace end;
    if (!out_.Tokens.empty()) end = out_.Tokens.back().At;
    out_.Tokens.push_back({SourceTokenKind::End, false, false, {}, end});
  }

 private:
  using Tokens = std::vector<SourceToken>;
  using Handler = void (Preprocessor::*)(const Tokens& line, std::string_view rest);
  struct Row {
    std::string_view Name;
    Handler Run;
    bool Always;  ///< also where lines are passed over
  };
  static const std::array<Row, 10> kRows;
  static constexpr std::array<std::string_view, 4> kHandedOn = {"$TYPECHECK", "$RESOURCE",
                                                                "$OPTION", "$APPTYPE"};

  void ReadFile(std::uint16_t file, int depth) {
    const std::uint16_t outer_file = std::exchange(file_, file);
    const int outer_depth = std::exchange(depth_, depth);
    const std::size_t open = conditions_.size();
    LineReader lines(files_.File(file), file, out_.Memory, messages_);
    Tokens line;
    while (lines.HasNext() && !messages_.Full()) {
      lines.Next(escapes_, Counts(), line);
      if (line.empty()) continue;
      if (line[0].Kind == SourceTokenKind::Directive) {
        TakeDirective(line, lines.RestOfDirective());
      } else if (Counts()) {
        AddLine(line);
      }
    }
    while (conditions_.size() > open) {
      messages_.Error(conditions_.back().At, "The $ENDIF of this test is missing");
      conditions_.pop_back();
    }
    file_ = outer_file;
    depth_ = outer_depth;
  }

  [[nodiscard]] bool Counts() const { return conditions_.empty() || conditions_.back().Holds; }

  void AddLine(Tokens& line) {
    macros_.Expand(line, file_);
    if (line.empty()) return;
    FollowRoutines(line);
    out_.Tokens.insert(out_.Tokens.end(), line.begin(), line.end());
    SourcePlace end = line.back().At;
    end.Column = static_cast<std::uint16_t>(std::min(end.Column + end.Length, 65535));
    end.Length = 0;
    out_.Tokens.push_back({SourceTokenKind::LineEnd, false, false, {}, end});
  }

  /// Keeps in mind whether the lines of a SUB or FUNCTION are being read.
  void FollowRoutines(const Tokens& line) {
    static constexpr std::array<std::string_view, 4> kHeads = {"SUB", "FUNCTION", "SUBI",
                                                               "FUNCTIONI"};
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

  void TakeDirective(Tokens& line, std::string_view rest) {
    const std::string_view name = line[0].Text;
    const auto* const row = std::find_if(kRows.begin(), kRows.end(), [name](const Row& known) {
      return EqualsFolded(known.Name, name);
    });
    if (row != kRows.end()) {
      if (row->Always || Counts()) (this->*row->Run)(line, rest);
      return;
    }
    if (!Counts()) return;
    const bool handed_on =
        std::any_of(kHandedOn.begin(), kHandedOn.end(),
                    [name](std::string_view known) { return EqualsFolded(known, name); });
    if (handed_on) {
      AddLine(line);
    } else {
      messages_.Error(line[0].At, "The directive " + std::string(name) + " is not known");
    }
  }

  /// The name behind the directive; null, with an error, when there is none.
  const SourceToken* NameOf(const Tokens& line) {
    if (line.size() > 1 && line[1].Kind == SourceTokenKind::Name) return &line[1];
    messages_.Error(line[0].At, "A name is missing behind " + std::string(line[0].Text));
    return nullptr;
  }

  void Include(const Tokens& line, std::string_view rest) {
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
    if (depth_ >= kMaxExpansionDepth) {
      messages_.Error(
          at, "Files include each other more than " + std::to_string(kMaxExpansionDepth) + " deep");
      return;
    }
    const auto file = files_.Include(reader_, name, options_.ProgramFolder, file_);
    if (!file) {
      messages_.Error(at, "The file " + std::string(name) + " was not found or is too large");
      return;
    }
    ReadFile(*file, depth_ + 1);
  }

  void Define(const Tokens& line, std::string_view /*rest*/) {
    const SourceToken* name = NameOf(line);
    if (name != nullptr) macros_.Define(name->Text, Tokens(line.begin() + 2, line.end()));
  }
  void Undefine(const Tokens& line, std::string_view /*rest*/) {
    const SourceToken* name = NameOf(line);
    if (name != nullptr) macros_.Undefine(name->Text);
  }

  void AddMacro(const Tokens& line, std::string_view /*rest*/) {
    const SourceToken* name = NameOf(line);
    if (name == nullptr) return;
    Macro macro;
    // One that stands in front of all includes holds in every file.
    macro.OnlyInFile = seen_include_ ? file_ : -1;
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

  void Open(const Tokens& line, bool wanted) {
    const bool outer = Counts();
    bool holds = false;
    if (outer) {
      const SourceToken* name = NameOf(line);
      holds = name != nullptr && macros_.IsDefined(name->Text) == wanted;
    }
    conditions_.push_back({line[0].At, outer, holds, false});
  }
  void IfDefined(const Tokens& line, std::string_view /*rest*/) { Open(line, true); }
  void IfNotDefined(const Tokens& line, std::string_view /*rest*/) { Open(line, false); }
  void Else(const Tokens& line, std::string_view /*rest*/) {
    if (conditions_.empty() || conditions_.back().Else) {
      messages_.Error(line[0].At, "$ELSE without $IFDEF or $IFNDEF in front of it");
      return;
    }
    Condition& open = conditions_.back();
    open.Else = true;
    open.Holds = open.Outer && !open.Holds;
  }
  void EndIf(const Tokens& line, std::string_view /*rest*/) {
    if (conditions_.empty()) {
      messages_.Error(line[0].At, "$ENDIF without $IFDEF or $IFNDEF in front of it");
      return;
    }
    conditions_.pop_back();
  }

  void EscapeChars(const Tokens& line, std::string_view /*rest*/) {
    const std::string_view word = line.size() > 1 ? line[1].Text : std::string_view();
    if (EqualsFolded(word, "ON")) {
      escapes_ = true;
    } else if (EqualsFolded(word, "OFF")) {
      escapes_ = false;
    } else {
      messages_.Error(line[0].At, "ON or OFF is missing behind " + std::string(line[0].Text));
    }
  }
  void PassOver(const Tokens& /*line*/, std::string_view /*rest*/) {}

  SourceSet& files_;
  SourceReader& reader_;
  const SourceOptions& options_;
  Messages& messages_;
  TokenStream& out_;
  MacroTable macros_;
  std::vector<Condition> conditions_;
  std::uint16_t file_ = 0;
  int depth_ = 0;
  bool escapes_ = false;
  bool seen_include_ = false;
  bool in_routine_ = false;
};

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

}  // namespace

TokenStream Preprocess(SourceSet& files, SourceReader& reader, const SourceOptions& options,
                       Messages& messages) {
  TokenStream stream;
  if (files.Count() > 0) {
    Preprocessor(files, reader, options, messages, stream).Run();
  } else {
    stream.Tokens.emplace_back();
  }
  return stream;
}

}  // namespace tarnwick::basic
