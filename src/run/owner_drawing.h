// Entries and cells that the program draws itself.
#pragma once

#include <QRect>
#include <cstdint>
#include <functional>
#include <vector>

#include "run/object_view.h"

namespace tarnwick::run {

/// One entry or cell that is to be seen: the numbers in front of State, and its rectangle within
/// the area of the entries.
struct DrawnPart {
  std::vector<std::int64_t> Numbers;
  std::int64_t State = 0;
  QRect Place;
};

/// Bits of the argument State.
inline constexpr std::int64_t kPartSelected = 1;
inline constexpr std::int64_t kPartDisabled = 4;
inline constexpr std::int64_t kPartFocused = 16;
inline constexpr std::int64_t kPartFace = 4096;  ///< the box of a drop-down list, not its list

/// Raises the drawing event of a list or a grid for each part that is to be seen. The handlers draw
/// on the object's surface, which its view paints above everything else. They never run while a
/// window is being painted: what changes asks for a drawing, which follows with the next events.
class OwnerDrawing final : public QObject {
 public:
  /// `event` has the parameters (numbers..., State, Rect). `parts` returns what is to be seen.
  OwnerDrawing(Stage& stage, ObjectId object, Word event,
               std::function<std::vector<DrawnPart>()> parts)
      : stage_(stage), object_(object), event_(event), parts_(std::move(parts)) {}

  /// Everything is drawn again with the next events; two requests are drawn once.
  void Want();

 private:
  void Run();
  Stage& stage_;
  ObjectId object_;
  Word event_;
  std::function<std::vector<DrawnPart>()> parts_;
  ObjectId rect_ = ObjectId::None;  ///< the QRECT that handlers get
  bool wanted_ = false;
};

}  // namespace tarnwick::run
