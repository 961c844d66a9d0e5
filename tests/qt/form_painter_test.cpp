#include "qt/surface/form_painter.h"

#include <QBuffer>
#include <QImage>
#include <QPainter>
#include <optional>

#include <gtest/gtest.h>

#include "fakes/memory_files.h"

namespace tarnwick {
namespace {

constexpr QRgb kFace = 0xFFC0C0C0;
constexpr QRgb kBlack = 0xFF000000;

class FormPainterTest : public testing::Test {
 protected:
  QImage Painted(const QSize& size = QSize(400, 300)) {
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::magenta);
    QPainter painter(&image);
    painter_.Paint(painter, form_, record_ ? &*record_ : nullptr, QRect(QPoint(), size));
    return image;
  }
  ControlRef Add(Kind kind, int left, int top, int width, int height) {
    ControlRef control = form_.Load(kind);
    control->Visible = true;
    control->Left = static_cast<float>(left * 15);
    control->Top = static_cast<float>(top * 15);
    control->Width = static_cast<float>(width * 15);
    control->Height = static_cast<float>(height * 15);
    return control;
  }
  void AddPicture(const std::string& path, QColor color) {
    QImage picture(8, 8, QImage::Format_RGB32);
    picture.fill(color);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    picture.save(&buffer, "BMP");
    files_.Put(path, bytes.toStdString());
  }

