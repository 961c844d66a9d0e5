#include "persistence/form_writer.h"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

#include "model/control_walk.h"
#include "model/units.h"
#include "persistence/menu_text.h"
#include "persistence/record_layouts.h"
#include "persistence/stored_text.h"
#include "text/strings.h"
#include "text/text_page.h"

namespace tarnwick {

namespace {

/// Code of the events as the walk last found it. A failed look-up leaves the value of the look-up
/// before, so an object without a key is written with the code of an earlier one.
using CodeValues = std::array<std::string, kEventCount>;

/// How a control's member stands in its record: texts with their commas stored, but for the name of
/// a font; lengths in pixels; a state as yes or no.
template <Member member>
auto StoredMember(const DesignControl& control) {
  const auto& value = control.*std::get<FieldOf(member).index()>(FieldOf(member));
  using Value = std::remove_cvref_t<decltype(value)>;
  if constexpr (member == Member::FontName) {
    return std::string_view(value);
  } else if constexpr (std::is_same_v<Value, std::string>) {
    return StoredText{value};
  } else if constexpr (std::is_same_v<Value, float> && member != Member::FontSize) {
    return PixelsOf(value);
  } else if constexpr (std::is_same_v<Value, bool>) {
    return value ? '1' : '0';
  } else if constexpr (member == Member::Value) {
    return value == 1 || value == -1 ? '1' : '0';
  } else {
    return value;
  }
}

class FormWriter {
 public:
  FormWriter(const ProjectTables& tables, const DesignForm& window, const FormRec& record,
             TextSink sink)
      : tables_(tables),
        window_(window),
        record_(record),
        form_key_(window.KeyPrefix()),
        window_number_(window.Number()),
        page_(std::move(sink)) {}

  void Write() {
    WriteFormRecord();
    WalkControls<ControlPart::Whole>(window_.Controls(), 0, [&](const ControlRef& control) {
      if (control->Visible && control->Id != Kind::Handle) WriteControl(*control);
    });
    std::string rest;
    AppendMenuRecords(rest, tables_, window_);
    rest += "[DeclarePbl] String<";
    AppendStoredLines(rest, record_.DeclarePbl);
    page_.Put(rest, ">String", kLineEnd);
    page_.Flush();
  }

 private:
  /// What the fields of the record being written are taken from.
  struct Object {
    const DesignControl& Control;
    int Number;
    const ObjectRec& Record;
  };

  void WriteFormRecord() {
    if (const auto* owner = tables_.EventTable.OwnerOf(form_key_)) {
      for (const EventInfo& event : AllEvents()) Take(*owner, event.Id);
    }
    static const DesignControl no_control;
    static const ObjectRec no_record;
    WriteRecord<Kind::Form>({no_control, window_.Number(), no_record});
    codes_ = CodeValues{};
  }

  void Take(const EventCodeTable::Owner& owner, Event event) {
    const std::string* code = owner.Find(event);
    if (code == nullptr) return;
    std::string& value = codes_[static_cast<std::size_t>(event)];
    value.clear();
    AppendStoredCode(value, *code);
  }

  /// The look-up uses the element's index: it comes before the running number is stepped.
  void TakeCodes(const DesignControl& control) {
    const auto* owner = tables_.EventTable.OwnerOf({window_number_, control.Id, control.Index});
    if (owner == nullptr) return;
    for (const Event event : NewObjectEvents()) Take(*owner, event);
    Take(*owner, Event::OnPopUp);
  }

  void WriteControl(const DesignControl& control) {
    page_.Put(kLineEnd);
    TakeCodes(control);
    if (!IsObjectKind(control.Id)) return;
    const int number = ++counts_[static_cast<std::size_t>(control.Id)];
    if (control.Id == Kind::PopUpMenu) WriteSubs(number);
    const auto* records = record_.Objects(control.Id);
    static const ObjectRec no_record;
    const Object object{control, number,
                        records != nullptr ? RecordOrEmpty(*records, number) : no_record};
    WithObjectKind(control.Id, [&](auto kind) { WriteRecord<kind>(object); });
  }

  void WriteSubs(int number) {
    const std::vector<PopUpMenuRec>& rows = RecordOrEmpty(tables_.PopUpMenus, number).Items;
    for (std::size_t row = 1; row < rows.size(); ++row) {
      WriteSub(rows[row].Name);
      const std::vector<PopUpEntryRec>& entries = rows[row].Entries;
      for (std::size_t entry = 1; entry < entries.size(); ++entry) WriteSub(entries[entry].Name);
    }
  }

