// PRINT, INPUT, READ.
#include "basic/code/procedure_emitter.h"
#include "basic/hosts/printer_host.h"

namespace tarnwick::basic {

void ProcedureEmitter::Make(const Print& node) {
  const Operand page =
      node.Page != nullptr ? Temporary(false) : Number(node.Printer ? kPrinterPage : 0);
  if (node.Page != nullptr) Into(*node.Page, page.Register);
  if (node.Items.empty()) code_.Add(Op::PRINT_END, 0, page.Register);
  for (const PrintItem& item : node.Items) {
    if (item.Value != nullptr) {
      const ValueKind kind = item.Value->Gives();
      Operand text = Read(*item.Value, Until::Now);
      if (kind != ValueKind::Text) {
        const Operand number = text;
        text = Temporary(true);
        const Op op = kind == ValueKind::Real      ? Op::T_OF_D
                      : kind == ValueKind::Variant ? Op::T_OF_BOX
                                                   : Op::T_OF_I;
        code_.Add(op, text.Register, number.Register);
        Free(number);
      }
      code_.Add(Op::PRINT_TEXT, text.Register, page.Register);
      Free(text);
    }
    if (item.Separator == PrintSeparator::NextZone) code_.Add(Op::PRINT_ZONE, 0, page.Register);
    if (item.Separator == PrintSeparator::LineEnd) code_.Add(Op::PRINT_END, 0, page.Register);
  }
  Free(page);
}

void ProcedureEmitter::StoreText(const Expression& target, const Operand& text) {
  // The text as the kind of the target, by a conversion from a location of its own.
  const ValueKind kind = target.Gives();
  Location location = Find(target, Until::Now);
  Operand value = text;
  if (kind == ValueKind::Whole || kind == ValueKind::Real) {
    value = Temporary(false);
    code_.Add(kind == ValueKind::Whole ? Op::I_OF_T : Op::D_OF_T, value.Register, text.Register);
    Fit(target.Kind.Kind, target.Kind.Detail, value.Register, value.Register);
  } else if (target.Kind.Kind == Storage::FixedString) {
    Fit(Storage::FixedString, target.Kind.Detail, text.Register, text.Register);
  }
  WriteLocation(location, target.Kind, value);
  if (value.Register != text.Register) Free(value);
  Release(location);
}

void ProcedureEmitter::Make(const Input& node) {
  if (node.Prompt != nullptr) {
    const Operand prompt = Read(*node.Prompt, Until::Now);
    const Operand page = Number(0);
    code_.Add(Op::PRINT_TEXT, prompt.Register, page.Register);
    Free(page);
    Free(prompt);
  }
  code_.Add(Op::INPUT_LINE);
  for (std::size_t i = 0; i < node.Targets.size(); ++i) {
    const Expression& target = *node.Targets[i];
    const bool rest = i + 1 == node.Targets.size() && target.Gives() == ValueKind::Text;
    const Operand text = Temporary(true);
    code_.Add(Op::INPUT_FIELD, text.Register, rest ? 1 : 0);
    StoreText(target, text);
    Free(text);
  }
}

void ProcedureEmitter::Make(const tarnwick::basic::Read& node) {
  for (const Expression* const target : node.Targets) {
    const ValueKind kind = target->Gives();
    if (kind == ValueKind::Text) {
      const Operand text = Temporary(true);
      code_.Add(Op::READ_T, text.Register);
      StoreText(*target, text);
      Free(text);
      continue;
    }
    Location location = Find(*target, Until::Now);
    const Operand value = Temporary(false);
    code_.Add(Op::READ_D, value.Register);
    if (kind == ValueKind::Whole) code_.Add(Op::I_OF_D, value.Register, value.Register);
    Fit(target->Kind.Kind, target->Kind.Detail, value.Register, value.Register);
    WriteLocation(location, target->Kind, value);
    Free(value);
    Release(location);
  }
}

void ProcedureEmitter::Make(const Restore& node) {
  code_.Add(Op::RESTORE, 0, node.Index & 0xFFFFU, node.Index >> 16U);
}

}  // namespace tarnwick::basic
