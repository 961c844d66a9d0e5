// Sources in memory, for tests of the front end.
#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "basic/source/preprocessor.h"
#include "basic/syntax/parser.h"
#include "text/code_page.h"

namespace tarnwick::basic::test {

/// Files by path; a path is found as it is written.
class MemorySources : public SourceReader {
 public:
  std::map<std::string, std::string, std::less<>> Files;
  std::optional<std::string> ReadSource(const std::string& path) override;
};

/// Lines as they come, whose tokens are kept.
class KeptLines : public TokenLines {
 public:
  KeptLines(TokenLines& lines, std::vector<SourceToken>& kept);
  void Next(std::vector<SourceToken>& line) override;

 private:
  TokenLines& lines_;
  std::vector<SourceToken>& kept_;
};

/// A program read and parsed; everything that the tree points to lives as long as this.
struct ParsedText {
  explicit ParsedText(std::string text, bool strict = false);
  ParsedText(std::string text, MemorySources sources, bool strict = false);
  ~ParsedText();
  ParsedText(const ParsedText&) = delete;
  ParsedText& operator=(const ParsedText&) = delete;
  /// The tokens' text, parted by blanks; "|" for a line end.
  [[nodiscard]] std::string Tokens() const;
  /// Every message as "line:column: text", one a line.
  [[nodiscard]] std::string Faults() const;
  MemorySources Sources;
  SourceSet Set;
  Messages Found;
  std::unique_ptr<Preprocessor> Lines;
  std::vector<SourceToken> Stream;  ///< the tokens of all lines
  tree::SyntaxTree Tree;
};

}  // namespace tarnwick::basic::test
