// What a running program printed and what was said about it: the lines of the output panel.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tarnwick {

/// The lines of one run, or of several.
class RunLines {
 public:
  enum class Sort : std::uint8_t { Print, Note, Error };
  struct Line {
    Sort What = Sort::Print;
    std::string Text;
    int SourceLine = 0;  ///< the line of the generated text that it is about; 0 for none
  };

  /// Appends printed text: a line goes on until a line end comes.
  void Print(std::string_view text);
  /// Appends a message as a line of its own.
  void Add(Sort what, std::string text, int source_line);
  void Clear() {
    lines_.clear();
    open_ = false;
  }
  /// No line is about a line of the source any more.
  void ForgetPlaces() {
    for (Line& line : lines_) line.SourceLine = 0;
  }
  [[nodiscard]] const std::vector<Line>& All() const noexcept { return lines_; }

  /// A program that prints without an end keeps only its last lines.
  static constexpr std::size_t kMost = 20000;
  /// A printed line that is longer goes on in the next one.
  static constexpr std::size_t kLongest = 2000;

 private:
  void Append(Line line);

  std::vector<Line> lines_;
  bool open_ = false;  ///< the last line is printed text that may go on
};

/// What shows the lines.
class RunLinesView {
 public:
  virtual ~RunLinesView() = default;
  /// Lines came, grew or went.
  virtual void RunLinesChanged() = 0;
};

}  // namespace tarnwick
