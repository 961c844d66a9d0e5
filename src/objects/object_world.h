// All objects of a running program: records and their behaviour, between the machine and the
// widgets.
#pragma once

#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "basic/hosts/file_host.h"
#include "basic/hosts/object_host.h"
#include "objects/object_record.h"
#include "objects/widget_port.h"

namespace tarnwick::objects {

class NetworkPort;

/// Who changed a value.
enum class Origin : std::uint8_t { Code, User };

/// What the objects know of the program they belong to. Paths are Windows paths.
struct ProgramFacts {
  std::string ExeName;                 ///< Application.ExeName
  std::string Title;                   ///< Application.Title at start
  std::vector<std::string> Resources;  ///< files of the $RESOURCE lines, in order
};

/// Windows that wait inside each other at most.
inline constexpr int kMostModalLoops = 200;
/// DOEVENTS without any event before a program that waits for a user who never comes is ended.
inline constexpr int kMostIdlePumps = 10'000;

/// The objects of one run.
///
///   ObjectWorld world(widgets, &files, facts);
///   hosts.Objects = &world;
///   Machine machine(code, hosts, options);
///   world.Connect(machine);
///   machine.Run();
///
/// The machine asks it as its ObjectHost; widgets report what the user did by the functions of the
/// second part. Everything happens in one thread.
class ObjectWorld final : public basic::ObjectHost {
 public:
  /// `files` may be null: what needs files then fails.
  ObjectWorld(WidgetPort& widgets, basic::FileHost* files, ProgramFacts facts);
  ~ObjectWorld() override;
  ObjectWorld(const ObjectWorld&) = delete;
  ObjectWorld& operator=(const ObjectWorld&) = delete;

  /// The machine that runs the handlers; to be called before the program starts.
  void Connect(basic::EventSink& machine) { machine_ = &machine; }
  /// The connections to other programs; without them sockets cannot be opened.
  void UseNetwork(NetworkPort& network) { network_ = &network; }

  // --- Asked by the machine
  ObjectId Create(basic::ClassId kind, std::string_view name, int index) override;
  bool Get(ObjectId object, basic::MemberId member, std::span<const Value> index,
           Value& out) override;
  bool Set(ObjectId object, basic::MemberId member, std::span<const Value> index,
           const Value& in) override;
  bool Call(ObjectId object, basic::MemberId method, std::span<Value> arguments,
            Value& result) override;
  bool Hook(ObjectId object, basic::MemberId event, const basic::EventHook& hook) override;
  ObjectId BuiltIn(basic::ClassId kind) override;
  bool Assign(ObjectId to, ObjectId from) override;
  void EndOfLocal(ObjectId object) override;
  bool PumpEvents(int wait_ms) override;
  void Repaint() override { widgets_.Repaint(); }
  [[nodiscard]] std::string_view Reason() const override { return reason_; }

  // --- Reported by the widgets. An object that is gone meanwhile is no fault: nothing happens.
  /// The user changed a property (Text, Checked, ItemIndex, Width, SelStart, Position): the record
  /// takes the value, what depends on it follows, then the event of the change is raised.
  void UserSet(ObjectId object, Word property, const Value& value);
  /// The user chose or unchose an entry of a list with MultiSelect.
  void UserSelect(ObjectId list, std::size_t index, bool selected);
  /// Runs the handler of an event, if there is one; what it leaves in its parameters flows back
  /// into `arguments` (Key, Action, CanSelect). False when the program is ending.
  bool Raise(ObjectId object, Word event, std::span<Value> arguments = {});
  /// A key event of the object with the focus. With KeyPreview the form's handler runs first; a key
  /// that a handler sets to 0 goes no further.
  bool RaiseKey(ObjectId object, Word event, std::span<Value> arguments);
  /// The user clicked a button, box, radio button or menu item, or picked it by key: sets what it
  /// sets, raises OnClick, closes the form when the button has a ModalResult.
  void Click(ObjectId object);
  /// The user closes a form: OnClose decides what becomes of it.
  void CloseForm(ObjectId form);
  /// The time of a timer is over. Dropped while no form is visible, while the timer is off and
  /// while its own handler runs.
  void Tick(ObjectId timer);
  /// A popup menu is about to be shown: raises OnPopup.
  void PopupShows(ObjectId menu);

