#include "persistence/form_writer.h"

#include <array>
#include <cmath>
#include <cstdint>

#include "model/control_walk.h"
#include "model/units.h"
#include "persistence/menu_text.h"
#include "persistence/record_layouts.h"
#include "persistence/stored_text.h"
#include "text/numbers.h"

namespace tarnwick {

namespace {

constexpr std::string_view kLineEnd = "\r\n";

/// Code of the events as the walk last found it. A failed look-up leaves the value of the look-up
/// before, so an object without a key is written with the code of an earlier one.
using CodeValues = std::array<std::string, kEventCount>;

class FormWriter {
 public:
  FormWriter(const ProjectTables& tables, const DesignForm& window, const FormRec& record)
      : tables_(tables),
        window_(window),
        record_(record),
        form_key_(window.KeyPrefix()),
        window_number_(window.Number()) {}

  std::string Write() {
    out_.reserve(window_.Controls().size() * 512);
    WriteFormRecord();
    WalkControls<ControlPart::Whole>(window_.Controls(), 0, [&](const ControlRef& control) {
      if (control->Visible && control->Id != Kind::Handle) WriteControl(*control);
    });
    AppendMenuRecords(out_, tables_, window_);
    out_ += "[DeclarePbl] String<";
    AppendStoredLines(out_, record_.DeclarePbl);
    out_ += ">String";
    out_ += kLineEnd;
    return std::move(out_);
  }

 private:
  /// What the fields of the record being written are taken from.
  struct Object {
    const DesignControl& Control;
    int Number;
    const ObjectRec& Record;
  };

  void WriteFormRecord() {
    for (const EventInfo& event : AllEvents()) LookUp(form_key_, event.Id);
    static const DesignControl no_control;
    static const ObjectRec no_record;
    WriteLayout(Kind::Form, {no_control, window_.Number(), no_record});
    codes_ = CodeValues{};
  }

