#include "basic/lib/message_dialog.h"

#include <array>
#include <cstddef>

namespace tarnwick::basic {
namespace {

enum Buttons : unsigned {
  kYes = 1,
  kNo = 2,
  kOk = 4,
  kCancel = 8,
  kAbort = 16,
  kRetry = 32,
  kIgnore = 64,
  kAll = 128,
};
enum Boxes : int {
  kBoxOk = 0,
  kBoxOkCancel = 1,
  kBoxAbortRetryIgnore = 2,
  kBoxYesNoCancel = 3,
  kBoxYesNo = 4,
  kBoxRetryCancel = 5,
};

}  // namespace

MessageLook LookOfMessage(std::int64_t type) {
  constexpr std::array<MessageLook, 4> kLooks = {
      {{"Warning", 0x30}, {"Error", 0x10}, {"Information", 0x40}, {"Confirm", 0x20}}};
  if (type < 0 || type >= static_cast<std::int64_t>(kLooks.size())) return {};
  return kLooks[static_cast<std::size_t>(type)];
}

int BoxOfButtons(std::int64_t buttons) {
  const auto set = static_cast<unsigned>(buttons & 0xFFFF);
  if ((set & (kYes | kNo | kAll)) != 0) return (set & kCancel) != 0 ? kBoxYesNoCancel : kBoxYesNo;
  if ((set & (kAbort | kIgnore)) != 0) return kBoxAbortRetryIgnore;
  if ((set & kRetry) != 0) return kBoxRetryCancel;
  if ((set & kCancel) != 0) return kBoxOkCancel;
  return kBoxOk;
}

}  // namespace tarnwick::basic
