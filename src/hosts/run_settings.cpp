#include "hosts/run_settings.h"

#include <charconv>

#include "hosts/local_clock.h"

namespace tarnwick::hosts {
namespace {

template <class Number>
bool ReadNumber(const std::string& text, Number& number) {
  const char* const end = text.data() + text.size();
  const auto result = std::from_chars(text.data(), end, number);
  return result.ec == std::errc() && result.ptr == end && number >= 0;
}

struct FlagRow {
  const char* Name;
  bool RunSettings::*Flag;
};
constexpr FlagRow kFlags[] = {{"--strict", &RunSettings::Strict},
                              {"--switch", &RunSettings::Switch}};

struct ValueRow {
  const char* Name;
  bool (*Read)(RunSettings&, const std::string&);
};
constexpr ValueRow kValues[] = {
    {"--max-steps", [](RunSettings& s, const std::string& v) { return ReadNumber(v, s.MaxSteps); }},
    {"--max-seconds",
     [](RunSettings& s, const std::string& v) { return ReadNumber(v, s.MaxSeconds); }},
    {"--seed", [](RunSettings& s, const std::string& v) { return ReadNumber(v, s.Seed); }},
    {"--clock",
     [](RunSettings& s, const std::string& v) {
       s.Clock = ReadClock(v);
       return s.Clock.has_value();
     }},
};

}  // namespace

basic::RunOptions RunSettings::Options() const {
  basic::RunOptions options;
  options.MaxSteps = MaxSteps;
  options.MaxSeconds = MaxSeconds;
  options.Seed = Seed;
  options.How = Switch ? basic::Dispatch::Switch : basic::Dispatch::Threaded;
  return options;
}

Taken TakeSetting(RunSettings& settings, const std::string& name, const std::string& value) {
  for (const FlagRow& row : kFlags) {
    if (name != row.Name) continue;
    settings.*row.Flag = true;
    return Taken::Alone;
  }
  for (const ValueRow& row : kValues) {
    if (name == row.Name) return row.Read(settings, value) ? Taken::Value : Taken::Wrong;
  }
  return Taken::No;
}

const char* RunSettingsHelp() {
  return "  --max-steps N           stop after N instructions\n"
         "  --max-seconds S         stop after S seconds\n"
         "  --seed N                start of the series of RND\n"
         "  --clock \"YYYY-MM-DD HH:MM:SS\"\n"
         "                          a clock that stands still, local time\n"
         "  --strict                tolerate nothing that generated texts are forgiven\n"
         "  --switch                the plain way of dispatching\n";
}

}  // namespace tarnwick::hosts
