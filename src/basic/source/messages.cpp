#include "basic/source/messages.h"

#include <algorithm>
#include <tuple>
#include <utility>

namespace tarnwick::basic {

void Messages::Error(SourcePlace at, std::string text, std::string remedy) {
  if (Full()) return;
  const auto last = std::find_if(all_.rbegin(), all_.rend(),
                                 [](const Message& m) { return m.Level == Severity::Error; });
  if (last != all_.rend() && last->At.File == at.File && last->At.Line == at.Line &&
      last->At.Column == at.Column) {
    return;
  }
  all_.push_back({Severity::Error, at, std::move(text), std::move(remedy)});
  ++errors_;
}

void Messages::Note(SourcePlace at, std::string text, std::string remedy) {
  if (notes_ >= kMaxNotes) return;
  all_.push_back({Severity::Note, at, std::move(text), std::move(remedy)});
  ++notes_;
}

void Messages::SortByPlace() {
  std::stable_sort(all_.begin(), all_.end(), [](const Message& a, const Message& b) {
    return std::tie(a.At.File, a.At.Line, a.At.Column) <
           std::tie(b.At.File, b.At.Line, b.At.Column);
  });
}

}  // namespace tarnwick::basic
