// Numbers by which the checked program, the machine and the objects know the same things.
#pragma once

#include <cstdint>

namespace tarnwick::basic {

/// Row of a class in the class table; the rows stay the same while a program runs.
enum class ClassId : std::uint16_t {};

/// Number of a member (property, method or event) within its class.
enum class MemberId : std::uint16_t {};

/// Number of a procedure in the checked program. 0 is the top level of the program, so that the
/// number also serves as the procedure's address in the program (BIND, CODEPTR), where 0 is none.
enum class ProcedureId : std::uint32_t {};

/// An object of the running program. The low 32 bits are its number, the high 32 bits its
/// generation, so that the id of a freed object is never mistaken for a later one's. 0 is none.
enum class ObjectId : std::uint64_t { None = 0 };

}  // namespace tarnwick::basic
