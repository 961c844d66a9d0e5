#include "objects/traced_widgets.h"

namespace tarnwick::objects {
namespace {

/// The text as one line of the trace.
std::string OneLine(std::string_view text) {
  std::string line;
  for (const char c : text) {
    if (c == '\r') {
      line += "\\r";
    } else if (c == '\n') {
      line += "\\n";
    } else {
      line += c;
    }
  }
  return line;
}

}  // namespace

/// An object by its name, any other value as text.
std::string TracedWidgets::ShownAs(const Value& value) const {
  const ObjectRecord* const other = world_ == nullptr ? nullptr : world_->Find(value.AsObject());
  return other != nullptr ? other->FullName() : OneLine(value.AsText());
}

void TracedWidgets::Realise(const ObjectRecord& object) {
  write_("realise " + object.FullName() + " " + std::string(object.Info().Name));
  shown_.Realise(object);
}

void TracedWidgets::Apply(const ObjectRecord& object, const MemberInfo& member) {
  std::string line = object.FullName() + "." + std::string(member.Facts.Name);
  if (member.Facts.Kind == basic::MemberKind::Property) {
    line += " = " + ShownAs(object.Values[member.Slot]);
  }
  write_(line);
  shown_.Apply(object, member);
}

void TracedWidgets::ItemsChanged(const ObjectRecord& list, const ItemsChange& change) {
  static constexpr const char* kKinds[] = {"inserted", "removed", "replaced", "all"};
  write_(list.FullName() + " entries " + kKinds[static_cast<int>(change.What)] + " " +
         std::to_string(change.First) + " " + std::to_string(change.Count));
  shown_.ItemsChanged(list, change);
}

void TracedWidgets::MenuChanged(const ObjectRecord& menu) {
  write_(menu.FullName() + " rows");
  shown_.MenuChanged(menu);
}

bool TracedWidgets::Invoke(const ObjectRecord& object, const MemberInfo& method,
                           std::span<Value> arguments, Value& result) {
  std::string line = object.FullName() + "." + std::string(method.Facts.Name) + "(";
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    line += (i == 0 ? "" : ", ") + OneLine(arguments[i].AsText());
  }
  write_(line + ")");
  return shown_.Invoke(object, method, arguments, result);
}

void TracedWidgets::Destroy(ObjectId object) {
  const ObjectRecord* const record = world_ == nullptr ? nullptr : world_->Find(object);
  write_("destroy " + (record == nullptr ? std::string("an object") : record->FullName()));
  shown_.Destroy(object);
}

PickedNames TracedWidgets::PickFiles(const ObjectRecord& dialog) {
  write_(dialog.FullName() + " asks: " + OneLine(dialog.Text(Word::Caption)));
  return shown_.PickFiles(dialog);
}

}  // namespace tarnwick::objects
