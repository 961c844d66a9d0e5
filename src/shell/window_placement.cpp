#include "shell/window_placement.h"

#include <algorithm>
#include <optional>
#include <string_view>

#include "text/numbers.h"
#include "text/strings.h"

namespace tarnwick {

namespace {

constexpr std::string_view kSection = "Window";
constexpr std::string_view kPlaceKey = "Place";
/// "" for a panel that no run begins with.
constexpr std::array<std::string_view, kPanelCount> kPanelKeys{"Properties", "Forms", "EventsBar",
                                                               "ObjectBar",  "",      ""};
/// Numbers beyond this are no pixels of a screen.
constexpr int kMost = 100000;

/// The numbers of a list, parted by commas; nothing when one of them is none.
std::optional<std::vector<int>> NumbersOf(std::string_view text) {
  std::vector<int> numbers;
  if (text.empty()) return numbers;
  for (const std::string_view part : Split(text, ",")) {
    const bool number = !part.empty() && part.find_first_not_of("-0123456789") == part.npos;
    const std::optional<std::int32_t> value = number ? ToInt32(Val(part)) : std::nullopt;
    if (!value || *value < -kMost || *value > kMost) return std::nullopt;
    numbers.push_back(*value);
  }
  return numbers;
}

std::string TextOf(const std::vector<int>& numbers) {
  std::string text;
  for (const int number : numbers) {
    if (!text.empty()) text += ',';
    AppendNumber(text, std::int64_t{number});
  }
  return text;
}

/// Sizes of the parts of a splitter; none when one of them is no size.
std::vector<int> SizesOf(const Settings& settings, std::string_view key) {
  std::vector<int> sizes = NumbersOf(settings.Read(kSection, key)).value_or(std::vector<int>{});
  const bool good = std::all_of(sizes.begin(), sizes.end(), [](int size) { return size >= 0; });
  return good ? sizes : std::vector<int>{};
}

}  // namespace

WindowRect FitInto(WindowRect window, const WindowRect& free) noexcept {
  window.Width = std::min(window.Width, free.Width);
  window.Height = std::min(window.Height, free.Height);
  window.Left = std::clamp(window.Left, free.Left, free.Left + free.Width - window.Width);
  window.Top = std::clamp(window.Top, free.Top, free.Top + free.Height - window.Height);
  return window;
}

WindowRect PlaceBeside(const WindowRect& program, const WindowRect& least,
                       const WindowRect& free) noexcept {
  // In parts of 100.
  constexpr int kWidth = 66;
  constexpr int kHeight = 78;
  WindowRect window;
  window.Width = std::max(least.Width, program.Width * kWidth / 100);
  window.Height = std::max(least.Height, program.Height * kHeight / 100);
  window.Left = program.Left + program.Width - window.Width;
  window.Top = program.Top + program.Height - window.Height;
  return FitInto(window, free);
}

WindowRect ReadPlace(const Settings& settings, std::string_view key) {
  const std::vector<int> place =
      NumbersOf(settings.Read(kSection, key)).value_or(std::vector<int>{});
  const bool usable = place.size() == 4 && place[2] > 0 && place[3] > 0;
  return usable ? WindowRect{place[0], place[1], place[2], place[3]} : WindowRect{};
}

void WritePlace(Settings& settings, std::string_view key, const WindowRect& place) {
  settings.Write(kSection, key, TextOf({place.Left, place.Top, place.Width, place.Height}));
}

WindowPlacement ReadPlacement(const Settings& settings) {
  WindowPlacement placement;
  placement.Window = ReadPlace(settings, kPlaceKey);
  placement.Maximised = settings.Read(kSection, "Maximised") == "1";
  placement.Columns = SizesOf(settings, "Columns");
  placement.Panels = SizesOf(settings, "Panels");
  const std::vector<int> findings = SizesOf(settings, "Findings");
  if (findings.size() == 1) placement.Findings = findings.front();
  return placement;
}

void WritePlacement(Settings& settings, const WindowPlacement& placement) {
  WritePlace(settings, kPlaceKey, placement.Window);
  settings.Write(kSection, "Maximised", placement.Maximised ? "1" : "0");
  settings.Write(kSection, "Columns", TextOf(placement.Columns));
  settings.Write(kSection, "Panels", TextOf(placement.Panels));
  settings.Write(kSection, "Findings", TextOf({placement.Findings}));
}

void ReadPanels(const Settings& settings, std::array<bool, kPanelCount>& shown) {
  for (std::size_t i = 0; i < kPanelCount; ++i) {
    if (kPanelKeys[i].empty()) continue;
    const std::string value = settings.Read(kSection, kPanelKeys[i]);
    if (value == "0" || value == "1") shown[i] = value == "1";
  }
}

void WritePanels(Settings& settings, const std::array<bool, kPanelCount>& shown) {
  for (std::size_t i = 0; i < kPanelCount; ++i) {
    if (!kPanelKeys[i].empty()) settings.Write(kSection, kPanelKeys[i], shown[i] ? "1" : "0");
  }
}

}  // namespace tarnwick
