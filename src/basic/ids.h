// Numbers by which the checked program, the machine and the objects know the same things.
#pragma once

#include <cstdint>

namespace tarnwick::basic {

/// Row of a class in the class table; the rows stay the same while a program runs.
enum class ClassId : std::uint16_t {};

/// Number of a member (property, method or event) within its class.
enum class MemberId : std::uint16_t {};

/// Number of a SUB, FUNCTION or handler in the checked program.
enum class ProcedureId : std::uint32_t {};

/// An object of the running program. The low 32 bits are its number, the high 32 bits its
/// generation, so that the id of a freed object is never mistaken for a later one's. 0 is none.
enum class ObjectId : std::uint64_t { None = 0 };

/// Function value of a procedure as a program sees it (BIND, CODEPTR): its number + 1; 0 is none.
constexpr std::int64_t CodePointer(ProcedureId procedure) {
  return static_cast<std::int64_t>(procedure) + 1;
}

}  // namespace tarnwick::basic
