// What the code windows' logic tells the windows around it, noted.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "editor/code_host.h"

namespace tarnwick::test {

/// Log entries: "code N NAME", "no code N NAME", "accepted N", "unload".
class FakeCodeHost final : public editor::CodeHost {
 public:
  void PopBoockMarck(int form, std::string_view name) override {
    Log.push_back("code " + std::to_string(form) + " " + std::string(name));
  }
  void DelBoockMarck(int form, std::string_view name) override {
    Log.push_back("no code " + std::to_string(form) + " " + std::string(name));
  }
  void AcceptBegins(int form, std::string_view step) override {
    Steps.push_back(std::to_string(form) + " " + std::string(step));
  }
  void CodeAccepted(int form) override { Log.push_back("accepted " + std::to_string(form)); }
  void Unload() override { Log.emplace_back("unload"); }

  std::vector<std::string> Log;
  std::vector<std::string> Steps;  ///< "N NAME" of each step that began
};

}  // namespace tarnwick::test
