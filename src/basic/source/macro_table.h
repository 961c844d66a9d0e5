// $DEFINE and $MACRO: names that stand for tokens.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "basic/source/arena.h"
#include "basic/source/messages.h"
#include "basic/source/source_token.h"
#include "text/code_page.h"

namespace tarnwick::basic {

/// Macros within the text of macros, and files within files, at most.
inline constexpr int kMaxExpansionDepth = 64;
/// Tokens at most that the macros of one statement line may grow to.
inline constexpr std::size_t kMaxExpandedTokens = 100'000;

/// One meaning of a name. Those of one name differ in the number of parameters.
struct Macro {
  bool HasParameters = false;
  std::vector<std::string> Parameters;
  std::vector<SourceToken> Text;
  int OnlyInFile = -1;  ///< index of the file for which alone it holds; -1: all
};

/// The names defined so far. They compare without case.
class MacroTable {
 public:
  MacroTable(Arena& memory, Messages& messages);

  /// $DEFINE name text: gives the name this text and no other.
  void Define(std::string_view name, std::vector<SourceToken> text);
  /// $MACRO: adds a meaning, in place of one with as many parameters in the same file.
  void AddMacro(std::string_view name, Macro macro);
  /// $UNDEF: the name stands for nothing, and is no keyword any more.
  void Undefine(std::string_view name);
  [[nodiscard]] bool IsDefined(std::string_view name) const;
  /// The same without the names that the language has by itself.
  [[nodiscard]] bool IsKnown(std::string_view name) const;

  /// Replaces the names in a line by what they stand for, again and again until none is left; a
  /// name within its own text stays. `file` is the index of the file of the line. Too deep or too
  /// long an expansion is an error and leaves the rest as it is.
  void Expand(std::vector<SourceToken>& line, std::uint16_t file);

 private:
  using Tokens = std::vector<SourceToken>;

  void ExpandInto(const Tokens& line, std::uint16_t file, int depth, Tokens& out);
  [[nodiscard]] const Macro* Find(std::string_view name, std::uint16_t file, bool brackets,
                                  std::size_t arguments) const;
  void Insert(const Macro& macro, const std::vector<Tokens>& arguments, const SourceToken& use,
              Tokens& out);
  void Paste(Tokens& out, const SourceToken& right);

  Arena& memory_;
  Messages& messages_;
  std::unordered_map<std::string, std::vector<Macro>, FoldedHash, FoldedEqual> macros_;
  std::unordered_set<std::string, FoldedHash, FoldedEqual> undefined_;
  std::vector<std::string_view> in_use_;  ///< names whose text is being expanded
  bool failed_ = false;                   ///< the line being expanded has met a limit
};

}  // namespace tarnwick::basic
