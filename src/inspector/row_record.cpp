#include "inspector/row_record.h"

#include <type_traits>
#include <variant>

#include "persistence/kept_text.h"
#include "persistence/record_layouts.h"

namespace tarnwick {

namespace {

/// True when a layout takes a value from where a row keeps it.
struct IsSameField {
  template <class Field>
  bool operator()(Field field, Field source) const {
    return field == source;
  }
  bool operator()(std::string FormRec::*field, CommaText source) const {
    return field == source.Field;
  }
  bool operator()(std::string DesignForm::*field, Special source) const {
    return source == Special::WindowCaption && field == &DesignForm::Caption;
  }
  template <class Field, class Other>
  bool operator()(Field /*field*/, Other /*source*/) const {
    return false;
  }
};

Tag TagOf(const RowBinding& binding, Kind kind) {
  for (const LayoutField& field : LayoutOf(kind).Fields) {
    if (std::visit(IsSameField{}, binding.Value, field.Value)) return field.In;
  }
  return Tag::None;
}

}  // namespace

std::string StorableText(const RowBinding& binding, Kind kind, std::string_view text) {
  return KeptBytes(text, TagOf(binding, kind));
}

bool IsStorable(const RowBinding& binding, Kind kind, std::string_view text) {
  return RecordKeeps(kind, TagOf(binding, kind), text);
}

}  // namespace tarnwick
