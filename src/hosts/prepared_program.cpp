#include "hosts/prepared_program.h"

#include <filesystem>

#include "hosts/disk_files.h"
#include "platform/native_files.h"
#include "platform/program_folder.h"
#include "text/path_text.h"

namespace tarnwick::hosts {
namespace {

class DiskSources final : public basic::SourceReader {
 public:
  std::optional<std::string> ReadSource(const std::string& path) override {
    return files_.Read(path);
  }

 private:
  NativeFiles files_;
};

}  // namespace

PreparedProgram PrepareProgram(const std::string& path, const basic::ClassCatalog& classes,
                               const basic::FrontEndOptions& options) {
  std::error_code ignored;
  const std::string full = PathFromNative(std::filesystem::absolute(path, ignored).string());
  DiskSources sources;
  basic::FrontEndResult checked = basic::CheckProgram(full, sources, classes, options);
  PreparedProgram prepared;
  prepared.Found = std::move(checked.Found);
  if (checked.Checked) {
    DiskFiles disk;
    for (const basic::Resource& resource : checked.Checked->Resources) {
      const std::string& file = prepared.Resources.emplace_back(resource.File);
      if (disk.FileExists(file)) continue;
      prepared.Found.Note(resource.At, "There is no file " + file, "It is taken as empty");
    }
    prepared.Found.SortByPlace();
    basic::EmitResult emitted = basic::Emit(*checked.Checked);
    prepared.Good = emitted.Error.empty();
    if (!prepared.Good) prepared.Found.Error(emitted.At, emitted.Error);
    prepared.Code = std::move(emitted.Made);
  }
  // The code names its texts and places by itself: only the files are still of use.
  prepared.Files = std::move(checked.Files);
  return prepared;
}

std::string IncludeFolder() {
  std::string beside = ExecutableFolder();
  NativeFiles files;
  if (files.Exists(beside + "\\" + std::string(basic::kOwnInclude))) return beside;
  return beside + R"(\..\share\tarnwick)";
}

}  // namespace tarnwick::hosts
