#include "persistence/form_writer.h"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

#include "model/units.h"
#include "persistence/menu_text.h"
#include "persistence/record_layouts.h"
#include "persistence/stored_text.h"
#include "text/numbers.h"
#include "text/strings.h"

namespace tarnwick {

namespace {

/// Code of the events as the walk last found it. A failed look-up leaves the value of the look-up
/// before, so an object without a key is written with the code of an earlier one.
using CodeValues = std::array<std::string, kEventCount>;

const DesignControl kNoControl;
const ObjectRec kNoRecord;

/// Appends the records of one form.
class FormWriter {
 public:
  /// `menu` is the window that has the menu bar: the form's own, or one that stands in for it.
  FormWriter(std::string& out, const ProjectTables& tables, const DesignForm& window,
             const FormRec& record, const DesignForm& menu)
      : out_(out),
        tables_(tables),
        window_(window),
        menu_(menu),
        record_(record),
        form_key_(window.KeyPrefix()),
        window_number_(window.Number()) {}

  void Write() {
    WriteFormRecord();
    for (const ControlRef& control : window_.Controls()) {
      const bool replaced = &menu_ != &window_ && control->Class() == ControlClass::Menu;
      if (control->Visible && control->Id != Kind::Handle && !replaced) WriteControl(*control);
    }
    if (&menu_ != &window_) WriteMenuControls();
    AppendMenuRecords(out_, tables_, menu_);
    out_ += "[DeclarePbl] String<";
    AppendStoredLines(out_, record_.DeclarePbl);
    out_.append(">String").append(kLineEnd);
  }

 private:
  /// What the fields of a record are taken from.
  struct Object {
    const DesignControl& Control;
    int Number;
    const ObjectRec& Record;
  };

  void WriteMenuControls() {
    for (const ControlRef& control : menu_.Controls()) {
      if (control->Visible && control->Class() == ControlClass::Menu) WriteControl(*control);
    }
  }

  void WriteFormRecord() {
    if (const auto* owner = tables_.EventTable.OwnerOf(form_key_)) {
      for (const EventInfo& event : AllEvents()) TakeCode(*owner, event.Id);
    }
    WriteRecord(Kind::Form, {kNoControl, window_.Number(), kNoRecord});
    codes_ = CodeValues{};
  }

  void TakeCode(const EventCodeTable::Owner& owner, Event event) {
    const std::string* code = owner.Find(event);
    if (code == nullptr) return;
    std::string& value = codes_[static_cast<std::size_t>(event)];
    value.clear();
    AppendStoredCode(value, *code);
  }

  /// The look-up uses the element's index: it comes before the running number is stepped.
  void TakeCodes(const DesignControl& control) {
    const auto* owner =
        tables_.EventTable.OwnerOf(ObjectPlace{window_number_, control.Id, control.Index});
    if (owner == nullptr) return;
    for (const Event event : NewObjectEvents()) TakeCode(*owner, event);
    TakeCode(*owner, Event::OnPopUp);
  }

  void WriteControl(const DesignControl& control) {
    out_ += kLineEnd;
    TakeCodes(control);
    if (!IsObjectKind(control.Id)) return;
    const int number = ++counts_[static_cast<std::size_t>(control.Id)];
    if (control.Id == Kind::PopUpMenu) WriteSubs(number);
    const auto* records = record_.Objects(control.Id);
    WriteRecord(control.Id, {control, number,
                             records != nullptr ? RecordOrEmpty(*records, number) : kNoRecord});
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
    if (code.empty()) return;
    out_.append("[Sub]{").append(name).append("} Click<").append(code).append(">Click");
    out_ += kLineEnd;
  }

  void WriteRecord(Kind kind, const Object& object) {
    const RecordLayout& layout = LayoutOf(kind);
    for (const LayoutField& field : layout.Fields) {
      out_ += field.Before;
      std::visit([&](auto source) { Put(object, source); }, field.Value);
    }
    out_.append(layout.End).append(kLineEnd);
  }

