// Labels that are as large as their text, and edits that are as high as their font.
#include "objects/behaviour.h"

namespace tarnwick::objects {
namespace {

void FitsAgain(ObjectWorld& world, ObjectRecord& label, const MemberInfo& /*member*/,
               Origin /*origin*/) {
  FitText(world, label);
}

using enum ObjectClass;
constexpr BehaviourRow kRows[] = {
    {QLabel, Word::Caption, {.Changed = FitsAgain}},
    {QLabel, Word::AutoSize, {.Changed = FitsAgain}},
    {QLabel, Word::WordWrap, {.Changed = FitsAgain}},
    {QEdit, Word::AutoSize, {.Changed = FitsAgain}},
    {QEdit, Word::BorderStyle, {.Changed = FitsAgain}},
};

/// An edit gets its height with its font: one that is set later stays.
void FitEdit(ObjectWorld& world, ObjectRecord& edit) {
  constexpr int kEdges = 8;  // above and below the text
  if (edit.Number(Word::BorderStyle) == 0) return;
  const TextSize size = world.Widgets().Measure(world.FontOf(edit), "W", 0);
  world.Change(edit, Word::Height, Value::Integer(size.Height + kEdges), Origin::Code);
}

}  // namespace

void FitText(ObjectWorld& world, ObjectRecord& label) {
  if (!label.Truth(Word::AutoSize)) return;
  if (label.Is(ObjectClass::QEdit)) return FitEdit(world, label);
  // Before a label is shown it has the size that the program gave it.
  if (!label.Is(ObjectClass::QLabel) || !label.Realised) return;
  const bool wraps = label.Truth(Word::WordWrap);
  const int width = static_cast<int>(label.Number(Word::Width));
  const TextSize size =
      world.Widgets().Measure(world.FontOf(label), label.Text(Word::Caption), wraps ? width : 0);
  // An empty one keeps its height, so that it can be seen again.
  if (!wraps) world.Change(label, Word::Width, Value::Integer(size.Width), Origin::Code);
  world.Change(label, Word::Height, Value::Integer(size.Height), Origin::Code);
}

BehaviourRows LabelBehaviour() {
  return kRows;
}

}  // namespace tarnwick::objects
