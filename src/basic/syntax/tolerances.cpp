#include "basic/syntax/tolerances.h"

namespace tarnwick::basic {

std::string_view TextOf(ToleranceEffect effect) noexcept {
  switch (effect) {
    case ToleranceEffect::Skip:
      return "is passed over";
    case ToleranceEffect::Call:
      return "runs as a call";
    case ToleranceEffect::Merge:
      return "is taken as one";
    case ToleranceEffect::Declare:
      return "declares the name";
  }
  return {};
}

}  // namespace tarnwick::basic