  void Put(const Object& object, Special special) {
    switch (special) {
      case Special::Number:
        return PutValue(std::int32_t{object.Number});
      case Special::Name:
        return PutValue(object.Control.Index == 0 ? record_.Name : object.Control.Tag);
      case Special::WindowCaption:
        return AppendStoredText(out_, window_.Caption);
      case Special::WindowColor:
        return PutValue(window_.BackColor);
      case Special::ItemList: {
        std::string rows;
        AppendPopUpRows(rows, RecordOrEmpty(tables_.PopUpMenus, object.Number));
        return AppendStoredItems(out_, rows);
      }
      case Special::One:
        out_ += '1';
    }
  }
  void Put(const Object& object, Member member) {
    std::visit([&](auto field) { PutMember(object.Control, member, field); }, FieldOf(member));
  }
  void Put(const Object& /*object*/, Event event) {
    out_ += codes_[static_cast<std::size_t>(event)];
  }
  void Put(const Object& object, ItemsText items) {
    AppendStoredItems(out_, object.Record.*items.Field);
  }
  void Put(const Object& /*object*/, CommaText text) {
    AppendStoredText(out_, record_.*text.Field);
  }
  template <class T>
  void Put(const Object& object, T ObjectRec::*field) {
    PutValue(object.Record.*field);
  }
  template <class T>
  void Put(const Object& /*object*/, T FormRec::*field) {
    PutValue(record_.*field);
  }
  template <class T>
  void Put(const Object& object, T WinSockRec::*field) {
    PutValue(RecordOrEmpty(record_.WinSocks, object.Number).*field);
  }
  template <class T>
  void Put(const Object& object, T HtmlViewerRec::*field) {
    PutValue(RecordOrEmpty(record_.HtmlViewers, object.Number).*field);
  }
  template <class T>
  void Put(const Object& object, T PopUpItemRec::*field) {
    PutValue(RecordOrEmpty(record_.PopUps, object.Number).*field);
  }

  /// Texts of a control have their commas stored, but for the name of a font; lengths are in
  /// pixels; a state is 1 or 0.
  template <class T>
  void PutMember(const DesignControl& control, Member member, T DesignControl::*field) {
    const T& value = control.*field;
    if constexpr (std::is_same_v<T, std::string>) {
      member == Member::FontName ? PutValue(value) : AppendStoredText(out_, value);
    } else if constexpr (std::is_same_v<T, float>) {
      AppendNumber(out_, member == Member::FontSize ? value : PixelsOf(value));
    } else if constexpr (std::is_same_v<T, bool>) {
      out_ += value ? '1' : '0';
    } else if (member == Member::Value) {
      out_ += value == 1 || value == -1 ? '1' : '0';
    } else {
      PutValue(value);
    }
  }
  void PutMember(const DesignControl& /*control*/, Member /*member*/, std::monostate /*field*/) {}

  void PutValue(const std::string& text) { out_ += text; }
  void PutValue(std::int32_t number) { AppendNumber(out_, std::int64_t{number}); }

  std::string& out_;
  const ProjectTables& tables_;
  const DesignForm& window_;
  const DesignForm& menu_;
  const FormRec& record_;
  const std::string form_key_;
  const int window_number_;
  CodeValues codes_;
  std::array<int, kObjectKindCount> counts_{};
};

}  // namespace

std::string FormFileText(const ProjectTables& tables, int form) {
  const DesignForm* window = tables.UserIfAny(form);
  return window == nullptr ? std::string() : FormFileTextWithMenu(tables, form, *window);
}

std::string FormFileTextWithMenu(const ProjectTables& tables, int form, const DesignForm& menu) {
  std::string text;
  const DesignForm* window = tables.UserIfAny(form);
  const FormRec* record = tables.Form(form);
  if (window == nullptr || record == nullptr) return text;
  FormWriter(text, tables, *window, *record, menu).Write();
  return text;
}

}  // namespace tarnwick
