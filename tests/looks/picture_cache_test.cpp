#include "looks/picture_cache.h"

#include <QBuffer>
#include <QImage>
#include <map>

#include <gtest/gtest.h>

#include "looks/picture_file.h"

namespace tarnwick::looks {
namespace {

std::string Bitmap(QColor color, QImage::Format format = QImage::Format_RGB32, int side = 8) {
  QImage picture(side, side, QImage::Format_RGB32);
  picture.fill(color);
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  picture.convertToFormat(format).save(&buffer, "BMP");
  return bytes.toStdString();
}

class PictureCacheTest : public testing::Test {
 protected:
  QColor ColorOf(const std::string& path) {
    const QPixmap& picture = cache_.At(path);
    return picture.isNull() ? QColor() : QColor(picture.toImage().pixel(0, 0));
  }
  std::map<std::string, std::string> files_;
  int reads_ = 0;
  PictureCache cache_{[this](const std::string& path) -> std::optional<std::string> {
    ++reads_;
    const auto found = files_.find(path);
    if (found == files_.end()) return std::nullopt;
    return found->second;
  }};
};

TEST_F(PictureCacheTest, AFileIsReadOnce) {
  files_["a.bmp"] = Bitmap(Qt::red);
  EXPECT_EQ(ColorOf("a.bmp"), QColor(Qt::red));
  EXPECT_EQ(ColorOf("A.BMP"), QColor(Qt::red)) << "letters of either case are one file";
  EXPECT_EQ(reads_, 1);
}

TEST_F(PictureCacheTest, AChangedFileShowsAfterTheNextCheck) {
  files_["a.bmp"] = Bitmap(Qt::red);
  EXPECT_EQ(ColorOf("a.bmp"), QColor(Qt::red));
  files_["a.bmp"] = Bitmap(Qt::blue);
  EXPECT_EQ(ColorOf("a.bmp"), QColor(Qt::red));
  cache_.Recheck();
  EXPECT_EQ(ColorOf("a.bmp"), QColor(Qt::blue));
}

TEST_F(PictureCacheTest, AFileThatGoesOrComesIsNoticed) {
  EXPECT_FALSE(ColorOf("a.bmp").isValid());
  files_["a.bmp"] = Bitmap(Qt::red);
  cache_.Recheck();
  EXPECT_EQ(ColorOf("a.bmp"), QColor(Qt::red));
  files_.clear();
  cache_.Recheck();
  EXPECT_FALSE(ColorOf("a.bmp").isValid()) << "never the picture before";
}

TEST_F(PictureCacheTest, ATruncatedBitmapIsNoPicture) {
  for (const QImage::Format format :
       {QImage::Format_RGB32, QImage::Format_Indexed8, QImage::Format_Mono}) {
    const std::string whole = Bitmap(Qt::red, format, 33);
    EXPECT_TRUE(IsWhole(whole));
    for (std::size_t size = 2; size < whole.size(); size += 7) {
      files_["cut.bmp"] = whole.substr(0, size);
      cache_.Recheck();
      EXPECT_TRUE(cache_.At("cut.bmp").isNull()) << size << " of " << whole.size();
    }
  }
}

TEST_F(PictureCacheTest, BytesThatAreNoPictureAreNone) {
  files_["a.bmp"] = "not a picture";
  EXPECT_TRUE(cache_.At("a.bmp").isNull());
  files_["b.bmp"] = "BM";
  EXPECT_TRUE(cache_.At("b.bmp").isNull());
}

TEST(PictureFile, RunLengthCodesMustReachTheirEnd) {
  std::string header(54, '\0');
  header.replace(0, 2, "BM");
  header[10] = 54;
  header[14] = 40;
  header[18] = 4;
  header[22] = 1;
  header[28] = 8;
  header[30] = 1;
  EXPECT_TRUE(IsWhole(header + std::string("\4\0\0\1", 4)));
  EXPECT_FALSE(IsWhole(header + std::string("\4\0", 2)));
  EXPECT_FALSE(IsWhole(header + std::string("\0\3ab", 4)));
}

TEST(PictureFile, SizesBeyondAnyFileAreNotWhole) {
  std::string header(54, '\0');
  header.replace(0, 2, "BM");
  header[10] = 54;
  header[14] = 40;
  header[21] = 0x7F;
  header[25] = 0x7F;
  header[28] = 32;
  EXPECT_FALSE(IsWhole(header));
}

}  // namespace
}  // namespace tarnwick::looks
