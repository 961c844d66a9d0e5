// Irregular lines of generated text that are accepted.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace tarnwick::basic {

/// One kind of irregular line. They are accepted only in a text that begins as generated text
/// does, and only when the user did not ask for a strict check.
enum class Tolerance : std::uint8_t {
  FrameHintRest,
  FrameModalRest,
  EmptyValue,
  LostPopup,
  EmptyMenuTitle,
  DeclaredTwice,
  EventWithoutSub,
  GrowingArray,
  ViewerNames,
  LoopName,
  SocketArray,
  BracketName,
  UnboundPicture,
};

/// Name of the row (its golden case has the same), the message to the user ("" for none), and what
/// he can do.
struct ToleranceRow {
  Tolerance Which;
  std::string_view Name;
  std::string_view Note;
  std::string_view Remedy;
};

inline constexpr std::array<ToleranceRow, 13> kTolerances = {{
    // "Form.ShowHint = 1" of a form with a transparent frame, where "Form.Show" was replaced.
    {Tolerance::FrameHintRest, "frame-hint-rest", "", ""},
    // "Form.ShowModal", likewise.
    {Tolerance::FrameModalRest, "frame-modal-rest", "This line runs as a call of the frame's Sub",
     "Call Show instead of ShowModal on a form with a transparent frame"},
    {Tolerance::EmptyValue, "empty-value", "No value is set: the line is passed over",
     "Give the property a value"},
    {Tolerance::LostPopup, "lost-popup", "The object of this popup menu is missing",
     "Choose an object for the popup menu"},
    {Tolerance::EmptyMenuTitle, "empty-menu-title", "", ""},
    {Tolerance::DeclaredTwice, "declared-twice", "This name is declared twice and means one object",
     "Give menus of different forms different names"},
    {Tolerance::EventWithoutSub, "event-without-sub",
     "There is no Sub for this event, or the object has no such event", ""},
    {Tolerance::GrowingArray, "growing-array", "", ""},
    {Tolerance::ViewerNames, "viewer-names", "", ""},
    {Tolerance::LoopName, "loop-name", "", ""},
    {Tolerance::SocketArray, "socket-array",
     "A name with two pairs of brackets is taken as one array",
     "Give the sockets names with one pair of brackets"},
    {Tolerance::BracketName, "bracket-name", "This name with brackets is taken as one word",
     "Give the menu a name without brackets"},
    {Tolerance::UnboundPicture, "unbound-picture", "No file is bound to this picture", ""},
}};

[[nodiscard]] constexpr const ToleranceRow& RowOf(Tolerance which) noexcept {
  return kTolerances[static_cast<std::size_t>(which)];
}

}  // namespace tarnwick::basic
