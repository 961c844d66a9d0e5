// What shows one object of the running program.
#pragma once

#include <QObject>
#include <QWidget>
#include <cstddef>
#include <span>

#include "objects/widget_port.h"

namespace tarnwick::run {

using basic::ObjectId;
using basic::Value;
using objects::MemberInfo;
using objects::ObjectClass;
using objects::ObjectRecord;
using objects::Word;

class Stage;

/// Shows one object. Lives as long as the object is realised; may be asked for anything at any
/// time, also while an event of its own widget is being handled.
class ObjectView : public QObject {
 public:
  ObjectView(Stage& stage, const ObjectRecord& object) : stage_(stage), id_(object.Id) {}

  [[nodiscard]] ObjectId Id() const { return id_; }
  /// The record; null when the object is gone.
  [[nodiscard]] const ObjectRecord* Record() const;
  /// The outermost widget; null for what is not seen.
  [[nodiscard]] virtual QWidget* Widget() const { return nullptr; }
  /// The widget on which objects with this parent stand.
  [[nodiscard]] virtual QWidget* Ground() const { return Widget(); }
  /// Shows all that the record says; called once, behind the constructor.
  virtual void Build(const ObjectRecord& object) = 0;
  /// A property has another value.
  virtual void Apply(const ObjectRecord& object, Word property) = 0;
  virtual void ShowItems(const ObjectRecord& /*list*/, const objects::ItemsChange& /*change*/) {}
  virtual bool Invoke(const ObjectRecord& /*object*/, const MemberInfo& /*method*/,
                      std::span<Value> /*arguments*/, Value& /*result*/) {
    return false;
  }
  virtual bool Live(const ObjectRecord& /*object*/, const MemberInfo& /*member*/,
                    std::span<const Value> /*index*/, Value& /*out*/) {
    return false;
  }
  /// What was drawn on the object is another picture now.
  virtual void ShowDrawing() {
    if (Widget() != nullptr) Widget()->update();
  }
  /// The object is gone: nothing of it is to be seen any more. The view is deleted later.
  virtual void Retire();

 protected:
  [[nodiscard]] Stage& stage() const { return stage_; }

 private:
  Stage& stage_;
  ObjectId id_;
};

/// A function of a view that shows a property.
template <class View>
struct ShowRow {
  Word Property;
  void (View::*Show)(const ObjectRecord&);
};

/// Runs the function of a property; false when the table has none.
template <class View, std::size_t Count>
bool ShowBy(View& view, const ShowRow<View> (&rows)[Count], const ObjectRecord& object,
            Word property) {
  for (const ShowRow<View>& row : rows) {
    if (row.Property != property) continue;
    (view.*row.Show)(object);
    return true;
  }
  return false;
}

/// Runs each function of the table once.
template <class View, std::size_t Count>
void ShowAll(View& view, const ShowRow<View> (&rows)[Count], const ObjectRecord& object) {
  for (std::size_t i = 0; i < Count; ++i) {
    bool before = false;
    for (std::size_t j = 0; j < i && !before; ++j) before = rows[j].Show == rows[i].Show;
    if (!before) (view.*rows[i].Show)(object);
  }
}

}  // namespace tarnwick::run
