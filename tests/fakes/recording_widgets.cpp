#include "fakes/recording_widgets.h"

namespace tarnwick::test {

void RecordingWidgets::Realise(const Record& object) {
  Log += "realise " + object.FullName() + "\n";
}

void RecordingWidgets::Apply(const Record& object, const objects::MemberInfo& member) {
  Log += "apply " + object.FullName() + "." + std::string(member.Facts.Name);
  const bool plain = member.Facts.Kind == basic::MemberKind::Property;
  if (plain) Log += " = " + object.Values[member.Slot].AsText();
  Log += "\n";
}

void RecordingWidgets::ItemsChanged(const Record& list, const objects::ItemsChange& change) {
  static constexpr const char* kKinds[] = {"inserted", "removed", "replaced", "all"};
  Log += "items " + list.FullName() + " " + kKinds[static_cast<int>(change.What)] + " " +
         std::to_string(change.First) + " " + std::to_string(change.Count) + "\n";
}

void RecordingWidgets::MenuChanged(const Record& menu) {
  Log += "menu " + menu.FullName() + "\n";
}

bool RecordingWidgets::Invoke(const Record& object, const objects::MemberInfo& method,
                              std::span<basic::Value> arguments, basic::Value&) {
  Log += "invoke " + object.FullName() + "." + std::string(method.Facts.Name);
  for (const basic::Value& argument : arguments) Log += " " + argument.AsText();
  Log += "\n";
  return false;
}

void RecordingWidgets::Destroy(basic::ObjectId) {
  Log += "destroy\n";
}

bool RecordingWidgets::PumpEvents(int) {
  if (Steps.empty()) return false;
  const std::function<void()> step = std::move(Steps.front());
  Steps.pop_front();
  step();
  return true;
}

objects::TextSize RecordingWidgets::Measure(const objects::FontValues& font, std::string_view text,
                                            int) {
  return {static_cast<int>(text.size() * 6), static_cast<int>(font.Size) + 5};
}

objects::PickedNames RecordingWidgets::PickFiles(const Record& dialog) {
  Log += "pick " + dialog.FullName() + "\n";
  return Picked;
}

}  // namespace tarnwick::test
