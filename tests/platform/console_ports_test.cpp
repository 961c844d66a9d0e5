// The ports of a program without windows.
#include <gtest/gtest.h>

#include "fakes/text_stream.h"
#include "platform/console_messages.h"
#include "platform/native_screen.h"
#include "platform/no_dialogs.h"

namespace tarnwick {
namespace {

TEST(ConsolePorts, MessagesAreLinesOfUtf8) {
  const test::TextStream out;
  ConsoleMessages messages(out.File());
  messages.Show("caf\xE9", "Tarnwick");
  EXPECT_EQ(out.Text(), "Tarnwick: caf\xC3\xA9\n");
}

TEST(ConsolePorts, QuestionsAreShownAndAnsweredNo) {
  const test::TextStream out;
  ConsoleMessages messages(out.File());
  EXPECT_FALSE(messages.AskYesNo("Save?", "T", MessageIcon::Question));
  EXPECT_EQ(out.Text(), "T: Save?\n");
}

TEST(ConsolePorts, DialogsAreCancelled) {
  NoDialogs dialogs;
  EXPECT_FALSE(dialogs.OpenFile({}).has_value());
  EXPECT_FALSE(dialogs.SaveFile({}).has_value());
  EXPECT_FALSE(dialogs.PickColor(5).has_value());
  EXPECT_FALSE(dialogs.PickFont({}).has_value());
  EXPECT_FALSE(dialogs.PickFolder("x").has_value());
}

}  // namespace
}  // namespace tarnwick
