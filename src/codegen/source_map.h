// Which form, object and event a line of the generated program comes from.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "model/kinds.h"
#include "model/vocabulary.h"

namespace tarnwick {

/// The parts of the generated program.
enum class SourcePart : std::uint8_t {
  Dims,
  FrameSub,
  Include,
  Declares,
  PublicDeclarations,  ///< line 0 is the comment above them
  Body,                ///< of an event: line 0 is the Sub line
  FormLines,
  ObjectLines,
  MenuLines,
  Start,
  Free,
};

/// What a stretch of the program is about. Form, kind and number are those of the tables: `Number`
/// is that of the key in `EventTable` for a Body, the index of the item for one of the menu bar
/// (Kind::MenuItem), and the control's own index for ObjectLines.
struct SourcePlace {
  SourcePart Part = SourcePart::Start;
  Kind Id = Kind::Form;
  Event Of = Event::OnClick;  ///< of a Body
  std::int16_t Form = 0;      ///< 0 for parts of the whole program
  std::int16_t Number = 0;
  /// Of an item of popup `Number`: its running number from 0 in the order of the rows, sub-items
  /// behind theirs. -1 for all that is no such item.
  std::int16_t Item = -1;
  friend bool operator==(const SourcePlace&, const SourcePlace&) = default;
};

/// A line of the program as a line of its part, which counts from 0.
struct SourceLine {
  SourcePlace Place;
  std::size_t Line = 0;
};

/// One byte or a few that a pass over the text put in the place of others: what stands from
/// `Before` on in the text before stands from `After` on in the text behind.
struct TextChange {
  std::size_t Before = 0;
  std::size_t After = 0;
  bool LineEndGone = false;  ///< the bytes that went held a line end
};

/// A line of a text, counted from 1, without its line end: CR LF, LF or CR. "" for one that the
/// text has not.
[[nodiscard]] std::string_view LineOf(std::string_view text, std::size_t number);

/// The stretches of one generated program, in its order. While the text is made they are noted by
/// offset; counting the lines is a step of its own, which only those pay for who look lines up.
///
///   SourceMap map;
///   const std::string text = GenerateSource(tables, state, &map);
///   map.CountLines(text);
///   if (const auto line = map.At(402)) ... line->Place.Form ...
class SourceMap {
 public:
  /// Starts a stretch at a byte offset, behind all that were started before. It ends where the
  /// next one starts.
  void Begin(std::size_t offset, const SourcePlace& place) {
    stretches_.push_back({static_cast<std::uint32_t>(offset), place});
  }
  /// Follows a pass over the text. The changes are in the order of the text.
  void Follow(const std::vector<TextChange>& changes);
  /// To be called once, with the finished text: from then on lines can be looked up. Lines end in
  /// CR LF, LF or CR.
  void CountLines(std::string_view text);
  /// What a line, counted from 1, comes from; null for lines outside the text and above the first
  /// stretch.
  [[nodiscard]] std::optional<SourceLine> At(std::size_t line) const;

 private:
  struct Stretch {
    std::uint32_t Start = 0;  ///< its offset, later its line
    SourcePlace Place;
    /// 0 where the part begins. A stretch that goes on with the one before it, behind lines that
    /// were joined, has the number of line ends that the part has lost so far.
    std::uint16_t Lost = 0;
  };
  static_assert(sizeof(Stretch) == 16);

  std::vector<Stretch> stretches_;
  std::size_t lines_ = 0;
};

}  // namespace tarnwick
