#include "fakes/fake_instance_folders.h"

namespace tarnwick {

FakeInstanceFolders::FakeInstanceFolders(MemoryFiles& files) : files_(&files) {}

FakeInstanceFolders::~FakeInstanceFolders() = default;

void FakeInstanceFolders::End(const std::string& path) {
  running_.erase(path);
}

std::string FakeInstanceFolders::Claim(const std::string& parent) {
  if (Refuses) return {};
  std::string path = parent + "\\" + std::to_string(++made_);
  all_.insert(path);
  running_.insert(path);
  return path;
}

std::vector<InstanceFolder> FakeInstanceFolders::List(const std::string& parent) {
  std::vector<InstanceFolder> folders;
  for (const std::string& path : all_) {
    if (!path.starts_with(parent)) continue;
    folders.push_back({path, running_.contains(path), files_->NamesIn(path)});
  }
  return folders;
}

bool FakeInstanceFolders::Remove(const std::string& path) {
  files_->SetQuiet(true);
  for (const std::string& name : files_->NamesIn(path)) files_->Remove(path + "\\" + name);
  files_->SetQuiet(false);
  running_.erase(path);
  return all_.erase(path) > 0;
}

}  // namespace tarnwick