  CallLog log_;
  MemoryFiles files_{log_};
  looks::PictureCache pictures_{[this](const std::string& path) { return files_.Read(path); }};
  TextCache texts_;
  FormPainter painter_{pictures_, texts_};
  DesignForm form_;
  std::optional<FormRec> record_;
};

TEST_F(FormPainterTest, DotsStandAtEveryTenthPixelOfTheFixedRectangle) {
  const QImage image = Painted(QSize(1100, 800));
  EXPECT_EQ(image.pixel(0, 0), kBlack);
  EXPECT_EQ(image.pixel(10, 20), kBlack);
  EXPECT_EQ(image.pixel(1020, 760), kBlack);
  EXPECT_EQ(image.pixel(11, 20), kFace);
  EXPECT_EQ(image.pixel(1030, 20), kFace);
  EXPECT_EQ(image.pixel(10, 770), kFace);
}

TEST_F(FormPainterTest, DotsKeepTheirPlaceWhenAPartIsPaintedAnew) {
  QImage image = Painted();
  QPainter painter(&image);
  const QRect part(33, 47, 90, 60);
  painter.setClipRect(part);
  painter_.Paint(painter, form_, nullptr, part);
  painter.end();
  EXPECT_EQ(image, Painted());
}

TEST_F(FormPainterTest, ALabelLiesUnderAButtonThatCameBeforeIt) {
  Add(Kind::TextBox, 20, 20, 75, 25)->BackColor = 255;
  Add(Kind::Label, 20, 20, 75, 25)->BackColor = 0xFF0000;
  EXPECT_EQ(QColor(Painted().pixel(40, 30)), QColor(255, 0, 0));
}

TEST_F(FormPainterTest, ATransparentLabelShowsTheDots) {
  ControlRef label = Add(Kind::Label, 15, 15, 60, 30);
  label->BackColor = 0xFFFFFF;
  EXPECT_NE(Painted().pixel(20, 20), kBlack);
  label->BackStyle = 0;
  EXPECT_EQ(Painted().pixel(20, 20), kBlack);
}

TEST_F(FormPainterTest, APictureKeepsItsSizeUnlessItIsStretched) {
  AddPicture("C:\\p.bmp", Qt::red);
  ControlRef image = Add(Kind::Image, 15, 15, 40, 40);
  image->Picture = "C:\\p.bmp";
  EXPECT_EQ(QColor(Painted().pixel(20, 20)), QColor(Qt::red));
  EXPECT_NE(QColor(Painted().pixel(50, 51)), QColor(Qt::red));
  image->Stretch = true;
  EXPECT_EQ(QColor(Painted().pixel(50, 51)), QColor(Qt::red));
}

TEST_F(FormPainterTest, AButtonHasItsPictureAboveTheCaption) {
  AddPicture("C:\\p.bmp", Qt::red);
  ControlRef button = Add(Kind::Button, 20, 20, 81, 61);
  button->Picture = "C:\\p.bmp";
  // Alone, the picture stands in the middle.
  EXPECT_EQ(QColor(Painted().pixel(60, 50)), QColor(Qt::red));
  button->Caption = "Ok";
  const QImage image = Painted();
  int top = 20;
  while (top < 81 && QColor(image.pixel(60, top)) != QColor(Qt::red)) ++top;
  EXPECT_GT(top, 23);
  EXPECT_LT(top + 8, 50);
  EXPECT_NE(QColor(image.pixel(25, 50)), QColor(Qt::red));
}

TEST_F(FormPainterTest, AMissingPictureLeavesSomethingToFind) {
  const QImage empty = Painted();
  Add(Kind::Image, 15, 15, 41, 41)->Picture = "C:\\gone.bmp";
  EXPECT_NE(Painted(), empty);
}

TEST_F(FormPainterTest, HiddenControlsAndTemplatesAreNotPainted) {
  const QImage empty = Painted();
  Add(Kind::TextBox, 20, 20, 100, 21)->Visible = false;
  EXPECT_EQ(Painted(), empty);
}

TEST_F(FormPainterTest, ButtonsAndMarksShowTheFaceWhateverTheirColour) {
  for (const Kind kind : {Kind::Button, Kind::CheckBox, Kind::OptionButton}) {
    ControlRef control = Add(kind, 20, 20, 97, 25);
    control->BackColor = 255;
    EXPECT_EQ(Painted().pixel(110, 25), kFace) << InfoOf(kind).Name;
    form_.Unload(control);
  }
}

TEST_F(FormPainterTest, WhatTheProgramDoesNotShowOrLetsNoUserUseLooksDifferent) {
  for (const Kind kind : {Kind::Button, Kind::Label, Kind::CheckBox, Kind::OptionButton,
                          Kind::TextBox, Kind::RichTextBox, Kind::ListBox, Kind::ComboBox}) {
    SCOPED_TRACE(InfoOf(kind).Name);
    record_.emplace();
    ControlRef control = Add(kind, 20, 20, 120, 60);
    control->Caption = control->Text = "Shown";
    control->Items = {"Shown"};
    ObjectRec& record = *record_->Objects(kind)->Ensure(1);
    record.Enabled = record.Visible = 1;
    const QImage usual = Painted();
    record.Enabled = 0;
    EXPECT_NE(Painted(), usual);
    record.Enabled = 1;
    record.Visible = 0;
    EXPECT_NE(Painted(), usual);
    record.Visible = 1;
    EXPECT_EQ(Painted(), usual);
    form_.Unload(control);
  }
}

TEST_F(FormPainterTest, AViewerShowsItsPage) {
  record_.emplace();
  Add(Kind::HtmlViewer, 20, 20, 185, 120);
  record_->HtmlViewers.Ensure(1)->Navigate = "page.htm";
  const QImage one = Painted();
  record_->HtmlViewers.At(1)->Navigate = "another.htm";
  EXPECT_NE(Painted(), one);
}

TEST_F(FormPainterTest, TheSelectionOfALockedFormIsSeen) {
  form_.ControlSel = Add(Kind::Button, 20, 20, 75, 25);
  const QImage open = Painted();
  form_.m_bDesignMode = false;
  EXPECT_NE(Painted(), open);
}

TEST_F(FormPainterTest, ATruncatedPictureShowsThePlaceholder) {
  AddPicture("C:\\p.bmp", Qt::red);
  ControlRef image = Add(Kind::Image, 15, 15, 41, 41);
  image->Picture = "C:\\gone.bmp";
  const QImage placeholder = Painted();
  image->Picture = "C:\\cut.bmp";
  files_.Put("C:\\cut.bmp", files_.Bytes("C:\\p.bmp")->substr(0, 100));
  EXPECT_EQ(Painted(), placeholder);
}

TEST_F(FormPainterTest, HandlesLieOnTopOfAll) {
  Add(Kind::Button, 20, 20, 75, 25);
  const QRgb before = Painted().pixel(24, 24);
  ControlRef handle = form_.Element(Kind::Handle, 0);
  handle->Visible = true;
  handle->Left = handle->Top = 21 * 15;
  EXPECT_NE(Painted().pixel(24, 24), before);
}

TEST_F(FormPainterTest, AnObjectFarOutsideIsHarmless) {
  ControlRef far = Add(Kind::ListBox, 0, 0, 100, 100);
  far->Left = 3.0e38F;
  far->Width = std::numeric_limits<float>::quiet_NaN();
  EXPECT_EQ(Painted().pixel(11, 11), kFace);
}

}  // namespace
}  // namespace tarnwick
