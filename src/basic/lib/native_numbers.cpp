#include <bit>
#include <cmath>

#include "basic/hosts/clock_host.h"
#include "basic/lib/native_help.h"
#include "basic/lib/native_table.h"
#include "basic/vm/number_text.h"

namespace tarnwick::basic {
namespace {

double NumberAt(const LibraryCall& call, std::size_t index) {
  return call.At(index).AsNumber();
}

/// A function of one number that has a value for all of them.
template <double (*kFunction)(double)>
void OfNumber(LibraryCall& call) {
  call.Result = Value::Number(kFunction(NumberAt(call, 0)));
}

double Frac(double number) {
  return number - std::trunc(number);
}

void Acos(LibraryCall& call) {
  const double number = NumberAt(call, 0);
  if (std::fabs(number) > 1) return call.Fail("ACOS takes a number from -1 to 1");
  call.Result = Value::Number(std::acos(number));
}

void Asin(LibraryCall& call) {
  const double number = NumberAt(call, 0);
  if (std::fabs(number) > 1) return call.Fail("ASIN takes a number from -1 to 1");
  call.Result = Value::Number(std::asin(number));
}

void Exp(LibraryCall& call) {
  const double power = std::exp(NumberAt(call, 0));
  if (std::isinf(power)) return call.Fail("EXP: the result is too large for a number");
  call.Result = Value::Number(power);
}

void Log(LibraryCall& call) {
  const double number = NumberAt(call, 0);
  if (number <= 0) return call.Fail("LOG of a number that is not above 0");
  call.Result = Value::Number(std::log(number));
}

void Sqr(LibraryCall& call) {
  const double number = NumberAt(call, 0);
  if (number < 0) return call.Fail("SQR of a negative number");
  call.Result = Value::Number(std::sqrt(number));
}

void Sgn(LibraryCall& call) {
  const double number = NumberAt(call, 0);
  call.Result = Value::Integer(number > 0 ? 1 : number < 0 ? -1 : 0);
}

/// RANDOMIZE with a number starts the series that belongs to it, without one the clock chooses.
void Randomize(LibraryCall& call) {
  if (call.Count() > 0 && call.At(0).Kind() != SlotKind::Empty) {
    call.State.Random.Restart(std::bit_cast<std::uint64_t>(NumberAt(call, 0)));
  } else if (ClockHost* clock = NeedClock(call)) {
    call.State.Random.Restart(clock->Seed());
  }
}

/// RND: 0 <= x < 1. RND(n): a whole number from 0 to n - 1; 0 when there is none.
void Rnd(LibraryCall& call) {
  const double random = call.State.Random.Next();
  if (call.Count() == 0 || call.At(0).Kind() == SlotKind::Empty) {
    call.Result = Value::Number(random);
    return;
  }
  const double limit = std::nearbyint(NumberAt(call, 0));
  call.Result = Value::Number(limit < 1 ? 0 : std::floor(random * limit));
}

constexpr NativeRow kRows[] = {
    {FunctionId::Abs, OfNumber<std::fabs>},
    {FunctionId::Acos, Acos},
    {FunctionId::Asin, Asin},
    {FunctionId::Atan, OfNumber<std::atan>},
    {FunctionId::Atn, OfNumber<std::atan>},
    {FunctionId::Ceil, OfNumber<std::ceil>},
    {FunctionId::Cos, OfNumber<std::cos>},
    {FunctionId::Exp, Exp},
    {FunctionId::Fix, OfNumber<std::trunc>},
    {FunctionId::Floor, OfNumber<std::floor>},
    {FunctionId::Frac, OfNumber<Frac>},
    {FunctionId::Int, OfNumber<std::floor>},
    {FunctionId::Log, Log},
    {FunctionId::Randomize, Randomize},
    {FunctionId::Rnd, Rnd},
    {FunctionId::Round, OfNumber<std::nearbyint>},
    {FunctionId::Sgn, Sgn},
    {FunctionId::Sin, OfNumber<std::sin>},
    {FunctionId::Sqr, Sqr},
    {FunctionId::Tan, OfNumber<std::tan>},
};

}  // namespace

std::span<const NativeRow> NumberNatives() {
  return kRows;
}

}  // namespace tarnwick::basic
