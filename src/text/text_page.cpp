#include "text/text_page.h"

#include <algorithm>

namespace tarnwick {

void TextPage::Turn(std::size_t most) {
  constexpr std::size_t kPage = 32768;
  Flush();
  if (page_.size() < most) page_.resize(std::max(kPage, most));
}

void TextPage::Flush() {
  if (filled_ > 0) sink_({page_.data(), std::exchange(filled_, 0)});
}

}  // namespace tarnwick
