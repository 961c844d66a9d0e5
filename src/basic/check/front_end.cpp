#include "basic/check/front_end.h"

#include <utility>

#include "basic/check/checker.h"
#include "basic/syntax/parser.h"

namespace tarnwick::basic {

FrontEndResult CheckProgram(const std::string& path, SourceReader& reader,
                            const ClassCatalog& classes, const FrontEndOptions& options) {
  FrontEndResult result;
  std::optional<std::string> bytes = reader.ReadSource(path);
  if (!bytes || !result.Files.Add(path, *std::move(bytes))) {
    result.Found.Error({}, "The file " + path + " cannot be read or is too large");
    return result;
  }
  Preprocessor lines(result.Files, reader, options.Source, result.Found);
  Program program =
      Check(Parse(lines, options.Strict, result.Found), classes, options.Strict, result.Found);
  result.Found.SortByPlace();
  if (result.Found.HasErrors()) return result;
  for (std::size_t i = 0; i < result.Files.Count(); ++i) {
    program.Files.push_back(result.Files.File(static_cast<std::uint16_t>(i)).Path);
  }
  result.Checked = std::move(program);
  return result;
}

}  // namespace tarnwick::basic
