// What members do beyond keeping a value: rows of functions, found by class and member.
#pragma once

#include <span>

#include "objects/object_world.h"

namespace tarnwick::objects {

/// The functions of one member; null where the plain way does. A function that returns false has
/// set the world's reason. Records may be gone when a handler has run: look them up again.
struct Behaviour {
  using Getter = bool (*)(ObjectWorld&, ObjectRecord&, const MemberInfo&, std::span<const Value>,
                          Value&);
  using Setter = bool (*)(ObjectWorld&, ObjectRecord&, const MemberInfo&, std::span<const Value>,
                          const Value&);
  using Caller = bool (*)(ObjectWorld&, ObjectRecord&, const MemberInfo&, std::span<Value>, Value&);
  using Follower = void (*)(ObjectWorld&, ObjectRecord&, const MemberInfo&, Origin);

  Getter Get = nullptr;
  Setter Set = nullptr;
  Caller Call = nullptr;
  Follower Changed = nullptr;  ///< the value is another now, and shown
};

/// A row of a group. Class None: every class that has the member and no row of its own.
struct BehaviourRow {
  ObjectClass Class;
  Word Member;
  Behaviour What;
};
using BehaviourRows = std::span<const BehaviourRow>;

/// The functions of a member of a class.
[[nodiscard]] const Behaviour& BehaviourOf(basic::ClassId kind, basic::MemberId member);
/// What a new object of a class keeps besides its properties.
[[nodiscard]] ObjectState StartStateOf(basic::ClassId kind);

// The groups, a file each.
[[nodiscard]] BehaviourRows FormBehaviour();
[[nodiscard]] BehaviourRows ButtonBehaviour();
[[nodiscard]] BehaviourRows ListBehaviour();
[[nodiscard]] BehaviourRows MenuBehaviour();
[[nodiscard]] BehaviourRows TextBehaviour();
[[nodiscard]] BehaviourRows LabelBehaviour();
[[nodiscard]] BehaviourRows FontBehaviour();
[[nodiscard]] BehaviourRows PictureBehaviour();
[[nodiscard]] BehaviourRows DialogBehaviour();
[[nodiscard]] BehaviourRows StreamBehaviour();
[[nodiscard]] BehaviourRows StreamDataBehaviour();
[[nodiscard]] BehaviourRows SystemBehaviour();
[[nodiscard]] BehaviourRows GridBehaviour();
[[nodiscard]] BehaviourRows PageBehaviour();
[[nodiscard]] BehaviourRows SocketBehaviour();
[[nodiscard]] BehaviourRows FileListBehaviour();
[[nodiscard]] BehaviourRows PrinterBehaviour();
[[nodiscard]] BehaviourRows ListViewBehaviour();
[[nodiscard]] BehaviourRows TreeBehaviour();

// --- Functions that several groups use

/// The value that only the widget knows, else that of the record.
bool LiveValue(ObjectWorld& world, ObjectRecord& object, const MemberInfo& member,
               std::span<const Value> index, Value& out);
/// The method is the widget's affair; without one nothing happens.
bool WidgetMethod(ObjectWorld& world, ObjectRecord& object, const MemberInfo& member,
                  std::span<Value> arguments, Value& result);
/// Gives a list other entries; none is picked then.
void FillList(ObjectWorld& world, ObjectRecord& list, std::vector<std::string> texts);
/// Reads the folder of a list of files that was not filled yet; nothing for other objects.
void FillFileList(ObjectWorld& world, ObjectRecord& object);
/// Shows a form and raises what showing raises.
void ShowForm(ObjectWorld& world, ObjectId form);
/// Shows the main menu of a form that is realised.
void RealiseMenu(ObjectWorld& world, const ObjectRecord& form);
/// Takes an object that is about to go out of all menus and off all forms.
void LeaveMenus(ObjectWorld& world, ObjectId object);
/// Gives a label with AutoSize the size of its text, when it is shown, and an edit with AutoSize
/// the height of its font; nothing for other objects.
void FitText(ObjectWorld& world, ObjectRecord& label);

}  // namespace tarnwick::objects
