// The design form as it is painted, and the same form as it runs: alike region by region.
#include <QBuffer>
#include <QImage>
#include <QMenuBar>
#include <QPainter>
#include <algorithm>
#include <cstdlib>
#include <functional>

#include <gtest/gtest.h>

#include "codegen/program_source.h"
#include "fakes/build_paths.h"
#include "fakes/project_builder.h"
#include "fakes/temporary_folder.h"
#include "qt/surface/form_menu_strip.h"
#include "qt/surface/form_painter.h"
#include "run/live_program.h"
#include "run/views/run_form.h"
#include "text/path_text.h"

namespace tarnwick {
namespace {

using test::BuiltForm;
using test::BuiltObject;
using test::LiveProgram;

/// A channel of a pixel may differ by this much: the toolkit rounds where colours are mixed.
constexpr int kChannel = 8;
/// Part of the pixels of a text that may differ: the same glyphs half a pixel aside, at most.
constexpr double kGlyphs = 0.02;

bool SamePixel(QRgb a, QRgb b) {
  return std::abs(qRed(a) - qRed(b)) <= kChannel && std::abs(qGreen(a) - qGreen(b)) <= kChannel &&
         std::abs(qBlue(a) - qBlue(b)) <= kChannel;
}

/// Pixels that differ within an area and outside of another.
int Different(const QImage& a, const QImage& b, const QRect& area, const QRect& without = {}) {
  int count = 0;
  for (int y = area.top(); y <= area.bottom(); ++y) {
    for (int x = area.left(); x <= area.right(); ++x) {
      if (!without.contains(x, y) && !SamePixel(a.pixel(x, y), b.pixel(x, y))) ++count;
    }
  }
  return count;
}

/// One object on a form that is black, so that the dots of the design form are not to be seen.
class AlikeTest : public testing::Test {
 protected:
  AlikeTest() {
    project_.Tables.ProgramFolder = PathFromNative(test::ProgramFolder());
    form_.User().BackColor = 0;
    form_.User().Caption = "Form";
    form_.Record().Width = 320;
    form_.Record().Height = 240;
    form_.Record().Center = 0;
  }

  static constexpr QRect kPlace{20, 20, 120, 40};

  BuiltObject Add(Kind kind) {
    BuiltObject object = form_.Add(kind, "Object1").At(kPlace.x(), kPlace.y());
    object.Size(kPlace.width(), kPlace.height());
    object.Control.Caption = "Caption";
    object.Control.Text = "Text";
    return object;
  }

  /// A picture of the test's own, as a Windows path.
  std::string Picture() {
    QImage picture(16, 16, QImage::Format_RGB32);
    picture.fill(QColor(255, 128, 0));
    picture.setPixelColor(3, 4, Qt::blue);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    picture.save(&buffer, "BMP");
    folder_.Write("picture.bmp", bytes.toStdString());
    return folder_.Path("picture.bmp");
  }

  /// Paints and runs the form; both images have the size of the client area.
  void Show() {
    GeneratorState state;
    const std::string source = GenerateSource(project_.Tables, state);
    LiveProgram live(source);
    ASSERT_TRUE(live.Program.Good) << live.Faults << source;
    live.Then([&] {
      auto* const form = dynamic_cast<run::RunForm*>(live.Widget("Form1"));
      ASSERT_NE(form, nullptr);
      running_ = form->Client()->grab().toImage().convertToFormat(QImage::Format_RGB32);
    });
    live.Run();
    drawn_ = QImage(running_.size(), QImage::Format_RGB32);
    QPainter painter(&drawn_);
    looks::PictureCache pictures([this](const std::string& path) -> std::optional<std::string> {
      return folder_.Read(path.substr(path.rfind('\\') + 1));
    });
    TextCache texts;
    FormPainter(pictures, texts)
        .Paint(painter, form_.User(), &form_.Record(), QRect(QPoint(), drawn_.size()));
  }

  /// Frame and face are the same to the pixel, and so is the ground around; the text within
  /// `caption`, an area of the object, is but for a few pixels.
  void ExpectAlike(const QRect& caption, int edge = 2) {
    Show();
    const QRect text = caption.translated(kPlace.topLeft());
    const QRect face = kPlace.adjusted(edge, edge, -edge, -edge);
    EXPECT_EQ(Different(drawn_, running_, drawn_.rect(), kPlace), 0) << "the ground";
    EXPECT_EQ(Different(drawn_, running_, kPlace, face), 0) << "the frame";
    EXPECT_EQ(Different(drawn_, running_, face, text), 0) << "the face";
    EXPECT_LE(Different(drawn_, running_, text), kGlyphs * text.width() * text.height())
        << "the text";
    if (HasFailure()) Keep();
  }
  void ExpectAlike() { ExpectAlike(QRect(2, 2, kPlace.width() - 4, kPlace.height() - 4)); }

