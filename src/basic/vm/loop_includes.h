// What the code of the instructions uses, in both loops.
#pragma once

#include <cmath>
#include <utility>

#include "basic/semantics.h"
#include "basic/vm/machine_state.h"
#include "basic/vm/number_text.h"
#include "basic/vm/plain_calls.h"
#include "basic/vm/texts.h"
#include "basic/vm/variants.h"
#include "basic/vm/whole_numbers.h"

namespace tarnwick::basic {

inline constexpr const char* kTextTooLong = "The text is longer than the limit";

}  // namespace tarnwick::basic
