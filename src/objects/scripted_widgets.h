// A user without a screen: plays events from a script.
#pragma once

#include <deque>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "objects/object_world.h"

namespace tarnwick::objects {

/// Shows nothing. Each line of the script is one thing that the user does, played when the program
/// waits for events; when none is left no event will ever come:
///
///   click Button1          press a button, box, radio button or menu item
///   key Text1 65           type a character by its code; 8 takes the last one away
///   type Text1 some text   the text of a box is this now
///   pick List1 2           pick an entry
///   set Bar1 Position 7    change a property as the user does
///   down Image1 3 4 0      press a mouse button at x, y; likewise up; move without a button
///   tick Time1             the time of a timer is over
///   popup PopMenu1         a popup menu is shown
///   close Form1            close a window
///   file C:\notes.txt      what is picked in the next dialog; without a path: given up
///   filter 2               the filter that is chosen in the next dialog, counted from 1
///
/// Objects are named as in the program, elements of arrays as "Cmd(2)"; the first object of the
/// name counts. Empty lines and those that begin with ' are passed over.
class ScriptedWidgets final : public WidgetPort {
 public:
  ScriptedWidgets() = default;
  explicit ScriptedWidgets(std::string_view script);
  /// The objects on which the script is played; to be set before the program runs.
  void Play(ObjectWorld& world) { world_ = &world; }
  /// The objects are about to go; what is left of the script is not played.
  void EndPlay() { world_ = nullptr; }

  void Realise(const ObjectRecord& /*object*/) override {}
  void Apply(const ObjectRecord& /*object*/, const MemberInfo& /*member*/) override {}
  void ItemsChanged(const ObjectRecord& /*list*/, const ItemsChange& /*change*/) override {}
  void MenuChanged(const ObjectRecord& /*menu*/) override {}
  bool Invoke(const ObjectRecord& /*object*/, const MemberInfo& /*method*/,
              std::span<Value> /*arguments*/, Value& /*result*/) override {
    return false;
  }
  bool Live(const ObjectRecord& /*object*/, const MemberInfo& /*member*/,
            std::span<const Value> /*index*/, Value& /*out*/) override {
    return false;
  }
  void Destroy(ObjectId /*object*/) override {}
  bool PumpEvents(int wait_ms) override;
  /// As if every letter had the same width.
  [[nodiscard]] TextSize Measure(const FontValues& font, std::string_view text,
                                 int wrap_width) override;
  [[nodiscard]] PickedNames PickFiles(const ObjectRecord& dialog) override;

  /// Receives each line of the script as it is played, with "> " in front; may be empty.
  std::function<void(std::string_view)> Played;
  /// Lines of the script that could not be played, with the reason.
  std::vector<std::string> Faults;

 private:
  void Step(std::string_view line);
  void Key(const ObjectRecord& object, std::int64_t code);

  ObjectWorld* world_ = nullptr;
  std::deque<std::string> lines_;
  PickedNames picked_;
};

}  // namespace tarnwick::objects
