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
  void PopBoockMarck(int form, std::string_view name) override;
  void DelBoockMarck(int form, std::string_view name) override;
  void AcceptBegins(int form, std::string_view step) override;
  void CodeAccepted(int form) override;
  void Unload() override;

  std::vector<std::string> Log;
  std::vector<std::string> Steps;  ///< "N NAME" of each step that began
};

}  // namespace tarnwick::test