  void WriteSub(std::string_view name) {
    std::string code;
    AppendItemCode(code, tables_, form_key_, name);
    if (!code.empty()) page_.Put("[Sub]{", name, "} Click<", code, ">Click", kLineEnd);
  }

  /// Straight code for each kind: a form's text is these records.
  template <Kind kind>
  void WriteRecord(const Object& object) {
    static constexpr const RecordLayout& layout = LayoutOf(kind);
    [&]<std::size_t... Places>(std::index_sequence<Places...>) {
      const auto write = [&](auto place) {
        constexpr const LayoutField& field = layout.Fields[place];
        constexpr auto source = std::get<field.Value.index()>(field.Value);
        using Type = std::remove_const_t<decltype(source)>;
        if constexpr (std::is_same_v<Type, Member>) {
          page_.Put(field.Before, StoredMember<source>(object.Control));
        } else if constexpr (std::is_same_v<Type, Special>) {
          page_.Put(field.Before);
          Put<source>(object);
        } else {
          page_.Put(field.Before, ValueOf(object, source));
        }
      };
      (write(std::integral_constant<std::size_t, Places>{}), ...);
    }
    (std::make_index_sequence<layout.Fields.size()>{});
    page_.Put(layout.End, kLineEnd);
  }

  template <Special special>
  void Put(const Object& object) {
    if constexpr (special == Special::Number) {
      page_.Put(object.Number);
    } else if constexpr (special == Special::Name) {
      page_.Put(object.Control.Index == 0 ? record_.Name : object.Control.Tag);
    } else if constexpr (special == Special::WindowCaption) {
      page_.Put(StoredText{window_.Caption});
    } else if constexpr (special == Special::WindowColor) {
      page_.Put(window_.BackColor);
    } else if constexpr (special == Special::ItemList) {
      std::string rows;
      AppendPopUpRows(rows, RecordOrEmpty(tables_.PopUpMenus, object.Number));
      page_.Put(StoredItems(rows));
    } else {
      static_assert(special == Special::One);
      page_.Put('1');
    }
  }

  [[nodiscard]] const std::string& ValueOf(const Object& /*object*/, Event event) const {
    return codes_[static_cast<std::size_t>(event)];
  }
  template <class T>
  [[nodiscard]] const T& ValueOf(const Object& object, T ObjectRec::*field) const {
    return object.Record.*field;
  }
  [[nodiscard]] StoredText ValueOf(const Object& object, ItemsText items) const {
    return StoredItems(object.Record.*items.Field);
  }
  template <class T>
  [[nodiscard]] const T& ValueOf(const Object& /*object*/, T FormRec::*field) const {
    return record_.*field;
  }
  [[nodiscard]] StoredText ValueOf(const Object& /*object*/, CommaText text) const {
    return {record_.*text.Field};
  }
  template <class T>
  [[nodiscard]] const T& ValueOf(const Object& object, T WinSockRec::*field) const {
    return RecordOrEmpty(record_.WinSocks, object.Number).*field;
  }
  template <class T>
  [[nodiscard]] const T& ValueOf(const Object& object, T HtmlViewerRec::*field) const {
    return RecordOrEmpty(record_.HtmlViewers, object.Number).*field;
  }
  template <class T>
  [[nodiscard]] const T& ValueOf(const Object& object, T PopUpItemRec::*field) const {
    return RecordOrEmpty(record_.PopUps, object.Number).*field;
  }

  const ProjectTables& tables_;
  const DesignForm& window_;
  const FormRec& record_;
  const std::string form_key_;
  const int window_number_;
  TextPage page_;
  CodeValues codes_;
  std::array<int, kObjectKindCount> counts_{};
};

}  // namespace

void AppendFormText(std::string& out, const ProjectTables& tables, int form) {
  const DesignForm* window = tables.UserIfAny(form);
  const FormRec* record = tables.Form(form);
  if (window == nullptr || record == nullptr) return;
  constexpr std::size_t kUsualRecord = 512;
  out.reserve(out.size() + window->Controls().size() * kUsualRecord);
  FormWriter(tables, *window, *record, [&](std::string_view piece) { out += piece; }).Write();
}

std::string FormFileText(const ProjectTables& tables, int form) {
  std::string text;
  AppendFormText(text, tables, form);
  return text;
}

}  // namespace tarnwick
