// Widgets of a running program that are none: a log of the calls to them.
#pragma once

#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "objects/widget_port.h"

namespace tarnwick::test {

class RecordingWidgets : public objects::WidgetPort {
 public:
  using Record = objects::ObjectRecord;

  void Realise(const Record& object) override { Log += "realise " + object.FullName() + "\n"; }
  void Apply(const Record& object, const objects::MemberInfo& member) override {
    Log += "apply " + object.FullName() + "." + std::string(member.Facts.Name);
    const bool plain = member.Facts.Kind == basic::MemberKind::Property;
    if (plain) Log += " = " + object.Values[member.Slot].AsText();
    Log += "\n";
  }
  void ItemsChanged(const Record& list, const objects::ItemsChange& change) override {
    static constexpr const char* kKinds[] = {"inserted", "removed", "replaced", "all"};
    Log += "items " + list.FullName() + " " + kKinds[static_cast<int>(change.What)] + " " +
           std::to_string(change.First) + " " + std::to_string(change.Count) + "\n";
  }
  void MenuChanged(const Record& menu) override { Log += "menu " + menu.FullName() + "\n"; }
  bool Invoke(const Record& object, const objects::MemberInfo& method,
              std::span<basic::Value> arguments, basic::Value&) override {
    Log += "invoke " + object.FullName() + "." + std::string(method.Facts.Name);
    for (const basic::Value& argument : arguments) Log += " " + argument.AsText();
    Log += "\n";
    return false;
  }
  bool Live(const Record&, const objects::MemberInfo&, std::span<const basic::Value>,
            basic::Value&) override {
    return false;
  }
  void Destroy(basic::ObjectId) override { Log += "destroy\n"; }
  /// Runs the next step of `Steps`; false when there is none.
  bool PumpEvents(int) override {
    if (Steps.empty()) return false;
    const std::function<void()> step = std::move(Steps.front());
    Steps.pop_front();
    step();
    return true;
  }
  objects::TextSize Measure(const objects::FontValues& font, std::string_view text, int) override {
    return {static_cast<int>(text.size() * 6), static_cast<int>(font.Size) + 5};
  }
  objects::PickedNames PickFiles(const Record& dialog) override {
    Log += "pick " + dialog.FullName() + "\n";
    return Picked;
  }

  std::string Log;
  std::deque<std::function<void()>> Steps;  ///< what the user does, one at a time
  objects::PickedNames Picked;              ///< of the next dialogs
};

}  // namespace tarnwick::test
