#include <algorithm>
#include <array>
#include <optional>

#include "basic/lib/native_help.h"
#include "basic/lib/native_table.h"
#include "basic/lib/number_format.h"
#include "basic/vm/number_text.h"

namespace tarnwick::basic {
namespace {

void Cint(LibraryCall& call) {
  call.Result = Value::Integer(Rounded(call.At(0).AsNumber()));
}

void ConvBase(LibraryCall& call) {
  constexpr int kLeastBase = 2;
  constexpr int kMostBase = 36;
  const int from = IntAt(call, 1, 10);
  const int to = IntAt(call, 2, 10);
  if (std::min(from, to) < kLeastBase || std::max(from, to) > kMostBase) {
    return call.Fail("CONVBASE$ takes bases from 2 to 36");
  }
  const std::optional<std::int64_t> number = NumberInBase(TextAt(call, 0), from);
  if (!number) return call.Fail("CONVBASE$: the number has more than 63 bits");
  call.Result = Value::Text(TextInBase(*number, to));
}

/// The lowest byte of each part, red lowest.
void Rgb(LibraryCall& call) {
  const auto part = [&call](std::size_t index) { return WholeOr(call, index, 0) & 0xFF; };
  call.Result = Value::Integer(part(0) + 256 * part(1) + 65536 * part(2));
}

/// The sixteen colours of the console as colour numbers; the number counts by its low four bits.
void QbColor(LibraryCall& call) {
  constexpr std::array<std::int32_t, 16> kColors = {
      0x000000, 0x800000, 0x008000, 0x808000, 0x000080, 0x800080, 0x008080, 0xC0C0C0,
      0x808080, 0xFF0000, 0x00FF00, 0xFFFF00, 0x0000FF, 0xFF00FF, 0x00FFFF, 0xFFFFFF};
  call.Result = Value::Integer(kColors[static_cast<std::size_t>(WholeOr(call, 0, 0) & 0xF)]);
}

void Str(LibraryCall& call) {
  call.Result = Value::Text(call.At(0).AsText());
}

void Strf(LibraryCall& call) {
  constexpr std::int64_t kLastLayout = static_cast<std::int64_t>(NumberLayout::Currency);
  const std::int64_t layout = WholeOr(call, 1, 0);
  if (layout < 0 || layout > kLastLayout) {
    return call.Fail("STRF$ takes a format from 0 (ffGeneral) to 4 (ffCurrency)");
  }
  call.Result = Value::Text(LayOutNumber(call.At(0).AsNumber(), static_cast<NumberLayout>(layout),
                                         WholeOr(call, 2, 0), WholeOr(call, 3, 0)));
}

void Val(LibraryCall& call) {
  call.Result = Value::Number(NumberIn(TextAt(call, 0)));
}

constexpr NativeRow kRows[] = {
    {FunctionId::Cint, Cint}, {FunctionId::Clng, Cint},       {FunctionId::ConvBase, ConvBase},
    {FunctionId::Rgb, Rgb},   {FunctionId::QbColor, QbColor}, {FunctionId::Str, Str},
    {FunctionId::Strf, Strf}, {FunctionId::Val, Val},
};

}  // namespace

std::span<const NativeRow> ConversionNatives() {
  return kRows;
}

}  // namespace tarnwick::basic
