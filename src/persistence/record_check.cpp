#include "persistence/record_check.h"

#include <array>
#include <optional>

#include "model/kinds.h"
#include "persistence/record_layouts.h"
#include "persistence/tag_scanner.h"
#include "text/code_page.h"
#include "text/line_cursor.h"
#include "text/numbers.h"
#include "text/strings.h"

namespace tarnwick {

namespace {

constexpr std::array<std::string_view, 4> kStartHeads{"[form]", "[menu]", "[menuitem]",
                                                      "[itemmenu]"};

bool IsOtherRecord(std::string_view line, std::string_view kind) {
  for (const std::string_view head : kStartHeads) {
    if (StartsWithFolded(line, head)) return true;
  }
  return kind == "DeclarePbl" || EqualsFolded(kind, "sub");
}

/// True when a number of this text fits the value it is read into.
bool Fits(const Source& source, std::string_view text) {
  const double number = Val(text);
  if (std::holds_alternative<std::int16_t ObjectRec::*>(source) ||
      std::holds_alternative<std::int16_t FormRec::*>(source) ||
      std::holds_alternative<std::int16_t PopUpItemRec::*>(source)) {
    return ToInt16(number).has_value();
  }
  if (std::holds_alternative<std::int32_t ObjectRec::*>(source) ||
      std::holds_alternative<std::int32_t FormRec::*>(source)) {
    return ToInt32(number).has_value();
  }
  return true;
}

class FormChecker {
 public:
  std::vector<RecordFault> Check(std::string_view text) {
    for (LineCursor lines(text); lines.Next();) {
      ++line_;
      if (lines.Line().empty()) continue;
      scanner_.Scan(lines.Line());
      CheckLine(lines.Line());
    }
    if (!form_met_)
      faults_.insert(faults_.begin(),
                     {FaultSort::NoForm, 1, "", "", "the file holds no form record"});
    return std::move(faults_);
  }

 private:
  void Add(FaultSort sort, std::string what) {
    faults_.push_back({sort, line_, std::string(scanner_.KindWord()), std::string(scanner_.Name()),
                       std::move(what)});
  }

  void CheckLine(std::string_view line) {
    const bool is_form = StartsWithFolded(line, kStartHeads[0]);
    form_met_ = form_met_ || is_form;
    const std::optional<Kind> kind = is_form ? std::optional(Kind::Form) : scanner_.ObjectKind();
    if (IsOtherRecord(line, scanner_.KindWord()) && !is_form) return;
    if (!kind) {
      Add(FaultSort::NoRecord,
          scanner_.KindWord().empty() ? "the line is no record" : "the kind is not known");
      return;
    }
    CheckNumbers(*kind);
  }

  void CheckNumbers(Kind kind) {
    const RecordLayout& layout = LayoutOf(kind);
    const bool numbered = kind != Kind::Form && layout.Fields.front().In == Tag::None &&
                          std::get<Special>(layout.Fields.front().Value) == Special::Number;
    const std::optional<std::int16_t> number = ToInt16(Val(scanner_.Number()));
    if (numbered && (!number || *number < 0)) {
      Add(FaultSort::Number, "the number (" + std::string(scanner_.Number()) +
                                 ") cannot be used; its properties are lost");
    }
    for (const LayoutField& field : layout.Fields) {
      if (field.In == Tag::None || Fits(field.Value, scanner_.Stored(field.In))) continue;
      std::string what = "the value of ";
      what.append(InfoOf(field.In).Word).append(" is out of range: ");
      Add(FaultSort::Value, what.append(scanner_.Stored(field.In)));
    }
  }

  std::vector<RecordFault> faults_;
  TagScanner scanner_;
  std::size_t line_ = 0;
  bool form_met_ = false;
};

}  // namespace

std::vector<RecordFault> FaultsOfFormText(std::string_view text) {
  return FormChecker().Check(text);
}

}  // namespace tarnwick
