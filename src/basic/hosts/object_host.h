// The objects of a running program as the machine sees them, and the machine as they see it.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "basic/vm/value.h"

namespace tarnwick::basic {

/// What runs when an event is raised. Objects keep it as it is and hand it back to `Raise`.
struct EventHook {
  ProcedureId Procedure{};  ///< 0: none
  Value Bound;              ///< the record of the TYPE whose member the procedure is; else Empty
};

/// Asked by the machine. What fails says why in `Reason`; the machine adds the position.
class ObjectHost {
 public:
  virtual ~ObjectHost() = default;
  /// Makes an object; `index` is that of an array's element, -1 otherwise. None when the class
  /// cannot be made.
  virtual ObjectId Create(ClassId kind, std::string_view name, int index) = 0;
  /// Reads a property; `index` has the values in brackets. False: no value, see `Reason`.
  virtual bool Get(ObjectId object, MemberId member, std::span<const Value> index, Value& out) = 0;
  /// Sets a property. False: it keeps its value, see `Reason`.
  virtual bool Set(ObjectId object, MemberId member, std::span<const Value> index,
                   const Value& in) = 0;
  /// Calls a method. Arguments that it changes flow back into the program's variables. `result`
  /// stays Empty for a method without one. False: see `Reason`.
  virtual bool Call(ObjectId object, MemberId method, std::span<Value> arguments,
                    Value& result) = 0;
  /// Ties a procedure to an event; procedure 0 takes the hook away. False: no such event, see
  /// `Reason`.
  virtual bool Hook(ObjectId object, MemberId event, const EventHook& hook) = 0;
  /// The object of a class that is there without being made (Application, Screen). None when there
  /// is no such object, see `Reason`.
  virtual ObjectId BuiltIn(ClassId kind) = 0;
  /// `to = from` of two objects: copies the values where the class is one of values (QFONT,
  /// QRECT). False: classes do not fit, see `Reason`.
  virtual bool Assign(ObjectId to, ObjectId from) = 0;
  /// The procedure that made the object as a local variable has ended: frees it unless it has
  /// got a parent. Never fails.
  virtual void EndOfLocal(ObjectId object) = 0;
  /// Handles waiting events, after waiting up to `wait_ms` for one. False when there is no
  /// window system: nothing was waited for.
  virtual bool PumpEvents(int wait_ms) = 0;
  /// Called about every 250 ms while the program runs without waiting for events: the windows may
  /// repaint, but no event may be raised.
  virtual void Repaint() {}
  /// Why the last call returned false or None.
  [[nodiscard]] virtual std::string_view Reason() const = 0;
};

/// The machine, seen from the objects.
class EventSink {
 public:
  virtual ~EventSink() = default;
  /// Runs the procedure of a hook to its end, on the machine's stack. A parameter of
  /// an object type gets `sender`, the others the arguments in order, missing ones 0 or ""; what
  /// the procedure leaves in its parameters flows back into `arguments`. False when the program is
  /// ending (END, error, stop): nested event loops then return at once.
  virtual bool Raise(ObjectId sender, const EventHook& hook, std::span<Value> arguments) = 0;
  /// A note for the user about the instruction that is running.
  virtual void Note(std::string text) = 0;
  /// Application.Terminate: the program ends at the next instruction.
  virtual void Terminate() = 0;
  /// True from the moment the program is to end.
  [[nodiscard]] virtual bool Ending() const = 0;
};

}  // namespace tarnwick::basic
