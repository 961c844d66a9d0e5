// The files of a program and their lines.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "basic/source/source_place.h"

namespace tarnwick::basic {

/// Reads source files for the front end. Paths are Windows paths.
class SourceReader {
 public:
  virtual ~SourceReader() = default;
  /// The bytes of a file; nothing when it is not there or cannot be read.
  [[nodiscard]] virtual std::optional<std::string> ReadSource(const std::string& path) = 0;
};

struct SourceFile {
  std::string Path;
  std::string Bytes;
};

/// Goes through the lines of a text. A line ends with CR LF, LF or CR, which are not part of it.
class LineWalk {
 public:
  explicit LineWalk(std::string_view text) : rest_(text) {}
  [[nodiscard]] bool AtEnd() const noexcept { return rest_.empty(); }
  /// The next line; there must be one.
  std::string_view Next() noexcept;
  /// Lines taken so far.
  [[nodiscard]] std::size_t Count() const noexcept { return count_; }

 private:
  std::string_view rest_;
  std::size_t feed_ = 0;  ///< bytes of the rest in front of its first line feed, when it is known
  bool feed_known_ = false;
  std::size_t count_ = 0;
};

/// The file of constants that programs include by habit, and the one delivered with this system,
/// which has the same names.
inline constexpr std::string_view kLanguageInclude = "rapidq.inc";
inline constexpr std::string_view kOwnInclude = "Tarnwick1.lib";

/// Files kept at most; includes beyond that are not taken.
inline constexpr std::size_t kMaxSourceFiles = 10'000;
/// Bytes of all files together kept at most.
inline constexpr std::size_t kMaxSourceBytes = std::size_t{256} << 20U;

/// Owns the files of one program: the main file first, then each include in the order in which it
/// was taken. Views of lines stay valid for the set's life.
class SourceSet {
 public:
  /// Adds a file with its bytes and returns its index; nothing when the set is full.
  std::optional<std::uint16_t> Add(std::string path, std::string bytes);
  /// Finds the file of an $INCLUDE and adds it: the path as it stands, then its bare name in the
  /// program folder, then both beside the file that names it. Where the include file of the
  /// language is in none of these, `kOwnInclude` in them takes its place. Nothing when there is
  /// none.
  std::optional<std::uint16_t> Include(SourceReader& reader, std::string_view name,
                                       std::string_view program_folder, std::uint16_t from);

  [[nodiscard]] const SourceFile& File(std::uint16_t index) const { return files_[index]; }
  [[nodiscard]] std::size_t Count() const noexcept { return files_.size(); }
  /// The text of the line of a place; "" when there is none.
  [[nodiscard]] std::string_view LineAt(SourcePlace at) const noexcept;

 private:
  std::deque<SourceFile> files_;
  std::size_t bytes_ = 0;
};

}  // namespace tarnwick::basic
