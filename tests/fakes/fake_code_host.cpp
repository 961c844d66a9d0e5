#include "fakes/fake_code_host.h"

namespace tarnwick::test {

void FakeCodeHost::PopBoockMarck(int form, std::string_view name) {
  Log.push_back("code " + std::to_string(form) + " " + std::string(name));
}

void FakeCodeHost::DelBoockMarck(int form, std::string_view name) {
  Log.push_back("no code " + std::to_string(form) + " " + std::string(name));
}

void FakeCodeHost::AcceptBegins(int form, std::string_view step) {
  Steps.push_back(std::to_string(form) + " " + std::string(step));
}

void FakeCodeHost::CodeAccepted(int form) {
  Log.push_back("accepted " + std::to_string(form));
}

void FakeCodeHost::Unload() {
  Log.emplace_back("unload");
}

}  // namespace tarnwick::test
