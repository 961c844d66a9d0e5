#include "basic/code/emitter.h"

#include "basic/code/procedure_emitter.h"

namespace tarnwick::basic {
namespace {

constexpr std::size_t kMost16Bits = 0xFFFF;

}  // namespace

EmitResult Emit(const Program& program) {
  EmitResult result;
  if (program.Globals.size() >= kMaxRegisters || program.Procedures.size() > kMost16Bits) {
    result.Error = "The program has more than 65,535 variables or procedures";
    return result;
  }
  CodeBuilder builder(program);
  for (std::size_t i = 0; i < program.Procedures.size(); ++i) {
    ProcedureEmitter emitter(builder, static_cast<ProcedureId>(i));
    if (emitter.Make()) continue;
    result.Error = "The procedure needs more than 65,535 values at a time";
    result.At = program.Procedures[i].At;
    return result;
  }
  if (builder.Made().Variables.size() > kMost16Bits || builder.Made().Shapes.size() > kMost16Bits) {
    result.Error = "The program has more than 65,535 kinds of variables or calls";
    return result;
  }
  result.Made = std::move(builder.Made());
  return result;
}

}  // namespace tarnwick::basic
