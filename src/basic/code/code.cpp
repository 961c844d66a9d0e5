#include "basic/code/code.h"

#include <algorithm>
#include <iterator>

namespace tarnwick::basic {
namespace {

struct OpRow {
  const char* Name;
  const char* Operands;
  const char* Words;
};
constexpr OpRow kOps[] = {
#define BASIC_OP(name, operands, words) {#name, operands, words},
#include "basic/code/opcodes.h"
#undef BASIC_OP
};

}  // namespace

SourcePlace Code::PlaceOf(std::size_t instruction) const {
  const auto behind =
      std::upper_bound(Places.begin(), Places.end(), instruction,
                       [](std::size_t index, const PlaceRow& row) { return index < row.First; });
  return behind == Places.begin() ? SourcePlace{} : std::prev(behind)->At;
}

const char* NameOf(Op op) {
  return kOps[static_cast<std::size_t>(op)].Name;
}
const char* OperandsOf(Op op) {
  return kOps[static_cast<std::size_t>(op)].Operands;
}
const char* WordsOf(Op op) {
  return kOps[static_cast<std::size_t>(op)].Words;
}

}  // namespace tarnwick::basic
