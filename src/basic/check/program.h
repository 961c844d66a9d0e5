// The checked program: what the emitter turns into code.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "basic/check/checked_statement.h"
#include "basic/source/arena.h"
#include "basic/source/messages.h"

namespace tarnwick::basic {

/// The top level of the program, and as a hook or an address: none.
inline constexpr ProcedureId kMainProcedure{0};
inline constexpr ProcedureId kNoProcedure = kMainProcedure;

/// A variable of the program or of a procedure.
struct Variable {
  std::string_view Name;  ///< as first written; "" for one that the checker made
  Type Kind;
  SourcePlace At;
  /// A parameter that holds a reference to a location of the caller, of exactly this type.
  bool ByReference = false;
  /// Such a parameter of a head without BYREF: only an argument with "@" is handed over by
  /// reference, any other as a copy.
  bool OnlyWithAt = false;
};

enum class ProcedureKind : std::uint8_t { Main, Sub, Function, Constructor, Event, PropertySet };

/// SUB, FUNCTION, a member of a TYPE, or the top level.
///
/// A call makes all locals of a procedure 0, "" or no object, then stores the arguments into the
/// first ones. When an event calls it, parameters of kind Object or of a TYPE that EXTENDS a class
/// take the object that raised the event, the others the arguments of the event in order. Objects
/// that a `MakeVariable` of the procedure made are freed at its end unless they have a parent.
struct Procedure {
  std::string_view Name;  ///< "Button1_OnClick"; "Type.Member" for a member
  ProcedureKind Kind = ProcedureKind::Sub;
  SourcePlace At;
  std::uint32_t ParameterCount = 0;  ///< the record of a member counts
  std::vector<Variable> Locals;      ///< parameters, then all other variables
  Type Result = kNoType;
  std::uint32_t ResultSlot = 0;  ///< the local that holds the result, of a function
  /// SUBI, FUNCTIONI: no parameters; the arguments are reached by `VariableParameter`.
  bool Variadic = false;
  std::uint32_t LabelCount = 0;
  Block Body;
};

/// One field of a TYPE.
struct Field {
  std::string_view Name;
  Type Kind;
  /// Lowest and highest index of each dimension, for an array with constant bounds; empty for an
  /// array that grows.
  std::vector<std::pair<std::int64_t, std::int64_t>> Dimensions;
};

/// TYPE ... END TYPE.
///
/// A record is reached by reference. Making one makes its fields: 0, "", its objects, its records,
/// its arrays; then the constructor runs with the record as its argument. A TYPE that EXTENDS a
/// class has its object in field 0.
struct RecordType {
  std::string_view Name;
  std::vector<Field> Fields;
  std::optional<ClassId> Base;
  ProcedureId Constructor = kNoProcedure;
  SourcePlace At;
};

/// A file bound by $RESOURCE. The handle of the resource of index i is `kFirstResource + i`.
struct Resource {
  std::string_view Name;
  std::string_view File;  ///< as written
  SourcePlace At;
};

/// An entry of a DLL.
struct DllEntry {
  std::string_view Name;
  std::string_view Library;
  std::string_view Entry;  ///< the ALIAS, or the name
  std::vector<Variable> Parameters;
  Type Result = kNoType;
  SourcePlace At;
};

/// A value of DATA. A number has both forms.
struct DataValue {
  std::string_view Text;
  double Number = 0;
};

/// The kind that $APPTYPE names; `Guess` when there is no such line.
enum class ApplicationKind : std::uint8_t { Guess, Gui, Console };

/// A program without errors, ready for the emitter. Owns all that it points to; movable.
struct Program {
  Arena Memory;
  std::vector<std::string> Files;     ///< full paths, by `SourcePlace::File`
  std::vector<Variable> Globals;      ///< start as 0, "" or no object
  std::vector<Procedure> Procedures;  ///< the first is the top level
  std::vector<RecordType> Records;
  std::vector<Resource> Resources;
  std::vector<DllEntry> DllEntries;
  std::vector<DataValue> Data;
  ApplicationKind Application = ApplicationKind::Guess;
  /// A PRINT, INPUT or the like is in the text.
  bool UsesConsole = false;

  [[nodiscard]] const Procedure& At(ProcedureId id) const {
    return Procedures[static_cast<std::size_t>(id)];
  }
  [[nodiscard]] const RecordType& At(RecordId id) const {
    return Records[static_cast<std::size_t>(id)];
  }
};

}  // namespace tarnwick::basic
