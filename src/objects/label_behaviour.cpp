// Labels that are as large as their text.
#include "objects/behaviour.h"

namespace tarnwick::objects {
namespace {

void FitsAgain(ObjectWorld& world, ObjectRecord& label, const MemberInfo& /*member*/,
               Origin /*origin*/) {
  LabelFitsText(world, label);
}

using enum ObjectClass;
constexpr BehaviourRow kRows[] = {
    {QLabel, Word::Caption, {.Changed = FitsAgain}},
    {QLabel, Word::AutoSize, {.Changed = FitsAgain}},
    {QLabel, Word::WordWrap, {.Changed = FitsAgain}},
};

}  // namespace

/// Before a label is shown it has the size that the program gave it.
void LabelFitsText(ObjectWorld& world, ObjectRecord& label) {
  if (!label.Is(ObjectClass::QLabel) || !label.Realised || !label.Truth(Word::AutoSize)) return;
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
