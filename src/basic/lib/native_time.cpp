#include <algorithm>
#include <string>

#include "basic/hosts/clock_host.h"
#include "basic/lib/date_text.h"
#include "basic/lib/native_help.h"
#include "basic/lib/native_table.h"

namespace tarnwick::basic {
namespace {

std::string Padded(int number, std::size_t width) {
  const std::string digits = std::to_string(number);
  return std::string(width - std::min(width, digits.size()), '0') + digits;
}

void Date(LibraryCall& call) {
  if (ClockHost* clock = NeedClock(call)) call.Result = Value::Text(DateText(clock->Now()));
}

void Time(LibraryCall& call) {
  if (ClockHost* clock = NeedClock(call)) call.Result = Value::Text(TimeText(clock->Now()));
}

void Timer(LibraryCall& call) {
  if (ClockHost* clock = NeedClock(call)) call.Result = Value::Number(SecondsOfDay(clock->Now()));
}

void Sleep(LibraryCall& call) {
  if (ClockHost* clock = NeedClock(call)) clock->Sleep(call.At(0).AsNumber());
}

constexpr NativeRow kRows[] = {
    {FunctionId::Date, Date},
    {FunctionId::Sleep, Sleep},
    {FunctionId::Time, Time},
    {FunctionId::Timer, Timer},
};

}  // namespace

std::string DateText(const LocalTime& time) {
  return Padded(time.Month, 2) + '-' + Padded(time.Day, 2) + '-' + Padded(time.Year, 4);
}

std::string TimeText(const LocalTime& time) {
  return Padded(time.Hour, 2) + ':' + Padded(time.Minute, 2) + ':' + Padded(time.Second, 2);
}

double SecondsOfDay(const LocalTime& time) {
  return time.Hour * 3600 + time.Minute * 60 + time.Second + time.Millisecond / 1000.0;
}

std::span<const NativeRow> TimeNatives() {
  return kRows;
}

}  // namespace tarnwick::basic
