// The errors and notes of all phases.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "basic/source/source_place.h"

namespace tarnwick::basic {

/// An error stops the program from starting; a note is shown and the program runs.
enum class Severity : std::uint8_t { Error, Note };

/// One message with its place, what is wrong, and what to do about it ("" when not known).
struct Message {
  Severity Level = Severity::Error;
  SourcePlace At;
  std::string Text;
  std::string Remedy;
};

/// Errors kept at most; what comes behind is dropped.
inline constexpr std::size_t kMaxErrors = 50;
/// Notes kept at most.
inline constexpr std::size_t kMaxNotes = 1000;

/// What messages say of a word that only the compiler carries out.
inline constexpr std::string_view kNotSupported = " is not supported by the runner";

/// Collects the messages of a check, in the order in which they were found.
class Messages {
 public:
  /// Adds an error, unless `kMaxErrors` are kept already or the last error is on the same line and
  /// column.
  void Error(SourcePlace at, std::string text, std::string remedy = {});
  /// Adds a note, unless `kMaxNotes` are kept already.
  void Note(SourcePlace at, std::string text, std::string remedy = {});

  /// Puts all messages in the order of their places; those of one place keep their order.
  void SortByPlace();

  [[nodiscard]] bool HasErrors() const noexcept { return errors_ > 0; }
  /// True when no further error is kept, so that a phase may stop.
  [[nodiscard]] bool Full() const noexcept { return errors_ >= kMaxErrors; }
  [[nodiscard]] const std::vector<Message>& All() const noexcept { return all_; }

 private:
  std::vector<Message> all_;
  std::size_t errors_ = 0;
  std::size_t notes_ = 0;
};

}  // namespace tarnwick::basic
