#include "basic/code/builder.h"

namespace tarnwick::basic {
namespace {

std::uint16_t Short(std::size_t number) {
  return static_cast<std::uint16_t>(number);
}

}  // namespace

std::size_t ShapeHash::operator()(const CallShape& shape) const {
  auto hash = static_cast<std::size_t>(shape.Result);
  for (const ArgumentShape& argument : shape.Arguments) {
    hash = hash * 31 + static_cast<std::size_t>(argument.Kind) * 32 +
           static_cast<std::size_t>(argument.Stored) * 2 + (argument.Reference ? 1 : 0);
  }
  return hash;
}

CodeBuilder::CodeBuilder(const Program& program) : program_(program) {
  // Room for what most statements take; what is not used of it is never touched.
  constexpr std::size_t kInstructionsOfOne = 8;
  std::size_t statements = 0;
  for (const Procedure& procedure : program.Procedures) statements += procedure.Body.size() + 1;
  code_.Instructions.reserve(statements * kInstructionsOfOne);
  code_.Places.reserve(statements);
  code_.Procedures.reserve(program.Procedures.size());
  code_.GlobalNames.reserve(program.Globals.size());
  code_.Files = program.Files;
  for (const DllEntry& native : program.DllEntries) {
    code_.Natives.push_back(
        {std::string(native.Name), std::string(native.Library), std::string(native.Entry)});
  }
  for (const DataValue& value : program.Data) {
    code_.Data.push_back({std::string(value.Text), value.Number});
  }
  for (const Variable& global : program.Globals) code_.GlobalNames.emplace_back(global.Name);
  FillRecords();
}

void CodeBuilder::FillRecords() {
  // All rows first: records may hold each other.
  for (const RecordType& record : program_.Records) {
    code_.Records.push_back(std::make_unique<RecordLayout>());
    code_.Records.back()->Name = record.Name;
  }
  for (std::size_t i = 0; i < program_.Records.size(); ++i) {
    const RecordType& record = program_.Records[i];
    RecordLayout& layout = *code_.Records[i];
    layout.HasObject = record.Base.has_value();
    layout.Constructor = record.Constructor;
    for (const Field& field : record.Fields) {
      FieldLayout row = LayoutOf(field.Name, field.Kind);
      for (const auto& [low, high] : field.Dimensions) row.Bounds.push_back({low, high});
      layout.Fields.push_back(std::move(row));
    }
  }
}

FieldLayout CodeBuilder::LayoutOf(std::string_view name, const Type& type) const {
  FieldLayout layout;
  layout.Name = name;
  layout.Kind = SlotKindOf(type);
  const Type single = type.Element();
  if (type.IsArray()) layout.Element = SlotKindOf(single);
  if (single.Kind == Storage::Record) {
    layout.Record = code_.Records[static_cast<std::size_t>(single.RecordType())].get();
  }
  if (single.Kind == Storage::Object) {
    layout.AnyClass = single.Detail == kAnyClass;
    layout.Class = layout.AnyClass ? ClassId{} : single.Class();
  }
  layout.ByteSize = single.Kind == Storage::FixedString
                        ? single.Detail
                        : static_cast<std::uint32_t>(BytesOf(single.Kind));
  layout.Stored = single.Kind;
  return layout;
}

bool CodeBuilder::TakesSender(const Type& type) const {
  if (type.IsArray()) return false;
  if (type.Kind == Storage::Object) return true;
  return type.Kind == Storage::Record && program_.At(type.RecordType()).Base.has_value();
}

std::size_t CodeBuilder::Add(Op op, std::size_t a, std::size_t b, std::size_t c) {
  const std::size_t index = Size();
  if (op != Op::WORD && (code_.Places.empty() || !(code_.Places.back().At == at_))) {
    code_.Places.push_back({static_cast<std::uint32_t>(index), at_});
  }
  code_.Instructions.push_back({op, Short(a), Short(b), Short(c)});
  return index;
}

void CodeBuilder::Jump(Op op, CodeLabel& target, std::size_t a, std::size_t b, std::size_t c) {
  Add(op, a, b, c);
  const auto position = static_cast<std::uint32_t>(target.Position);
  const std::size_t word = Add(Op::WORD, 0, position & 0xFFFFU, position >> 16U);
  if (target.Position < 0) target.Waiting.push_back(word);
}

void CodeBuilder::Arguments(const CallShape& shape, const std::vector<std::uint16_t>& registers) {
  const auto [row, fresh] = shapes_.try_emplace(shape, code_.Shapes.size());
  if (fresh) code_.Shapes.push_back(shape);
  Add(Op::WORD, row->second, registers.size());
  for (std::size_t i = 0; i < registers.size(); i += 3) {
    const auto at = [&](std::size_t n) -> std::size_t {
      return n < registers.size() ? registers[n] : 0;
    };
    Add(Op::WORD, registers[i], at(i + 1), at(i + 2));
  }
}

void CodeBuilder::Place(CodeLabel& label) {
  label.Position = static_cast<std::int64_t>(Size());
  for (const std::size_t word : label.Waiting) {
    code_.Instructions[word].B = Short(Size() & 0xFFFFU);
    code_.Instructions[word].C = Short(Size() >> 16U);
  }
  label.Waiting.clear();
}

void CodeBuilder::At(SourcePlace at) {
  if (at.Line != 0) at_ = at;
}

Slot CodeBuilder::TextConstant(std::string_view text) {
  if (text.empty()) return Slot{0};
  const auto found = texts_.find(text);
  if (found != texts_.end()) return found->second;
  TextBody& body = code_.Texts.emplace_back(std::string(text));
  Slot slot{0};
  slot.B = &body;
  texts_.emplace(std::string_view(body.Bytes), slot);
  return slot;
}

std::size_t CodeBuilder::ConstantNumber(Slot constant) {
  const auto [row, fresh] = constants_.try_emplace(constant.I, code_.Constants.size());
  if (fresh) code_.Constants.push_back(constant);
  return row->second;
}

std::size_t CodeBuilder::LayoutNumber(std::string_view name, const Type& type) {
  const std::uint64_t key = static_cast<std::uint64_t>(type.Detail) << 16U |
                            static_cast<std::uint64_t>(type.Dimensions) << 8U |
                            static_cast<std::uint64_t>(type.Kind);
  const auto [row, fresh] = layouts_.try_emplace(LayoutKey{name, key}, code_.Variables.size());
  if (fresh) code_.Variables.push_back(std::make_unique<FieldLayout>(LayoutOf(name, type)));
  return row->second;
}

}  // namespace tarnwick::basic
