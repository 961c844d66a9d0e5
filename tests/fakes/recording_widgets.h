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

  void Realise(const Record& object) override;
  void Apply(const Record& object, const objects::MemberInfo& member) override;
  void ItemsChanged(const Record& list, const objects::ItemsChange& change) override;
  void MenuChanged(const Record& menu) override;
  bool Invoke(const Record& object, const objects::MemberInfo& method,
              std::span<basic::Value> arguments, basic::Value&) override;
  bool Live(const Record&, const objects::MemberInfo&, std::span<const basic::Value>,
            basic::Value&) override {
    return false;
  }
  void Destroy(basic::ObjectId) override;
  /// Runs the next step of `Steps`; false when there is none.
  bool PumpEvents(int) override;
  objects::TextSize Measure(const objects::FontValues& font, std::string_view text, int) override;
  objects::PickedNames PickFiles(const Record& dialog) override;

  std::string Log;
  std::deque<std::function<void()>> Steps;  ///< what the user does, one at a time
  objects::PickedNames Picked;              ///< of the next dialogs
};

}  // namespace tarnwick::test