  void LookUp(std::string_view owner_key, Event event) {
    if (const auto* owner = tables_.EventTable.OwnerOf(owner_key)) Take(*owner, event);
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
    out_ += kLineEnd;
    TakeCodes(control);
    if (static_cast<std::size_t>(control.Id) >= kObjectKindCount) return;
    const int number = ++counts_[static_cast<std::size_t>(control.Id)];
    if (control.Id == Kind::PopUpMenu) WriteSubs(number);
    const auto* records = record_.Objects(control.Id);
    static const ObjectRec no_record;
    WriteLayout(control.Id, {control, number,
                             records != nullptr ? RecordOrEmpty(*records, number) : no_record});
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

  void WriteLayout(Kind kind, const Object& object) {
    const RecordLayout& layout = LayoutOf(kind);
    for (const LayoutField& field : layout.Fields) {
      out_ += field.Before;
      std::visit([&](const auto& source) { Append(object, source); }, field.Value);
    }
    out_ += layout.End;
    out_ += kLineEnd;
  }

  void Append(const Object& object, Special special) {
    switch (special) {
      case Special::Number:
        return AppendNumber(out_, std::int64_t{object.Number});
      case Special::Name:
        out_ += object.Control.Index == 0 ? record_.Name : object.Control.Tag;
        return;
      case Special::WindowCaption:
        return AppendStoredText(out_, window_.Caption);
      case Special::WindowColor:
        return AppendNumber(out_, std::int64_t{window_.BackColor});
      case Special::ItemList: {
        std::string rows;
        AppendPopUpRows(rows, RecordOrEmpty(tables_.PopUpMenus, object.Number));
        return AppendStoredItems(out_, rows);
      }
      case Special::One:
        out_ += '1';
        return;
    }
  }

  void Append(const Object& object, Member member) {
    const DesignControl& c = object.Control;
    switch (member) {
      case Member::Left:
        return AppendPixels(c.Left);
      case Member::Top:
        return AppendPixels(c.Top);
      case Member::Width:
        return AppendPixels(c.Width);
      case Member::Height:
        return AppendPixels(c.Height);
      case Member::Caption:
        return AppendStoredText(out_, c.Caption);
      case Member::Text:
        return AppendStoredText(out_, c.Text);
      case Member::ToolTipText:
        return AppendStoredText(out_, c.ToolTipText);
      case Member::FontName:
        out_ += c.FontName;
        return;
      case Member::FontSize:
        return AppendNumber(out_, c.FontSize);
      case Member::FontBold:
        return AppendFlag(c.FontBold);
      case Member::FontItalic:
        return AppendFlag(c.FontItalic);
      case Member::AutoSize:
        return AppendFlag(c.AutoSize);
      case Member::Stretch:
        return AppendFlag(c.Stretch);
      case Member::Value:
        return AppendFlag(c.Value == 1 || c.Value == -1);
      case Member::BackColor:
        return AppendNumber(out_, std::int64_t{c.BackColor});
      case Member::ForeColor:
        return AppendNumber(out_, std::int64_t{c.ForeColor});
      case Member::BackStyle:
        return AppendNumber(out_, std::int64_t{c.BackStyle});
      case Member::BorderStyle:
        return AppendNumber(out_, std::int64_t{c.BorderStyle});
      case Member::Appearance:
        return AppendNumber(out_, std::int64_t{c.Appearance});
      default:
        return;
    }
  }

  void Append(const Object& /*object*/, Event event) {
    out_ += codes_[static_cast<std::size_t>(event)];
  }
  void Append(const Object& object, std::int16_t ObjectRec::*field) {
    AppendNumber(out_, std::int64_t{object.Record.*field});
  }
  void Append(const Object& object, std::int32_t ObjectRec::*field) {
    AppendNumber(out_, std::int64_t{object.Record.*field});
  }
  void Append(const Object& object, std::string ObjectRec::*field) { out_ += object.Record.*field; }
  void Append(const Object& object, ItemsText items) {
    AppendStoredItems(out_, object.Record.*items.Field);
  }
  void Append(const Object& /*object*/, std::int16_t FormRec::*field) {
    AppendNumber(out_, std::int64_t{record_.*field});
  }
  void Append(const Object& /*object*/, std::int32_t FormRec::*field) {
    AppendNumber(out_, std::int64_t{record_.*field});
  }
  void Append(const Object& /*object*/, std::string FormRec::*field) { out_ += record_.*field; }
  void Append(const Object& /*object*/, CommaText text) {
    AppendStoredText(out_, record_.*text.Field);
  }
  void Append(const Object& object, std::string WinSockRec::*field) {
    out_ += RecordOrEmpty(record_.WinSocks, object.Number).*field;
  }
  void Append(const Object& object, std::string HtmlViewerRec::*field) {
    out_ += RecordOrEmpty(record_.HtmlViewers, object.Number).*field;
  }
  void Append(const Object& object, std::int16_t PopUpItemRec::*field) {
    AppendNumber(out_, std::int64_t{RecordOrEmpty(record_.PopUps, object.Number).*field});
  }
  void Append(const Object& object, std::string PopUpItemRec::*field) {
    out_ += RecordOrEmpty(record_.PopUps, object.Number).*field;
  }

  void AppendPixels(float twips) { AppendNumber(out_, twips / static_cast<float>(kTwipsPerPixel)); }
  void AppendFlag(bool on) { out_ += on ? '1' : '0'; }

  const ProjectTables& tables_;
  const DesignForm& window_;
  const FormRec& record_;
  const std::string form_key_;
  const int window_number_;
  std::string out_;
  CodeValues codes_;
  std::array<int, kObjectKindCount> counts_{};
};

}  // namespace

std::string FormText(const ProjectTables& tables, int form) {
  const DesignForm* window = tables.UserIfAny(form);
  const FormRec* record = tables.Form(form);
  if (window == nullptr || record == nullptr) return "";
  return FormWriter(tables, *window, *record).Write();
}

}  // namespace tarnwick
