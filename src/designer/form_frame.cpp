#include "designer/form_frame.h"

#include <utility>

#include "designer/rect.h"
#include "model/units.h"
#include "text/numbers.h"

namespace tarnwick {

FormFrame::FormFrame(DesignContext& context) : context_(context) {
  style_.hwnd = context.Number();
  style_.Redraw = [this] { context_.Ports.Observer.FormChanged(context_.Number()); };
}

void FormFrame::TakeBorderOfRecord() {
  if (const FormRec* record = context_.Record()) ApplyBorderStyle(style_, record->BorderStyle);
}

void FormFrame::borderstylea(int style) {
  ApplyBorderStyle(style_, style);
  if (FormRec* record = context_.Record()) {
    record->BorderStyle = ToInt16(style).value_or(record->BorderStyle);
  }
  context_.Ports.Observer.FormChanged(context_.Number());
}

void FormFrame::Form_Resize(float width, float height, WindowState state) {
  if (state == WindowState::Minimised) return;
  DesignForm& form = context_.Form;
  if (width != form.Width || height != form.Height) {
    context_.Ports.Steps.Stay(context_.Number(), "window", context_.StepName("Size"));
  }
  form.Width = width;
  form.Height = height;
  const bool was_maximised = std::exchange(maximised_, state == WindowState::Maximised);
  if (maximised_ && was_maximised) return;
  form.oldWidth = WholeUnits(width);
  form.oldHeight = WholeUnits(height);
  if (FormRec* record = context_.Record()) {
    record->Width = ToInt16(width / kTwipsPerPixel).value_or(record->Width);
    record->Height = ToInt16(height / kTwipsPerPixel).value_or(record->Height);
  }
  // Left and Top of a form belong to the generated program; where the window stands is no part of
  // it.
  context_.Ports.Host.SyncRow(InfoOf(Kind::Form).NameWord, "height");
  context_.Ports.Host.SyncRow(InfoOf(Kind::Form).NameWord, "width");
}

void FormFrame::ResizeEnded() {
  context_.Ports.Steps.Leave();
}

}  // namespace tarnwick
