// The frame of a design window: its border style and its size.
#pragma once

#include <cstdint>

#include "designer/design_context.h"
#include "designer/window_style.h"

namespace tarnwick {

enum class WindowState : std::uint8_t { Normal, Minimised, Maximised };

/// Keeps the frame hints of the window and writes the size of the window into the form and its
/// record.
class FormFrame {
 public:
  explicit FormFrame(DesignContext& context);

  /// The frame hints, as the window paints them.
  [[nodiscard]] const clsStyle& Style() const noexcept { return style_; }
  /// Sets the frame from the border code of the form's record.
  void TakeBorderOfRecord();
  /// Sets the frame of the window for a border code and stores the code in the record.
  void borderstylea(int style);

  /// The window has a new size in twips. All sizes until ResizeEnded are one step of the history.
  /// A minimised window keeps the size of the form.
  void Form_Resize(float width, float height, WindowState state);
  void ResizeEnded();

 private:
  DesignContext& context_;
  clsStyle style_;
  bool maximised_ = false;
};

}  // namespace tarnwick
