// Any bytes as the text of a program that may include itself: lexer, preprocessor and parser.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "basic/source/preprocessor.h"
#include "basic/syntax/parser.h"

namespace {

class OneFile : public tarnwick::basic::SourceReader {
 public:
  explicit OneFile(std::string bytes) : bytes_(std::move(bytes)) {}
  std::optional<std::string> ReadSource(const std::string& path) override {
    if (path != "m" || reads_++ > 100) return std::nullopt;
    return bytes_;
  }

 private:
  std::string bytes_;
  int reads_ = 0;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tarnwick::basic;
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  for (const bool strict : {false, true}) {
    OneFile reader(bytes);
    SourceSet files;
    files.Add("m", bytes);
    Messages messages;
    Preprocessor lines(files, reader, {}, messages);
    const tree::SyntaxTree tree = Parse(lines, strict, messages);
    // All was read, or the faults were too many to read on.
    std::vector<SourceToken> line;
    lines.Next(line);
    if (line.size() != 1 || line[0].Kind != SourceTokenKind::End) std::abort();
    // Every message has its place in a line that is there.
    std::vector<std::size_t> counts;
    for (std::size_t i = 0; i < files.Count(); ++i) {
      LineWalk walk(files.File(static_cast<std::uint16_t>(i)).Bytes);
      while (!walk.AtEnd()) walk.Next();
      counts.push_back(walk.Count());
    }
    for (const Message& message : messages.All()) {
      if (message.At.File >= files.Count()) std::abort();
      if (message.At.Line > counts[message.At.File]) std::abort();
    }
  }
  return 0;
}
