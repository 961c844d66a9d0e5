#include "codegen/source_text.h"

#include <algorithm>
#include <utility>

#include "model/units.h"
#include "text/numbers.h"

namespace tarnwick {

namespace {

/// Whole numbers of this size and below are the same as single and as 32-bit number.
constexpr float kPlainLimit = 16777216.0F;

}  // namespace

char* SourceText::Put(char* at, Pixels length) {
  const float pixels = length.Twips / static_cast<float>(kTwipsPerPixel);
  if (pixels >= -kPlainLimit && pixels <= kPlainLimit) {
    // Nearly every length is whole, and whole numbers print faster.
    const auto whole = static_cast<std::int32_t>(pixels);
    if (static_cast<float>(whole) == pixels) return Put(at, whole);
  }
  const std::string text = NumberText(pixels);
  return Put(at, std::string_view(text).substr(0, kMostPixels));
}

void SourceText::TurnPage(std::size_t most) {
  constexpr std::size_t kPage = 32768;
  Flush();
  if (page_.size() < most) page_.resize(std::max(kPage, most));
}

void SourceText::Flush() {
  if (filled_ > 0) sink_({page_.data(), std::exchange(filled_, 0)});
}

}  // namespace tarnwick
