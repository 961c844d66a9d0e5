#include "qt/kit/icon_set.h"

#include <QImage>

#include <gtest/gtest.h>

#include "designer/tool_box.h"

namespace tarnwick {
namespace {

const IconColors kColors{QColor(Qt::black), QColor(0, 128, 0), QColor(Qt::white)};

bool HasInk(const QPixmap& pixmap) {
  const QImage image = pixmap.toImage();
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (qAlpha(image.pixel(x, y)) > 200) return true;
    }
  }
  return false;
}

TEST(IconSet, EveryCommandHasAPicture) {
  for (std::size_t i = 0; i < kCommandCount; ++i) {
    const QString name = IconNameOf(static_cast<Command>(i));
    EXPECT_TRUE(HasInk(PixmapOf(name, 16, 1, kColors))) << name.toStdString();
  }
}

TEST(IconSet, EveryToolHasAPictureOfItsOwn) {
  QStringList names;
  for (const ToolInfo& tool : AllTools()) {
    const QString name = IconNameOfTool(tool.Number);
    EXPECT_TRUE(HasInk(PixmapOf(name, 16, 1, kColors))) << tool.Tip;
    EXPECT_FALSE(names.contains(name)) << tool.Tip;
    names << name;
  }
}

TEST(IconSet, PicturesAreDrawnAtTheScaleOfTheScreen) {
  const QPixmap twice = PixmapOf(QStringLiteral("save"), 16, 2, kColors);
  EXPECT_EQ(twice.width(), 32);
  EXPECT_EQ(twice.deviceIndependentSize(), QSizeF(16, 16));
}

TEST(IconSet, AnUnknownNameIsAnEmptyIcon) {
  EXPECT_TRUE(IconOf(QStringLiteral("nothing")).isNull());
}

}  // namespace
}  // namespace tarnwick
