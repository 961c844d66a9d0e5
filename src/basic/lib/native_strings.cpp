#include <algorithm>
#include <limits>

#include "basic/lib/format_mask.h"
#include "basic/lib/native_help.h"
#include "basic/lib/native_table.h"
#include "basic/lib/number_format.h"
#include "basic/lib/text_functions.h"
#include "text/code_page.h"

namespace tarnwick::basic {
namespace {

constexpr std::int64_t kRest = std::numeric_limits<std::int64_t>::max();

std::string OneByte(std::int64_t code) {
  return std::string(1, static_cast<char>(code & 0xFF));
}

void Asc(LibraryCall& call) {
  const std::string_view text = TextAt(call, 0);
  call.Result = Value::Integer(text.empty() ? 0 : static_cast<unsigned char>(text.front()));
}

void Chr(LibraryCall& call) {
  call.Result = Value::Text(OneByte(WholeOr(call, 0, 0)));
}

template <int kBase>
void Pattern(LibraryCall& call) {
  call.Result = Value::Text(BitPatternText(WholeOr(call, 0, 0), kBase));
}

void Delete(LibraryCall& call) {
  call.Result = Value::Text(DeleteText(TextAt(call, 0), WholeOr(call, 1, 1), WholeOr(call, 2, 0)));
}

void Field(LibraryCall& call) {
  ReturnText(call, FieldOf(TextAt(call, 0), TextAt(call, 1), WholeOr(call, 2, 0)));
}

void Format(LibraryCall& call) {
  FormatResult made = FormatByMask(TextAt(call, 0), call.Arguments.subspan(1), call.TextLimit);
  if (!made.Error.empty()) return call.Fail(std::move(made.Error));
  call.Result = Value::Text(std::move(made.Text));
}

void Insert(LibraryCall& call) {
  const std::string_view part = TextAt(call, 0);
  const std::string_view text = TextAt(call, 1);
  if (!FitsLimit(call, "INSERT$", part.size() + text.size())) return;
  call.Result = Value::Text(InsertText(part, text, WholeOr(call, 2, 1)));
}

void Instr(LibraryCall& call) {
  call.Result = Value::Integer(FirstMatch(TextAt(call, 0), TextAt(call, 1)));
}

void InstrFrom(LibraryCall& call) {
  call.Result = Value::Integer(FirstMatch(TextAt(call, 1), TextAt(call, 2), WholeOr(call, 0, 1)));
}

void Rinstr(LibraryCall& call) {
  call.Result = Value::Integer(LastMatch(TextAt(call, 0), TextAt(call, 1), kRest));
}

void RinstrFrom(LibraryCall& call) {
  call.Result =
      Value::Integer(LastMatch(TextAt(call, 1), TextAt(call, 2), WholeOr(call, 0, kRest)));
}

void Lcase(LibraryCall& call) {
  call.Result = Value::Text(Lower(TextAt(call, 0)));
}

void Ucase(LibraryCall& call) {
  call.Result = Value::Text(Upper(TextAt(call, 0)));
}

void Mcase(LibraryCall& call) {
  call.Result = Value::Text(WordCase(TextAt(call, 0)));
}

void Left(LibraryCall& call) {
  ReturnText(call, LeftPart(TextAt(call, 0), WholeOr(call, 1, 0)));
}

void Right(LibraryCall& call) {
  ReturnText(call, RightPart(TextAt(call, 0), WholeOr(call, 1, 0)));
}

void Mid(LibraryCall& call) {
  ReturnText(call, MidPart(TextAt(call, 0), WholeOr(call, 1, 1), WholeOr(call, 2, kRest)));
}

void Len(LibraryCall& call) {
  call.Result = Value::Integer(static_cast<std::int64_t>(TextAt(call, 0).size()));
}

void Ltrim(LibraryCall& call) {
  ReturnText(call, TrimLeft(TextAt(call, 0)));
}

void Rtrim(LibraryCall& call) {
  ReturnText(call, TrimRight(TextAt(call, 0)));
}

void Replace(LibraryCall& call) {
  const std::string_view text = TextAt(call, 0);
  const std::string_view part = TextAt(call, 1);
  if (!FitsLimit(call, "REPLACE$", text.size() + part.size())) return;
  call.Result = Value::Text(OverwriteText(text, part, WholeOr(call, 2, 1)));
}

void ReplaceSubStr(LibraryCall& call) {
  const std::string_view text = TextAt(call, 0);
  const std::string_view part = TextAt(call, 1);
  const std::string_view with = TextAt(call, 2);
  if (with.size() > part.size() &&
      !FitsLimit(call, "REPLACESUBSTR$", ReplacedLength(text, part, with))) {
    return;
  }
  call.Result = Value::Text(ReplaceMatches(text, part, with));
}

void Reverse(LibraryCall& call) {
  call.Result = Value::Text(Reversed(TextAt(call, 0)));
}

void Tally(LibraryCall& call) {
  call.Result = Value::Integer(CountMatches(TextAt(call, 0), TextAt(call, 1)));
}

/// `count` times one byte; none for a count below 1.
void Repeat(LibraryCall& call, std::string_view name, std::int64_t count, char byte) {
  const auto length = static_cast<std::size_t>(std::max<std::int64_t>(count, 0));
  if (!FitsLimit(call, name, length)) return;
  call.Result = Value::Text(std::string(length, byte));
}

void Space(LibraryCall& call) {
  Repeat(call, "SPACE$", WholeOr(call, 0, 0), ' ');
}

/// STRING$(count, char): the character is the first of a text, or a code.
void StringRepeat(LibraryCall& call) {
  std::string character = OneByte(WholeOr(call, 1, 0));
  if (call.At(1).Kind() == SlotKind::Text) character = call.At(1).View().substr(0, 1);
  const std::int64_t count = character.empty() ? 0 : WholeOr(call, 0, 0);
  Repeat(call, "STRING$", count, character.empty() ? ' ' : character.front());
}

void TextOf(LibraryCall& call) {
  call.Result = Value::Text(call.At(0).AsText());
}

constexpr NativeRow kRows[] = {
    {FunctionId::Asc, Asc},
    {FunctionId::Bin, Pattern<2>},
    {FunctionId::Chr, Chr},
    {FunctionId::Delete, Delete},
    {FunctionId::Field, Field},
    {FunctionId::Format, Format},
    {FunctionId::Hex, Pattern<16>},
    {FunctionId::Insert, Insert},
    {FunctionId::Instr, Instr},
    {FunctionId::InstrFrom, InstrFrom},
    {FunctionId::Lcase, Lcase},
    {FunctionId::Left, Left},
    {FunctionId::Len, Len},
    {FunctionId::Ltrim, Ltrim},
    {FunctionId::Mcase, Mcase},
    {FunctionId::Mid, Mid},
    {FunctionId::Oct, Pattern<8>},
    {FunctionId::Replace, Replace},
    {FunctionId::ReplaceSubStr, ReplaceSubStr},
    {FunctionId::Reverse, Reverse},
    {FunctionId::Right, Right},
    {FunctionId::Rinstr, Rinstr},
    {FunctionId::RinstrFrom, RinstrFrom},
    {FunctionId::Rtrim, Rtrim},
    {FunctionId::Space, Space},
    {FunctionId::StringOf, TextOf},
    {FunctionId::StringRepeat, StringRepeat},
    {FunctionId::StringTextOf, TextOf},
    {FunctionId::Tally, Tally},
    {FunctionId::Ucase, Ucase},
};

}  // namespace

std::span<const NativeRow> StringNatives() {
  return kRows;
}

}  // namespace tarnwick::basic
