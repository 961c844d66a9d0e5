#include "editor/code_marks.h"

#include <algorithm>
#include <set>
#include <utility>

#include "basic/source/preprocessor.h"
#include "basic/syntax/parser.h"
#include "text/strings.h"

namespace tarnwick::editor {

namespace {

/// The first line of a generated program. The parser accepts irregular lines of generated text
/// only behind it.
constexpr std::string_view kProgramBegin = "Dim Font As QFont\r\n";
constexpr std::string_view kEventBegin = "Sub Event\r\n";
constexpr std::string_view kEventEnd = "\r\nEnd Sub\r\n";

std::size_t LineEndsIn(std::string_view text) {
  std::size_t count = 0;
  for (std::size_t at = text.find_first_of("\r\n"); at != std::string_view::npos;
       at = text.find_first_of("\r\n", at)) {
    at += text.substr(at, 2) == "\r\n" ? 2 : 1;
    ++count;
  }
  return count;
}

/// Keeps the begin of the program and the lines from `first` on. What stands between them has been
/// read for its macros alone: a mistake there belongs to another text.
void DropTokensBefore(std::vector<basic::SourceToken>& tokens, std::uint32_t first) {
  std::erase_if(tokens, [first](const basic::SourceToken& token) {
    const bool begin = token.At.File == 0 && token.At.Line == 1;
    const bool text = token.At.File == 0 && token.At.Line >= first;
    return !begin && !text && token.Kind != basic::SourceTokenKind::End;
  });
}

}  // namespace

class CodeMarks::Sources final : public basic::SourceReader {
 public:
  explicit Sources(CodeMarks& marks) : marks_(marks) {}
  std::optional<std::string> ReadSource(const std::string& path) override {
    const auto [file, added] = marks_.included_.try_emplace(path);
    if (added) file->second = marks_.files_.Read(path);
    // One file is looked for in several folders, under one name.
    std::string name = path.substr(path.find_last_of("\\/:") + 1);
    if (file->second) {
      missing_.erase(name);
    } else {
      missing_.insert(std::move(name));
    }
    return file->second;
  }
  /// True when a file that was asked for is in none of the folders.
  [[nodiscard]] bool AnyMissing() const noexcept { return !missing_.empty(); }

 private:
  CodeMarks& marks_;
  std::set<std::string> missing_;
};

std::string CodeMarks::DeclarationsBefore(int form) const {
  std::string all;
  for (int number = 1; number < form; ++number) {
    const FormRec* record = project_.IsLive(number) ? project_.Form(number) : nullptr;
    if (record != nullptr) all.append(record->DeclarePbl).append(kLineEnd);
  }
  return all;
}

std::vector<CodeMark> CodeMarks::OfEvent(std::string_view code) {
  return Check(DeclarationsBefore(project_.FormsCount + 1), kEventBegin, code, kEventEnd);
}

std::vector<CodeMark> CodeMarks::OfDeclarations(int form, std::string_view text) {
  return Check(DeclarationsBefore(form), {}, text, kLineEnd);
}

std::vector<CodeMark> CodeMarks::Check(std::string_view before, std::string_view head,
                                       std::string_view text, std::string_view tail) {
  std::string program(kProgramBegin);
  program.append(before).append(head);
  const auto first = static_cast<std::uint32_t>(LineEndsIn(program) + 1);
  const auto last = first + static_cast<std::uint32_t>(LineEndsIn(text));
  program.append(text).append(tail);

  basic::SourceSet files;
  if (!files.Add(project_.ProjectFile, std::move(program))) return {};
  Sources reader(*this);
  basic::Messages found;
  basic::TokenStream stream = basic::Preprocess(files, reader, {project_.ProgramFolder}, found);
  if (!reader.AnyMissing()) {
    DropTokensBefore(stream.Tokens, head.empty() ? first : first - 1);
    // The tree itself is not needed.
    static_cast<void>(basic::Parse(stream, false, found));
  }
  found.SortByPlace();
  std::vector<CodeMark> marks;
  for (const basic::Message& message : found.All()) {
    if (message.At.File != 0 || message.At.Line < first) continue;
    CodeMark mark;
    mark.What =
        message.Level == basic::Severity::Error ? CodeMark::Sort::Error : CodeMark::Sort::Note;
    // What goes wrong at the closing line was caused by the last one.
    mark.Line = static_cast<int>(std::min(message.At.Line, last) - first);
    if (message.At.Line <= last) {
      mark.Column = std::max(0, message.At.Column - 1);
      mark.Length = message.At.Length;
    }
    mark.Length = std::max(1, mark.Length);
    mark.Text = message.Text;
    if (!message.Remedy.empty()) mark.Text.append(". ").append(message.Remedy);
    marks.push_back(std::move(mark));
  }
  return marks;
}

}  // namespace tarnwick::editor
