#include "fakes/source_text.h"

namespace tarnwick::basic::test {

std::optional<std::string> MemorySources::ReadSource(const std::string& path) {
  const auto found = Files.find(path);
  if (found == Files.end()) return std::nullopt;
  return found->second;
}

KeptLines::KeptLines(TokenLines& lines, std::vector<SourceToken>& kept)
    : lines_(lines), kept_(kept) {}

void KeptLines::Next(std::vector<SourceToken>& line) {
  lines_.Next(line);
  kept_.insert(kept_.end(), line.begin(), line.end());
}

ParsedText::ParsedText(std::string text, bool strict) : ParsedText(std::move(text), {}, strict) {}

ParsedText::ParsedText(std::string text, MemorySources sources, bool strict)
    : Sources(std::move(sources)) {
  Set.Add("C:\\Work\\main.bas", std::move(text));
  Lines = std::make_unique<Preprocessor>(Set, Sources, SourceOptions{"C:\\Tarnwick"}, Found);
  KeptLines kept(*Lines, Stream);
  Tree = Parse(kept, strict, Found);
}

ParsedText::~ParsedText() = default;

std::string ParsedText::Tokens() const {
  std::string text;
  for (const SourceToken& token : Stream) {
    if (token.Kind == SourceTokenKind::End) break;
    if (!text.empty()) text += ' ';
    text += token.Kind == SourceTokenKind::LineEnd ? "|" : std::string(token.Text);
  }
  return text;
}

std::string ParsedText::Faults() const {
  std::string text;
  for (const Message& message : Found.All()) {
    text += std::to_string(message.At.Line) + ':' + std::to_string(message.At.Column) + ": " +
            (message.Level == Severity::Note ? "note: " : "") + message.Text + '\n';
  }
  return text;
}

}  // namespace tarnwick::basic::test
