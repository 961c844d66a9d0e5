// Border style and size of a design window.
#include "surface_fixture.h"

namespace tarnwick {
namespace {

using FormFrameTest = SurfaceTest;
using Entries = std::vector<std::string>;

TEST_F(FormFrameTest, LoadingTakesTheFrameOfTheRecordsBorder) {
  record.BorderStyle = 0;
  user.Form_Load();
  EXPECT_FALSE(user.Frame().Style().Get(clsStyle::Member::ControlBox));
}

TEST_F(FormFrameTest, AFormThatAnUndoRestoredTakesTheFrameOfItsRecord) {
  user.Frame().borderstylea(5);
  record.BorderStyle = 0;
  user.Restored();
  EXPECT_FALSE(user.Frame().Style().Get(clsStyle::Member::ControlBox));
}

TEST_F(FormFrameTest, BorderStyleASetsTheFrameAndTheRecordKeepsTheCode) {
  user.Frame().borderstylea(5);
  EXPECT_TRUE(user.Frame().Style().Get(clsStyle::Member::ToolWindow));
  EXPECT_EQ(record.BorderStyle, 5);
  EXPECT_GT(ports.Log.Count("window"), 0U);
}

TEST_F(FormFrameTest, AResizeOfTheWindowWritesTheSizeOfTheForm) {
  ports.Log.Clear();
  user.Frame().Form_Resize(7500, 4500, WindowState::Normal);
  EXPECT_EQ(Log(), (Entries{"sync Form height", "sync Form width"}));
  EXPECT_EQ(form.oldWidth, 7500);
  EXPECT_EQ(form.oldHeight, 4500);
  EXPECT_EQ(record.Width, 500);
  EXPECT_EQ(record.Height, 300);
  EXPECT_EQ(record.Left, 0);
  EXPECT_EQ(record.Top, 0);
}

TEST_F(FormFrameTest, AResizeInOneDirectionIsAStepOfItsOwn) {
  const auto Undone = [this] {
    user.Frame().ResizeEnded();
    EXPECT_EQ(history.UndoName(), "Size Form1");
    history.Undo();
    return std::make_pair(form.Width, form.Height);
  };
  history.Begin(number, "First");
  history.End();
  user.Frame().Form_Resize(7500, 5000, WindowState::Normal);
  EXPECT_EQ(form.Width, 7500);
  EXPECT_EQ(Undone(), std::make_pair(6000.F, 5000.F));
  user.Frame().Form_Resize(6000, 4500, WindowState::Normal);
  EXPECT_EQ(form.Height, 4500);
  EXPECT_EQ(Undone(), std::make_pair(6000.F, 5000.F));
}

TEST_F(FormFrameTest, ASameSizeIsNoStep) {
  user.Frame().Form_Resize(6000, 5000, WindowState::Normal);
  user.Frame().ResizeEnded();
  EXPECT_FALSE(history.CanUndo());
}

TEST_F(FormFrameTest, MaximisingIsRecordedOnceAndUndoneOnTheReturn) {
  user.Frame().Form_Resize(9000, 8000, WindowState::Maximised);
  EXPECT_EQ(record.Width, 600);
  ports.Log.Clear();
  user.Frame().Form_Resize(12000, 11000, WindowState::Maximised);
  EXPECT_TRUE(Log().empty()) << "the recorded state takes no part";
  user.Frame().Form_Resize(6000, 5000, WindowState::Normal);
  EXPECT_EQ(record.Width, 400);
}

TEST_F(FormFrameTest, AMinimisedWindowKeepsItsSize) {
  user.Frame().Form_Resize(100, 100, WindowState::Minimised);
  EXPECT_EQ(form.Width, 6000);
  EXPECT_EQ(record.Width, 400);
  EXPECT_TRUE(Log().empty());
}

}  // namespace
}  // namespace tarnwick