  /// With TARNWICK_KEEP_PICTURES set to a folder both pictures are kept there.
  void Keep() const {
    const QString folder = qEnvironmentVariable("TARNWICK_KEEP_PICTURES");
    if (folder.isEmpty()) return;
    const char* const name = testing::UnitTest::GetInstance()->current_test_info()->name();
    drawn_.save(folder + u'/' + QString::fromLatin1(name) + QStringLiteral("-drawn.png"));
    running_.save(folder + u'/' + QString::fromLatin1(name) + QStringLiteral("-running.png"));
  }

  TemporaryFolder folder_;
  test::ProjectBuilder project_;
  BuiltForm form_ = project_.AddForm();
  QImage drawn_;
  QImage running_;
};

TEST_F(AlikeTest, AFormWithoutObjects) {
  form_.User().BackColor = 0x804020;
  Show();
  // Between the dots of the design form, which stand at every tenth pixel.
  int different = 0;
  for (int y = 0; y < drawn_.height(); ++y) {
    for (int x = 0; x < drawn_.width(); ++x) {
      const bool dot = x % 10 == 0 && y % 10 == 0;
      if (!dot && !SamePixel(drawn_.pixel(x, y), running_.pixel(x, y))) ++different;
    }
  }
  EXPECT_EQ(different, 0);
  EXPECT_EQ(running_.size(), QSize(312, 208));
}

TEST_F(AlikeTest, AButton) {
  Add(Kind::Button);
  ExpectAlike();
}

TEST_F(AlikeTest, AButtonThatTakesNoInput) {
  BuiltObject button = Add(Kind::Button);
  button.Record.Enabled = 0;
  ExpectAlike();
}

TEST_F(AlikeTest, AButtonWithAnAccessKeyAndABoldFont) {
  BuiltObject button = Add(Kind::Button);
  button.Control.Caption = "&Bold";
  button.Control.FontBold = true;
  button.Control.FontSize = 12;
  button.Record.FontColor = 255;
  ExpectAlike();
}

TEST_F(AlikeTest, AButtonWithAPicture) {
  const std::string picture = Picture();
  BuiltObject button = Add(Kind::Button).Picture(picture);
  button.Control.Picture = picture;
  ExpectAlike();
}

TEST_F(AlikeTest, ALabel) {
  BuiltObject label = Add(Kind::Label);
  label.Control.BackStyle = 1;
  label.Control.BackColor = 0x00FFFF;
  label.Control.AutoSize = false;
  ExpectAlike(QRect(0, 0, kPlace.width(), kPlace.height()), 0);
}

TEST_F(AlikeTest, ALabelThroughWhichTheFormIsSeen) {
  BuiltObject label = Add(Kind::Label);
  label.Control.BackStyle = 0;
  label.Control.ForeColor = 0xFFFFFF;
  label.Control.AutoSize = false;
  ExpectAlike(QRect(0, 0, kPlace.width(), kPlace.height()), 0);
}

TEST_F(AlikeTest, ALabelThatSizesItself) {
  BuiltObject label = Add(Kind::Label);
  label.Control.BackStyle = 1;
  label.Control.BackColor = 0x00FFFF;
  label.Control.AutoSize = true;
  ExpectAlike(QRect(0, 0, kPlace.width(), kPlace.height()), 0);
}

TEST_F(AlikeTest, ALabelThatBreaksItsLines) {
  BuiltObject label = Add(Kind::Label);
  label.Control.BackStyle = 1;
  label.Control.Caption = "many words that need more than a single line of it";
  label.Control.WordWrap = true;
  label.Record.Icon = 1;
  label.Control.AutoSize = false;
  ExpectAlike(QRect(0, 0, kPlace.width(), kPlace.height()), 0);
}

TEST_F(AlikeTest, CheckBoxes) {
  for (const bool checked : {false, true}) {
    form_.User().Unload(form_.User().Element(Kind::CheckBox, 1));
    BuiltObject box = Add(Kind::CheckBox);
    box.Control.Value = checked ? 1 : 0;
    box.Record.Checked = checked ? 1 : 0;
    ExpectAlike(QRect(17, 0, kPlace.width() - 17, kPlace.height()), 0);
  }
}

TEST_F(AlikeTest, ACheckBoxThatTakesNoInput) {
  BuiltObject box = Add(Kind::CheckBox);
  box.Record.Enabled = 0;
  ExpectAlike(QRect(17, 0, kPlace.width() - 17, kPlace.height()), 0);
}

TEST_F(AlikeTest, AnOptionButtonThatIsChosen) {
  BuiltObject option = Add(Kind::OptionButton);
  option.Control.Value = 1;
  option.Record.Checked = 1;
  ExpectAlike(QRect(17, 0, kPlace.width() - 17, kPlace.height()), 0);
}

TEST_F(AlikeTest, ATextBox) {
  BuiltObject box = Add(Kind::TextBox);
  box.Control.BorderStyle = 1;
  box.Control.Appearance = 1;
  box.Control.BackColor = 0xE0FFFF;
  box.Control.ForeColor = 0x800000;
  ExpectAlike();
}

TEST_F(AlikeTest, ATextBoxWithoutAnEdge) {
  BuiltObject box = Add(Kind::TextBox);
  box.Control.BorderStyle = 0;
  ExpectAlike();
}

TEST_F(AlikeTest, ATextBoxThatTakesNoInput) {
  BuiltObject box = Add(Kind::TextBox);
  box.Control.BorderStyle = 1;
  box.Control.Appearance = 1;
  box.Record.Enabled = 0;
  ExpectAlike();
}

TEST_F(AlikeTest, ARichTextBox) {
  BuiltObject box = Add(Kind::RichTextBox);
  box.Control.BorderStyle = 1;
  box.Control.Appearance = 1;
  ExpectAlike();
}

TEST_F(AlikeTest, AListBox) {
  BuiltObject list = Add(Kind::ListBox).Rows({"first", "second"});
  list.Control.Appearance = 1;
  list.Control.BackColor = 0xE0FFFF;
  ExpectAlike();
}

TEST_F(AlikeTest, AListBoxThatTakesNoInput) {
  BuiltObject list = Add(Kind::ListBox).Rows({"first", "second"});
  list.Control.Appearance = 1;
  list.Record.Enabled = 0;
  ExpectAlike();
}

TEST_F(AlikeTest, AComboBox) {
  BuiltObject combo = Add(Kind::ComboBox).Size(kPlace.width(), kPlace.height());
  combo.Control.BackColor = 0xFFFFFF;
  ExpectAlike();
}

TEST_F(AlikeTest, AnImage) {
  for (const bool stretched : {false, true}) {
    form_.User().Unload(form_.User().Element(Kind::Image, 1));
    const std::string picture = Picture();
    BuiltObject image = Add(Kind::Image).Picture(picture);
    image.Control.Picture = picture;
    image.Control.Stretch = stretched;
    ExpectAlike(QRect(0, 0, 1, 1), 0);
  }
}

TEST_F(AlikeTest, AMenuStrip) {
  project_.Title("mnuFile", "&File").Item("itmOpen", "Open");
  project_.Title("mnuEdit", "Edit").Item("itmCopy", "Copy");
  form_.ShowMenuBar();
  GeneratorState state;
  LiveProgram live(GenerateSource(project_.Tables, state));
  ASSERT_TRUE(live.Program.Good) << live.Faults;
  live.Then([&] {
    auto* const form = dynamic_cast<run::RunForm*>(live.Widget("Form1"));
    ASSERT_NE(form, nullptr);
    auto* const bar = live.Widget("Form1")->findChild<QMenuBar*>();
    running_ = bar->grab().toImage().convertToFormat(QImage::Format_RGB32);
    FormMenuStrip strip([](const ControlRef&) {}, nullptr);
    strip.Rebuild(form_.User());
    strip.resize(bar->size());
    drawn_ = strip.grab().toImage().convertToFormat(QImage::Format_RGB32);
  });
  live.Run();
  ASSERT_EQ(drawn_.size(), running_.size());
  const QRect titles(0, 2, 120, drawn_.height() - 4);
  EXPECT_EQ(Different(drawn_, running_, drawn_.rect(), titles), 0) << "the strip";
  EXPECT_LE(Different(drawn_, running_, titles), kGlyphs * titles.width() * titles.height())
      << "the titles";
  if (HasFailure()) Keep();
}

}  // namespace
}  // namespace tarnwick
