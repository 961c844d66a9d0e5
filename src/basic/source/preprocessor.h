// From the main file to the tokens of the whole program: directives and macros.
#pragma once

#include <string>

#include "basic/source/messages.h"
#include "basic/source/source_set.h"
#include "basic/source/source_token.h"

namespace tarnwick::basic {

/// Where includes are looked for.
struct SourceOptions {
  std::string ProgramFolder;  ///< without "\" at the end; "" for none
};

/// Reads the program whose main file is file 0 of the set. Carries out $INCLUDE, $DEFINE, $UNDEF,
/// $IFDEF, $IFNDEF, $ELSE, $ENDIF, $MACRO and $ESCAPECHARS, drops $OPTIMIZE, and hands the other
/// directives on. Faults go to `messages`; the tokens are complete in any case.
[[nodiscard]] TokenStream Preprocess(SourceSet& files, SourceReader& reader,
                                     const SourceOptions& options, Messages& messages);

}  // namespace tarnwick::basic
