#include "editor/code_marks.h"

#include <algorithm>
#include <set>
#include <tuple>
#include <utility>

#include "basic/source/preprocessor.h"
#include "basic/source/source_set.h"
#include "basic/syntax/parser.h"
#include "text/code_page.h"
#include "text/strings.h"

namespace tarnwick::editor {

namespace {

/// The first line of a generated program. The parser accepts irregular lines of generated text
/// only behind it.
constexpr std::string_view kProgramBegin = "Dim Font As QFont\r\n";
constexpr std::string_view kOwnInclude = "Tarnwick1.lib";
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

/// The begin of the program and its lines from one on. What stands between them is read for its
/// macros alone: a mistake there belongs to another text.
class CheckedLines final : public basic::TokenLines {
 public:
  /// Reads `lines` to their end.
  CheckedLines(basic::TokenLines& lines, std::uint32_t first) {
    do {
      lines.Next(lines_.emplace_back());
      std::erase_if(lines_.back(), [first](const basic::SourceToken& token) {
        const bool begin = token.At.File == 0 && token.At.Line == 1;
        const bool text = token.At.File == 0 && token.At.Line >= first;
        return !begin && !text && token.Kind != basic::SourceTokenKind::End;
      });
      if (lines_.back().empty()) lines_.pop_back();
    } while (lines_.empty() || lines_.back().back().Kind != basic::SourceTokenKind::End);
  }
  void Next(std::vector<basic::SourceToken>& line) override {
    line = lines_[next_];
    if (next_ + 1 < lines_.size()) ++next_;
  }

 private:
  std::vector<std::vector<basic::SourceToken>> lines_;
  std::size_t next_ = 0;
};

/// The directives of a code by which the text of another event may read otherwise: they change what
/// a name or a text is.
struct OtherMacros {
  std::string Undefined;  ///< these first, so that what is defined anywhere is defined
  std::string Defined;

  void Add(std::string_view code) {
    for (std::size_t at = code.find('$'); at != std::string_view::npos; at = code.find('$', at)) {
      const std::size_t begin = code.substr(0, at).find_last_of("\r\n") + 1;
      const std::size_t end = std::min(code.find_first_of("\r\n", at), code.size());
      const std::string_view line = Trim(code.substr(begin, end - begin));
      if (StartsWithFolded(line, "$undef")) {
        Undefined.append(line).append(kLineEnd);
      } else if (StartsWithFolded(line, "$define") || StartsWithFolded(line, "$macro") ||
                 EqualsFolded(line, "$escapechars on")) {
        Defined.append(line).append(kLineEnd);
      }
      at = end;
    }
  }
};

/// Keeps the marks that `others` holds too.
void KeepThoseOf(const std::vector<CodeMark>& others, std::vector<CodeMark>& marks) {
  std::set<std::tuple<int, int, std::string_view>> known;
  for (const CodeMark& mark : others) known.emplace(mark.Line, mark.Column, mark.Text);
  std::erase_if(marks, [&known](const CodeMark& mark) {
    return !known.contains({mark.Line, mark.Column, mark.Text});
  });
}

}  // namespace

class CodeCheck::Sources final : public basic::SourceReader {
 public:
  explicit Sources(const Files& files) : files_(files) {}
  std::optional<std::string> ReadSource(const std::string& path) override {
    // One file is looked for in several folders, under one name.
    std::string name = path.substr(path.find_last_of("\\/:") + 1);
    const auto file = files_.find(path);
    if (file != files_.end() && file->second) {
      missing_.erase(name);
      return file->second;
    }
    // The generated lines need the program's own file; what is checked here does without it.
    if (name != kOwnInclude) missing_.insert(std::move(name));
    if (file == files_.end()) unread_.insert(path);
    return std::nullopt;
  }
  /// True when a file that was asked for is in none of the folders.
  [[nodiscard]] bool AnyMissing() const noexcept { return !missing_.empty(); }
  [[nodiscard]] std::vector<std::string> Unread() const { return {unread_.begin(), unread_.end()}; }

 private:
  const Files& files_;
  std::set<std::string> missing_;
  std::set<std::string> unread_;
};

CodeCheck::Found CodeCheck::Run(std::string_view text) const {
  Sources reader(*files_);
  Found found{MarksOf(text, before_, reader), {}};
  if (!other_before_.empty() && !found.Marks.empty()) {
    KeepThoseOf(MarksOf(text, other_before_, reader), found.Marks);
  }
  found.Unread = reader.Unread();
  return found;
}

std::vector<CodeMark> CodeCheck::MarksOf(std::string_view text, std::string_view before,
                                         Sources& reader) const {
  std::string program(before);
  program.append(head_);
  const auto first = static_cast<std::uint32_t>(LineEndsIn(program) + 1);
  const auto last = first + static_cast<std::uint32_t>(LineEndsIn(text));
  program.append(text).append(tail_);

  basic::SourceSet files;
  if (!files.Add(project_file_, std::move(program))) return {};
  basic::Messages found;
  basic::Preprocessor program_lines(files, reader, {program_folder_}, found);
  CheckedLines lines(program_lines, head_.empty() ? first : first - 1);
  // The tree itself is not needed.
  if (!reader.AnyMissing()) static_cast<void>(basic::Parse(lines, false, found));
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

std::string CodeMarks::DeclarationsBefore(int form) const {
  std::string all(kProgramBegin);
  all.append("$INCLUDE \"").append(project_.ProgramFolder).append("\\");
  all.append(kOwnInclude).append("\"").append(kLineEnd);
  for (int number = 1; number < form; ++number) {
    const FormRec* record = project_.IsLive(number) ? project_.Form(number) : nullptr;
    if (record != nullptr) all.append(record->DeclarePbl).append(kLineEnd);
  }
  return all;
}

std::string CodeMarks::MacrosOfEvents(std::string_view but_key) const {
  OtherMacros macros;
  project_.EventTable.ForEach([&](const std::string& key, const std::string& code) {
    if (!EqualsFolded(key, but_key)) macros.Add(code);
  });
  return macros.Undefined + macros.Defined;
}

CodeCheck CodeMarks::MakeCheck() const {
  CodeCheck check;
  check.project_file_ = project_.ProjectFile;
  check.program_folder_ = project_.ProgramFolder;
  check.files_ = included_;
  return check;
}

CodeCheck CodeMarks::EventCheck(std::string_view key) const {
  CodeCheck check = MakeCheck();
  check.head_ = kEventBegin;
  check.tail_ = kEventEnd;
  check.before_ = DeclarationsBefore(project_.FormsCount + 1);
  if (const std::string macros = MacrosOfEvents(key); !macros.empty()) {
    check.other_before_ = check.before_ + macros;
  }
  return check;
}

CodeCheck CodeMarks::DeclarationsCheck(int form) const {
  CodeCheck check = MakeCheck();
  check.tail_ = kLineEnd;
  check.before_ = DeclarationsBefore(form);
  return check;
}

void CodeMarks::Read(const std::vector<std::string>& paths) {
  CodeCheck::Files known = *included_;
  for (const std::string& path : paths) known.insert_or_assign(path, files_.Read(path));
  included_ = std::make_shared<const CodeCheck::Files>(std::move(known));
}

}  // namespace tarnwick::editor
