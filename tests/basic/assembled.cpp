#include "basic/assembled.h"

namespace tarnwick::basic {

Instruction Target(std::size_t index) {
  return {Op::WORD, 0, static_cast<std::uint16_t>(index), 0};
}

Slot Assembled::Text(const std::string& bytes) {
  TextBody& body = Made.Texts.emplace_back(bytes);
  Slot slot{0};
  slot.B = &body;
  return slot;
}

ProcedureCode& Assembled::Procedure(std::string name, std::vector<Slot> start,
                                    std::vector<std::uint16_t> counted,
                                    const std::vector<Instruction>& code) {
  ProcedureCode procedure;
  procedure.Name = std::move(name);
  procedure.First = static_cast<std::uint32_t>(Made.Instructions.size());
  procedure.Start = std::move(start);
  procedure.Counted = std::move(counted);
  for (std::size_t i = 0; i < code.size(); ++i) {
    Instruction word = code[i];
    if (i > 0 && std::string(WordsOf(code[i - 1].Code)) == "t" && word.Code == Op::WORD) {
      word.B = static_cast<std::uint16_t>(word.B + procedure.First);
    }
    Made.Places.push_back({static_cast<std::uint32_t>(Made.Instructions.size()),
                           {static_cast<std::uint32_t>(i) + 1, 0, 1, 1}});
    Made.Instructions.push_back(word);
  }
  Made.Procedures.push_back(std::move(procedure));
  return Made.Procedures.back();
}

std::uint16_t Assembled::Shape(std::vector<ArgumentShape> arguments, SlotKind result) {
  Made.Shapes.push_back({std::move(arguments), result});
  return static_cast<std::uint16_t>(Made.Shapes.size() - 1);
}

}  // namespace tarnwick::basic
