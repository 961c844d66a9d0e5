// The common dialogs of a program without windows.
#pragma once

#include <optional>
#include <string>

#include "platform/ports.h"

namespace tarnwick {

/// Every dialog is cancelled at once.
class NoDialogs final : public DialogPort {
 public:
  std::optional<std::string> OpenFile(const FileDialogRequest& /*request*/) override {
    return std::nullopt;
  }
  std::optional<std::string> SaveFile(const FileDialogRequest& /*request*/) override {
    return std::nullopt;
  }
  std::optional<std::int32_t> PickColor(std::int32_t /*start*/) override { return std::nullopt; }
  std::optional<FontChoice> PickFont(const FontChoice& /*start*/) override { return std::nullopt; }
  std::optional<std::string> PickFolder(const std::string& /*start*/) override {
    return std::nullopt;
  }
};

}  // namespace tarnwick
