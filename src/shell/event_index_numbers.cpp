#include "shell/event_index_numbers.h"

#include <optional>
#include <utility>

#include "designer/settle.h"
#include "model/vocabulary.h"
#include "text/numbers.h"
#include "text/strings.h"

namespace tarnwick {

namespace {

/// The line as it is to stand; nothing for a line that goes.
std::optional<std::string> Renumbered(std::string_view line, std::string_view prefix, int number,
                                      bool back) {
  const std::size_t equals = line.find('=');
  const int held =
      equals == std::string_view::npos ? 0 : NumberBehind(line.substr(0, equals), prefix);
  if (held < number) return std::string(line);
  if (!back && held == number) return std::nullopt;
  std::string moved(prefix);
  AppendNumber(moved, std::int64_t{back ? held + 1 : held - 1});
  return moved.append(line.substr(equals));
}

}  // namespace

bool RenumberEventIndex(FilePort& files, const std::string& path, const ObjectPlace& object,
                        bool back) {
  const std::optional<std::string> text = files.Read(path);
  if (!text) return false;
  std::string prefix(InfoOf(Kind::Form).Name);
  AppendNumber(prefix, std::int64_t{object.Form});
  prefix.append(".").append(InfoOf(object.Id).Array);
  std::string renumbered;
  bool first = true;
  for (const std::string_view line : Split(*text, kLineEnd)) {
    const std::optional<std::string> kept = Renumbered(line, prefix, object.Number, back);
    if (!kept) continue;
    if (!std::exchange(first, false)) renumbered += kLineEnd;
    renumbered += *kept;
  }
  return renumbered == *text || files.Replace(path, renumbered);
}

}  // namespace tarnwick