  // --- For all
  /// The record of an object; null when it is gone or was none.
  [[nodiscard]] ObjectRecord* Find(ObjectId object);
  [[nodiscard]] const ObjectRecord* Find(ObjectId object) const;
  /// Calls back for every object in the order in which they were made.
  void ForEach(const std::function<void(const ObjectRecord&)>& use) const;
  /// The font of an object as it is shown: its own, or that of a new QFONT. Of a QFONT itself: its
  /// values.
  [[nodiscard]] FontValues FontOf(const ObjectRecord& object) const;
  /// The file of a resource handle as the program wrote it; "" when there is none.
  [[nodiscard]] std::string_view ResourceFile(std::int64_t handle) const;
  /// The form on which an object stands; null when it stands on none. A form stands on itself.
  [[nodiscard]] const ObjectRecord* FormOf(const ObjectRecord& object) const;
  /// True while a form is visible.
  [[nodiscard]] bool AnyFormVisible() const { return visible_forms_ > 0; }
  [[nodiscard]] const ProgramFacts& Program() const { return facts_; }

  // --- For the behaviour of the classes
  [[nodiscard]] WidgetPort& Widgets() { return widgets_; }
  [[nodiscard]] basic::FileHost* Files() { return files_; }
  /// Null when there is none.
  [[nodiscard]] NetworkPort* Network() { return network_; }
  [[nodiscard]] bool Ending() const { return machine_ != nullptr && machine_->Ending(); }
  void Terminate() {
    if (machine_ != nullptr) machine_->Terminate();
  }
  /// Sets the reason of a failure. False, for `return world.Fail(...)`.
  bool Fail(std::string text);
  /// A note for the user, at the instruction that runs.
  void Note(std::string text);
  /// Stores a value as the property keeps it, shows it when realised, and lets follow what depends
  /// on it. False: it had this value already.
  bool Change(ObjectRecord& object, Word property, const Value& value, Origin origin);
  bool Change(ObjectRecord& object, const MemberInfo& member, const Value& value, Origin origin);
  /// Notifies the widget of an object, if it has one, that a property has another value.
  void Show(const ObjectRecord& object, Word property);
  /// Notifies the widget of a list, if it has one, of what became of its entries.
  void ShowItems(const ObjectRecord& list, const ItemsChange& change);
  /// Makes the widgets of an object and of what stands on it.
  void Realise(ObjectRecord& object);
  /// Puts an object on another one, or on none. False: see `Reason`.
  bool SetParent(ObjectRecord& object, ObjectId parent);
  /// Ends the life of an object, of what stands on it and of the font that it owns.
  void Free(ObjectId object);
  /// The font that an object owns, made when it has none yet.
  ObjectRecord& OwnFont(ObjectRecord& object);
  /// A form appears or disappears.
  void FormVisible(bool visible) { visible_forms_ += visible ? 1 : -1; }
  /// Waits for the user while a form is shown modal; false when no event will ever come.
  bool WaitForUser();
  /// Windows that wait inside each other now.
  int& ModalLoops() { return modal_loops_; }

 private:
  struct Cell {
    std::uint32_t Generation = 1;
    std::unique_ptr<ObjectRecord> Record;
  };
  const MemberInfo* Use(ObjectId object, basic::MemberId member, ObjectRecord*& record);

  WidgetPort& widgets_;
  basic::FileHost* files_;
  basic::EventSink* machine_ = nullptr;
  NetworkPort* network_ = nullptr;
  ProgramFacts facts_;
  std::vector<Cell> cells_;
  std::vector<std::uint32_t> free_cells_;
  std::uint64_t made_ = 0;
  std::vector<ObjectId> built_in_;  ///< by class
  std::string reason_;
  int visible_forms_ = 0;
  int modal_loops_ = 0;
  int idle_pumps_ = 0;
};

}  // namespace tarnwick::objects
