// Any bytes as a program, checked against a few classes.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "basic/check/front_end.h"
#include "fakes/small_catalog.h"

namespace {

class OneFile : public tarnwick::basic::SourceReader {
 public:
  explicit OneFile(std::string bytes) : bytes_(std::move(bytes)) {}
  std::optional<std::string> ReadSource(const std::string& path) override {
    if (path != "m") return std::nullopt;
    return bytes_;
  }

 private:
  std::string bytes_;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tarnwick::basic;
  static const tarnwick::test::SmallCatalog classes;
  for (const bool strict : {false, true}) {
    OneFile reader(std::string(reinterpret_cast<const char*>(data), size));
    const FrontEndResult result = CheckProgram("m", reader, classes, {{}, strict});
    // A program comes out exactly when nothing is wrong with it.
    if (result.Checked.has_value() == result.Found.HasErrors()) std::abort();
    if (result.Checked && result.Checked->Procedures.empty()) std::abort();
  }
  return 0;
}
