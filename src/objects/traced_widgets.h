// The calls to the widgets of a running program, written down.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "objects/object_world.h"

namespace tarnwick::objects {

/// Stands in front of other widgets: writes a line for each change that they show and each method
/// that is called, and passes it on. Questions (Live, Measure, waiting for events) are passed on
/// without a line.
///
///   TracedWidgets traced(stage, write);
///   ObjectWorld world(traced, &files, facts);
///   traced.Connect(world);
class TracedWidgets final : public WidgetPort {
 public:
  /// `write` gets each line without its end, in the code page.
  TracedWidgets(WidgetPort& shown, std::function<void(std::string_view)> write)
      : shown_(shown), write_(std::move(write)) {}
  /// The objects, whose names stand in the lines; to be set before the program runs.
  void Connect(const ObjectWorld& world) { world_ = &world; }

  void Realise(const ObjectRecord& object) override;
  void Apply(const ObjectRecord& object, const MemberInfo& member) override;
  void ItemsChanged(const ObjectRecord& list, const ItemsChange& change) override;
  void MenuChanged(const ObjectRecord& menu) override;
  bool Invoke(const ObjectRecord& object, const MemberInfo& method, std::span<Value> arguments,
              Value& result) override;
  bool Live(const ObjectRecord& object, const MemberInfo& member, std::span<const Value> index,
            Value& out) override {
    return shown_.Live(object, member, index, out);
  }
  void Destroy(ObjectId object) override;
  bool PumpEvents(int wait_ms) override { return shown_.PumpEvents(wait_ms); }
  void Repaint() override { shown_.Repaint(); }
  [[nodiscard]] TextSize Measure(const FontValues& font, std::string_view text,
                                 int wrap_width) override {
    return shown_.Measure(font, text, wrap_width);
  }
  [[nodiscard]] PickedNames PickFiles(const ObjectRecord& dialog) override;

 private:
  [[nodiscard]] std::string ShownAs(const Value& value) const;

  WidgetPort& shown_;
  std::function<void(std::string_view)> write_;
  const ObjectWorld* world_ = nullptr;
};

}  // namespace tarnwick::objects
