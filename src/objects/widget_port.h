// The only door from the objects of a running program to the windows that show them.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "objects/object_record.h"

namespace tarnwick::objects {

/// What became of the entries of a list. The record has them already.
struct ItemsChange {
  enum class Kind { Inserted, Removed, Replaced, All };
  Kind What = Kind::All;
  std::size_t First = 0;  ///< entries [First, First + Count)
  std::size_t Count = 0;
};

struct TextSize {
  int Width = 0;   ///< pixels
  int Height = 0;  ///< pixels
};

/// What the user picked in a dialog.
struct PickedNames {
  std::vector<std::string> Files;  ///< full paths; empty when the user gave up
  std::int64_t FilterIndex = 0;    ///< from 1, the filter chosen in the dialog; 0: not known
};

/// Shows the records. It reads them when it is notified of a change and keeps none. A record is
/// valid during the call. Ids identify objects and are never used again.
class WidgetPort {
 public:
  virtual ~WidgetPort() = default;

  /// Makes the widget of an object from its record. A form is realised when it is first shown,
  /// its children straight after it, parents first; later ones when they get a realised parent.
  /// Timers are realised when they are made. Menus are not: see `MenuChanged`. A form is realised
  /// hidden: `Apply` of Visible shows it.
  virtual void Realise(const ObjectRecord& object) = 0;
  /// A property of a realised object has another value. Of a font that an object owns: the member
  /// Font of that object. `Parent`: it moved to another parent. Menu items: see `MenuChanged`.
  virtual void Apply(const ObjectRecord& object, const MemberInfo& member) = 0;
  /// Entries of a realised list changed.
  virtual void ItemsChanged(const ObjectRecord& list, const ItemsChange& change) = 0;
  /// Something in the tree below a main menu changed, or it was hung on another form; or below a
  /// popup menu. Comes for a main menu when its form is realised, straight behind the children, and
  /// for a popup menu from its first `ObjectWorld::PopupShows` on; then once for each change, so
  /// the widget is best made again before it is next shown.
  virtual void MenuChanged(const ObjectRecord& menu) = 0;
  /// Calls a method of which only the widget knows the effect: drawing, focus, Undo. Drawing
  /// methods also come for objects that are not realised: the port keeps a surface for them.
  /// False: nothing was done.
  virtual bool Invoke(const ObjectRecord& object, const MemberInfo& method,
                      std::span<Value> arguments, Value& result) = 0;
  /// The value of a property that only the widget knows (SelStart, Pixel(x, y), Screen.MouseX).
  /// False: the record's value holds.
  virtual bool Live(const ObjectRecord& object, const MemberInfo& member,
                    std::span<const Value> index, Value& out) = 0;
  /// The object is gone. Comes for realised objects, and for others on which was drawn.
  virtual void Destroy(ObjectId object) = 0;

  /// Handles waiting events, after waiting up to `wait_ms` for one (below 0: as long as it takes).
  /// False when no event will ever come: a loop that waits for the user then ends.
  virtual bool PumpEvents(int wait_ms) = 0;
  /// Repaints without handling events of the user.
  virtual void Repaint() {}
  /// Room that a text takes; with `wrap_width` above 0 it is broken into lines of that width.
  [[nodiscard]] virtual TextSize Measure(const FontValues& font, std::string_view text,
                                         int wrap_width) = 0;
  /// Lets the user pick files in a dialog whose record has title, filter and folder.
  [[nodiscard]] virtual PickedNames PickFiles(const ObjectRecord& dialog) = 0;
};

}  // namespace tarnwick::objects
