#include "qt/kit/qt_ports.h"

#include <gtest/gtest.h>

namespace tarnwick {
namespace {

TEST(ToolkitFilter, CaptionsAndPatternsBecomePairs) {
  EXPECT_EQ(ToolkitFilter("Tarnwick Project|*.tnp|All Files|*.*"),
            "Tarnwick Project (*.tnp);;All Files (*)");
}

TEST(ToolkitFilter, SeveralPatternsArePartedByBlanks) {
  EXPECT_EQ(ToolkitFilter("Bmps and Icons Files|*.bmp;*.ico"),
            "Bmps and Icons Files (*.bmp *.ico)");
}

TEST(ToolkitFilter, TheCaptionsOwnBracketsStandOnce) {
  EXPECT_EQ(ToolkitFilter("Form (*.ftn)|*.ftn"), "Form (*.ftn)");
}

TEST(ToolkitFilter, BracketsThatHoldNoPatternStay) {
  EXPECT_EQ(ToolkitFilter("Tarnwick Project (New Version)|*.tnp"),
            "Tarnwick Project (New Version) (*.tnp)");
}

}  // namespace
}  // namespace tarnwick
