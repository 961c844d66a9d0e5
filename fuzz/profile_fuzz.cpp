// Profile files of any bytes: reading never fails, and what is written reads back while the rest
// of the file stays.
#include <cstdint>
#include <cstdlib>
#include <string>

#include "fakes/memory_files.h"
#include "platform/profile_files.h"

namespace {

void Require(bool holds) {
  if (!holds) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tarnwick;
  const std::string path = "Z:\\f.ini";
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  CallLog log;
  MemoryFiles files(log);
  ProfileFiles profiles(files);
  files.Put(path, bytes);

  for (const char* key : {"Bmp", "Icon", "", "k"}) {
    Require(profiles.Read(path, "Path", key, 286).size() <= 285);
    Require(profiles.Read(path, "", key, 50).size() <= 49);
  }
  const std::string other = profiles.Read(path, "Path", "Icon", 1000);
  Require(profiles.Write(path, "Path", "Bmp", "C:\\a b"));
  Require(profiles.Read(path, "path", "BMP", 286) == "C:\\a b");
  Require(profiles.Read(path, "Path", "Icon", 1000) == other);
  // A key that is there is set in its place: a second write changes its value alone.
  const std::string once = *files.Bytes(path);
  Require(profiles.Write(path, "Path", "Bmp", "D"));
  Require(profiles.Write(path, "Path", "Bmp", "C:\\a b"));
  Require(*files.Bytes(path) == once);
  return 0;
}
