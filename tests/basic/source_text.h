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
  std::optional<std::string> ReadSource(const std::string& path) override {
    const auto found = Files.find(path);
    if (found == Files.end()) return std::nullopt;
    return found->second;
  }
};

/// Lines as they come, whose tokens are kept.
class KeptLines : public TokenLines {
 public:
  KeptLines(TokenLines& lines, std::vector<SourceToken>& kept) : lines_(lines), kept_(kept) {}
  void Next(std::vector<SourceToken>& line) override {
    lines_.Next(line);
    kept_.insert(kept_.end(), line.begin(), line.end());
  }

 private:
  TokenLines& lines_;
  std::vector<SourceToken>& kept_;
};

/// A program read and parsed; everything that the tree points to lives as long as this.
struct ParsedText {
  explicit ParsedText(std::string text, bool strict = false)
      : ParsedText(std::move(text), {}, strict) {}
  ParsedText(std::string text, MemorySources sources, bool strict = false)
      : Sources(std::move(sources)) {
    Set.Add("C:\\Work\\main.bas", std::move(text));
    Lines = std::make_unique<Preprocessor>(Set, Sources, SourceOptions{"C:\\Tarnwick"}, Found);
    KeptLines kept(*Lines, Stream);
    Tree = Parse(kept, strict, Found);
  }
  /// The tokens' text, parted by blanks; "|" for a line end.
  [[nodiscard]] std::string Tokens() const {
    std::string text;
    for (const SourceToken& token : Stream) {
      if (token.Kind == SourceTokenKind::End) break;
      if (!text.empty()) text += ' ';
      text += token.Kind == SourceTokenKind::LineEnd ? "|" : std::string(token.Text);
    }
    return text;
  }
  /// Every message as "line:column: text", one a line.
  [[nodiscard]] std::string Faults() const {
    std::string text;
    for (const Message& message : Found.All()) {
      text += std::to_string(message.At.Line) + ':' + std::to_string(message.At.Column) + ": " +
              (message.Level == Severity::Note ? "note: " : "") + message.Text + '\n';
    }
    return text;
  }
  MemorySources Sources;
  SourceSet Set;
  Messages Found;
  std::unique_ptr<Preprocessor> Lines;
  std::vector<SourceToken> Stream;  ///< the tokens of all lines
  tree::SyntaxTree Tree;
};

}  // namespace tarnwick::basic::test
