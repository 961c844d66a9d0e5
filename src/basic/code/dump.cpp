#include "basic/code/dump.h"

#include <algorithm>
#include <string_view>

#include "basic/lib/function_table.h"
#include "basic/vm/number_text.h"

namespace tarnwick::basic {
namespace {

constexpr std::size_t kIndexWidth = 6;
constexpr std::size_t kLineWidth = 6;
constexpr std::size_t kNameWidth = 15;

std::string Right(std::string text, std::size_t width) {
  if (text.size() < width) text.insert(0, width - text.size(), ' ');
  return text;
}

/// A text constant in quotes; bytes that are no plain characters as \xHH.
std::string Quoted(std::string_view text) {
  constexpr std::string_view kHex = "0123456789ABCDEF";
  std::string result = "\"";
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte >= 0x20 && byte < 0x7F && c != '"' && c != '\\') {
      result += c;
    } else {
      result += "\\x";
      result += kHex[byte >> 4U];
      result += kHex[byte & 15U];
    }
  }
  return result + "\"";
}

std::string ConstantText(const Code& code, Slot slot) {
  const auto text = std::find_if(code.Texts.begin(), code.Texts.end(),
                                 [slot](const TextBody& body) { return &body == slot.B; });
  if (text != code.Texts.end()) return Quoted(text->Bytes);
  // A small whole number has few bits; a double of the same bits would be next to 0.
  constexpr std::int64_t kLargestWhole = std::int64_t{1} << 40U;
  if (slot.I > -kLargestWhole && slot.I < kLargestWhole) return IntegerText(slot.I);
  return NumberText(slot.D) + "#";
}

std::string OperandText(char letter, std::uint16_t value) {
  const std::string number = std::to_string(value);
  switch (letter) {
    case 'r':
    case 's':
    case 'b':
      return value == kNoRegister ? " none" : " r" + number;
    case 'g':
      return " g" + number;
    case 'f':
      return " field" + number;
    case 'm':
      return " member" + number;
    case 'p':
      return " procedure" + number;
    case 'v':
      return " variable" + number;
    case 'l':
      return std::string(" ").append(FunctionOf(static_cast<FunctionId>(value)).Name);
    case 'n':
      return " " + number;
    default:
      return {};
  }
}

std::string Arguments(const Code& code, const Instruction* words) {
  std::string text = " (";
  const CallShape& shape = code.Shapes[words->A];
  for (std::size_t i = 0; i < words->B; ++i) {
    if (i > 0) text += ' ';
    if (shape.Arguments[i].Reference) text += '@';
    text += 'r' + std::to_string(ArgumentRegister(words + 1, i));
  }
  return text + ")";
}

/// Appends the instruction at `index`; returns how many words it takes.
std::size_t DumpInstruction(const Code& code, std::size_t index, std::uint32_t& line,
                            std::string& out) {
  const Instruction* const at = &code.Instructions[index];
  const std::string_view operands = OperandsOf(at->Code);
  const std::string_view words = WordsOf(at->Code);
  const std::uint32_t now = code.PlaceOf(index).Line;
  out += Right(std::to_string(index), kIndexWidth);
  out += Right(now == line ? "" : std::to_string(now), kLineWidth);
  line = now;
  out += "  ";
  std::string name = NameOf(at->Code);
  name.resize(std::max(name.size(), kNameWidth), ' ');
  std::string text = name;
  text += OperandText(operands[0], at->A);
  text += OperandText(operands[1], at->B);
  text += OperandText(operands[2], at->C);
  std::size_t length = 1;
  if (words == "t") {
    text += " -> " + std::to_string(TargetOf(at[1]));
    length = 2;
  } else if (words == "w") {
    text += " [" + (at[1].A == kNoRegister ? "none" : std::to_string(at[1].A)) + "]";
    length = 2;
  } else if (words == "a") {
    text += Arguments(code, at + 1);
    length = 2 + ArgumentWords(at[1].B);
  }
  while (text.back() == ' ') text.pop_back();
  out += text + "\n";
  return length;
}

}  // namespace

std::string DumpCode(const Code& code) {
  std::string out;
  for (std::size_t i = 0; i < code.Procedures.size(); ++i) {
    const ProcedureCode& procedure = code.Procedures[i];
    const std::size_t end =
        i + 1 < code.Procedures.size() ? code.Procedures[i + 1].First : code.Instructions.size();
    out += "procedure " + std::to_string(i) + " " +
           (procedure.Name.empty() ? "main" : procedure.Name) + ": " +
           std::to_string(procedure.Start.size()) + " registers, " +
           std::to_string(procedure.Counted.size()) + " counted\n";
    for (std::size_t r = 0; r < procedure.Start.size(); ++r) {
      if (procedure.Start[r].I == 0) continue;
      out += "  r" + std::to_string(r) + " = " + ConstantText(code, procedure.Start[r]) + "\n";
    }
    std::uint32_t line = 0;
    for (std::size_t at = procedure.First; at < end;) at += DumpInstruction(code, at, line, out);
  }
  return out;
}

}  // namespace tarnwick::basic
